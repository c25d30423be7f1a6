// The files are read in the same way as by the program.
#include "cli/CheckSkin.h"

#include "cli/HostText.h"
#include "cli/Json.h"
#include "cli/RegFileStore.h"
#include "skin/SkinFile.h"
#include "skin/SkinFolder.h"
#include "skin/SkinText.h"
#include "skin/SplashFile.h"

#include <vector>

namespace korvane {
namespace {

struct Checked {
    std::string whatItIs{};  // when there is no problem
    std::vector<SkinProblem> problems{};
};

std::string counted(std::size_t count, const std::string& what) {
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

Checked readAsSkin(const std::string& name, const std::string& text, const ReadSkinFile& read) {
    std::size_t pictures = 0;
    const auto countingRead = [&](const std::string& picture) {
        ++pictures;
        return read(picture);
    };
    SkinFile skin;
    SkinProblem problem;
    if (!skin.load(name, text, countingRead, problem) || !skin.problems().empty()) {
        return {.problems = skin.problems()};
    }
    return {.whatItIs = "a skin of " + counted(skin.elementCount(), "element") + ", " + counted(pictures, "picture")};
}

Checked readAsSplash(const std::string& name, const std::string& text, const ReadSkinFile& read) {
    Picture picture;
    SkinProblem problem;
    if (!readSplash(name, text, read, picture, problem)) {
        return {.problems = {problem}};
    }
    return {.whatItIs = "a splash of " + std::to_string(picture.width) + " x " + std::to_string(picture.height) +
                        " pixels"};
}

std::string problemsAsJson(const std::vector<SkinProblem>& problems) {
    JsonWriter json;
    json.beginObject();
    json.name("problems");
    json.beginArray();
    for (const SkinProblem& problem : problems) {
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
    return json.json() + '\n';
}

}  // namespace

ExitStatus checkSkin(const CommandLine& options, std::string& out, std::string& err) {
    std::string text;
    if (const std::optional<std::string> reason = readInputFile(options.skinFile, text)) {
        err += "kmctl: " + options.skinFile + ": " + *reason + '\n';
        return ExitStatus::WrongUsage;
    }
    const SkinFolder folder(options.skinFile);
    const std::string& name = folder.fileName();
    const ReadSkinFile read = folder.reader();
    const bool isSplash = name.size() >= 4 && equalIgnoringCase(std::string_view(name).substr(name.size() - 4), ".spl");
    const Checked checked = isSplash ? readAsSplash(name, text, read) : readAsSkin(name, text, read);
    if (options.json) {
        out += problemsAsJson(checked.problems);
    } else {
        for (const SkinProblem& problem : checked.problems) {
            err += describe(problem) + '\n';
        }
        out += checked.problems.empty() ? name + ": " + checked.whatItIs + '\n' : "";
    }
    return checked.problems.empty() ? ExitStatus::Done : ExitStatus::Failed;
}

}  // namespace korvane
