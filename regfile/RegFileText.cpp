// Telling the encodings of .reg files apart, and writing them.
#include "regfile/RegFileText.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "text/Utf.h"

namespace korvane {
namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kBigEndianUtf16Mark = "\xFE\xFF";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kRegedit4 = "REGEDIT4";
constexpr std::string_view kVersion5 = "Windows Registry Editor Version 5.00";
// Offsets are kept in 32 bits.
constexpr std::size_t kLongestFile = 0x7FFFFFFF;
// More than the first line can have.
constexpr std::size_t kHeaderSearch = 4096;

bool isAscii(std::string_view bytes) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::size_t at = 0;
    for (; bytes.size() - at >= sizeof kHighBits; at += sizeof kHighBits) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, bytes.data() + at, sizeof eight);
        if ((eight & kHighBits) != 0) {
            return false;
        }
    }
    return std::none_of(bytes.begin() + static_cast<std::ptrdiff_t>(at), bytes.end(),
                        [](char c) { return (c & 0x80) != 0; });
}

bool isUtf8(std::string_view bytes) { return isAscii(bytes) || fromUtf8(bytes).has_value(); }

char16_t utf16Unit(const char* bytes) {
    return static_cast<char16_t>(static_cast<unsigned char>(bytes[0]) | static_cast<unsigned char>(bytes[1]) << 8);
}

std::string utf16Bytes(std::u16string_view text) {
    std::string bytes(2 * text.size(), '\0');
    char* to = bytes.data();
    for (const char16_t c : text) {
        *to++ = static_cast<char>(c & 0xFF);
        *to++ = static_cast<char>(c >> 8);
    }
    return bytes;
}

// The offset of the first NUL character, npos when there is none.
std::size_t findNul(const RegFileText& text) {
    const std::string& bytes = text.bytes();
    if (text.unit() == 1) {
        return bytes.find('\0', text.start());
    }
    for (std::size_t at = text.start(); at + 1 < bytes.size(); at += 2) {
        if (utf16Unit(&bytes[at]) == 0) {
            return at;
        }
    }
    return std::string::npos;
}

}  // namespace

RegFileText::RegFileText(RegFileForm form) : form_(form) {
    switch (form.encoding) {
        case RegFileEncoding::Utf16:
            bytes_ = kUtf16Mark;
            break;
        case RegFileEncoding::Utf8WithMark:
            bytes_ = kUtf8Mark;
            break;
        case RegFileEncoding::Utf8:
        case RegFileEncoding::Ansi:
            break;
    }
    std::u16string header;
    for (const char c : form.header == RegFileHeader::Regedit4 ? kRegedit4 : kVersion5) {
        header += static_cast<char16_t>(c);
    }
    bytes_ += encode(header + u"\r\n\r\n");
}

std::size_t RegFileText::start() const {
    switch (form_.encoding) {
        case RegFileEncoding::Utf16:
            return kUtf16Mark.size();
        case RegFileEncoding::Utf8WithMark:
            return kUtf8Mark.size();
        case RegFileEncoding::Utf8:
        case RegFileEncoding::Ansi:
            break;
    }
    return 0;
}

namespace {

// The number of the line an offset lies in.
std::size_t lineAt(const RegFileText& text, std::size_t offset) {
    const std::u16string before = text.decode({text.start(), offset});
    std::size_t line = 1;
    for (std::size_t i = 0; i < before.size(); ++i) {
        line += before[i] == u'\n' || (before[i] == u'\r' && !before.substr(i + 1, 1).starts_with(u'\n')) ? 1U : 0U;
    }
    return line;
}

}  // namespace

std::optional<RegFileError> RegFileText::read(std::string bytes, const CodePage& page, RegFileText& text) {
    if (bytes.size() > kLongestFile) {
        return RegFileError{1, "the file is longer than 2 GB"};
    }
    RegFileText file;
    file.form_.page = page;
    file.bytes_ = std::move(bytes);
    if (std::optional<RegFileError> error = file.findEncoding()) {
        return error;
    }
    if (std::optional<RegFileError> error = file.findHeader()) {
        return error;
    }
    if (const std::size_t nul = findNul(file); nul != std::string::npos) {
        return RegFileError{lineAt(file, nul), "there is a NUL character in the text"};
    }
    text = std::move(file);
    return std::nullopt;
}

std::optional<RegFileError> RegFileText::findEncoding() {
    if (bytes_.starts_with(kBigEndianUtf16Mark)) {
        return RegFileError{1, "the file is in big-endian UTF-16, which is not understood"};
    }
    if (bytes_.starts_with(kUtf16Mark)) {
        form_.encoding = RegFileEncoding::Utf16;
        return bytes_.size() % 2 == 0
                   ? std::nullopt
                   : std::optional(RegFileError{lineAt(*this, bytes_.size() - 1), "the file ends in half a character"});
    }
    form_.encoding = RegFileEncoding::Ansi;
    const bool marked = bytes_.starts_with(kUtf8Mark);
    // The older form without a mark is in the system's code page whatever it looks like, as the registry editor
    // reads it.
    if (!marked && (bytes_.starts_with(kRegedit4) || isAscii(bytes_))) {
        return std::nullopt;
    }
    const std::string_view body = std::string_view(bytes_).substr(marked ? kUtf8Mark.size() : 0);
    std::size_t faultAt = 0;
    if (isAscii(body) || fromUtf8(body, &faultAt)) {
        form_.encoding = marked ? RegFileEncoding::Utf8WithMark : RegFileEncoding::Utf8;
    } else if (marked) {
        return RegFileError{lineAt(*this, kUtf8Mark.size() + faultAt),
                            "the bytes are not UTF-8, which the file is marked as"};
    }
    return std::nullopt;
}

std::optional<RegFileError> RegFileText::findHeader() {
    std::u16string line = decode({start(), std::min(bytes_.size(), start() + kHeaderSearch)});
    line.resize(std::min(line.find_first_of(u"\r\n"), line.size()));
    while (line.ends_with(u' ') || line.ends_with(u'\t')) {
        line.pop_back();
    }
    const std::string header = toUtf8(line);
    if (header != kVersion5 && header != kRegedit4) {
        return RegFileError{1, "the first line is neither \"" + std::string(kVersion5) + "\" nor \"" +
                                   std::string(kRegedit4) + '"'};
    }
    form_.header = header == kVersion5 ? RegFileHeader::Version5 : RegFileHeader::Regedit4;
    return std::nullopt;
}

char16_t RegFileText::unitAt(std::size_t offset) const {
    return unit() == 2 ? utf16Unit(&bytes_[offset]) : static_cast<unsigned char>(bytes_[offset]);
}

std::size_t RegFileText::nextLine(std::size_t offset) const {
    for (; offset < bytes_.size(); offset += unit()) {
        const char16_t c = unitAt(offset);
        if (c == u'\r' || c == u'\n') {
            offset += unit();
            return c == u'\r' && offset < bytes_.size() && unitAt(offset) == u'\n' ? offset + unit() : offset;
        }
    }
    return offset;
}

bool RegFileText::endsLine(std::string_view bytes) const {
    if (unit() == 2) {
        return bytes.ends_with(std::string_view("\r", 2)) || bytes.ends_with(std::string_view("\n", 2));
    }
    return bytes.ends_with('\r') || bytes.ends_with('\n');
}

std::u16string_view RegFileText::lineEnd() const {
    const std::u16string line = decode({start(), std::min(bytes_.size(), start() + kHeaderSearch)});
    const std::size_t end = line.find_first_of(u"\r\n");
    if (end == std::u16string::npos || line.compare(end, 2, u"\r\n") == 0) {
        return u"\r\n";
    }
    return line[end] == u'\r' ? u"\r" : u"\n";
}

void RegFileText::decode(TextRange range, std::u16string& text) const {
    const std::string_view part = std::string_view(bytes_).substr(range.begin, range.end - range.begin);
    if (form_.encoding == RegFileEncoding::Utf16) {
        text.resize(part.size() / 2);
        for (std::size_t i = 0; i < text.size(); ++i) {
            text[i] = utf16Unit(&part[2 * i]);
        }
        return;
    }
    text.resize(part.size());
    bool ascii = true;
    for (std::size_t i = 0; i < part.size(); ++i) {
        ascii = ascii && (part[i] & 0x80) == 0;
        text[i] = static_cast<char16_t>(part[i]);
    }
    if (!ascii) {
        const bool ansi = form_.encoding == RegFileEncoding::Ansi;
        text = ansi ? form_.page.toUtf16(part) : fromUtf8(part).value_or(std::u16string());
    }
}

bool RegFileText::canEncode(std::u16string_view text) const {
    switch (form_.encoding) {
        case RegFileEncoding::Utf16:
            return true;
        case RegFileEncoding::Ansi:
            return form_.page.toBytesExactly(text).has_value();
        case RegFileEncoding::Utf8:
        case RegFileEncoding::Utf8WithMark:
            break;
    }
    return isWellFormed(text);
}

bool RegFileText::encodesSafely(std::u16string_view text) const {
    if (!canEncode(text)) {
        return false;
    }
    if (form_.encoding != RegFileEncoding::Ansi || form_.header == RegFileHeader::Regedit4) {
        return true;
    }
    const std::string bytes = encode(text);
    return isAscii(bytes) || !isUtf8(bytes);
}

std::string RegFileText::encode(std::u16string_view text) const {
    switch (form_.encoding) {
        case RegFileEncoding::Utf16:
            return utf16Bytes(text);
        case RegFileEncoding::Ansi:
            return form_.page.toBytes(text);
        case RegFileEncoding::Utf8:
        case RegFileEncoding::Utf8WithMark:
            break;
    }
    return toUtf8(text);
}

std::string RegFileText::asFile(std::string bytes) const {
    if (form_.encoding != RegFileEncoding::Ansi || form_.header == RegFileHeader::Regedit4 || isAscii(bytes) ||
        !isUtf8(bytes)) {
        return bytes;
    }
    return std::string(kUtf16Mark) + utf16Bytes(form_.page.toUtf16(bytes));
}

}  // namespace korvane
