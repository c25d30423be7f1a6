// Bitmaps as a paint program would save them, for the tests of everything that reads pictures.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace korvane::skin {

inline std::string littleEndian(std::uint32_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(value >> (8 * i) & 0xFF);
    }
    return text;
}

struct BitmapBytes {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::uint32_t bits = 24;
    std::string rows{};                    // as stored, each row filled up to four bytes
    std::vector<std::uint32_t> colours{};  // of the table
    std::uint32_t compression = 0;
    std::uint32_t coloursUsed = 0;
    std::string masks{};
    std::uint32_t headerSize = 40;

    std::string str() const {
        std::string table = masks;
        for (const std::uint32_t colour : colours) {
            table += littleEndian(colour, headerSize == 12 ? 3 : 4);
        }
        std::string header = littleEndian(headerSize, 4);
        if (headerSize == 12) {
            header += littleEndian(static_cast<std::uint32_t>(width), 2) +
                      littleEndian(static_cast<std::uint32_t>(height), 2) + littleEndian(1, 2) + littleEndian(bits, 2);
        } else {
            header += littleEndian(static_cast<std::uint32_t>(width), 4) +
                      littleEndian(static_cast<std::uint32_t>(height), 4) + littleEndian(1, 2) + littleEndian(bits, 2) +
                      littleEndian(compression, 4) + std::string(12, '\0') + littleEndian(coloursUsed, 4) +
                      littleEndian(0, 4);
        }
        // In the longer headers the masks are a part of the header.
        const std::size_t before = 14 + (headerSize > 40 ? headerSize - masks.size() : headerSize);
        header.resize(before - 14, '\0');
        const std::string body = table + rows;
        return "BM" + littleEndian(static_cast<std::uint32_t>(before + body.size()), 4) + littleEndian(0, 4) +
               littleEndian(static_cast<std::uint32_t>(before + table.size()), 4) + header + body;
    }
};

// A grey picture of that size.
inline std::string greyBitmap(int width, int height) {
    const std::size_t row = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
    std::string rows(row * static_cast<std::size_t>(height), '\x80');
    return BitmapBytes{.width = width, .height = height, .rows = std::move(rows)}.str();
}

}  // namespace korvane::skin
