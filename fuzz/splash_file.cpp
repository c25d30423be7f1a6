// Fuzz target: whatever a splash file holds, its picture is read, or a problem says why not and no picture is left.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "skin/SplashFile.h"

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const auto read = [](const std::string& name) {
        require(!name.empty() && name.find_first_of("/\\:") == std::string::npos);
        // A single pixel with 24 bits.
        std::string bitmap("BM\x3A\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x18\0", 30);
        bitmap.resize(58, '\x7F');
        bitmap.replace(30, 24, 24, '\0');
        return name == "p.bmp" ? std::optional(bitmap) : std::nullopt;
    };
    korvane::skin::Picture picture;
    korvane::skin::SkinProblem problem;
    if (korvane::skin::readSplash("fuzz.spl", text, read, picture, problem)) {
        require(picture.width == 1 && picture.pixels.size() == 1 && problem.reason.empty());
    } else {
        require(picture.pixels.empty() && !problem.reason.empty() && problem.line >= 0);
    }
    return 0;
}
