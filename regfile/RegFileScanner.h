// The grammar of .reg text, over the bytes as they stand in the file: which sections and values there are and where.
// Nothing is decoded but the paths of keys, and nothing is allocated for each line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "regfile/RegFileText.h"
#include "regfile/RegistryValues.h"

namespace korvane {

// A line with a key in brackets, which starts a section.
struct RegFileSection {
    std::size_t begin = 0;        // of its line
    std::size_t end = 0;          // behind the line's end
    TextRange key;                // between the brackets, without the minus sign
    std::size_t root = 0;         // into kRegistryRoots
    std::u16string_view path;     // below the root, valid during the call
    bool deletes = false;
};

// A line with a value, and those that continue it.
struct RegFileEntry {
    enum class Kind : std::uint8_t { Deletion, Text, Dword, Bytes };
    TextRange lines;  // with blanks in front, comment behind and line end
    TextRange name;   // with its quotes
    TextRange data;   // from the quote, "dword:" or "hex:" to the last quote, digit or comma
    Kind kind = Kind::Deletion;
    std::uint32_t type = 0;
};

class RegFileSink {
public:
    virtual ~RegFileSink() = default;
    virtual void section(const RegFileSection& section) = 0;
    virtual void value(const RegFileEntry& entry) = 0;
};

// Tells the sink all that stands in the file, up to the first error.
std::optional<RegFileError> scanRegFile(const RegFileText& text, RegFileSink& sink);
// The same for one section of a file without errors, and for its first line alone.
void scanSection(const RegFileText& text, TextRange section, RegFileSink& sink);
void scanSectionHeader(const RegFileText& text, TextRange section, RegFileSink& sink);

// What a value's line says. A deletion has a name only.
RegistryValue readEntry(const RegFileText& text, const RegFileEntry& entry);
std::u16string readEntryName(const RegFileText& text, const RegFileEntry& entry);

}  // namespace korvane
