// Fuzz target: the initialisation data of a dialog. What is found of a control lies inside the data, and its properties
// are read, or are the defaults.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "skin/SkinProperties.h"

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const std::byte> all = std::as_bytes(std::span(data, size));
    for (const int control : {1057, 1062}) {
        const std::span<const std::byte> found = korvane::skin::controlData(all, control);
        if (!found.empty()) {
            require(found.data() >= all.data() && found.data() + found.size() <= all.data() + all.size());
        }
        const korvane::skin::SkinProperties properties = korvane::skin::readSkinProperties(found);
        for (const korvane::skin::Pixel colour : {properties.back, properties.fore, properties.panel, properties.panelText}) {
            require(colour >> 24 == 0xFF);
        }
        // Without its last byte the data is either malformed or had something behind its end.
        if (properties != korvane::skin::SkinProperties{}) {
            const korvane::skin::SkinProperties cut = korvane::skin::readSkinProperties(found.first(found.size() - 1));
            require(cut == properties || cut == korvane::skin::SkinProperties{});
        }
    }
    return 0;
}
