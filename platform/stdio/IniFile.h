// Reads INI files with the same results as the profile functions of Windows,
// oddities included, on every system.
#pragma once

#include "platform/System.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

// A parsed INI text. Any bytes are accepted; meaningless lines are skipped.
class IniText {
public:
    IniText() = default;
    // 8-bit text, or UTF-8 or UTF-16 with a byte order mark, which is converted to 8-bit.
    explicit IniText(std::string_view content);

    // The value after the equals sign, without the white space around it; null if the section, the key or the equals
    // sign is missing. Of several sections or keys of one name, the first counts.
    const std::string* find(std::string_view section, std::string_view key) const;

private:
    // Section and key, both in lower case, with a zero byte between them. A key without an equals sign has no value,
    // but still hides the keys of that name below it.
    std::map<std::string, std::optional<std::string>, std::less<>> values_;
};

// Reads each file once and keeps it.
class IniFile final : public ProfileStrings {
public:
    // Uses this text for that path from now on, instead of a file.
    void setContent(const std::string& file, std::string_view content);

    std::string getString(std::string_view section, std::string_view key, std::string_view defaultValue,
                          std::size_t size, const std::string& file) override;

private:
    const IniText& parsed(const std::string& file);

    std::map<std::string, IniText> files_;
};

}  // namespace korvane
