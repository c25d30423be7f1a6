// INI texts: their lines, and what the profile functions of Windows find in them.
#pragma once

#include "text/CodePage.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

// A line and its parts, as views into the text, without the white space around them.
struct IniLine {
    enum class Kind : std::uint8_t { Section, Entry, Other };
    Kind kind = Kind::Other;
    int number = 0;  // from 1
    std::string_view text{};
    std::string_view name{};    // of a section; of an entry: before the first equals sign; otherwise the whole line
    std::string_view value{};   // of an entry: after the equals sign
    std::string_view behind{};  // of a section: what follows the closing bracket
};

// The lines of a text that are not blank, in one pass. Comments, which begin with a semicolon, are for the caller to
// skip.
class IniLines {
public:
    explicit IniLines(std::string_view text) : rest_(text) {}
    bool next(IniLine& line);

private:
    std::string_view takeLine();

    std::string_view rest_;
    int number_ = 0;
};

// A parsed INI text. Any bytes are accepted; meaningless lines are skipped.
class IniText {
public:
    IniText() = default;
    // 8-bit text, or UTF-8 or UTF-16 with a byte order mark, which is converted to the code page.
    IniText(std::string_view content, const CodePage& page);

    // The value after the equals sign, without the white space around it; null if the section, the key or the equals
    // sign is missing. Of several sections or keys of one name, the first counts.
    const std::string* find(std::string_view section, std::string_view key) const;

private:
    // Section and key, both in lower case, with a zero byte between them. A key without an equals sign has no value,
    // but still hides the keys of that name below it.
    std::map<std::string, std::optional<std::string>, std::less<>> values_;
};

// Without the white space at both ends, for which the old end-of-file character counts as well.
std::string_view trimmed(std::string_view text);
std::string_view upToZero(std::string_view text);

}  // namespace korvane
