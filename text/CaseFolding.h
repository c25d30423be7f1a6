// Comparing texts without regard to capital letters, in the two ways the platform does it.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace korvane {

// Of 8-bit text only the letters A to Z have small ones: what is compared so is written in ASCII, or differs by case.
constexpr char lowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

inline std::string lowerCase(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), [](char c) { return lowerCase(c); });
    return lower;
}

inline bool equalIgnoringCase(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, [](char a, char b) { return lowerCase(a) == lowerCase(b); });
}

// One character in upper case as Windows NT compares names: character by character, without regard to language.
// Covers Latin, Greek, Cyrillic, Armenian and full-width letters; others are left alone.
char16_t upperCase(char16_t character);
std::u16string upperCase(std::u16string_view text);

}  // namespace korvane
