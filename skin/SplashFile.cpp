// The first mistake in a splash file is reported, and the file is not used.
#include "skin/SplashFile.h"

#include "skin/SkinText.h"

#include <optional>
#include <utility>

namespace korvane::skin {
namespace {

class SplashReader {
public:
    // Returns what is wrong with the line, or an empty text.
    std::string take(const SkinLine& line) {
        if (line.kind == SkinLine::Kind::Section) {
            const bool isFirst = !inSplash_ && equalIgnoringCase(line.name, "Splash");
            inSplash_ = true;
            return isFirst ? "" : "a splash file has one section, [Splash], not " + quotedPart(line.name);
        }
        if (line.kind == SkinLine::Kind::Unclear || !inSplash_) {
            return quotedPart(line.name) + " is neither a section nor a key of one";
        }
        const bool isPicture = equalIgnoringCase(line.name, "Picture");
        if (!isPicture && !equalIgnoringCase(line.name, "Format")) {
            return quotedPart(line.name) + " is no key of [Splash]";
        }
        std::optional<SkinLine>& kept = isPicture ? picture_ : format_;
        if (kept) {
            return quotedPart(line.name) + " stands in [Splash] twice";
        }
        kept = line;
        return line.value.empty() ? quotedPart(line.name) + " has no value" : "";
    }

    const std::optional<SkinLine>& picture() const { return picture_; }

private:
    bool inSplash_ = false;
    std::optional<SkinLine> picture_;
    std::optional<SkinLine> format_;
};

}  // namespace

bool readSplash(const std::string& name, std::string_view text, const ReadSkinFile& read, Picture& picture,
                SkinProblem& problem) {
    if (!checkSkinText(name, "Splash", text, problem)) {
        return false;
    }
    SplashReader splash;
    SkinLines lines(text);
    for (SkinLine line; lines.next(line);) {
        std::string reason = splash.take(line);
        if (!reason.empty()) {
            problem = {name, line.number, std::move(reason)};
            return false;
        }
    }
    const std::optional<SkinLine>& line = splash.picture();
    std::string reason = line ? readSkinPicture(line->value, read, picture) : "there is no Picture in [Splash]";
    if (reason.empty()) {
        return true;
    }
    problem = {name, line ? line->number : 0, std::move(reason)};
    return false;
}

}  // namespace korvane::skin
