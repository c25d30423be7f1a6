// What the line of a value says, once somebody wants to know. The line has been found to be without errors before.
#include <algorithm>

#include "regfile/RegFileScanner.h"
#include "text/Utf.h"

namespace korvane {
namespace {

// What stands between the quotes.
std::u16string unquoted(std::u16string_view text) {
    std::u16string out;
    out.reserve(text.size());
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        i += text[i] == u'\\' ? 1 : 0;
        out += text[i];
    }
    return out;
}

unsigned hexDigit(char16_t c) {
    return c <= u'9' ? c - u'0' : (c | 0x20U) - u'a' + 10U;
}

std::uint32_t hexNumber(std::u16string_view digits) {
    std::uint32_t number = 0;
    for (const char16_t c : digits) {
        number = number << 4 | hexDigit(c);
    }
    return number;
}

std::vector<std::byte> dwordData(std::u16string_view text) {
    const std::uint32_t number = hexNumber(text.substr(text.find_last_of(u": \t") + 1));
    std::vector<std::byte> data;
    for (int shift = 0; shift < 32; shift += 8) {
        data.push_back(static_cast<std::byte>(number >> shift & 0xFF));
    }
    return data;
}

// A list of bytes, in which a backslash leads over the end of its line, and over lines without any.
std::vector<std::byte> listedBytes(std::u16string_view text) {
    constexpr std::u16string_view kBetween = u", \t\r\n\\";
    std::vector<std::byte> data;
    std::size_t at = text.find(u':') + 1;
    while ((at = text.find_first_not_of(kBetween, at)) < text.size()) {
        if (text[at] == u';') {
            at = std::min(text.find_first_of(u"\r\n", at), text.size());
            continue;
        }
        const std::size_t end = std::min(text.find_first_of(kBetween, at), text.size());
        data.push_back(static_cast<std::byte>(hexNumber(text.substr(at, end - at))));
        at = end;
    }
    return data;
}

// The older form has the bytes of texts in the system's code page.
std::vector<std::byte> widened(const std::vector<std::byte>& data, const CodePage& page) {
    std::string narrow(data.size(), '\0');
    std::transform(data.begin(), data.end(), narrow.begin(), [](std::byte b) { return static_cast<char>(b); });
    return toStored(page.toUtf16(narrow));
}

}  // namespace

std::u16string readEntryName(const RegFileText& text, const RegFileEntry& entry) {
    return unquoted(text.decode(entry.name));
}

RegistryValue readEntry(const RegFileText& text, const RegFileEntry& entry) {
    RegistryValue value{readEntryName(text, entry), entry.type, {}};
    const std::u16string data = text.decode(entry.data);
    switch (entry.kind) {
        case RegFileEntry::Kind::Deletion:
            break;
        case RegFileEntry::Kind::Text:
            value.data = toStored(unquoted(data) + u'\0');
            break;
        case RegFileEntry::Kind::Dword:
            value.data = dwordData(data);
            break;
        case RegFileEntry::Kind::Bytes:
            value.data = listedBytes(data);
            if (text.form().header == RegFileHeader::Regedit4 && holdsText(value.type)) {
                value.data = widened(value.data, text.form().page);
            }
            break;
    }
    return value;
}

}  // namespace korvane
