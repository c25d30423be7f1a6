// Reading a file from beginning to end.
#pragma once

#include <cstddef>
#include <string>

namespace korvane {

// The path is in the form of this system's C library. False, with the text unchanged, if the file cannot be read or is
// larger than the limit; `reason` then says why, in words that follow the file's name.
bool readWholeFile(const std::string& path, std::size_t limit, std::string& text, std::string* reason = nullptr);

}  // namespace korvane
