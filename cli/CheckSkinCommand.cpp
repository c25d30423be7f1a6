// check-skin: what is wrong with a skin, for the people who make one. The files are read as the program reads them.
#include "cli/Commands.h"

#include "cli/HostText.h"
#include "cli/InputFile.h"
#include "cli/Json.h"
#include "cli/SafeText.h"
#include "skin/SkinFile.h"
#include "skin/SkinFolder.h"
#include "skin/SkinText.h"
#include "skin/SplashFile.h"

#include <vector>

namespace korvane {
namespace {

struct Checked {
    std::string whatItIs{};  // when there is no problem
    std::vector<skin::SkinProblem> problems{};
};

std::string counted(std::size_t count, const std::string& what) {
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

Checked readAsSkin(const std::string& name, const std::string& text, const skin::ReadSkinFile& read) {
    std::size_t pictures = 0;
    const auto countingRead = [&](const std::string& picture) {
        ++pictures;
        return read(picture);
    };
    skin::SkinFile loaded;
    skin::SkinProblem problem;
    if (!loaded.load(name, text, countingRead, problem) || !loaded.problems().empty()) {
        return {.problems = loaded.problems()};
    }
    return {.whatItIs = "a skin of " + counted(loaded.elementCount(), "element") + ", " + counted(pictures, "picture")};
}

Checked readAsSplash(const std::string& name, const std::string& text, const skin::ReadSkinFile& read) {
    skin::Picture picture;
    skin::SkinProblem problem;
    if (!skin::readSplash(name, text, read, picture, problem)) {
        return {.problems = {problem}};
    }
    return {.whatItIs = "a splash of " + std::to_string(picture.width) + " x " + std::to_string(picture.height) +
                        " pixels"};
}

void writeProblems(JsonWriter& json, const std::vector<skin::SkinProblem>& problems) {
    json.beginObject();
    json.name("problems");
    json.beginArray();
    for (const skin::SkinProblem& problem : problems) {
        json.beginObject();
        json.name("file");
        json.text(fileNameToUtf8(problem.file));
        json.name("line");
        json.number(problem.line);
        json.name("reason");
        json.text(problem.reason);
        json.endObject();
    }
    json.endArray();
    json.endObject();
}

}  // namespace

ExitStatus checkSkinCommand(const CommandLine& options, Output& output) {
    std::string text;
    if (const std::optional<std::string> reason = readInputFile(options.skinFile, text)) {
        return output.fail(unreadable(options.skinFile + ": " + *reason));
    }
    const skin::SkinFolder folder(options.skinFile);
    const std::string& name = folder.fileName();
    const skin::ReadSkinFile read = folder.reader();
    const bool isSplash = name.size() >= 4 && equalIgnoringCase(std::string_view(name).substr(name.size() - 4), ".spl");
    const Checked checked = isSplash ? readAsSplash(name, text, read) : readAsSkin(name, text, read);
    if (options.json) {
        JsonWriter json;
        writeProblems(json, checked.problems);
        output.print(json);
    } else if (checked.problems.empty()) {
        output.print(safeLine(name) + ": " + checked.whatItIs + '\n');
    } else {
        for (const skin::SkinProblem& problem : checked.problems) {
            output.complain(describe(problem));
        }
    }
    return checked.problems.empty() ? ExitStatus::Done : ExitStatus::Failed;
}

}  // namespace korvane
