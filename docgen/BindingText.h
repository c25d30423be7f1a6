// What the controls of a page stand for, told to a reader: the keys and values,
// what each state of a control writes, and what is shown when there is no value.
#pragma once

#include "docgen/TextLine.h"
#include "pages/Tweak.h"

#include <vector>

namespace korvane {

// Both empty for a control that the tweak's own routines handle.
struct BindingText {
    std::vector<TextLine> places;
    std::vector<TextLine> effects;  // what the states of the control write there, and unusual ways of showing it
};

BindingText describe(const CheckBox& box);
BindingText describe(const Field& field);
BindingText describe(const Choice& choice);
BindingText describe(const ColourField& colour);
BindingText describe(const Table& table);
BindingText describe(const FixedText& fixed);

// Empty where the tweak's registry line names the value itself: its own routines then treat the value otherwise than
// the binding does.
BindingText unlessTold(const Tweak& tweak, BindingText binding);

}  // namespace korvane
