// Which controls each page has, and in which order tweaks use them.
#pragma once

#include "pages/Tweak.h"

#include <span>

namespace korvane {

struct RowControls {
    int label;
    int edit = 0;   // 0: the row has none
    int browse = 0;
    int combo = 0;
};

struct SkinAssignment {
    int control;  // 0: the page itself
    std::string_view element;
};

struct PageLayout {
    int templateId;
    std::span<const int> members;  // the controls bound to the members of the page, in member order
    std::span<const int> boxes = {};
    std::span<const RowControls> rows = {};
    int note = 0;
    int list = 0;
    // What HideControls hides.
    std::span<const int> hidden = {};
    // The skin elements in the order in which they are applied.
    std::span<const SkinAssignment> skin = {};
};

// For every page except Page::None.
const PageLayout& layoutOf(Page page);

// The control ids of a tweak's n-th box, field and choice on its page; 0 if the page has no such control.
int boxControl(const Tweak& tweak, std::size_t index);
RowControls fieldControls(const Tweak& tweak, std::size_t index);
RowControls choiceControls(const Tweak& tweak, std::size_t index);
RowControls colourControls();

// The control that holds the setting.
inline int controlOf(const auto&, int id) { return id; }
inline int controlOf(const Field&, const RowControls& row) { return row.edit; }
inline int controlOf(const auto&, const RowControls& row) { return row.combo; }

// Calls visit(description of the control, its ids) for each control of the tweak that has a setting, in the order in
// which they are shown, read and, by default, written: a CheckBox with its id, a Field, ColourField or Choice with its
// RowControls, a Table with the id of its list.
template <typename Visit>
void forEachControl(const Tweak& tweak, Visit&& visit) {
    for (std::size_t i = 0; i < tweak.boxes.size(); ++i) {
        visit(tweak.boxes[i], boxControl(tweak, i));
    }
    for (std::size_t i = 0; i < tweak.fields.size(); ++i) {
        visit(tweak.fields[i], fieldControls(tweak, i));
    }
    if (tweak.colour != nullptr) {
        visit(*tweak.colour, colourControls());
    }
    for (std::size_t i = 0; i < tweak.choices.size(); ++i) {
        visit(tweak.choices[i], choiceControls(tweak, i));
    }
    if (tweak.table != nullptr) {
        visit(*tweak.table, layoutOf(tweak.page).list);
    }
}

}  // namespace korvane
