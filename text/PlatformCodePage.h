// A code page as the platform converts it, one character at a time: MultiByteToWideChar on Windows, iconv elsewhere.
// Slow; CodePage asks for each character once.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

class PlatformCodePage {
public:
    virtual ~PlatformCodePage() = default;

    // Whether a character of two bytes begins with this one.
    virtual bool isLeadByte(char byte) = 0;
    // The UTF-16 unit of a character's one or two bytes; nothing when they mean none.
    virtual std::optional<char16_t> unitOf(std::string_view character) = 0;
    // The bytes for a unit, perhaps of a character that only looks like it; empty when there are none.
    virtual std::string bytesOf(char16_t unit) = 0;
};

// Null when the platform does not know the page.
std::unique_ptr<PlatformCodePage> openPlatformCodePage(unsigned number);

// The number of the page that this system's 8-bit texts are in.
unsigned hostCodePage();

}  // namespace korvane
