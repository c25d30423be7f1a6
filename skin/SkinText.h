// What skin and splash files share: an INI text, read line by line, so that every mistake is reported with its line.
#pragma once

#include "skin/SkinFile.h"
#include "text/CaseFolding.h"
#include "text/IniText.h"

#include <string>
#include <string_view>

namespace korvane::skin {

struct SkinLine {
    enum class Kind { Section, Entry, Unclear };
    Kind kind = Kind::Unclear;
    int number = 0;            // from 1
    std::string_view name;     // of the section, or the key before the equals sign
    std::string_view value{};  // of an entry, without the white space around it
};

// The sections and entries of a text; comments are skipped, and what is neither is unclear.
class SkinLines {
public:
    explicit SkinLines(std::string_view text) : lines_(text) {}
    bool next(SkinLine& line);

private:
    IniLines lines_;
};

// Whether this is a text with Format=1 in the given section. If so, a byte order mark is removed; if not, the problem says
// why.
bool checkSkinText(const std::string& name, std::string_view section, std::string_view& text, SkinProblem& problem);

// Reads a picture beside the skin file. Returns why it cannot, with the picture's name, or an empty text.
std::string readSkinPicture(std::string_view name, const ReadSkinFile& read, Picture& picture);

// A part of a file in quotation marks, shortened, and with "?" for everything but printable ASCII.
std::string quotedPart(std::string_view text);

}  // namespace korvane::skin
