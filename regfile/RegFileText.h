// The bytes of a .reg file and the encoding they are in. The bytes stay as they are; pieces are decoded when they are
// asked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "regfile/RegFile.h"
#include "text/CodePage.h"

namespace korvane {

enum class RegFileHeader : std::uint8_t { Version5, Regedit4 };
enum class RegFileEncoding : std::uint8_t { Utf16, Ansi, Utf8, Utf8WithMark };
struct RegFileForm {
    RegFileHeader header = RegFileHeader::Version5;
    RegFileEncoding encoding = RegFileEncoding::Utf16;
    CodePage page = CodePage::western();  // of Ansi text, and of texts in hex lines of the older form
};

// From and to, in bytes from the start of the file.
struct TextRange {
    std::size_t begin = 0;
    std::size_t end = 0;
};

class RegFileText {
public:
    // A file in the form that holds nothing.
    explicit RegFileText(RegFileForm form = {});
    // Checks the encoding and the header's line, and that there is no NUL character. After an error `text` is as before.
    // The page is that of the file's system.
    static std::optional<RegFileError> read(std::string bytes, const CodePage& page, RegFileText& text);

    const std::string& bytes() const { return bytes_; }
    const RegFileForm& form() const { return form_; }
    // Where the first line starts, behind the byte order mark.
    std::size_t start() const;
    // The number of bytes of a character that has any meaning in the file.
    std::size_t unit() const { return form_.encoding == RegFileEncoding::Utf16 ? 2 : 1; }
    // Whether there may be letters of two bytes, the second of which may look like any character from '0' on.
    bool hasPairs() const { return form_.encoding == RegFileEncoding::Ansi && form_.page.hasPairs(); }
    // A byte, or two of them in UTF-16: what has a meaning in the file is one of these, the rest parts of a character.
    char16_t unitAt(std::size_t offset) const;
    // Behind the end of the line an offset lies in.
    std::size_t nextLine(std::size_t offset) const;
    // Whether bytes in this encoding, cut between two characters, end with the end of a line.
    bool endsLine(std::string_view bytes) const;
    // What the first line ends with; the registry editor's own where there is only one line.
    std::u16string_view lineEnd() const;

    // Replaces what `text` holds.
    void decode(TextRange range, std::u16string& text) const;
    std::u16string decode(TextRange range) const {
        std::u16string text;
        decode(range, text);
        return text;
    }

    // Whether the encoding can hold a text.
    bool canEncode(std::u16string_view text) const;
    // The same for a text that might be written otherwise: false also for one in the system's code page that would be
    // taken for UTF-8 if it were the only one in the file.
    bool encodesSafely(std::u16string_view text) const;
    std::string encode(std::u16string_view text) const;
    // The bytes as a file of their own. Where they would be read in another encoding, because they happen to be valid
    // UTF-8, the whole file becomes UTF-16.
    std::string asFile(std::string bytes) const;

private:
    std::optional<RegFileError> findEncoding();
    std::optional<RegFileError> findHeader();

    std::string bytes_;
    RegFileForm form_;
};

}  // namespace korvane
