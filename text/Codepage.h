// Text between UTF-16, in which the registry in memory keeps names and data, and the 8-bit encodings around it:
// Windows-1252 at the registry verbs, Windows-1252 or UTF-8 in .reg files.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

// The bytes without a character of their own (81 8D 8F 90 9D) become the control characters of the same number, as
// Windows does it; so every byte string survives the way there and back.
std::u16string fromAnsi(std::string_view text);
// What has no place in Windows-1252 becomes '?' (an astral character one for each half).
std::string toAnsi(std::u16string_view text);
// The same, but nothing when a character has no place.
std::optional<std::string> toAnsiExactly(std::u16string_view text);

// Nothing when the bytes are not UTF-8; `faultAt` is then set to the offset of the first byte that is wrong.
std::optional<std::u16string> fromUtf8(std::string_view text, std::size_t* faultAt = nullptr);
// A half of a surrogate pair standing alone is written like any character, in three bytes: not UTF-8, but distinct.
std::string toUtf8(std::u16string_view text);
// True when every surrogate has its other half, so that the text can be written in UTF-8.
bool isWellFormed(std::u16string_view text);

// Text as the registry stores it: UTF-16, low byte first. An odd last byte is no character.
std::vector<std::byte> toStored(std::u16string_view text);
std::u16string fromStored(std::span<const std::byte> data);

// One character in upper case as Windows NT compares names: character by character, without regard to language.
// Covers Latin, Greek, Cyrillic, Armenian and full-width letters; others are left alone.
char16_t upperCase(char16_t character);
std::u16string upperCase(std::u16string_view text);

}  // namespace korvane
