// Fuzz target: whatever a skin file holds, each element is either there with values in their ranges, or refused with a
// problem that a terminal can show, and only pictures beside the file are read.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "skin/SkinFile.h"

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

// A grey bitmap of 4 x 6 pixels with 24 bits.
std::string smallBitmap() {
    std::string file("BM\x7E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\4\0\0\0\6\0\0\0\1\0\x18\0", 30);
    file.resize(54, '\0');
    return file + std::string(72, '\x80');
}

void checkProblem(const korvane::skin::SkinProblem& problem) {
    require(problem.file == "fuzz.skn" && problem.line >= 0 && !problem.reason.empty());
    require(problem.reason.size() < 300);
    require(std::ranges::all_of(problem.reason, [](char c) { return c >= ' ' && c <= '~'; }));
}

void checkLook(const korvane::skin::ElementLook& look, bool isMain) {
    const auto isLength = [](int length) { return length >= 0 && length <= 200; };
    require(isLength(look.radius) && isLength(look.borderWidth) && isLength(look.margins.left));
    require(isLength(look.margins.top) && isLength(look.margins.right) && isLength(look.margins.bottom));
    require(look.pictureStates >= 1 && look.pictureStates <= 6);
    require(look.font.face.empty() ? look.font.points == 0 : look.font.points >= 4 && look.font.points <= 72);
    require(isMain ? look.captionHeight >= 16 && look.captionHeight <= 200 : look.captionHeight == 0);
    require(look.buttons.size() <= (isMain ? 3U : 0U));
    if (look.picture != nullptr) {
        require(look.picture->height % look.pictureStates == 0);
        require(look.margins.left + look.margins.right <= look.picture->width);
        require(look.margins.top + look.margins.bottom <= look.picture->height / look.pictureStates);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto read = [](const std::string& name) -> std::optional<std::string> {
        require(name.find_first_of("/\\:") == std::string::npos && name.find("..") == std::string::npos);
        return name == "p.bmp" ? std::optional(smallBitmap()) : std::nullopt;
    };
    korvane::skin::SkinFile skin;
    korvane::skin::SkinProblem problem;
    const bool loaded = skin.load("fuzz.skn", text, read, problem);
    if (!loaded) {
        checkProblem(problem);
        require(!skin.problems().empty());
    }
    for (const korvane::skin::SkinProblem& each : skin.problems()) {
        checkProblem(each);
    }
    bool whole = loaded;
    for (const char* name : {"Main", "SubMain", "CheckBox", "Label", "Button", "Splitter", "FrameButton"}) {
        const korvane::skin::ElementLook* look = skin.element(name, problem);
        whole = whole && look != nullptr;
        if (look == nullptr) {
            checkProblem(problem);
        } else {
            require(loaded);
            checkLook(*look, name == std::string("Main"));
        }
    }
    require(whole || !skin.problems().empty());
    return 0;
}
