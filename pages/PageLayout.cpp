// The controls of the nine pages.
#include "pages/PageLayout.h"

#include "res/ControlIds.h"

namespace korvane {
namespace {

constexpr int kCategoryMembers[] = {IDC_HEADER, IDC_LIST, IDC_CHECK1};
constexpr int kCategoryBoxes[] = {IDC_CHECK1};
constexpr int kCategoryHidden[] = {IDC_LIST, IDC_CHECK1};
constexpr SkinAssignment kCategorySkin[] = {{0, "SubMain"}, {IDC_CHECK1, "CheckBox"}, {IDC_HEADER, "Label"}};

constexpr int kChecksMembers[] = {IDC_NOTE,   IDC_CHECK9, IDC_CHECK8,  IDC_CHECK7, IDC_CHECK6, IDC_CHECK5,
                                  IDC_CHECK4, IDC_CHECK3, IDC_CHECK2, IDC_CHECK10, IDC_CHECK1, IDC_HEADER};
constexpr int kChecksBoxes[] = {IDC_CHECK1, IDC_CHECK2, IDC_CHECK3, IDC_CHECK4, IDC_CHECK5,
                                IDC_CHECK6, IDC_CHECK7, IDC_CHECK8, IDC_CHECK9, IDC_CHECK10};
constexpr int kChecksHidden[] = {IDC_NOTE,   IDC_CHECK1, IDC_CHECK2, IDC_CHECK3, IDC_CHECK4, IDC_CHECK5,
                                 IDC_CHECK6, IDC_CHECK7, IDC_CHECK8, IDC_CHECK9, IDC_CHECK10};
constexpr SkinAssignment kChecksSkin[] = {
    {0, "SubMain"},           {IDC_CHECK1, "CheckBox"}, {IDC_CHECK2, "CheckBox"}, {IDC_CHECK3, "CheckBox"},
    {IDC_CHECK4, "CheckBox"}, {IDC_CHECK5, "CheckBox"}, {IDC_CHECK6, "CheckBox"}, {IDC_CHECK7, "CheckBox"},
    {IDC_CHECK8, "CheckBox"}, {IDC_CHECK9, "CheckBox"}, {IDC_CHECK10, "CheckBox"}, {IDC_HEADER, "Label"},
    {IDC_NOTE, "Label"}};

constexpr int kCheckFieldsMembers[] = {IDC_LABEL2,  IDC_LABEL3, IDC_LABEL1, IDC_BROWSE3, IDC_BROWSE2, IDC_BROWSE1,
                                       IDC_CHECK2,  IDC_EDIT3,  IDC_EDIT2,  IDC_EDIT1,   IDC_CHECK1,  IDC_NOTE,
                                       IDC_HEADER};
constexpr int kCheckFieldsBoxes[] = {IDC_CHECK1, IDC_CHECK2};
constexpr RowControls kCheckFieldsRows[] = {{.label = IDC_LABEL1, .edit = IDC_EDIT1, .browse = IDC_BROWSE1},
                                            {.label = IDC_LABEL2, .edit = IDC_EDIT2, .browse = IDC_BROWSE2},
                                            {.label = IDC_LABEL3, .edit = IDC_EDIT3, .browse = IDC_BROWSE3}};
constexpr int kCheckFieldsHidden[] = {IDC_LABEL1, IDC_LABEL2,  IDC_LABEL3,  IDC_EDIT1,  IDC_EDIT2,  IDC_EDIT3,
                                      IDC_BROWSE1, IDC_BROWSE2, IDC_BROWSE3, IDC_CHECK1, IDC_CHECK2, IDC_NOTE};
constexpr SkinAssignment kCheckFieldsSkin[] = {
    {0, "SubMain"},         {IDC_CHECK1, "CheckBox"}, {IDC_CHECK2, "CheckBox"}, {IDC_HEADER, "Label"},
    {IDC_NOTE, "Label"},    {IDC_LABEL1, "Label"},    {IDC_LABEL2, "Label"},    {IDC_LABEL3, "Label"},
    {IDC_BROWSE1, "Button"}, {IDC_BROWSE2, "Button"},  {IDC_BROWSE3, "Button"}};

constexpr int kCheckCombosMembers[] = {IDC_LABEL2, IDC_LABEL1, IDC_COMBO2,       IDC_COMBO1,
                                       IDC_CHECK1, IDC_NOTE,   IDC_COLOUR_COMBO, IDC_HEADER};
constexpr int kCheckCombosBoxes[] = {IDC_CHECK1};
constexpr RowControls kCheckCombosRows[] = {{.label = IDC_LABEL1, .combo = IDC_COMBO1},
                                            {.label = IDC_LABEL2, .combo = IDC_COMBO2}};
constexpr int kCheckCombosHidden[] = {IDC_LABEL1, IDC_LABEL2, IDC_COMBO1, IDC_COMBO2,
                                      IDC_COLOUR_COMBO, IDC_CHECK1, IDC_NOTE};
constexpr SkinAssignment kCheckCombosSkin[] = {{0, "SubMain"},      {IDC_CHECK1, "CheckBox"}, {IDC_HEADER, "Label"},
                                            {IDC_NOTE, "Label"}, {IDC_LABEL1, "Label"},    {IDC_LABEL2, "Label"}};

constexpr int kCheckListMembers[] = {IDC_HEADER, IDC_CHECK_LIST};
constexpr int kCheckListHidden[] = {IDC_CHECK_LIST};
constexpr SkinAssignment kCheckListSkin[] = {{0, "SubMain"}, {IDC_HEADER, "Label"}};

constexpr int kPathFieldsMembers[] = {IDC_LABEL5,  IDC_LABEL4,  IDC_LABEL3,  IDC_LABEL2,  IDC_LABEL1, IDC_EDIT5,
                                      IDC_EDIT4,   IDC_EDIT3,   IDC_EDIT2,   IDC_EDIT1,   IDC_BROWSE5, IDC_BROWSE4,
                                      IDC_BROWSE3, IDC_BROWSE2, IDC_BROWSE1, IDC_HEADER};
constexpr RowControls kPathFieldsRows[] = {{.label = IDC_LABEL1, .edit = IDC_EDIT1, .browse = IDC_BROWSE1},
                                           {.label = IDC_LABEL2, .edit = IDC_EDIT2, .browse = IDC_BROWSE2},
                                           {.label = IDC_LABEL3, .edit = IDC_EDIT3, .browse = IDC_BROWSE3},
                                           {.label = IDC_LABEL4, .edit = IDC_EDIT4, .browse = IDC_BROWSE4},
                                           {.label = IDC_LABEL5, .edit = IDC_EDIT5, .browse = IDC_BROWSE5}};
constexpr SkinAssignment kPathFieldsSkin[] = {
    {0, "SubMain"},          {IDC_LABEL1, "Label"},   {IDC_LABEL2, "Label"},   {IDC_LABEL3, "Label"},
    {IDC_LABEL4, "Label"},   {IDC_LABEL5, "Label"},   {IDC_HEADER, "Label"},   {IDC_BROWSE1, "Button"},
    {IDC_BROWSE2, "Button"}, {IDC_BROWSE3, "Button"}, {IDC_BROWSE4, "Button"}, {IDC_BROWSE5, "Button"}};

constexpr int kCombosMembers[] = {IDC_HEADER, IDC_LABEL6, IDC_LABEL5, IDC_LABEL4, IDC_LABEL3, IDC_LABEL2, IDC_LABEL1,
                                  IDC_COMBO6, IDC_COMBO5, IDC_COMBO4, IDC_COMBO3, IDC_COMBO2, IDC_COMBO1};
constexpr RowControls kCombosRows[] = {{.label = IDC_LABEL1, .combo = IDC_COMBO1},
                                       {.label = IDC_LABEL2, .combo = IDC_COMBO2},
                                       {.label = IDC_LABEL3, .combo = IDC_COMBO3},
                                       {.label = IDC_LABEL4, .combo = IDC_COMBO4},
                                       {.label = IDC_LABEL5, .combo = IDC_COMBO5},
                                       {.label = IDC_LABEL6, .combo = IDC_COMBO6}};
constexpr SkinAssignment kCombosSkin[] = {{0, "SubMain"},        {IDC_LABEL1, "Label"}, {IDC_LABEL2, "Label"},
                                       {IDC_LABEL3, "Label"}, {IDC_LABEL4, "Label"}, {IDC_LABEL5, "Label"},
                                       {IDC_LABEL6, "Label"}, {IDC_HEADER, "Label"}};

constexpr int kEditCombosMembers[] = {IDC_COMBO4, IDC_NOTE,   IDC_LABEL4, IDC_LABEL3, IDC_LABEL2, IDC_LABEL1,
                                      IDC_EDIT1,  IDC_COMBO3, IDC_COMBO2, IDC_COMBO1, IDC_HEADER};
constexpr RowControls kEditCombosRows[] = {{.label = IDC_LABEL1, .edit = IDC_EDIT1, .combo = IDC_COMBO4},
                                           {.label = IDC_LABEL2, .combo = IDC_COMBO1},
                                           {.label = IDC_LABEL3, .combo = IDC_COMBO2},
                                           {.label = IDC_LABEL4, .combo = IDC_COMBO3}};
constexpr int kEditCombosHidden[] = {IDC_EDIT1, IDC_COMBO4};
constexpr SkinAssignment kEditCombosSkin[] = {{0, "SubMain"},        {IDC_LABEL1, "Label"}, {IDC_LABEL2, "Label"},
                                           {IDC_LABEL3, "Label"}, {IDC_LABEL4, "Label"}, {IDC_HEADER, "Label"},
                                           {IDC_NOTE, "Label"}};

constexpr int kCheckComboMembers[] = {IDC_LABEL1, IDC_COMBO1, IDC_CHECK1, IDC_NOTE, IDC_HEADER};
constexpr int kCheckComboBoxes[] = {IDC_CHECK1};
constexpr RowControls kCheckComboRows[] = {{.label = IDC_LABEL1, .combo = IDC_COMBO1}};
constexpr SkinAssignment kCheckComboSkin[] = {{0, "SubMain"},
                                           {IDC_CHECK1, "CheckBox"},
                                           {IDC_HEADER, "Label"},
                                           {IDC_NOTE, "Label"},
                                           {IDC_LABEL1, "Label"}};

// In the order of the Page enumeration.
constexpr PageLayout kLayouts[kPageCount] = {
    {.templateId = IDD_CATEGORY, .members = kCategoryMembers, .boxes = kCategoryBoxes, .list = IDC_LIST,
     .hidden = kCategoryHidden, .skin = kCategorySkin},
    {.templateId = IDD_CHECKS, .members = kChecksMembers, .boxes = kChecksBoxes, .note = IDC_NOTE,
     .hidden = kChecksHidden, .skin = kChecksSkin},
    {.templateId = IDD_CHECK_FIELDS, .members = kCheckFieldsMembers, .boxes = kCheckFieldsBoxes,
     .rows = kCheckFieldsRows, .note = IDC_NOTE, .hidden = kCheckFieldsHidden, .skin = kCheckFieldsSkin},
    {.templateId = IDD_CHECK_COMBOS, .members = kCheckCombosMembers, .boxes = kCheckCombosBoxes,
     .rows = kCheckCombosRows, .note = IDC_NOTE, .hidden = kCheckCombosHidden, .skin = kCheckCombosSkin},
    {.templateId = IDD_CHECK_LIST, .members = kCheckListMembers, .list = IDC_CHECK_LIST, .hidden = kCheckListHidden,
     .skin = kCheckListSkin},
    {.templateId = IDD_PATH_FIELDS, .members = kPathFieldsMembers, .rows = kPathFieldsRows, .skin = kPathFieldsSkin},
    {.templateId = IDD_COMBOS, .members = kCombosMembers, .rows = kCombosRows, .skin = kCombosSkin},
    {.templateId = IDD_EDIT_COMBOS, .members = kEditCombosMembers, .rows = kEditCombosRows, .note = IDC_NOTE,
     .hidden = kEditCombosHidden, .skin = kEditCombosSkin},
    {.templateId = IDD_CHECK_COMBO, .members = kCheckComboMembers, .boxes = kCheckComboBoxes, .rows = kCheckComboRows,
     .note = IDC_NOTE, .skin = kCheckComboSkin},
};

RowControls rowControls(const Tweak& tweak, std::size_t index) {
    const auto rows = layoutOf(tweak.page).rows;
    return index < rows.size() ? rows[index] : RowControls{.label = 0};
}

}  // namespace

const PageLayout& layoutOf(Page page) { return kLayouts[static_cast<std::size_t>(page)]; }

int boxControl(const Tweak& tweak, std::size_t index) {
    if (tweak.boxes[index].control != 0) {
        return tweak.boxes[index].control;
    }
    const auto boxes = layoutOf(tweak.page).boxes;
    return index < boxes.size() ? boxes[index] : 0;
}

RowControls fieldControls(const Tweak& tweak, std::size_t index) { return rowControls(tweak, index); }

RowControls choiceControls(const Tweak& tweak, std::size_t index) {
    return rowControls(tweak, tweak.fields.size() + (tweak.colour == nullptr ? 0 : 1) + index);
}

RowControls colourControls() { return {.label = IDC_LABEL1, .combo = IDC_COLOUR_COMBO}; }

}  // namespace korvane
