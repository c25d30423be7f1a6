// What becomes of letters that the code page of a registry in memory does not have, while somebody watches: each shows
// as a mark that no other text holds, and a text with a mark in it is not written. So whatever becomes of a text on its
// way through the program, it cannot come back with letters missing.
#pragma once

#include <string>
#include <vector>

namespace korvane {

// ASCII's "substitute", which stands for a character that could not be represented.
inline constexpr char kLostLetter = '\x1a';

// A name or a value's text.
struct LossyText {
    std::u16string key;     // its full path
    std::u16string name;    // of the value; empty for its default value, and for a key's own name
    std::u16string stored;  // as the registry holds it; empty for what was not written
    std::string bytes;      // the same with its marks
};

struct LostLetters {
    std::vector<LossyText> read;
    std::vector<LossyText> notWritten;
};

}  // namespace korvane
