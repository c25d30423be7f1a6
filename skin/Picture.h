// A picture in memory, as the skin's pictures are read and drawn.
#pragma once

#include <cstdint>
#include <vector>

namespace korvane {

// 0xAARRGGBB, the colours not multiplied by the alpha.
using Pixel = std::uint32_t;

struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels;  // the top row first, without gaps
};

}  // namespace korvane
