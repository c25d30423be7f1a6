// The folder of a skin: the file that was named, and what lies beside it.
#pragma once

#include "skin/SkinFile.h"

#include <optional>
#include <string>
#include <string_view>

namespace korvane {

class SkinFolder {
public:
    // The path of a skin or splash file.
    explicit SkinFolder(std::string_view path);

    const std::string& fileName() const { return fileName_; }
    // Nothing when the file cannot be read or is longer than kLongestSkinFile.
    std::optional<std::string> read(const std::string& name) const;
    ReadSkinFile reader() const;

private:
    std::string folder_;  // with its separator; empty: the current one
    std::string fileName_;
};

}  // namespace korvane
