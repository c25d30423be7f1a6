// What the controls of a page stand for, told to a reader: the keys and values,
// and what each state of a control writes. Plain text in pieces, so that every
// document can mark keys, names and data in its own way.
#pragma once

#include "pages/Tweak.h"

#include <string>
#include <string_view>
#include <vector>

namespace korvane {

struct TextPiece {
    std::string text;
    bool literal = false;  // a key, a value's name or data: to be read letter by letter
};

using TextLine = std::vector<TextPiece>;

// Both empty for a control that the tweak's own routines look after.
struct BindingText {
    std::vector<TextLine> places;
    std::vector<TextLine> effects;  // what the states of the control write there
};

BindingText describe(const CheckBox& box);
BindingText describe(const Field& field);
BindingText describe(const Choice& choice);
BindingText describe(const ColourField& colour);
BindingText describe(const Table& table);
BindingText describe(const FixedText& fixed);

// The pieces of a text in which literal parts stand between grave accents.
TextLine markedText(std::string_view text);

// "Windows 98, Me, 2000, XP"
std::string windowsVersions(VersionSet versions);

// "Windows 98, Me, 2000, XP", or "Every Windows", or "Every Windows but 95".
std::string acceptedBy(const Gate& gate);

}  // namespace korvane
