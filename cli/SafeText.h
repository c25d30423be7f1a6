// Texts of files, registries and arguments, made harmless for a terminal:
// control characters and what is no text at all appear as escapes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korvane {

// What stands for bytes that are no character.
constexpr char32_t kNoCharacter = 0xFFFFFFFF;

// The first character of a text that is not empty, and its length in bytes; kNoCharacter is one byte long.
std::size_t firstUtf8Character(std::string_view text, char32_t& character);

// Whether a character can do more to a terminal than stand there: the control characters, and those that turn the
// direction of the text around them.
bool isControl(char32_t character);

// A text in this system's encoding, ready to print: "\x1b" and "\u202e" stand for control characters, "\xff" for a
// byte that belongs to no character. Line feeds stay.
std::string safeText(std::string_view hostText);
// The same for what must stay on one line.
std::string safeLine(std::string_view hostText);

}  // namespace korvane
