// What the profile functions of Windows add to a value: its quotation marks, the default, the size.
#include "platform/stdio/IniFile.h"

#include "text/WholeFile.h"

#include <algorithm>
#include <utility>

namespace korvane {
namespace {

// A larger file counts as missing.
constexpr std::size_t kLongestFile = 64 << 20;

// Paths have backslashes, as everywhere in the program; except on Windows they are read as slashes.
std::string nativePath(std::string path) {
#ifndef _WIN32
    std::ranges::replace(path, '\\', '/');
#endif
    return path;
}

// One matching pair of quotation marks around a value is removed.
std::string_view unquoted(std::string_view value) {
    const bool quoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
                        value.back() == value.front();
    return quoted ? value.substr(1, value.size() - 2) : value;
}

// A default loses its trailing spaces, but never its first character.
std::string_view withoutTrailingBlanks(std::string_view text) {
    while (text.size() > 1 && text.back() == ' ') {
        text.remove_suffix(1);
    }
    return text;
}

}  // namespace

void IniFile::setContent(const std::string& file, std::string_view content) { files_[file] = IniText(content, page_); }

const IniText& IniFile::parsed(const std::string& file) {
    auto found = files_.find(file);
    if (found == files_.end()) {
        std::string content;
        const bool isRead = readWholeFile(nativePath(file), kLongestFile, content);
        found = files_.emplace(file, isRead ? IniText(content, page_) : IniText()).first;
    }
    return found->second;
}

std::string IniFile::getString(std::string_view section, std::string_view key, std::string_view defaultValue,
                               std::size_t size, const std::string& file) {
    if (size == 0) {
        return {};
    }
    const std::string* value = parsed(file).find(section, key);
    const std::string_view answer = value != nullptr ? std::string_view(*value)
                                                     : withoutTrailingBlanks(upToZero(defaultValue));
    return std::string(unquoted(answer).substr(0, size - 1));
}

}  // namespace korvane
