// The folder of a skin or splash file, with the pictures beside the file.
#pragma once

#include "skin/SkinFile.h"

#include <optional>
#include <string>
#include <string_view>

namespace korvane::skin {

class SkinFolder {
public:
    // The path of a skin or splash file.
    explicit SkinFolder(std::string_view path);

    const std::string& fileName() const { return fileName_; }
    // nullopt when the file cannot be read or is longer than kLongestSkinFile.
    std::optional<std::string> read(const std::string& name) const;
    ReadSkinFile reader() const;

private:
    std::string folder_;  // with a separator at the end; empty for the current folder
    std::string fileName_;
};

}  // namespace korvane::skin
