// How a dialog's controls behave, as tests that run unchanged over dialogs in memory and over real ones, so that the
// two cannot drift apart. An environment has
//     DialogControls& open(int templateId)                      makes the dialog, hidden; it lives as long as the
//                                                               environment
//     std::string cell(int templateId, int id, int row, int column)      what a list shows
//     int columnCount(int templateId, int id)
//     void selectRow(int templateId, int id, int row)           as a click does; other rows lose their selection
// and has the platform's common controls at 96 dpi with the font "MS Sans Serif" 8.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "pages/PageTemplates.h"
#include "platform/DialogControls.h"
#include "res/ControlIds.h"

namespace korvane {

template <class Environment>
class DialogBehaviour : public testing::Test {
protected:
    Environment environment;
};

TYPED_TEST_SUITE_P(DialogBehaviour);

inline constexpr int kPageTemplates[] = {IDD_CATEGORY,    IDD_CHECKS, IDD_CHECK_FIELDS, IDD_CHECK_COMBOS,
                                         IDD_CHECK_LIST,  IDD_COMBOS, IDD_PATH_FIELDS,  IDD_EDIT_COMBOS,
                                         IDD_CHECK_COMBO};
inline constexpr int kNoControl = 4711;

// Dialog units to pixels, to the nearest one.
inline int pixelsAcross(int units) { return static_cast<int>(std::lround(units * 6 / 4.0)); }
inline int pixelsDown(int units) { return static_cast<int>(std::lround(units * 13 / 8.0)); }

TYPED_TEST_P(DialogBehaviour, EveryPageIsMadeFromItsTemplate) {
    for (const int templateId : kPageTemplates) {
        SCOPED_TRACE(templateId);
        const DialogTemplate& page = *findDialogTemplate(templateId);
        DialogControls& dialog = this->environment.open(templateId);
        EXPECT_EQ(dialog.rect().left, pixelsAcross(page.x));
        EXPECT_EQ(dialog.rect().top, pixelsDown(page.y));
        EXPECT_EQ(dialog.rect().width(), pixelsAcross(page.width));
        EXPECT_EQ(dialog.rect().height(), pixelsDown(page.height));
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
    dialog.moveControl(IDC_CHECK1, {50, 90, 20, 106});  // no narrower than nothing
    EXPECT_EQ(dialog.controlRect(IDC_CHECK1), (Rect{50, 90, 50, 106}));
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
    const std::string longText(40000, 'x');
    dialog.setText(IDC_EDIT1, longText);
    EXPECT_EQ(dialog.text(IDC_EDIT1), longText);
    dialog.setCaption("a caption\0cut"sv);
    EXPECT_EQ(dialog.caption(), "a caption");
}

TYPED_TEST_P(DialogBehaviour, CheckBoxesKnowTwoStates) {
    DialogControls& dialog = this->environment.open(IDD_CHECK_FIELDS);
    EXPECT_EQ(dialog.check(IDC_CHECK1), 0U);
    for (const std::uint32_t state : {1U, 2U, 3U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFEU, 0xFFFFFFFFU}) {
        dialog.setCheck(IDC_CHECK1, 0);
        EXPECT_EQ(dialog.check(IDC_CHECK1), 0U);
        dialog.setCheck(IDC_CHECK1, state);
        EXPECT_EQ(dialog.check(IDC_CHECK1), 1U) << state;
    }
    EXPECT_EQ(dialog.check(IDC_CHECK2), 0U);
    dialog.setCheck(IDC_BROWSE1, 1);  // a push button has no state
    EXPECT_EQ(dialog.check(IDC_BROWSE1), 0U);
}

TYPED_TEST_P(DialogBehaviour, WhatDoesNotExistIsLeftOutInSilence) {
    DialogControls& dialog = this->environment.open(IDD_CHECK_COMBOS);
    dialog.showControl(kNoControl, true);
    dialog.enableControl(kNoControl, true);
    dialog.setText(kNoControl, "text");
    dialog.setCheck(kNoControl, 1);
    dialog.moveControl(kNoControl, {1, 2, 3, 4});
    dialog.resetCombo(kNoControl);
    dialog.addComboEntry(kNoControl, "entry");
    dialog.selectComboEntry(kNoControl, 0);
    dialog.insertColumn(kNoControl, 0, "column", 100);
    dialog.insertRow(kNoControl, 0, "row");
    dialog.setRowCheck(kNoControl, 0, true);
    EXPECT_EQ(dialog.text(kNoControl), "");
    EXPECT_EQ(dialog.controlRect(kNoControl), Rect{});
    EXPECT_EQ(dialog.check(kNoControl), 0U);
    EXPECT_EQ(dialog.comboCount(kNoControl), 0);
    EXPECT_EQ(dialog.rowCount(kNoControl), 0);
    EXPECT_FALSE(dialog.rowCheck(kNoControl, 0));
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
    dialog.selectComboEntry(IDC_COMBO1, 3);
    EXPECT_EQ(dialog.comboSelection(IDC_COMBO1), 3);
    EXPECT_EQ(dialog.text(IDC_COMBO1), "One");

    for (const int beyond : {4, 10000, -1, -5, 0x7FFFFFFF}) {
        dialog.selectComboEntry(IDC_COMBO1, 0);
        EXPECT_EQ(dialog.text(IDC_COMBO1), "zero");
        dialog.selectComboEntry(IDC_COMBO1, beyond);
        EXPECT_EQ(dialog.comboSelection(IDC_COMBO1), kNoSelection) << beyond;
        EXPECT_EQ(dialog.text(IDC_COMBO1), "") << beyond;
    }
    dialog.setText(IDC_COMBO1, "typed");
    dialog.selectComboEntry(IDC_COMBO1, 4);
    EXPECT_EQ(dialog.text(IDC_COMBO1), "");
    EXPECT_EQ(dialog.comboCount(IDC_COMBO1), 4);
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
    EXPECT_EQ(dialog.comboCount(IDC_COMBO2), 2);
    dialog.setText(IDC_COMBO2, "free text");
    dialog.addComboEntry(IDC_COMBO2, "third");
    EXPECT_EQ(dialog.text(IDC_COMBO2), "free text");
    dialog.selectComboEntry(IDC_COMBO2, 1);
    EXPECT_EQ(dialog.text(IDC_COMBO2), "second");
    EXPECT_EQ(dialog.comboSelection(IDC_COMBO3), kNoSelection);
}

TYPED_TEST_P(DialogBehaviour, ResettingAComboClearsEntriesSelectionAndText) {
    DialogControls& dialog = this->environment.open(IDD_COMBOS);
    dialog.reserveCombo(IDC_COMBO1, 3, 30);
    EXPECT_EQ(dialog.comboCount(IDC_COMBO1), 0);
    dialog.addComboEntry(IDC_COMBO1, "entry");
    dialog.selectComboEntry(IDC_COMBO1, 0);
    dialog.resetCombo(IDC_COMBO1);
    EXPECT_EQ(dialog.comboCount(IDC_COMBO1), 0);
    EXPECT_EQ(dialog.comboSelection(IDC_COMBO1), kNoSelection);
    EXPECT_EQ(dialog.text(IDC_COMBO1), "");
    dialog.setText(IDC_COMBO1, "typed");
    dialog.resetCombo(IDC_COMBO1);
    EXPECT_EQ(dialog.text(IDC_COMBO1), "");
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

    dialog.setComboData(IDC_COLOUR_COMBO, 6, 1);  // there is no such entry
    EXPECT_EQ(dialog.comboData(IDC_COLOUR_COMBO, 6), 0xFFFFFFFF);
    EXPECT_EQ(dialog.comboData(IDC_COLOUR_COMBO, -1), 0xFFFFFFFF);
    dialog.setComboData(IDC_COLOUR_COMBO, 0, 0x80F0E0D0);
    EXPECT_EQ(dialog.comboData(IDC_COLOUR_COMBO, 0), 0x80F0E0D0);
}

TYPED_TEST_P(DialogBehaviour, TheColourListTakesNoTextAndKeepsItsSelectionInPlace) {
    DialogControls& dialog = this->environment.open(IDD_CHECK_COMBOS);
    dialog.resetCombo(IDC_COLOUR_COMBO);
    dialog.addComboEntry(IDC_COLOUR_COMBO, "Green");
    dialog.addComboEntry(IDC_COLOUR_COMBO, "Red");
    EXPECT_EQ(dialog.comboSelection(IDC_COLOUR_COMBO), kNoSelection);
    dialog.setText(IDC_COLOUR_COMBO, "Red");
    EXPECT_EQ(dialog.comboSelection(IDC_COLOUR_COMBO), kNoSelection);
    dialog.selectComboEntry(IDC_COLOUR_COMBO, 0);
    dialog.setText(IDC_COLOUR_COMBO, "Red");
    EXPECT_EQ(dialog.comboSelection(IDC_COLOUR_COMBO), 0);
    EXPECT_EQ(dialog.text(IDC_COLOUR_COMBO), "Green");
    dialog.addComboEntry(IDC_COLOUR_COMBO, "Blue");
    EXPECT_EQ(dialog.comboSelection(IDC_COLOUR_COMBO), 1);
    EXPECT_EQ(dialog.text(IDC_COLOUR_COMBO), "Green");
    dialog.selectComboEntry(IDC_COLOUR_COMBO, 3);
    EXPECT_EQ(dialog.comboSelection(IDC_COLOUR_COMBO), kNoSelection);
}

TYPED_TEST_P(DialogBehaviour, ListsTakeRowsAndCellsWhereTheyFit) {
    using namespace std::string_view_literals;
    const auto cell = [this](int row, int column) {
        return this->environment.cell(IDD_CATEGORY, IDC_LIST, row, column);
    };
    DialogControls& dialog = this->environment.open(IDD_CATEGORY);
    dialog.insertColumn(IDC_LIST, 0, "Title", 200);
    dialog.insertColumn(IDC_LIST, 9, "Date", 100);  // behind the last
    EXPECT_EQ(this->environment.columnCount(IDD_CATEGORY, IDC_LIST), 2);
    dialog.insertRow(IDC_LIST, 0, "second");
    dialog.insertRow(IDC_LIST, 0, "first\0cut"sv);
    dialog.insertRow(IDC_LIST, 50, "last");
    dialog.insertRow(IDC_LIST, -1, "nowhere");
    EXPECT_EQ(dialog.rowCount(IDC_LIST), 3);
    dialog.setCell(IDC_LIST, 1, 1, "today");
    dialog.setCell(IDC_LIST, 1, 2, "no such column");
    dialog.setCell(IDC_LIST, 3, 0, "no such row");
    dialog.setCell(IDC_LIST, 2, 0, "third");
    EXPECT_EQ(cell(0, 0), "first");
    EXPECT_EQ(cell(0, 1), "");
    EXPECT_EQ(cell(1, 0), "second");
    EXPECT_EQ(cell(1, 1), "today");
    EXPECT_EQ(cell(2, 0), "third");
    dialog.deleteRows(IDC_LIST);
    EXPECT_EQ(dialog.rowCount(IDC_LIST), 0);
    EXPECT_EQ(this->environment.columnCount(IDD_CATEGORY, IDC_LIST), 2);
}

TYPED_TEST_P(DialogBehaviour, DeletingColumnsMovesTheOthersUp) {
    DialogControls& dialog = this->environment.open(IDD_CATEGORY);
    for (int column = 0; column < 3; ++column) {
        dialog.insertColumn(IDC_LIST, column, "column", 100);
    }
    dialog.insertRow(IDC_LIST, 0, "a");
    dialog.setCell(IDC_LIST, 0, 1, "b");
    dialog.setCell(IDC_LIST, 0, 2, "c");
    dialog.deleteColumn(IDC_LIST, 1);
    EXPECT_EQ(this->environment.cell(IDD_CATEGORY, IDC_LIST, 0, 0), "a");
    EXPECT_EQ(this->environment.cell(IDD_CATEGORY, IDC_LIST, 0, 1), "c");
    dialog.deleteColumn(IDC_LIST, 0);  // the first cell is the row's own text and stays
    EXPECT_EQ(this->environment.cell(IDD_CATEGORY, IDC_LIST, 0, 0), "a");
    dialog.deleteRows(IDC_LIST);
    for (int i = 0; i < 3; ++i) {  // once more than there are columns
        dialog.deleteColumn(IDC_LIST, 0);
    }
    EXPECT_EQ(this->environment.columnCount(IDD_CATEGORY, IDC_LIST), 0);
    dialog.insertColumn(IDC_LIST, 0, "new", 100);
    dialog.insertRow(IDC_LIST, 0, "row");
    EXPECT_EQ(this->environment.cell(IDD_CATEGORY, IDC_LIST, 0, 0), "row");
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

TYPED_TEST_P(DialogBehaviour, RowChecksBelongToTheirRows) {
    constexpr std::uint32_t kWithCheckBoxes = 0x624;
    DialogControls& dialog = this->environment.open(IDD_CHECK_LIST);
    dialog.setListStyle(IDC_CHECK_LIST, kWithCheckBoxes, rgb(249, 250, 251));
    dialog.insertColumn(IDC_CHECK_LIST, 0, "column", 100);
    dialog.insertRow(IDC_CHECK_LIST, 0, "a");
    dialog.insertRow(IDC_CHECK_LIST, 1, "b");
    EXPECT_FALSE(dialog.rowCheck(IDC_CHECK_LIST, 1));
    dialog.setRowCheck(IDC_CHECK_LIST, 1, true);
    dialog.setRowCheck(IDC_CHECK_LIST, 2, true);  // there is no such row
    dialog.insertRow(IDC_CHECK_LIST, 0, "above");
    EXPECT_FALSE(dialog.rowCheck(IDC_CHECK_LIST, 0));
    EXPECT_FALSE(dialog.rowCheck(IDC_CHECK_LIST, 1));
    EXPECT_TRUE(dialog.rowCheck(IDC_CHECK_LIST, 2));
    EXPECT_FALSE(dialog.rowCheck(IDC_CHECK_LIST, 3));
    dialog.setRowCheck(IDC_CHECK_LIST, 2, false);
    EXPECT_FALSE(dialog.rowCheck(IDC_CHECK_LIST, 2));
}

REGISTER_TYPED_TEST_SUITE_P(DialogBehaviour, EveryPageIsMadeFromItsTemplate, DialogsAndControlsMove,
                            TextsKeepTheirLineFeedsAndEndAtAZeroByte, CheckBoxesKnowTwoStates,
                            WhatDoesNotExistIsLeftOutInSilence, SelectingAnEntrySetsTheTextOfAnEditableCombo,
                            ASetTextLeavesEntriesAndSelectionOfAnEditableComboAlone,
                            ResettingAComboClearsEntriesSelectionAndText,
                            TheColourListSortsAndKeepsEachEntrysData,
                            TheColourListTakesNoTextAndKeepsItsSelectionInPlace, ListsTakeRowsAndCellsWhereTheyFit,
                            DeletingColumnsMovesTheOthersUp, TheSelectedRowStaysSelectedWhileRowsAreInsertedAbove,
                            RowChecksBelongToTheirRows);

}  // namespace korvane
