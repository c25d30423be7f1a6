// The controls of a tweak as every generated document tells them, in one walk.
#pragma once

#include "docgen/BindingText.h"

#include <string_view>
#include <vector>

namespace korvane {

struct ControlText {
    std::string_view name;  // its text or label; empty for a list and for a text that no control shows
    std::string_view kind;  // "check box", "list", "no control"
    int control = 0;        // its id; 0: no control
    BindingText binding{};
};

// From the top of the page to its bottom, and then what an apply writes beside the controls. For a tweak with a page.
std::vector<ControlText> controlTexts(const Tweak& tweak);

}  // namespace korvane
