// Bitmaps of every depth, and those that must be refused.
#include "skin/BitmapFile.h"
#include "tests/skin/BitmapBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace korvane::skin {
namespace {

using Pixels = std::vector<Pixel>;

Picture readWell(const BitmapBytes& bitmap) {
    Picture picture;
    EXPECT_EQ(readBitmap(bitmap.str(), picture), "");
    return picture;
}

std::string refusal(const std::string& file) {
    Picture picture{.width = 1, .height = 1, .pixels = {42}};
    std::string wrong = readBitmap(file, picture);
    EXPECT_EQ(picture.width, 1);
    EXPECT_EQ(picture.pixels, Pixels{42}) << "a picture that is refused must not be touched";
    return wrong;
}

// Three pixels wide, so that every depth has bits left over in a row; the lower row is stored first.
BitmapBytes twoRows(std::uint32_t bits) {
    BitmapBytes bitmap{.width = 3, .height = 2, .bits = bits};
    if (bits == 24) {
        bitmap.rows = std::string("\1\2\3\4\5\6\7\x8\x9\0\0\0", 12) +
                      std::string("\xFF\0\xFF\xFF\1\xFF\0\0\0\0\0\0", 12);
    } else if (bits == 32) {
        bitmap.rows = std::string("\1\2\3\4\5\6\7\x8\x9\xA\xB\xC", 12) +
                      std::string("\xFF\0\xFF\xFF\0\0\0\0\1\1\1\1", 12);
    } else {
        bitmap.colours.assign(std::size_t{1} << bits, 0x111111);
        bitmap.colours[0] = 0xFF00FF;
        bitmap.colours[1] = 0x123456;
        bitmap.rows = bits == 1   ? std::string("\x40\0\0\0\xA0\0\0\0", 8)
                      : bits == 4 ? std::string("\x01\0\0\0\x10\x10\0\0", 8)
                                  : std::string("\0\1\0\0\1\0\1\0", 8);
    }
    return bitmap;
}

TEST(BitmapFile, MagentaIsTransparentUnlessThePictureHasAnAlpha) {
    for (const std::uint32_t bits : {1U, 4U, 8U}) {
        EXPECT_EQ(readWell(twoRows(bits)).pixels, (Pixels{0xFF123456, 0, 0xFF123456, 0, 0xFF123456, 0})) << bits;
    }
    EXPECT_EQ(readWell(twoRows(24)).pixels,
              (Pixels{0, 0xFFFF01FF, 0xFF000000, 0xFF030201, 0xFF060504, 0xFF090807}));
    EXPECT_EQ(readWell(twoRows(32)).pixels,
              (Pixels{0xFFFF00FF, 0, 0x01010101, 0x04030201, 0x08070605, 0x0C0B0A09}));
    // A fourth byte that is 0 everywhere is no alpha.
    BitmapBytes unused{.width = 2, .height = 1, .bits = 32, .rows = std::string("\1\2\3\0\xFF\0\xFF\0", 8)};
    EXPECT_EQ(readWell(unused).pixels, (Pixels{0xFF030201, 0xFFFF00FF}));
}

TEST(BitmapFile, OtherOrdersOfRowsAndColours) {
    BitmapBytes topDown = twoRows(8);
    const Picture upright = readWell(topDown);
    std::rotate(topDown.rows.begin(), topDown.rows.begin() + 4, topDown.rows.end());
    topDown.height = -2;
    EXPECT_EQ(readWell(topDown).pixels, upright.pixels);

    BitmapBytes masked{.width = 1, .height = 1, .bits = 32, .rows = "\x11\x22\x33\x44", .compression = 3};
    masked.masks = littleEndian(0xFF000000, 4) + littleEndian(0xFF0000, 4) + littleEndian(0xFF00, 4);
    EXPECT_EQ(readWell(masked).pixels, Pixels{0xFF443322}) << "without a mask for the alpha";
    masked.masks += littleEndian(0xFF, 4);
    for (const std::uint32_t headerSize : {56U, 124U}) {
        masked.headerSize = headerSize;
        BitmapBytes wide = masked;
        wide.masks.resize(headerSize - 40, '\0');
        EXPECT_EQ(readWell(wide).pixels, Pixels{0x11443322}) << headerSize;
    }
}

TEST(BitmapFile, ShortTables) {
    BitmapBytes shortTable = twoRows(8);
    shortTable.colours.resize(2);
    shortTable.coloursUsed = 2;
    EXPECT_EQ(readWell(shortTable).pixels, readWell(twoRows(8)).pixels);
    shortTable.rows[0] = 2;
    EXPECT_EQ(refusal(shortTable.str()), "uses a colour that is not in its table");
    shortTable.coloursUsed = 257;
    EXPECT_EQ(refusal(shortTable.str()), "has a colour table that is too long");
}

TEST(BitmapFile, CutOffAnywhereItIsRefused) {
    for (const std::uint32_t bits : {1U, 4U, 8U, 24U, 32U}) {
        for (const std::uint32_t headerSize : {12U, 40U}) {
            BitmapBytes bitmap = twoRows(bits);
            bitmap.headerSize = headerSize;
            const std::string whole = bitmap.str();
            EXPECT_EQ(readWell(bitmap).pixels, readWell(twoRows(bits)).pixels);
            for (std::size_t size = 0; size < whole.size(); ++size) {
                // A buffer of exactly that size, so that a read behind its end is found.
                const std::vector<char> part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
                Picture picture;
                EXPECT_NE(readBitmap({part.data(), part.size()}, picture), "") << bits << ' ' << size;
            }
        }
    }
}

TEST(BitmapFile, HeadersThatLieAreRefusedBeforeAnythingIsAllocated) {
    for (const auto& [width, height, reason] :
         {std::tuple{2049, 1, "is wider or higher than 2048 pixels"},
          {INT32_MAX, INT32_MAX, "is wider or higher than 2048 pixels"},
          {1, INT32_MIN, "is wider or higher than 2048 pixels"},
          {2048, 2048, "is cut off"},
          {-3, 2, "is a bitmap without pixels"}}) {
        BitmapBytes bitmap = twoRows(24);
        bitmap.width = width;
        bitmap.height = height;
        EXPECT_EQ(refusal(bitmap.str()), reason) << width << " x " << height;
    }
    std::string file = twoRows(24).str();
    file.replace(10, 4, littleEndian(20, 4));
    EXPECT_EQ(refusal(file), "is damaged: its pixels begin inside its header");
    file.replace(10, 4, littleEndian(UINT32_MAX, 4));
    EXPECT_EQ(refusal(file), "is cut off");
}

TEST(BitmapFile, OtherKindsAreNamed) {
    BitmapBytes other = twoRows(24);
    other.bits = 16;
    EXPECT_EQ(refusal(other.str()), "has 16 bits for each pixel: save it with 24 or 32");
    other.headerSize = 200;
    EXPECT_EQ(refusal(other.str()), "is a bitmap of an unknown kind");
    other = twoRows(8);
    other.compression = 1;
    EXPECT_EQ(refusal(other.str()), "is a compressed bitmap: save it without compression");
    EXPECT_EQ(refusal("\x89PNG\r\n\x1a\n"), "is no bitmap (.bmp)");
}

}  // namespace
}  // namespace korvane::skin
