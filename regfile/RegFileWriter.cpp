// The registry editor's own layout: quotes, hexadecimal numbers in small letters, hex lines that end before column 80.
#include "regfile/RegFileWriter.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

#include "text/Utf.h"

namespace korvane {
namespace {

// A hex line is continued on the next once it is this long; with one byte more it would pass column 80.
constexpr std::size_t kFullHexLine = 77;

void appendQuoted(std::u16string_view what, std::u16string& text) {
    text += u'"';
    for (const char16_t c : what) {
        if (c == u'\\' || c == u'"') {
            text += u'\\';
        }
        text += c;
    }
    text += u'"';
}

void appendNumber(std::uint32_t number, std::size_t digits, std::u16string& text) {
    std::array<char, 8> buffer{};
    const char* end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, 16).ptr;
    const auto length = static_cast<std::size_t>(end - buffer.data());
    text.append(digits > length ? digits - length : 0, u'0');
    text.append(buffer.data(), buffer.data() + length);
}

void appendDword(const std::vector<std::byte>& data, std::u16string& text) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        number |= std::to_integer<std::uint32_t>(data[i]) << (8 * i);
    }
    text += u"dword:";
    appendNumber(number, 8, text);
}

// The text of a value that a text between quotes gives back exactly: one zero, and that at the end.
std::optional<std::u16string> plainText(const RegistryValue& value) {
    if (value.type != static_cast<std::uint32_t>(ValueType::Sz)) {
        return std::nullopt;
    }
    std::u16string text = fromStored(value.data);
    if (value.data.size() % 2 != 0 || text.empty() || text.find(u'\0') != text.size() - 1) {
        return std::nullopt;
    }
    text.pop_back();
    return text;
}

}  // namespace

bool RegFileWriter::appendKey(std::u16string_view path, std::u16string& text) {
    setKey(path);
    if (!encodes(path) || path.find_first_of(u"\r\n") != std::u16string_view::npos) {
        error_ = "the file cannot hold the name of the key [" + toUtf8(path) + ']';
        return false;
    }
    text.append(u"[").append(path).append(u"]").append(lineEnd_);
    return true;
}

bool RegFileWriter::appendName(const RegistryValue& value, std::u16string& text) {
    if (!encodes(value.name)) {
        return refuse(value, "name");
    }
    if (value.name.empty()) {
        text += u'@';
    } else {
        appendQuoted(value.name, text);
    }
    return true;
}

bool RegFileWriter::appendValue(const RegistryValue& value, std::u16string& text) {
    const std::size_t lineStart = text.size();
    if (!appendName(value, text)) {
        return false;
    }
    text += u'=';
    if (!appendData(value, text.size() - lineStart, text)) {
        return false;
    }
    text += lineEnd_;
    return true;
}

bool RegFileWriter::appendData(const RegistryValue& value, std::size_t column, std::u16string& text) {
    if (appendPlainText(value, text)) {
        return true;
    }
    if (value.type == static_cast<std::uint32_t>(ValueType::Dword) && value.data.size() == 4) {
        appendDword(value.data, text);
        return true;
    }
    return appendHex(value, column, text) || refuse(value, "text");
}

bool RegFileWriter::refuse(const RegistryValue& value, const char* what) {
    const std::string name = value.name.empty() ? "the default value" : "the value \"" + toUtf8(value.name) + '"';
    error_ = std::string("the file cannot hold the ") + what + " of " + name + " of the key [" + toUtf8(key_) + ']';
    return false;
}

bool RegFileWriter::appendPlainText(const RegistryValue& value, std::u16string& text) const {
    const std::optional<std::u16string> plain = plainText(value);
    if (!plain || (file_ != nullptr && !file_->encodesSafely(*plain))) {
        return false;
    }
    appendQuoted(*plain, text);
    return true;
}

// False when the form has no way to write the data.
bool RegFileWriter::appendHex(const RegistryValue& value, std::size_t column, std::u16string& text) const {
    const std::size_t from = text.size();
    text += u"hex";
    if (value.type != static_cast<std::uint32_t>(ValueType::Binary)) {
        text += u'(';
        appendNumber(value.type, 1, text);
        text += u')';
    }
    text += u':';
    column += text.size() - from;
    if (!holdsText(value.type) || file_ == nullptr || file_->form().header != RegFileHeader::Regedit4) {
        appendBytes(value.data, column, text);
        return true;
    }
    // The older form has the bytes of texts in the system's code page.
    const std::optional<std::string> narrow = file_->form().page.toBytesExactly(fromStored(value.data));
    if (!narrow || value.data.size() % 2 != 0) {
        return false;
    }
    appendBytes(*narrow, column, text);
    return true;
}

template <class Bytes>
void RegFileWriter::appendBytes(const Bytes& bytes, std::size_t column, std::u16string& text) const {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i != 0) {
            text += u',';
            ++column;
            if (file_ != nullptr && column >= kFullHexLine) {
                text.append(u"\\").append(lineEnd_).append(u"  ");
                column = 2;
            }
        }
        appendNumber(static_cast<unsigned char>(bytes[i]), 2, text);
        column += 2;
    }
}

}  // namespace korvane
