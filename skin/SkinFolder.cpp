// Splits the path, and reads whole files.
#include "skin/SkinFolder.h"

#include "text/WholeFile.h"

#include <utility>

namespace korvane::skin {

SkinFolder::SkinFolder(std::string_view path) {
    const std::size_t separator = path.find_last_of("\\/");
    const std::size_t start = separator == std::string_view::npos ? 0 : separator + 1;
    folder_ = path.substr(0, start);
    fileName_ = path.substr(start);
}

std::optional<std::string> SkinFolder::read(const std::string& name) const {
    std::string content;
    return readWholeFile(folder_ + name, kLongestSkinFile, content) ? std::optional(std::move(content)) : std::nullopt;
}

ReadSkinFile SkinFolder::reader() const {
    return [folder = *this](const std::string& name) { return folder.read(name); };
}

}  // namespace korvane::skin
