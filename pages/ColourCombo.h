// The colour list: a sorted, owner-drawn drop-down list of named colours. Each
// row's data is its colour.
#pragma once

#include "platform/DialogControls.h"

#include <span>
#include <string_view>

namespace korvane {

struct NamedColour {
    std::string_view name;
    Colour colour;
};

// The 140 keywords of the extended HTML colour list, in alphabetical order.
std::span<const NamedColour> namedColours();

class CColourCombo {
public:
    CColourCombo(DialogControls& page, int control) : page_(page), control_(control) {}

    void FillColours();
    // Black when no row is selected.
    Colour GetSelectedColour() const;
    // Selects the first row of that colour (so "Aqua", never "Cyan"). A colour that no row has leaves the selection.
    void SelectColour(Colour colour);

private:
    DialogControls& page_;
    int control_;
};

}  // namespace korvane
