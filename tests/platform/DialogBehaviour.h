// How a dialog's controls behave, as tests that run unchanged over dialogs in memory and over real ones, so that the
// two cannot drift apart. An environment has
//     DialogControls& open(int templateId)                      makes the dialog, hidden; it lives as long as the
//                                                               environment
//     std::string cell(int templateId, int id, int row, int column)      what a list shows
//     void selectRow(int templateId, int id, int row)           as a click does; other rows lose their selection
// and has the platform's common controls at 96 dpi with the font "MS Sans Serif" 8.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/memory/DialogTemplates.h"
#include "platform/DialogControls.h"
#include "res/ControlIds.h"

namespace korvane {

template <class Environment>
class DialogBehaviour : public testing::Test {
protected:
    Environment environment;
};

TYPED_TEST_SUITE_P(DialogBehaviour);

// Dialog units to pixels, to the nearest one.
inline int pixelsAcross(int units) { return static_cast<int>(std::lround(units * 6 / 4.0)); }
inline int pixelsDown(int units) { return static_cast<int>(std::lround(units * 13 / 8.0)); }

TYPED_TEST_P(DialogBehaviour, EveryPageIsMadeFromItsTemplate) {
    for (const int templateId : {IDD_CATEGORY, IDD_CHECKS, IDD_CHECK_FIELDS, IDD_CHECK_COMBOS, IDD_CHECK_LIST,
                                 IDD_COMBOS, IDD_PATH_FIELDS, IDD_EDIT_COMBOS, IDD_CHECK_COMBO}) {
        SCOPED_TRACE(templateId);
        const DialogTemplate& page = *findDialogTemplate(templateId);
        DialogControls& dialog = this->environment.open(templateId);
        EXPECT_EQ(dialog.rect(), (Rect{pixelsAcross(page.x), pixelsDown(page.y),
                                       pixelsAcross(page.x) + pixelsAcross(page.width),
                                       pixelsDown(page.y) + pixelsDown(page.height)}));
        EXPECT_EQ(dialog.caption(), page.caption);

        std::vector<int> ids;
        for (const ControlTemplate& control : page.controls) {
            SCOPED_TRACE(control.id);
            ids.push_back(control.id);
            const Rect rect = dialog.controlRect(control.id);
            EXPECT_EQ(rect.left, pixelsAcross(control.x));
            EXPECT_EQ(rect.top, pixelsDown(control.y));
            EXPECT_EQ(rect.width(), pixelsAcross(control.width));
            if (control.kind == ControlKind::Combo) {
                EXPECT_EQ(rect.height(), 21);  // closed
            } else if (control.kind != ControlKind::ColourCombo) {
                EXPECT_EQ(rect.height(), pixelsDown(control.height));
            }
            EXPECT_EQ(dialog.text(control.id), control.text);
        }
        EXPECT_EQ(dialog.controlIds(), ids);
    }
}

TYPED_TEST_P(DialogBehaviour, DialogsAndControlsMove) {
    DialogControls& dialog = this->environment.open(IDD_CHECK_COMBOS);
    dialog.move({300, 40, 700, 350});
    EXPECT_EQ(dialog.rect(), (Rect{300, 40, 700, 350}));
    dialog.moveControl(IDC_CHECK1, {-5, 90, 200, 106});
    EXPECT_EQ(dialog.controlRect(IDC_CHECK1), (Rect{-5, 90, 200, 106}));
    // A closed combo box keeps its own height.
    dialog.moveControl(IDC_COMBO1, {230, 120, 400, 320});
    EXPECT_EQ(dialog.controlRect(IDC_COMBO1), (Rect{230, 120, 400, 141}));
}

TYPED_TEST_P(DialogBehaviour, TextsKeepTheirLineFeedsAndEndAtAZeroByte) {
    using namespace std::string_view_literals;
    DialogControls& dialog = this->environment.open(IDD_CHECK_FIELDS);
    for (const int id : {IDC_HEADER, IDC_LABEL1, IDC_NOTE, IDC_CHECK1, IDC_BROWSE1, IDC_EDIT1}) {
        SCOPED_TRACE(id);
        dialog.setText(id, "Title:\nwhat\tit && does\r\n\xe4\x80");
        EXPECT_EQ(dialog.text(id), "Title:\nwhat\tit && does\r\n\xe4\x80");
        dialog.setText(id, "cut\0off"sv);
        EXPECT_EQ(dialog.text(id), "cut");
        dialog.setText(id, "");
        EXPECT_EQ(dialog.text(id), "");
    }
}

TYPED_TEST_P(DialogBehaviour, CheckBoxesKnowTwoStates) {
    DialogControls& dialog = this->environment.open(IDD_CHECK_FIELDS);
    for (const std::uint32_t state : {1U, 0U, 2U, 0U, 0xFFFFFFFFU}) {
        dialog.setCheck(IDC_CHECK1, state);
        EXPECT_EQ(dialog.check(IDC_CHECK1), state == 0 ? 0U : 1U) << state;
    }
    dialog.setCheck(IDC_BROWSE1, 1);  // a push button has no state
    EXPECT_EQ(dialog.check(IDC_BROWSE1), 0U);
}

TYPED_TEST_P(DialogBehaviour, SelectingAnEntrySetsTheTextOfAnEditableCombo) {
    DialogControls& dialog = this->environment.open(IDD_COMBOS);
    EXPECT_EQ(dialog.comboSelection(IDC_COMBO1), kNoSelection);
    EXPECT_EQ(dialog.addComboEntry(IDC_COMBO1, "zero"), 0);
    EXPECT_EQ(dialog.addComboEntry(IDC_COMBO1, "One"), 1);
    EXPECT_EQ(dialog.addComboEntry(IDC_COMBO1, "a"), 2);  // not sorted
    EXPECT_EQ(dialog.addComboEntry(IDC_COMBO1, "One"), 3);
    EXPECT_EQ(dialog.comboSelection(IDC_COMBO1), kNoSelection);
    EXPECT_EQ(dialog.text(IDC_COMBO1), "");
    for (const int beyond : {4, -1, 0x7FFFFFFF}) {
        dialog.selectComboEntry(IDC_COMBO1, 3);
        EXPECT_EQ(dialog.comboSelection(IDC_COMBO1), 3);
        EXPECT_EQ(dialog.text(IDC_COMBO1), "One");
        dialog.selectComboEntry(IDC_COMBO1, beyond);
        EXPECT_EQ(dialog.comboSelection(IDC_COMBO1), kNoSelection) << beyond;
        EXPECT_EQ(dialog.text(IDC_COMBO1), "") << beyond;
    }
}

TYPED_TEST_P(DialogBehaviour, ASetTextLeavesEntriesAndSelectionOfAnEditableComboAlone) {
    using namespace std::string_view_literals;
    DialogControls& dialog = this->environment.open(IDD_COMBOS);
    dialog.addComboEntry(IDC_COMBO2, "first");
    dialog.addComboEntry(IDC_COMBO2, "second\0cut"sv);
    dialog.setText(IDC_COMBO2, "second");
    EXPECT_EQ(dialog.comboSelection(IDC_COMBO2), kNoSelection);
    dialog.selectComboEntry(IDC_COMBO2, 0);
    dialog.setText(IDC_COMBO2, "second");
    EXPECT_EQ(dialog.text(IDC_COMBO2), "second");
    EXPECT_EQ(dialog.comboSelection(IDC_COMBO2), 0);
    dialog.addComboEntry(IDC_COMBO2, "third");
    EXPECT_EQ(dialog.text(IDC_COMBO2), "second");
    dialog.resetCombo(IDC_COMBO2);
    EXPECT_EQ(dialog.comboCount(IDC_COMBO2), 0);
    EXPECT_EQ(dialog.comboSelection(IDC_COMBO2), kNoSelection);
    EXPECT_EQ(dialog.text(IDC_COMBO2), "");
}

TYPED_TEST_P(DialogBehaviour, TheColourListSortsAndKeepsEachEntrysData) {
    DialogControls& dialog = this->environment.open(IDD_CHECK_COMBOS);
    dialog.resetCombo(IDC_COLOUR_COMBO);
    const std::string_view names[] = {"White", "aqua", "Beige", "DarkSalmon", "Dark", "AliceBlue"};
    std::uint32_t data = 0xFFFFFF;
    for (const std::string_view name : names) {
        dialog.setComboData(IDC_COLOUR_COMBO, dialog.addComboEntry(IDC_COLOUR_COMBO, name), data--);
    }
    std::vector<std::uint32_t> order;
    for (int i = 0; i < dialog.comboCount(IDC_COLOUR_COMBO); ++i) {
        order.push_back(0xFFFFFF - dialog.comboData(IDC_COLOUR_COMBO, i));
    }
    EXPECT_EQ(order, (std::vector<std::uint32_t>{5, 1, 2, 4, 3, 0}));

    EXPECT_EQ(dialog.comboData(IDC_COLOUR_COMBO, -1), 0xFFFFFFFF);
}

TYPED_TEST_P(DialogBehaviour, ListsTakeRowsAndCellsWhereTheyFit) {
    using namespace std::string_view_literals;
    const auto cell = [this](int row, int column) {
        return this->environment.cell(IDD_CATEGORY, IDC_LIST, row, column);
    };
    DialogControls& dialog = this->environment.open(IDD_CATEGORY);
    dialog.insertColumn(IDC_LIST, 0, "Title", 200);
    dialog.insertColumn(IDC_LIST, 9, "Date", 100);  // behind the last
    dialog.insertRow(IDC_LIST, 0, "second");
    dialog.insertRow(IDC_LIST, 0, "first\0cut"sv);
    dialog.insertRow(IDC_LIST, 50, "last");
    dialog.setCell(IDC_LIST, 1, 1, "today");
    dialog.setCell(IDC_LIST, 1, 2, "no such column");
    EXPECT_EQ(cell(0, 0), "first");
    EXPECT_EQ(cell(1, 1), "today");
    dialog.deleteRows(IDC_LIST);
}

TYPED_TEST_P(DialogBehaviour, TheSelectedRowStaysSelectedWhileRowsAreInsertedAbove) {
    DialogControls& dialog = this->environment.open(IDD_CATEGORY);
    dialog.insertColumn(IDC_LIST, 0, "column", 100);
    dialog.insertRow(IDC_LIST, 0, "a");
    dialog.insertRow(IDC_LIST, 1, "b");
    EXPECT_EQ(dialog.selectedRow(IDC_LIST), -1);
    this->environment.selectRow(IDD_CATEGORY, IDC_LIST, 1);
    this->environment.selectRow(IDD_CATEGORY, IDC_LIST, 0);
    EXPECT_EQ(dialog.selectedRow(IDC_LIST), 0);
    dialog.insertRow(IDC_LIST, 0, "above");
    EXPECT_EQ(dialog.selectedRow(IDC_LIST), 1);
    dialog.deleteRows(IDC_LIST);
    EXPECT_EQ(dialog.selectedRow(IDC_LIST), -1);
}

REGISTER_TYPED_TEST_SUITE_P(DialogBehaviour, EveryPageIsMadeFromItsTemplate, DialogsAndControlsMove,
                            TextsKeepTheirLineFeedsAndEndAtAZeroByte, CheckBoxesKnowTwoStates,
                            SelectingAnEntrySetsTheTextOfAnEditableCombo,
                            ASetTextLeavesEntriesAndSelectionOfAnEditableComboAlone,
                            TheColourListSortsAndKeepsEachEntrysData, ListsTakeRowsAndCellsWhereTheyFit,
                            TheSelectedRowStaysSelectedWhileRowsAreInsertedAbove);

}  // namespace korvane
