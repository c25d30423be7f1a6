// Feeds any bytes to the INI reader. Whatever stands in a file, an answer fits its buffer and holds no zero byte, and
// a section of its own behind it is still read.
#include "platform/stdio/IniFile.h"
#include "text/CaseFolding.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

bool isMarkedUnicode(std::string_view text) {
    return text.starts_with("\xff\xfe") || text.starts_with("\xfe\xff") || text.starts_with("\xef\xbb\xbf");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    korvane::IniFile ini;
    ini.setContent("file", text);
    for (const std::string_view section : {"", "102", "1004", "s"}) {
        for (const std::string_view key : {"", "102", "1016", "k", "431"}) {
            const std::string whole = ini.getString(section, key, "", size + 1, "file");
            require(whole.size() <= size && whole.find('\0') == std::string::npos);
            require(whole.find_first_of("\r\n") == std::string::npos);
            const std::string cut = ini.getString(section, key, "", 5, "file");
            require(cut == whole.substr(0, 4));
        }
    }
    // Text from the input, its first bytes, serves as names and as default as well.
    const std::string name = text.substr(0, 16);
    require(ini.getString(name, name, name, 8, "file").size() < 8);

    constexpr std::string_view kOwnSection = "korvane own";
    if (!isMarkedUnicode(text) && korvane::lowerCase(text).find(kOwnSection) == std::string::npos) {
        ini.setContent("extended", text + "\n[Korvane Own]\nk=v\n");
        require(ini.getString(kOwnSection, "K", "", 100, "extended") == "v");
    }
    return 0;
}
