// Fuzz target: whatever a bitmap holds, it is either a picture of the size that it says, within the limit, or refused
// with a reason and without a trace.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "skin/BitmapFile.h"

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view file(reinterpret_cast<const char*>(data), size);
    korvane::skin::Picture picture;
    const std::string wrong = korvane::skin::readBitmap(file, picture);
    if (!wrong.empty()) {
        require(picture.width == 0 && picture.height == 0 && picture.pixels.empty());
        return 0;
    }
    require(picture.width > 0 && picture.width <= korvane::skin::kLargestPicture);
    require(picture.height > 0 && picture.height <= korvane::skin::kLargestPicture);
    require(picture.pixels.size() ==
            static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height));
    // Every pixel takes at least a bit of the file.
    require(picture.pixels.size() <= size * 8);
    return 0;
}
