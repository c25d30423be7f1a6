// Escapes for terminals.
#include "cli/SafeText.h"

#include "cli/HostText.h"

#include <bit>

namespace korvane {
namespace {

constexpr std::string_view kHex = "0123456789abcdef";

void appendEscaped(std::string& out, char letter, char32_t number, int digits) {
    out += {'\\', letter};
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
        out += kHex[number >> shift & 0xF];
    }
}

std::string safe(std::string_view text, bool lineFeedsStay) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        char32_t character = 0;
        const std::size_t length = firstHostCharacter(text, character);
        if (character == kNoCharacter) {
            appendEscaped(out, 'x', static_cast<unsigned char>(text.front()), 2);
        } else if (!isControl(character) || (character == '\n' && lineFeedsStay)) {
            out += text.substr(0, length);
        } else if (character < 0x80) {
            appendEscaped(out, 'x', character, 2);
        } else {
            appendEscaped(out, 'u', character, 4);
        }
        text.remove_prefix(length);
    }
    return out;
}

}  // namespace

std::size_t firstUtf8Character(std::string_view text, char32_t& character) {
    const auto first = static_cast<unsigned char>(text.front());
    character = first;
    if (first < 0x80) {
        return 1;
    }
    const auto length = static_cast<std::size_t>(std::countl_one(first));
    character = kNoCharacter;
    if (length < 2 || length > 4 || text.size() < length) {
        return 1;
    }
    char32_t value = first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) != 0x80) {
            return 1;
        }
        value = value << 6 | (byte & 0x3FU);
    }
    // Longer than it need be, half of a surrogate pair, or beyond the last character.
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (value < kSmallest[length] || (value >= 0xD800 && value <= 0xDFFF) || value > 0x10FFFF) {
        return 1;
    }
    character = value;
    return length;
}

bool isControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character <= 0x9F) || character == 0x61C ||
           (character >= 0x200E && character <= 0x200F) || (character >= 0x2028 && character <= 0x202E) ||
           (character >= 0x2066 && character <= 0x2069);
}

std::string safeText(std::string_view hostText) { return safe(hostText, true); }
std::string safeLine(std::string_view hostText) { return safe(hostText, false); }

}  // namespace korvane
