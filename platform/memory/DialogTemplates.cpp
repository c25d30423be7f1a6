// Turns the control lists of the resource script into tables.
#include "platform/memory/DialogTemplates.h"

#include "res/ControlIds.h"

#include <algorithm>

#define IDOK 1
#define CONTROL_ROW(id, kind, text, visible, x, y, w, h) {id, ControlKind::kind, text, visible, x, y, w, h},
#define HEADER(id, x, y, w, h) CONTROL_ROW(id, Header, "", true, x, y, w, h)
#define LABEL(id, text, x, y, w, h) CONTROL_ROW(id, Label, text, false, x, y, w, h)
#define NOTE(id, x, y, w, h) CONTROL_ROW(id, Note, "Note", false, x, y, w, h)
#define CHECKBOX(id, text, x, y, w, h) CONTROL_ROW(id, CheckBox, text, false, x, y, w, h)
#define BROWSE(id, text, x, y, w, h) CONTROL_ROW(id, Button, text, false, x, y, w, h)
#define EDIT(id, x, y, w, h) CONTROL_ROW(id, Edit, "", false, x, y, w, h)
#define COMBO(id, x, y, w, h, styles) CONTROL_ROW(id, Combo, "", false, x, y, w, h)
#define COLOUR_COMBO(id, x, y, w, h) CONTROL_ROW(id, ColourCombo, "", false, x, y, w, h)
#define REPORT(id, x, y, w, h) CONTROL_ROW(id, List, "", false, x, y, w, h)
#define CHECKED_REPORT(id, x, y, w, h) CONTROL_ROW(id, CheckedList, "", false, x, y, w, h)
#define TREE_LIST(id, text, x, y, w, h) CONTROL_ROW(id, Tree, text, true, x, y, w, h)
#define DIVIDER_PLACE(id, x, y, w, h) CONTROL_ROW(id, Other, "", false, x, y, w, h)
#define SPLASH(id, x, y, w, h) CONTROL_ROW(id, Other, "", true, x, y, w, h)
#define SKIN_ENGINE(id, x, y, w, h) CONTROL_ROW(id, Other, "", false, x, y, w, h)
#define ICON_PICTURE(id, x, y, w, h) CONTROL_ROW(-1, Other, "", true, x, y, w, h)
#define TEXT_LINE(id, text, x, y, w, h) CONTROL_ROW(id, Label, text, true, x, y, w, h)
#define DEFAULT_BUTTON(id, text, x, y, w, h) CONTROL_ROW(id, Button, text, true, x, y, w, h)
#define HIDDEN_DEFAULT_BUTTON(id, text, x, y, w, h) CONTROL_ROW(id, Button, text, false, x, y, w, h)

namespace korvane {
namespace {

constexpr ControlTemplate kMain[] = {
#include "res/templates/Main.inc"
};
constexpr ControlTemplate kAbout[] = {
#include "res/templates/About.inc"
};
constexpr ControlTemplate kCategory[] = {
#include "res/templates/Category.inc"
};
constexpr ControlTemplate kChecks[] = {
#include "res/templates/Checks.inc"
};
constexpr ControlTemplate kCheckFields[] = {
#include "res/templates/CheckFields.inc"
};
constexpr ControlTemplate kCheckCombos[] = {
#include "res/templates/CheckCombos.inc"
};
constexpr ControlTemplate kCheckList[] = {
#include "res/templates/CheckList.inc"
};
constexpr ControlTemplate kPathFields[] = {
#include "res/templates/PathFields.inc"
};
constexpr ControlTemplate kCombos[] = {
#include "res/templates/Combos.inc"
};
constexpr ControlTemplate kEditCombos[] = {
#include "res/templates/EditCombos.inc"
};
constexpr ControlTemplate kCheckCombo[] = {
#include "res/templates/CheckCombo.inc"
};

constexpr DialogTemplate kTemplates[] = {
    {IDD_ABOUT, "About Korvane Manager", 0, 0, 236, 96, kAbout},
    {IDD_MAIN, "Korvane Manager", 0, 0, 500, 251, kMain},
    {IDD_CATEGORY, "", 215, 20, 322, 218, kCategory},
    {IDD_CHECKS, "", 215, 20, 322, 218, kChecks},
    {IDD_CHECK_FIELDS, "", 215, 20, 322, 218, kCheckFields},
    {IDD_CHECK_COMBOS, "", 215, 20, 322, 218, kCheckCombos},
    {IDD_CHECK_LIST, "", 215, 20, 322, 218, kCheckList},
    {IDD_PATH_FIELDS, "", 215, 20, 322, 218, kPathFields},
    {IDD_COMBOS, "", 215, 20, 322, 218, kCombos},
    {IDD_EDIT_COMBOS, "", 215, 20, 322, 218, kEditCombos},
    {IDD_CHECK_COMBO, "", 215, 20, 332, 218, kCheckCombo},
};

}  // namespace

const DialogTemplate* findDialogTemplate(int id) {
    const auto* found = std::ranges::find(kTemplates, id, &DialogTemplate::id);
    return found == std::end(kTemplates) ? nullptr : found;
}

}  // namespace korvane
