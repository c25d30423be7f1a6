// A picture in memory.
#pragma once

#include <cstdint>
#include <vector>

namespace korvane::skin {

// 0xAARRGGBB, not premultiplied.
using Pixel = std::uint32_t;

struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels;  // the top row first, without gaps
};

}  // namespace korvane::skin
