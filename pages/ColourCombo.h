// The colour list: a sorted, owner-drawn drop-down list of named colours. The item
// data of each entry is its colour.
#pragma once

#include "platform/DialogControls.h"

#include <span>
#include <string_view>

namespace korvane {

struct NamedColour {
    std::string_view name;
    Colour colour;
};

// The 140 colour keywords of HTML and CSS, in alphabetical order.
std::span<const NamedColour> namedColours();

class CColourCombo {
public:
    CColourCombo(DialogControls& page, int control) : page_(page), control_(control) {}

    void FillColours();
    // Black if no entry is selected.
    Colour GetSelectedColour() const;
    // Selects the first entry of that colour (so "Aqua", never "Cyan"). A colour that no entry has keeps the selection.
    void SelectColour(Colour colour);

private:
    DialogControls& page_;
    int control_;
};

}  // namespace korvane
