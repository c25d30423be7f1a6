// Real files through the C library, for the programs that run without the
// Windows platform classes. Paths are written with backslashes, as everywhere
// in the program; elsewhere than on Windows they are read as slashes.
#pragma once

#include "platform/System.h"

#include <cstddef>
#include <memory>
#include <string>

namespace korvane {

// The path as the C library of this system wants it.
std::string nativePath(std::string path);

// False, with the text unchanged, when the file cannot be read or has more bytes than the limit.
bool readWholeFile(const std::string& path, std::size_t limit, std::string& text);

class StdioFiles final : public Files {
public:
    std::unique_ptr<File> openExisting(const std::string& path) override;
    std::unique_ptr<File> createAlways(const std::string& path) override;
};

}  // namespace korvane
