// A line of text about the registry, as plain pieces, and the form of numbers,
// bytes and keys in it. Each document marks the literal pieces in its own way.
#pragma once

#include "pages/Tweak.h"

#include <string>
#include <string_view>
#include <vector>

namespace korvane {

struct TextPiece {
    std::string text;
    bool literal = false;  // a key, the name of a value or data
};

using TextLine = std::vector<TextPiece>;

// A line that grows: words, and literal parts between them.
struct Line {
    TextLine pieces;

    Line& words(std::string_view text) { return add(text, false); }
    Line& literal(std::string_view text) { return text.empty() ? words("an empty text") : add(text, true); }
    // All states of a control are in one line: "checked: 1; cleared: 0".
    Line& state(std::string_view name) { return words(pieces.empty() ? "" : "; ").words(name).words(": "); }
    Line& state(std::string_view name, std::string_view data) { return state(name).literal(data); }

private:
    Line& add(std::string_view text, bool literal) {
        if (!text.empty()) {
            pieces.push_back({std::string(text), literal});
        }
        return *this;
    }
};

// "HKCU"
std::string_view shortName(Root root);
// "REG_SZ"
std::string_view typeName(ValueType type);
// A key below another; an empty path is the key itself.
std::string below(std::string_view key, std::string_view path);
// Decimal; large numbers, which are masks, codes and the -1 of no choice, in hexadecimal with "0x".
std::string numberText(std::uint32_t number);
// "0A 00 00 00"
std::string byteText(std::span<const std::byte> data);
// "0x0A"
std::string maskText(std::uint8_t mask);

// "HKCU\Console", and whether an apply creates it.
void addKey(Line& line, Root root, std::string_view path, std::string_view created);
// One name, or two that belong together; an empty name is the default value.
void addValue(Line& line, std::string_view name, std::string_view alsoName);

// The pieces of a text in which literal parts are between backquotes.
TextLine markedText(std::string_view text);

// "Windows 98, Me, 2000, XP"
std::string windowsVersions(VersionSet versions);

// "Windows 98, Me, 2000, XP", or "Every Windows", or "Every Windows but 95".
std::string acceptedBy(const Gate& gate);

}  // namespace korvane
