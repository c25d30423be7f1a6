// Reads real files through the C library. Paths have backslashes, as everywhere
// in the program; except on Windows they are read as slashes.
#pragma once

#include <cstddef>
#include <string>

namespace korvane {

// The path in the form of this system's C library.
std::string nativePath(std::string path);

// False, with the text unchanged, if the file cannot be read or is larger than the limit.
bool readWholeFile(const std::string& path, std::size_t limit, std::string& text);

}  // namespace korvane
