// Commas and escapes.
#include "cli/Json.h"

#include "cli/SafeText.h"

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

// Control characters are escaped, also where JSON would allow them as they are: the text may go to a terminal.
void JsonWriter::quoted(std::string_view utf8) {
    constexpr std::string_view kHex = "0123456789abcdef";
    json_ += '"';
    while (!utf8.empty()) {
        char32_t character = 0;
        const std::size_t length = firstUtf8Character(utf8, character);
        if (character == '"' || character == '\\') {
            json_ += {'\\', utf8.front()};
        } else if (character == '\n' || character == '\r' || character == '\t') {
            json_ += character == '\n' ? "\\n" : character == '\r' ? "\\r" : "\\t";
        } else if (isControl(character)) {
            json_ += "\\u";
            for (int shift = 12; shift >= 0; shift -= 4) {
                json_ += kHex[character >> shift & 0xF];
            }
        } else {
            json_ += character == kNoCharacter ? "\\ufffd" : utf8.substr(0, length);
        }
        utf8.remove_prefix(length);
    }
    json_ += '"';
}

}  // namespace korvane
