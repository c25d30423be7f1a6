// Texts on their way between the program, whose texts are 8-bit in a code page, and the system kmctl was started on:
// arguments, file names, standard output.
#pragma once

#include "text/CodePage.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

// A text of the program, for JSON. A lost letter shows as a question mark.
std::string toUtf8(std::string_view text, const CodePage& page);
// The same as this system's terminals and files take it: UTF-8, on Windows the system's own code page.
std::string toHost(std::string_view text, const CodePage& page);
// A UTF-16 text for a person; letters that this system cannot show are given by number, as U+0416.
std::string toHostReadably(std::u16string_view text);

// The first character of a text of this system that is not empty, and its length in bytes; kNoCharacter of SafeText.h
// is one byte long.
std::size_t firstHostCharacter(std::string_view text, char32_t& character);

// A file name as the system gives it, for JSON.
std::string fileNameToUtf8(std::string_view name);

// UTF-16 of what the system gave; nothing when it is no text.
std::optional<std::u16string> fromHost(std::string_view argument);
// Nothing when an argument has a character that the program's texts cannot hold.
std::optional<std::string> fromArgument(std::string_view argument, const CodePage& page);

}  // namespace korvane
