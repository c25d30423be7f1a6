// What the controls of a page stand for, in words: the keys and values, what each
// state of a control writes, and what is shown if there is no value.
#pragma once

#include "docgen/TextLine.h"
#include "pages/Tweak.h"

#include <vector>

namespace korvane {

// Both are empty for a control without a binding.
struct BindingText {
    std::vector<TextLine> places;
    std::vector<TextLine> effects;  // what each state writes there, and what is shown in unusual cases
};

BindingText describe(const CheckBox& box);
BindingText describe(const Field& field);
BindingText describe(const Choice& choice);
BindingText describe(const ColourField& colour);
BindingText describe(const Table& table);
BindingText describe(const FixedText& fixed);

// The text of a binding; empty if the tweak's registry line names the value, because its own routines then do something
// else with it than the binding says.
BindingText unlessTold(const Tweak& tweak, BindingText binding);

}  // namespace korvane
