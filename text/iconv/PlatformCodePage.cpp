// The code pages of the C library. Its tables are those of Windows but for the bytes that mean no character there:
// Windows gives each of them a control character or a letter for private use, so that no text loses a byte; the C
// library refuses them.
#include "text/PlatformCodePage.h"

#include "text/CodePage.h"

#include <iconv.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <span>

namespace korvane {
namespace {

struct ByteRange {
    std::uint8_t first;
    std::uint8_t last;
    constexpr int size() const { return first == 0 ? 0 : last - first + 1; }
    constexpr bool contains(int byte) const { return first != 0 && byte >= first && byte <= last; }
};

// Consecutive units that Windows gives to bytes in order: to single bytes, or with `leads` to pairs.
struct PrivateRange {
    unsigned page;
    char16_t firstUnit;
    ByteRange leads;
    ByteRange bytes;
    ByteRange moreBytes{};

    constexpr int perLead() const { return bytes.size() + moreBytes.size(); }
    constexpr int count() const { return perLead() * (leads.first == 0 ? 1 : leads.size()); }
};

constexpr ByteRange kNoLead{0, 0};
constexpr PrivateRange kPrivateRanges[] = {
    {874, 0xF8C1, kNoLead, {0xDB, 0xDE}},
    {874, 0xF8C5, kNoLead, {0xFC, 0xFF}},
    {932, 0xF8F0, kNoLead, {0xA0, 0xA0}},
    {932, 0xF8F1, kNoLead, {0xFD, 0xFF}},
    {936, 0xF8F5, kNoLead, {0xFF, 0xFF}},
    {936, 0xE000, {0xAA, 0xAF}, {0xA1, 0xFE}},
    {936, 0xE234, {0xF8, 0xFE}, {0xA1, 0xFE}},
    {936, 0xE4C6, {0xA1, 0xA7}, {0x40, 0x7E}, {0x80, 0xA0}},
    {949, 0xF8F7, kNoLead, {0xFF, 0xFF}},
    {949, 0xE000, {0xC9, 0xC9}, {0xA1, 0xFE}},
    {949, 0xE05E, {0xFE, 0xFE}, {0xA1, 0xFE}},
    {950, 0xF8F8, kNoLead, {0xFF, 0xFF}},
    {950, 0xE000, {0xFA, 0xFE}, {0x40, 0x7E}, {0xA1, 0xFE}},
    {950, 0xE311, {0x8E, 0xA0}, {0x40, 0x7E}, {0xA1, 0xFE}},
    {950, 0xEEB8, {0x81, 0x8D}, {0x40, 0x7E}, {0xA1, 0xFE}},
    {1253, 0xF8F9, kNoLead, {0xAA, 0xAA}},
    {1253, 0xF8FA, kNoLead, {0xD2, 0xD2}},
    {1253, 0xF8FB, kNoLead, {0xFF, 0xFF}},
    {1255, 0x05BA, kNoLead, {0xCA, 0xCA}},  // a real letter, younger than the C library's table
    {1255, 0xF88D, kNoLead, {0xD9, 0xDF}},
    {1255, 0xF894, kNoLead, {0xFB, 0xFC}},
    {1255, 0xF896, kNoLead, {0xFF, 0xFF}},
    {1257, 0xF8FC, kNoLead, {0xA1, 0xA1}},
    {1257, 0xF8FD, kNoLead, {0xA5, 0xA5}},
};

std::optional<char16_t> privateUnit(const PrivateRange& range, std::string_view character) {
    const int lead = character.size() == 2 ? static_cast<unsigned char>(character.front()) : 0;
    const int byte = static_cast<unsigned char>(character.back());
    const bool inSecond = range.moreBytes.contains(byte);
    if ((lead != 0) != (range.leads.first != 0) || (lead != 0 && !range.leads.contains(lead)) ||
        (!inSecond && !range.bytes.contains(byte))) {
        return std::nullopt;
    }
    const int row = lead == 0 ? 0 : (lead - range.leads.first) * range.perLead();
    const int column = inSecond ? range.bytes.size() + byte - range.moreBytes.first : byte - range.bytes.first;
    return static_cast<char16_t>(range.firstUnit + row + column);
}

std::string privateBytes(const PrivateRange& range, char16_t unit) {
    const int index = unit - range.firstUnit;
    if (index < 0 || index >= range.count()) {
        return {};
    }
    const int column = index % range.perLead();
    const int byte = column < range.bytes.size() ? range.bytes.first + column
                                                 : range.moreBytes.first + column - range.bytes.size();
    std::string bytes;
    if (range.leads.first != 0) {
        bytes += static_cast<char>(range.leads.first + index / range.perLead());
    }
    return bytes += static_cast<char>(byte);
}

// One direction of the C library's conversion; closes itself.
class Converter {
public:
    Converter(const std::string& to, const std::string& from) : handle_(iconv_open(to.c_str(), from.c_str())) {}
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter() {
        if (isOpen()) {
            iconv_close(handle_);
        }
    }

    bool isOpen() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

    // Empty when it is not one whole character; errno then says why.
    std::string convert(std::string_view text) {
        char* from = const_cast<char*>(text.data());
        std::size_t left = text.size();
        char out[16];
        char* to = out;
        std::size_t room = sizeof out;
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        // Some converters keep a letter back to join it with an accent: the second call asks for it.
        const bool whole = iconv(handle_, &from, &left, &to, &room) == 0 &&
                           iconv(handle_, nullptr, nullptr, &to, &room) == 0;
        return whole ? std::string(out, to) : std::string();
    }

private:
    iconv_t handle_;
};

class IconvCodePage final : public PlatformCodePage {
public:
    explicit IconvCodePage(unsigned number)
        : toUnits_("UTF-16LE", nameOf(number)), toBytes_(nameOf(number), "UTF-16LE") {
        const auto range = std::ranges::equal_range(kPrivateRanges, number, {}, &PrivateRange::page);
        private_ = {range.begin(), range.end()};
        undefinedPair_ = number == 932 ? std::optional(u'\u30FB') : std::nullopt;  // what Windows shows instead
    }

    bool isOpen() const { return toUnits_.isOpen() && toBytes_.isOpen(); }

    bool isLeadByte(char byte) override {
        const bool isPrivate = std::ranges::any_of(private_, [&](const PrivateRange& range) {
            return range.leads.contains(static_cast<unsigned char>(byte));
        });
        return isPrivate || (toUnits_.convert({&byte, 1}).empty() && errno == EINVAL);
    }

    std::optional<char16_t> unitOf(std::string_view character) override {
        const std::string units = toUnits_.convert(character);
        if (units.size() == 2) {
            return static_cast<char16_t>(static_cast<unsigned char>(units[0]) |
                                         static_cast<unsigned char>(units[1]) << 8);
        }
        for (const PrivateRange& range : private_) {
            if (const std::optional<char16_t> unit = privateUnit(range, character)) {
                return unit;
            }
        }
        const auto first = static_cast<unsigned char>(character.front());
        if (character.size() == 1 && first >= 0x80 && first < 0xA0) {
            return first;
        }
        return character.size() == 2 ? undefinedPair_ : std::nullopt;
    }

    std::string bytesOf(char16_t unit) override {
        for (const PrivateRange& range : private_) {
            if (std::string bytes = privateBytes(range, unit); !bytes.empty()) {
                return bytes;
            }
        }
        const char units[] = {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
        std::string bytes = toBytes_.convert({units, 2});
        const bool isControl = unit >= 0x80 && unit < 0xA0;
        return bytes.empty() && isControl ? std::string(1, static_cast<char>(unit)) : bytes;
    }

private:
    static std::string nameOf(unsigned number) { return "CP" + std::to_string(number); }

    Converter toUnits_;
    Converter toBytes_;
    std::span<const PrivateRange> private_;
    std::optional<char16_t> undefinedPair_;
};

}  // namespace

std::unique_ptr<PlatformCodePage> openPlatformCodePage(unsigned number) {
    auto page = std::make_unique<IconvCodePage>(number);
    return page->isOpen() ? std::move(page) : nullptr;
}

unsigned hostCodePage() { return CodePage::kUtf8; }

}  // namespace korvane
