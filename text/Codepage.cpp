// Conversions between UTF-16, Windows-1252 and UTF-8, and upper case for comparing registry names. Written out by
// table and by rule because the C library's own depend on the locale of the machine.
#include "text/Codepage.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace korvane {
namespace {

// Bytes 80 to 9F of Windows-1252; all others are the character of the same number.
constexpr std::array<char16_t, 32> kAnsiHighControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

std::optional<char> ansiByte(char16_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    const auto* found = std::find(kAnsiHighControls.begin(), kAnsiHighControls.end(), character);
    if (found == kAnsiHighControls.end()) {
        return std::nullopt;
    }
    return static_cast<char>(0x80 + (found - kAnsiHighControls.begin()));
}

bool isHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }
bool startsPair(std::u16string_view text, std::size_t at) {
    return isHighSurrogate(text[at]) && at + 1 < text.size() && isLowSurrogate(text[at + 1]);
}

// The length of the sequence a byte leads in, 0 for a byte that leads in none.
std::size_t sequenceLength(unsigned lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 2;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return 3;
    }
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

// The character at `at`, which is moved behind it; nothing for what is not UTF-8 (overlong forms, surrogates and
// numbers beyond Unicode included).
std::optional<std::uint32_t> nextUtf8(std::string_view text, std::size_t& at) {
    constexpr std::uint32_t kLeadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    constexpr std::uint32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(text[at]);
    const std::size_t length = sequenceLength(lead);
    if (length == 0 || length > text.size() - at) {
        return std::nullopt;
    }
    std::uint32_t code = lead & kLeadBits[length];
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[at + i]);
        if ((next & 0xC0U) != 0x80U) {
            return std::nullopt;
        }
        code = code << 6 | (next & 0x3FU);
    }
    if (code < kSmallest[length] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) {
        return std::nullopt;
    }
    at += length;
    return code;
}

void appendUtf8(std::string& out, std::uint32_t code) {
    if (code < 0x80) {
        out += static_cast<char>(code);
        return;
    }
    const int continuations = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr std::uint32_t kLeadMarks[] = {0, 0xC0, 0xE0, 0xF0};
    out += static_cast<char>(kLeadMarks[continuations] | code >> (6 * continuations));
    for (int i = continuations - 1; i >= 0; --i) {
        out += static_cast<char>(0x80U | (code >> (6 * i) & 0x3FU));
    }
}

}  // namespace

std::u16string fromAnsi(std::string_view text) {
    std::u16string out(text.size(), u'\0');
    std::transform(text.begin(), text.end(), out.begin(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte >= 0x80 && byte <= 0x9F ? kAnsiHighControls[byte - 0x80U] : static_cast<char16_t>(byte);
    });
    return out;
}

std::string toAnsi(std::u16string_view text) {
    std::string out(text.size(), '\0');
    std::transform(text.begin(), text.end(), out.begin(), [](char16_t c) { return ansiByte(c).value_or('?'); });
    return out;
}

std::optional<std::string> toAnsiExactly(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    for (const char16_t character : text) {
        const std::optional<char> byte = ansiByte(character);
        if (!byte) {
            return std::nullopt;
        }
        out += *byte;
    }
    return out;
}

std::optional<std::u16string> fromUtf8(std::string_view text, std::size_t* faultAt) {
    std::u16string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::optional<std::uint32_t> code = nextUtf8(text, at);
        if (!code) {
            if (faultAt != nullptr) {
                *faultAt = at;
            }
            return std::nullopt;
        }
        if (*code < 0x10000) {
            out += static_cast<char16_t>(*code);
        } else {
            out += static_cast<char16_t>(0xD7C0 + (*code >> 10));
            out += static_cast<char16_t>(0xDC00 + (*code & 0x3FF));
        }
    }
    return out;
}

std::string toUtf8(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t code = text[i];
        if (startsPair(text, i)) {
            code = 0x10000 + ((code - 0xD800) << 10) + (text[++i] - 0xDC00U);
        }
        appendUtf8(out, code);
    }
    return out;
}

bool isWellFormed(std::u16string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (startsPair(text, i)) {
            ++i;
        } else if (isHighSurrogate(text[i]) || isLowSurrogate(text[i])) {
            return false;
        }
    }
    return true;
}

std::vector<std::byte> toStored(std::u16string_view text) {
    std::vector<std::byte> data;
    data.reserve(2 * text.size());
    for (const char16_t unit : text) {
        data.push_back(static_cast<std::byte>(unit & 0xFF));
        data.push_back(static_cast<std::byte>(unit >> 8));
    }
    return data;
}

std::u16string fromStored(std::span<const std::byte> data) {
    std::u16string text(data.size() / 2, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        text[i] = static_cast<char16_t>(std::to_integer<unsigned>(data[2 * i]) |
                                        std::to_integer<unsigned>(data[2 * i + 1]) << 8);
    }
    return text;
}

char16_t upperCase(char16_t c) {
    const auto in = [c](char16_t first, char16_t last) { return c >= first && c <= last; };
    const auto shifted = [c](int distance) { return static_cast<char16_t>(c + distance); };
    if (c < 0x80) {
        return in(u'a', u'z') ? shifted(-0x20) : c;
    }
    if (c < 0x100) {
        return c == 0xFF ? char16_t{0x178} : c >= 0xE0 && c != 0xF7 ? shifted(-0x20) : c;
    }
    // Latin Extended-A: pairs of which the small letter is odd, but even from 139 to 148 and from 179 on.
    if (in(0x100, 0x137) || in(0x14A, 0x177)) {
        return c % 2 == 1 && c != 0x131 ? shifted(-1) : c;
    }
    if (in(0x139, 0x148) || in(0x179, 0x17E)) {
        return c % 2 == 0 ? shifted(-1) : c;
    }
    if (c == 0x3AC) {
        return 0x386;
    }
    if (in(0x3AD, 0x3AF)) {
        return shifted(-37);
    }
    if (in(0x3B1, 0x3CB)) {
        return c == 0x3C2 ? char16_t{0x3A3} : shifted(-0x20);
    }
    if (in(0x3CC, 0x3CE)) {
        return c == 0x3CC ? char16_t{0x38C} : shifted(-63);
    }
    if (in(0x430, 0x44F) || in(0xFF41, 0xFF5A)) {
        return shifted(-0x20);
    }
    if (in(0x450, 0x45F)) {
        return shifted(-0x50);
    }
    return in(0x561, 0x586) ? shifted(-0x30) : c;
}

std::u16string upperCase(std::u16string_view text) {
    std::u16string out(text);
    std::transform(out.begin(), out.end(), out.begin(), [](char16_t c) { return upperCase(c); });
    return out;
}

}  // namespace korvane
