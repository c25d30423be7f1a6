// Reads INI files with the same results as the profile functions of Windows,
// oddities included, on every system.
#pragma once

#include "platform/System.h"
#include "text/IniText.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace korvane {

// Reads each file once and keeps it.
class IniFile final : public ProfileStrings {
public:
    explicit IniFile(const CodePage& page = CodePage::western()) : page_(page) {}

    // Uses this text for that path from now on, instead of a file.
    void setContent(const std::string& file, std::string_view content);

    std::string getString(std::string_view section, std::string_view key, std::string_view defaultValue,
                          std::size_t size, const std::string& file) override;

private:
    const IniText& parsed(const std::string& file);

    CodePage page_;
    std::map<std::string, IniText> files_;
};

}  // namespace korvane
