// The code pages of Windows: the 8-bit form that texts have at the registry's verbs, in older .reg files and in the
// program's own controls, against the UTF-16 that the registry stores.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

// Cheap to copy: copies share what has been converted before. Every character takes one or two bytes, and every byte
// below 128 is its own character; UTF-8 is the one page with longer characters.
class CodePage {
public:
    static constexpr unsigned kWestern = 1252;
    static constexpr unsigned kUtf8 = 65001;

    // Nothing when the platform does not know the page, or when it is none that a system could be run with.
    static std::optional<CodePage> open(unsigned number);
    // Page 1252, which counts where nothing names another one.
    static const CodePage& western();
    // What this system's terminals and file names are in: on Windows the page of its 8-bit functions, elsewhere UTF-8.
    static const CodePage& ofHost();

    unsigned number() const;

    // Bytes without a character of their own become what Windows makes of them, a control character or a letter for
    // private use, and survive the way there and back. Two bytes that mean nothing together become a question mark.
    std::u16string toUtf16(std::string_view text) const;
    // A character that has no place in the page becomes the stand-in, one beyond U+FFFF two of them. Nothing is put in
    // place of a letter because it looks similar: what is no stand-in is the same again after the way back.
    std::string toBytes(std::u16string_view text, char standIn = '?') const;
    // Nothing when a character has no place.
    std::optional<std::string> toBytesExactly(std::u16string_view text) const;
    // The characters that have no place, each once, in the order of the text.
    std::u16string lettersWithoutPlace(std::u16string_view text) const;

    // Whether the page has characters of two bytes.
    bool hasPairs() const;
    // Whether two bytes, the first of which begins a character, are one. The second is never below '0'.
    bool isPair(char first, char second) const;

private:
    class Table;
    explicit CodePage(std::shared_ptr<Table> table) : table_(std::move(table)) {}
    // False, with the bytes unchanged, when the character has no place.
    bool append(std::string& bytes, std::u16string_view character) const;

    std::shared_ptr<Table> table_;
};

}  // namespace korvane
