// The dialog templates as data, from the lists that the resource script includes,
// so that a page in memory has the same controls as the one on the screen.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace korvane {

enum class ControlKind : std::uint8_t {
    Header,        // sunken static at the top of every page
    Label,         // static
    Note,          // static below the controls
    CheckBox,
    Button,
    Edit,
    Combo,         // editable drop-down
    ColourCombo,   // owner-drawn, sorted drop-down list
    List,          // report list
    CheckedList,   // report list whose rows carry check boxes
    Tree,
    Other,         // placeholders and pictures that no code writes to
};

struct ControlTemplate {
    int id;
    ControlKind kind;
    std::string_view text;
    bool visible;
    // Dialog units.
    int x, y, width, height;
};

struct DialogTemplate {
    int id;
    std::string_view caption;
    int x, y, width, height;  // dialog units
    std::span<const ControlTemplate> controls;
};

// Null for an id that is not a dialog's.
const DialogTemplate* findDialogTemplate(int id);

}  // namespace korvane
