// The outside of .reg text: the bytes of the file, the encoding they are in, and the first line that says which of
// the two forms the rest is in.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "regfile/RegFile.h"
#include "regfile/RegistryTree.h"

namespace korvane {

struct RegFileText {
    std::u16string text;  // from the first line on, without byte order mark, free of NUL characters
    RegFileForm form;
};

std::optional<RegFileError> decodeRegFile(std::string_view bytes, RegFileText& file);

// The header's line, without line end.
std::u16string_view headerLine(RegFileHeader header);

// Whether the encoding can hold a text.
bool canEncode(std::u16string_view text, RegFileEncoding encoding);

// The bytes of a file whose text `canEncode` holds for.
std::string encodeRegFile(const RegFileText& file);

}  // namespace korvane
