// The rules are those that the profile functions of Windows were observed to
// follow; the same tests run over both.
#include "platform/stdio/IniFile.h"

#include "text/Codepage.h"
#include "platform/stdio/StdioFiles.h"

#include <algorithm>
#include <set>
#include <utility>

namespace korvane {
namespace {

// The old end-of-file character counts as white space.
constexpr std::string_view kWhiteSpace = " \t\n\v\f\r\x1a";
// A larger file counts as missing.
constexpr std::size_t kLongestFile = 64 << 20;

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kWhiteSpace);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kWhiteSpace) - first + 1);
}

std::string_view upToZero(std::string_view text) { return text.substr(0, text.find('\0')); }

// Only ASCII letters; in names, letter case matters for all others.
std::string lowerCase(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

std::string name(std::string_view text) { return lowerCase(upToZero(trimmed(text))); }

std::string fromUtf16(std::string_view bytes, bool bigEndian) {
    std::u16string units;
    units.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto low = static_cast<unsigned char>(bytes[bigEndian ? i + 1 : i]);
        const auto high = static_cast<unsigned char>(bytes[bigEndian ? i : i + 1]);
        units.push_back(static_cast<char16_t>(low | (high << 8)));
    }
    return toAnsi(units);
}

// 8-bit text is used unchanged.
std::string decoded(std::string_view content) {
    if (content.starts_with("\xff\xfe")) {
        return fromUtf16(content.substr(2), false);
    }
    if (content.starts_with("\xfe\xff")) {
        return fromUtf16(content.substr(2), true);
    }
    if (content.starts_with("\xef\xbb\xbf")) {
        const std::string_view text = content.substr(3);
        const std::optional<std::u16string> units = fromUtf8(text);
        return units ? toAnsi(*units) : std::string(text);
    }
    return std::string(content);
}

// The name between the brackets; what follows the closing bracket does not matter. A line without a closing bracket is
// no section.
bool isSection(std::string_view line, std::string_view& sectionName) {
    const std::size_t close = line.rfind(']');
    if (!line.starts_with('[') || close == std::string_view::npos) {
        return false;
    }
    sectionName = line.substr(1, close - 1);
    return true;
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

// Lines before the first section belong to a section without a name. As in Windows, a comment is a key that nobody asks
// for.
IniText::IniText(std::string_view content) {
    const std::string text = decoded(content);
    std::set<std::string> sections{""};
    std::string section;
    bool inFirstOfItsName = true;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find_first_of("\r\n", start), text.size());
        const std::string_view line = trimmed(std::string_view(text).substr(start, end - start));
        start = end + 1;
        std::string_view sectionName;
        if (line.empty()) {
            continue;
        }
        if (isSection(line, sectionName)) {
            section = name(sectionName);
            inFirstOfItsName = sections.insert(section).second;
        } else if (inFirstOfItsName) {
            const std::size_t equals = line.find('=');
            std::optional<std::string> value;
            if (equals != std::string_view::npos) {
                value = upToZero(trimmed(line.substr(equals + 1)));
            }
            values_.try_emplace(section + '\0' + name(line.substr(0, equals)), std::move(value));
        }
    }
}

const std::string* IniText::find(std::string_view section, std::string_view key) const {
    const auto found = values_.find(name(section) + '\0' + name(key));
    return found != values_.end() && found->second ? &*found->second : nullptr;
}

void IniFile::setContent(const std::string& file, std::string_view content) { files_[file] = IniText(content); }

const IniText& IniFile::parsed(const std::string& file) {
    auto found = files_.find(file);
    if (found == files_.end()) {
        std::string content;
        found = files_.emplace(file, readWholeFile(file, kLongestFile, content) ? IniText(content) : IniText()).first;
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
