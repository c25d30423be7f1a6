// Changes of a file's text: where sections end for somebody who edits the file by hand, and putting edits in.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "regfile/RegFileIndex.h"

namespace korvane {

// The bytes from `begin` to `end` are replaced by others.
struct RegFileEdit {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::string bytes;
    bool lines = false;  // whole lines, each with its end, to be put between lines
};

struct SectionEnd {
    // Behind the last line of the section: a line with the key or a value, or a comment that follows without a blank
    // line and does not stand directly above the next key.
    std::size_t lines = 0;
    // Behind the blank lines that follow.
    std::size_t blanks = 0;
};

// What stands before the first section ends behind the comments that are divided from it by a blank line.
SectionEnd endOf(const RegFileIndex& file, RegFileIndex::SectionId section);

// The whole file after the edits, which don't overlap; those of one place go in their order. A last line without an
// end is given one when lines come behind it, and then the last of those has none.
std::string applyEdits(const RegFileText& text, std::vector<RegFileEdit> edits);

}  // namespace korvane
