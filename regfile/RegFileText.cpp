// Telling the encodings of .reg files apart, and writing them.
#include "regfile/RegFileText.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "text/Codepage.h"

namespace korvane {
namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kBigEndianUtf16Mark = "\xFE\xFF";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kRegedit4Start = "REGEDIT4";

// The number of the line an offset lies in.
template <class Text>
std::size_t lineAt(const Text& text, std::size_t offset) {
    std::size_t line = 1;
    for (std::size_t i = 0; i < offset; ++i) {
        const bool beforeLineFeed = i + 1 < text.size() && text[i + 1] == '\n';
        line += text[i] == '\n' || (text[i] == '\r' && !beforeLineFeed) ? 1U : 0U;
    }
    return line;
}

bool isAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) == 0; });
}

std::optional<RegFileError> decodeUtf16(std::string_view bytes, RegFileText& file) {
    file.form.encoding = RegFileEncoding::Utf16;
    file.text.resize(bytes.size() / 2);
    for (std::size_t i = 0; i < file.text.size(); ++i) {
        file.text[i] = static_cast<char16_t>(static_cast<unsigned char>(bytes[2 * i]) |
                                             static_cast<unsigned char>(bytes[2 * i + 1]) << 8);
    }
    if (bytes.size() % 2 != 0) {
        return RegFileError{lineAt(file.text, file.text.size()), "the file ends in half a character"};
    }
    return std::nullopt;
}

std::optional<RegFileError> decode8Bit(std::string_view bytes, RegFileText& file) {
    const bool marked = bytes.starts_with(kUtf8Mark);
    if (marked) {
        bytes.remove_prefix(kUtf8Mark.size());
    }
    // The older form without a mark is Windows-1252 whatever it looks like, as the registry editor reads it.
    if (marked || (!isAscii(bytes) && !bytes.starts_with(kRegedit4Start))) {
        std::size_t faultAt = 0;
        if (std::optional<std::u16string> text = fromUtf8(bytes, &faultAt)) {
            file.text = std::move(*text);
            file.form.encoding = marked ? RegFileEncoding::Utf8WithMark : RegFileEncoding::Utf8;
            return std::nullopt;
        }
        if (marked) {
            return RegFileError{lineAt(bytes, faultAt), "the bytes are not UTF-8, which the file is marked as"};
        }
    }
    file.text = fromAnsi(bytes);
    file.form.encoding = RegFileEncoding::Ansi;
    return std::nullopt;
}

std::optional<RegFileError> decode(std::string_view bytes, RegFileText& file) {
    if (bytes.starts_with(kBigEndianUtf16Mark)) {
        return RegFileError{1, "the file is in big-endian UTF-16, which is not understood"};
    }
    if (bytes.starts_with(kUtf16Mark)) {
        return decodeUtf16(bytes.substr(kUtf16Mark.size()), file);
    }
    return decode8Bit(bytes, file);
}

std::string encodeUtf16(std::u16string_view text) {
    std::string bytes(kUtf16Mark);
    bytes.reserve(2 * text.size() + kUtf16Mark.size());
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

}  // namespace

std::u16string_view headerLine(RegFileHeader header) {
    return header == RegFileHeader::Regedit4 ? u"REGEDIT4" : u"Windows Registry Editor Version 5.00";
}

std::optional<RegFileError> decodeRegFile(std::string_view bytes, RegFileText& file) {
    if (std::optional<RegFileError> error = decode(bytes, file)) {
        return error;
    }
    const std::u16string_view text = file.text;
    std::u16string_view line = text.substr(0, text.find_first_of(u"\r\n"));
    while (line.ends_with(u' ') || line.ends_with(u'\t')) {
        line.remove_suffix(1);
    }
    if (line == headerLine(RegFileHeader::Version5)) {
        file.form.header = RegFileHeader::Version5;
    } else if (line == headerLine(RegFileHeader::Regedit4)) {
        file.form.header = RegFileHeader::Regedit4;
    } else {
        return RegFileError{1, "the first line is neither \"" + toUtf8(headerLine(RegFileHeader::Version5)) +
                                   "\" nor \"" + toUtf8(headerLine(RegFileHeader::Regedit4)) + '"'};
    }
    if (const std::size_t nul = text.find(u'\0'); nul != std::u16string_view::npos) {
        return RegFileError{lineAt(text, nul), "there is a NUL character in the text"};
    }
    return std::nullopt;
}

bool canEncode(std::u16string_view text, RegFileEncoding encoding) {
    switch (encoding) {
        case RegFileEncoding::Utf16:
            return true;
        case RegFileEncoding::Ansi:
            return toAnsiExactly(text).has_value();
        case RegFileEncoding::Utf8:
        case RegFileEncoding::Utf8WithMark:
            break;
    }
    return isWellFormed(text);
}

std::string encodeRegFile(const RegFileText& file) {
    switch (file.form.encoding) {
        case RegFileEncoding::Utf16:
            return encodeUtf16(file.text);
        case RegFileEncoding::Utf8:
            return toUtf8(file.text);
        case RegFileEncoding::Utf8WithMark:
            return std::string(kUtf8Mark) + toUtf8(file.text);
        case RegFileEncoding::Ansi:
            break;
    }
    std::string bytes = toAnsi(file.text);
    // Rare, but Windows-1252 text may happen to be valid UTF-8, and would be taken for that when it is read again.
    const bool readsAsUtf8 =
        file.form.header == RegFileHeader::Version5 && !isAscii(bytes) && fromUtf8(bytes).has_value();
    return readsAsUtf8 ? encodeUtf16(file.text) : bytes;
}

}  // namespace korvane
