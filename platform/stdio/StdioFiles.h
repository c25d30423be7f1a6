// Real files through the C library, for programs without the Windows platform
// classes. Paths have backslashes, as everywhere in the program; except on Windows
// they are read as slashes.
#pragma once

#include "platform/System.h"

#include <cstddef>
#include <memory>
#include <string>

namespace korvane {

// The path in the form of this system's C library.
std::string nativePath(std::string path);

// False, with the text unchanged, if the file cannot be read or is larger than the limit.
bool readWholeFile(const std::string& path, std::size_t limit, std::string& text);

class StdioFiles final : public Files {
public:
    std::unique_ptr<File> openExisting(const std::string& path) override;
    std::unique_ptr<File> createAlways(const std::string& path) override;
};

}  // namespace korvane
