// Commas and escapes.
#include "cli/Json.h"

namespace korvane {

void JsonWriter::separate() {
    if (commaNeeded_) {
        json_ += ',';
    }
    commaNeeded_ = true;
}

void JsonWriter::begin(char bracket) {
    separate();
    json_ += bracket;
    commaNeeded_ = false;
}

void JsonWriter::end(char bracket) {
    json_ += bracket;
    commaNeeded_ = true;
}

void JsonWriter::name(std::string_view name) {
    separate();
    quoted(name);
    json_ += ':';
    commaNeeded_ = false;
}

void JsonWriter::text(std::string_view utf8) {
    separate();
    quoted(utf8);
}

void JsonWriter::plain(std::string_view value) {
    separate();
    json_ += value;
}

void JsonWriter::quoted(std::string_view utf8) {
    constexpr std::string_view kHex = "0123456789abcdef";
    json_ += '"';
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            json_ += '\\';
            json_ += c;
        } else if (c == '\n' || c == '\r' || c == '\t') {
            json_ += c == '\n' ? "\\n" : c == '\r' ? "\\r" : "\\t";
        } else if (byte < 0x20) {
            json_ += "\\u00";
            json_ += kHex[byte >> 4];
            json_ += kHex[byte & 0xF];
        } else {
            json_ += c;
        }
    }
    json_ += '"';
}

}  // namespace korvane
