// Keys and values as lines of .reg text, laid out as the registry editor does it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "regfile/RegFileText.h"
#include "regfile/RegistryValues.h"

namespace korvane {

class RegFileWriter {
public:
    // For lines of that file, which is borrowed: in its form, with its line ends.
    explicit RegFileWriter(const RegFileText& file) : file_(&file), lineEnd_(file.lineEnd()) {}
    // For reading by people and tests alone: version 5.00, hex lines not wrapped, any text as it is, "\n".
    RegFileWriter() = default;

    std::u16string_view lineEnd() const { return lineEnd_; }

    // All append to the text, or answer false when the form of the file cannot hold something; `error` then says what.
    // The line of a key. The values that follow are taken for this key's.
    bool appendKey(std::u16string_view path, std::u16string& text);
    // The line or lines of a value.
    bool appendValue(const RegistryValue& value, std::u16string& text);
    // Its name alone, in quotes.
    bool appendName(const RegistryValue& value, std::u16string& text);
    // What stands behind a value's equals sign, which itself stands in that column, counted from 0.
    bool appendData(const RegistryValue& value, std::size_t column, std::u16string& text);

    // For error messages where no key's line is written.
    void setKey(std::u16string_view path) { key_ = path; }
    const std::string& error() const { return error_; }

private:
    bool encodes(std::u16string_view text) const { return file_ == nullptr || file_->canEncode(text); }
    bool refuse(const RegistryValue& value, const char* what);
    bool appendPlainText(const RegistryValue& value, std::u16string& text) const;
    bool appendHex(const RegistryValue& value, std::size_t column, std::u16string& text) const;
    template <class Bytes>
    void appendBytes(const Bytes& bytes, std::size_t column, std::u16string& text) const;

    const RegFileText* file_ = nullptr;
    std::u16string_view lineEnd_ = u"\n";
    std::u16string key_;
    std::string error_;
};

}  // namespace korvane
