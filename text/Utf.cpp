// Written out because the platform's own conversions disagree about what is not well formed.
#include "text/Utf.h"

#include <cstdint>

namespace korvane {
namespace {

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

std::u16string_view characterAt(std::u16string_view text, std::size_t at) {
    return text.substr(at, startsPair(text, at) ? 2 : 1);
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

}  // namespace korvane
