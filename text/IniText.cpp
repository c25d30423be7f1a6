// The rules are those that the profile functions of Windows were observed to follow; the same tests run over both.
#include "text/IniText.h"

#include "text/CaseFolding.h"
#include "text/Utf.h"

#include <algorithm>
#include <set>
#include <utility>

namespace korvane {
namespace {

std::string foldedName(std::string_view text) { return lowerCase(upToZero(trimmed(text))); }

std::string fromUtf16(std::string_view bytes, bool bigEndian, const CodePage& page) {
    std::u16string units;
    units.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto low = static_cast<unsigned char>(bytes[bigEndian ? i + 1 : i]);
        const auto high = static_cast<unsigned char>(bytes[bigEndian ? i : i + 1]);
        units.push_back(static_cast<char16_t>(low | (high << 8)));
    }
    return page.toBytes(units);
}

// 8-bit text is used unchanged.
std::string decoded(std::string_view content, const CodePage& page) {
    if (content.starts_with("\xff\xfe")) {
        return fromUtf16(content.substr(2), false, page);
    }
    if (content.starts_with("\xfe\xff")) {
        return fromUtf16(content.substr(2), true, page);
    }
    if (content.starts_with("\xef\xbb\xbf")) {
        const std::string_view text = content.substr(3);
        const std::optional<std::u16string> units = fromUtf8(text);
        return units ? page.toBytes(*units) : std::string(text);
    }
    return std::string(content);
}

// A line that begins with a bracket but has no closing one is no section.
IniLine dissected(std::string_view text, int number) {
    IniLine line{.number = number, .text = text, .name = text};
    const std::size_t close = text.starts_with('[') ? text.rfind(']') : std::string_view::npos;
    const std::size_t equals = text.find('=');
    if (close != std::string_view::npos) {
        line.kind = IniLine::Kind::Section;
        line.name = trimmed(text.substr(1, close - 1));
        line.behind = trimmed(text.substr(close + 1));
    } else if (equals != std::string_view::npos) {
        line.kind = IniLine::Kind::Entry;
        line.name = trimmed(text.substr(0, equals));
        line.value = trimmed(text.substr(equals + 1));
    }
    return line;
}

}  // namespace

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kWhiteSpace = " \t\n\v\f\r\x1a";
    const std::size_t first = text.find_first_not_of(kWhiteSpace);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(kWhiteSpace) - first + 1);
}

std::string_view upToZero(std::string_view text) { return text.substr(0, text.find('\0')); }

std::string_view IniLines::takeLine() {
    ++number_;
    const std::string_view line = rest_.substr(0, rest_.find_first_of("\r\n"));
    rest_.remove_prefix(line.size());
    rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : std::min<std::size_t>(rest_.size(), 1));
    return line;
}

bool IniLines::next(IniLine& line) {
    while (!rest_.empty()) {
        if (const std::string_view text = trimmed(takeLine()); !text.empty()) {
            line = dissected(text, number_);
            return true;
        }
    }
    return false;
}

// Lines before the first section belong to a section without a name. As in Windows, a comment is a key that nobody asks
// for.
IniText::IniText(std::string_view content, const CodePage& page) {
    const std::string text = decoded(content, page);
    std::set<std::string> sections{""};
    std::string section;
    bool inFirstOfItsName = true;
    IniLines lines(text);
    for (IniLine line; lines.next(line);) {
        if (line.kind == IniLine::Kind::Section) {
            section = foldedName(line.name);
            inFirstOfItsName = sections.insert(section).second;
        } else if (inFirstOfItsName) {
            std::optional<std::string> value;
            if (line.kind == IniLine::Kind::Entry) {
                value = upToZero(line.value);
            }
            values_.try_emplace(section + '\0' + foldedName(line.name), std::move(value));
        }
    }
}

const std::string* IniText::find(std::string_view section, std::string_view key) const {
    const auto found = values_.find(foldedName(section) + '\0' + foldedName(key));
    return found != values_.end() && found->second ? &*found->second : nullptr;
}

}  // namespace korvane
