// Nothing in the header is trusted: sizes are checked against the limit and the length of the file before anything is
// allocated, and lengths are computed in 64 bits, where none can overflow.
#include "skin/BitmapFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

namespace korvane::skin {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::uint32_t kOldInfoHeader = 12;  // BITMAPCOREHEADER: 16-bit sizes, three bytes per palette entry
constexpr std::uint32_t kInfoHeader = 40;
constexpr std::uint32_t kLongestInfoHeader = 124;
constexpr std::uint32_t kUncompressed = 0;
constexpr std::uint32_t kBitFields = 3;  // uncompressed, with a mask for each colour
constexpr Pixel kOpaque = 0xFF000000;
constexpr Pixel kMagenta = 0xFFFF00FF;

std::uint32_t byteAt(std::string_view bytes, std::size_t at) { return static_cast<unsigned char>(bytes[at]); }

std::uint32_t word(std::string_view bytes, std::size_t at) {
    return byteAt(bytes, at) | byteAt(bytes, at + 1) << 8;
}

std::uint32_t doubleWord(std::string_view bytes, std::size_t at) {
    return word(bytes, at) | word(bytes, at + 2) << 16;
}

std::int64_t signedDoubleWord(std::string_view bytes, std::size_t at) {
    return static_cast<std::int32_t>(doubleWord(bytes, at));
}

Pixel transparentIfMagenta(Pixel pixel) { return pixel == kMagenta ? 0 : pixel; }

class Reader {
public:
    explicit Reader(std::string_view file) : file_(file) {}

    // Every step returns what is wrong, or an empty text.
    std::string read(Picture& picture) {
        std::string wrong = readHeader();
        if (wrong.empty()) {
            wrong = bits_ == 32 ? readMasks() : readColours();
        }
        if (wrong.empty()) {
            wrong = findRows();
        }
        if (wrong.empty()) {
            wrong = readPixels();
        }
        if (wrong.empty()) {
            picture = std::move(picture_);
        }
        return wrong;
    }

private:
    std::string readHeader() {
        if (!file_.starts_with("BM")) {
            return "is no bitmap (.bmp)";
        }
        if (file_.size() < kFileHeader + kOldInfoHeader) {
            return "is cut off";
        }
        rowsAt_ = doubleWord(file_, 10);
        headerSize_ = doubleWord(file_, kFileHeader);
        const bool isOld = headerSize_ == kOldInfoHeader;
        if (!isOld && (headerSize_ < kInfoHeader || headerSize_ > kLongestInfoHeader)) {
            return "is a bitmap of an unknown kind";
        }
        if (file_.size() < kFileHeader + headerSize_) {
            return "is cut off";
        }
        const std::size_t sizes = kFileHeader + 4;
        const std::int64_t width = isOld ? word(file_, sizes) : signedDoubleWord(file_, sizes);
        const std::int64_t height = isOld ? word(file_, sizes + 2) : signedDoubleWord(file_, sizes + 4);
        bits_ = word(file_, sizes + (isOld ? 6 : 10));
        compression_ = isOld ? kUncompressed : doubleWord(file_, sizes + 12);
        coloursUsed_ = isOld ? 0 : doubleWord(file_, sizes + 28);
        return checkHeader(width, height);
    }

    std::string checkHeader(std::int64_t width, std::int64_t height) {
        topDown_ = height < 0;
        height = topDown_ ? -height : height;
        if (width <= 0 || height == 0) {
            return "is a bitmap without pixels";
        }
        if (width > kLargestPicture || height > kLargestPicture) {
            return "is wider or higher than " + std::to_string(kLargestPicture) + " pixels";
        }
        if (compression_ != kUncompressed && compression_ != kBitFields) {
            return "is a compressed bitmap: save it without compression";
        }
        constexpr std::array<std::uint32_t, 5> kKnownBits{1, 4, 8, 24, 32};
        if (std::ranges::find(kKnownBits, bits_) == kKnownBits.end() || (compression_ == kBitFields && bits_ != 32)) {
            return "has " + std::to_string(bits_) + " bits for each pixel: save it with 24 or 32";
        }
        picture_.width = static_cast<int>(width);
        picture_.height = static_cast<int>(height);
        return {};
    }

    // Paint programs agree on one byte per colour, but not on the order of the bytes. A BITMAPINFOHEADER is followed by
    // the masks, longer headers hold them in the same place.
    std::string readMasks() {
        if (compression_ == kUncompressed) {
            return {};
        }
        const std::size_t masksAt = kFileHeader + kInfoHeader;
        const bool hasAlphaMask = headerSize_ >= kInfoHeader + 16;
        if (file_.size() < masksAt + 12) {
            return "is cut off";
        }
        for (std::size_t colour = 0; colour < shifts_.size(); ++colour) {
            const bool isAlpha = colour == 3;
            const std::uint32_t mask = isAlpha && !hasAlphaMask ? 0 : doubleWord(file_, masksAt + 4 * colour);
            if (isAlpha) {
                hasAlpha_ = mask != 0;
            }
            shifts_[colour] = 0;
            while (shifts_[colour] < 24 && mask != 0xFFU << shifts_[colour]) {
                shifts_[colour] += 8;
            }
            if (mask != 0xFFU << shifts_[colour] && (!isAlpha || hasAlpha_)) {
                return "has colours that are not one byte each: save it with 24 or 32 bits for each pixel";
            }
        }
        return {};
    }

    std::string readColours() {
        if (bits_ > 8) {
            return {};
        }
        const std::uint32_t most = 1U << bits_;
        const std::uint32_t count = coloursUsed_ == 0 ? most : coloursUsed_;
        if (count > most) {
            return "has a colour table that is too long";
        }
        const std::size_t size = headerSize_ == kOldInfoHeader ? 3 : 4;
        std::size_t at = kFileHeader + headerSize_;
        if (file_.size() < at + count * size) {
            return "is cut off";
        }
        for (std::uint32_t i = 0; i < count; ++i, at += size) {
            colours_.push_back(transparentIfMagenta(blueGreenRed(at)));
        }
        return {};
    }

    Pixel blueGreenRed(std::size_t at) const { return kOpaque | word(file_, at) | byteAt(file_, at + 2) << 16; }

    // Rows are padded to multiples of four bytes.
    std::string findRows() {
        rowSize_ = (static_cast<std::size_t>(picture_.width) * bits_ + 31) / 32 * 4;
        const std::uint64_t end = std::uint64_t{rowsAt_} + std::uint64_t{rowSize_} *
                                                               static_cast<std::uint64_t>(picture_.height);
        if (rowsAt_ < kFileHeader + headerSize_) {
            return "is damaged: its pixels begin inside its header";
        }
        return end > file_.size() ? "is cut off" : "";
    }

    std::string readPixels() {
        picture_.pixels.reserve(static_cast<std::size_t>(picture_.width) * static_cast<std::size_t>(picture_.height));
        for (int y = 0; y < picture_.height; ++y) {
            const int stored = topDown_ ? y : picture_.height - 1 - y;
            const std::size_t row = rowsAt_ + rowSize_ * static_cast<std::size_t>(stored);
            for (std::size_t x = 0; x < static_cast<std::size_t>(picture_.width); ++x) {
                if (bits_ > 8) {
                    picture_.pixels.push_back(bits_ == 24 ? transparentIfMagenta(blueGreenRed(row + 3 * x))
                                                          : fourBytes(row + 4 * x));
                    continue;
                }
                const std::size_t bit = x * bits_;
                const std::uint32_t shift = 8 - bits_ - static_cast<std::uint32_t>(bit % 8);
                const std::uint32_t index = byteAt(file_, row + bit / 8) >> shift & ((1U << bits_) - 1);
                if (index >= colours_.size()) {
                    return "uses a colour that is not in its table";
                }
                picture_.pixels.push_back(colours_[index]);
            }
        }
        makeOpaqueIfInvisible();
        return {};
    }

    Pixel fourBytes(std::size_t at) const {
        const std::uint32_t value = doubleWord(file_, at);
        const auto part = [&](std::size_t colour) { return value >> shifts_[colour] & 0xFF; };
        return (hasAlpha_ ? part(3) << 24 : kOpaque) | part(0) << 16 | part(1) << 8 | part(2);
    }

    // Many programs leave the fourth byte 0 in an opaque picture.
    void makeOpaqueIfInvisible() {
        if (bits_ == 32 && std::ranges::all_of(picture_.pixels, [](Pixel pixel) { return pixel >> 24 == 0; })) {
            std::ranges::for_each(picture_.pixels, [](Pixel& pixel) { pixel |= kOpaque; });
        }
    }

    std::string_view file_;
    std::uint32_t headerSize_ = 0;
    std::uint32_t bits_ = 0;
    std::uint32_t compression_ = 0;
    std::uint32_t coloursUsed_ = 0;
    bool topDown_ = false;
    std::size_t rowsAt_ = 0;
    std::size_t rowSize_ = 0;
    std::array<std::uint32_t, 4> shifts_{16, 8, 0, 24};  // red, green, blue, alpha
    bool hasAlpha_ = true;
    std::vector<Pixel> colours_;
    Picture picture_;
};

}  // namespace

std::string readBitmap(std::string_view file, Picture& picture) { return Reader(file).read(picture); }

}  // namespace korvane::skin
