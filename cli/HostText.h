// Texts on their way between the program, whose texts are 8-bit, and the
// system kmctl was started on: arguments, file names, standard output.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

// How the program's texts are encoded: Windows-1252 over a registry in memory, the system's own code page over the
// live registry.
enum class ProgramText { Windows1252, SystemCodePage };

// A text of the program.
std::string toUtf8(std::string_view text, ProgramText encoding);
// The same as this system's terminals and files take it: UTF-8, on Windows the bytes as they are.
std::string toHost(std::string_view text);

// The first character of a text of this system that is not empty, and its length in bytes; kNoCharacter of SafeText.h
// is one byte long.
std::size_t firstHostCharacter(std::string_view text, char32_t& character);

// A file name as the system gives it, for JSON.
std::string fileNameToUtf8(std::string_view name);

// Nothing when an argument has a character that the program's texts cannot hold.
std::optional<std::string> fromArgument(std::string_view argument, ProgramText encoding);

}  // namespace korvane
