// The behaviour tests over dialogs in memory, and what only they have: the user's actions and what they refuse.
#include "platform/memory/MemoryDialog.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/platform/DialogBehaviour.h"

namespace korvane {
namespace {

class MemoryDialogEnvironment {
public:
    DialogControls& open(int templateId) {
        return *(dialogs_[templateId] = std::make_unique<MemoryDialog>(*findDialogTemplate(templateId)));
    }
    std::string cell(int templateId, int id, int row, int column) {
        return std::string(list(templateId, id).rows.at(static_cast<std::size_t>(row)).cell(
            static_cast<std::size_t>(column)));
    }
    int columnCount(int templateId, int id) { return static_cast<int>(list(templateId, id).columns.size()); }
    void selectRow(int templateId, int id, int row) {
        MemoryDialog& dialog = *dialogs_.at(templateId);
        dialog.show(true);
        dialog.showControl(id, true);
        EXPECT_TRUE(dialog.selectListRow(id, row));
    }

private:
    const MemoryControl& list(int templateId, int id) { return *dialogs_.at(templateId)->find(id); }

    std::map<int, std::unique_ptr<MemoryDialog>> dialogs_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, DialogBehaviour, MemoryDialogEnvironment);

class ClickLog final : public DialogHandler {
public:
    bool OnInitDialog(DialogControls&) override { return true; }
    void OnClicked(int id) override { clicked.push_back(id); }

    std::vector<int> clicked;
};

class MemoryDialogTest : public testing::Test {
protected:
    // The page, shown, with all of its controls shown.
    MemoryDialog& page(int templateId) {
        dialog_ = std::make_unique<MemoryDialog>(*findDialogTemplate(templateId));
        dialog_->setHandler(log);
        dialog_->show(true);
        for (const int id : dialog_->controlIds()) {
            dialog_->showControl(id, true);
        }
        return *dialog_;
    }

    ClickLog log;

private:
    std::unique_ptr<MemoryDialog> dialog_;
};

TEST_F(MemoryDialogTest, AClickTogglesACheckBoxAndThenTellsTheHandler) {
    MemoryDialog& dialog = page(IDD_CHECK_FIELDS);
    EXPECT_TRUE(dialog.clickCheckBox(IDC_CHECK1));
    EXPECT_EQ(dialog.check(IDC_CHECK1), 1U);
    EXPECT_TRUE(dialog.clickCheckBox(IDC_CHECK1));
    EXPECT_EQ(dialog.check(IDC_CHECK1), 0U);
    EXPECT_TRUE(dialog.clickButton(IDC_BROWSE2));
    EXPECT_FALSE(dialog.clickCheckBox(IDC_BROWSE2));
    EXPECT_FALSE(dialog.clickButton(IDC_CHECK1));
    EXPECT_FALSE(dialog.clickButton(IDC_EDIT1));
    EXPECT_EQ(log.clicked, (std::vector<int>{IDC_CHECK1, IDC_CHECK1, IDC_BROWSE2}));
}

// How many of the actions a person could do; a page has only some of the controls.
int tryEverything(MemoryDialog& dialog) {
    return dialog.clickCheckBox(IDC_CHECK1) + dialog.clickButton(IDC_BROWSE1) + dialog.typeText(IDC_EDIT1, "typed") +
           dialog.pickComboEntry(IDC_COMBO1, 0);
}

TEST_F(MemoryDialogTest, NothingCanBeDoneWithAControlThatNobodyCanReach) {
    struct Page {
        int templateId;
        int possible;
    };
    for (const Page& each : {Page{IDD_CHECK_FIELDS, 3}, Page{IDD_COMBOS, 1}}) {
        SCOPED_TRACE(each.templateId);
        MemoryDialog& dialog = page(each.templateId);
        dialog.addComboEntry(IDC_COMBO1, "entry");
        EXPECT_EQ(tryEverything(dialog), each.possible);
        log.clicked.clear();
        const auto nothingIsPossible = [&] { return tryEverything(dialog) == 0 && log.clicked.empty(); };

        dialog.show(false);
        EXPECT_TRUE(nothingIsPossible()) << "page hidden";
        dialog.show(true);
        for (const int id : dialog.controlIds()) {
            dialog.enableControl(id, false);
        }
        EXPECT_TRUE(nothingIsPossible()) << "controls disabled";
        for (const int id : dialog.controlIds()) {
            dialog.enableControl(id, true);
            dialog.showControl(id, false);
        }
        EXPECT_TRUE(nothingIsPossible()) << "controls hidden";
        for (const int id : dialog.controlIds()) {
            dialog.showControl(id, true);
        }
        EXPECT_EQ(tryEverything(dialog), each.possible);
        log.clicked.clear();
        dialog.endDialog(0);
        EXPECT_TRUE(nothingIsPossible()) << "page ended";
    }
}

TEST_F(MemoryDialogTest, TypingReplacesTheTextAndClearsTheSelection) {
    MemoryDialog& dialog = page(IDD_EDIT_COMBOS);
    EXPECT_TRUE(dialog.typeText(IDC_EDIT1, "one line"));
    EXPECT_EQ(dialog.text(IDC_EDIT1), "one line");
    EXPECT_FALSE(dialog.typeText(IDC_EDIT1, "two\nlines"));
    EXPECT_FALSE(dialog.typeText(IDC_EDIT1, std::string(32767, 'x')));
    EXPECT_EQ(dialog.text(IDC_EDIT1), "one line");
    EXPECT_FALSE(dialog.typeText(IDC_LABEL1, "label"));

    dialog.addComboEntry(IDC_COMBO1, "entry");
    dialog.addComboEntry(IDC_COMBO1, "other");
    EXPECT_TRUE(dialog.pickComboEntry(IDC_COMBO1, 1));
    EXPECT_EQ(dialog.comboSelection(IDC_COMBO1), 1);
    EXPECT_EQ(dialog.text(IDC_COMBO1), "other");
    EXPECT_TRUE(dialog.typeText(IDC_COMBO1, "entry"));
    EXPECT_EQ(dialog.comboSelection(IDC_COMBO1), kNoSelection);
    EXPECT_EQ(dialog.text(IDC_COMBO1), "entry");
    EXPECT_FALSE(dialog.pickComboEntry(IDC_COMBO1, 2));
    EXPECT_FALSE(dialog.pickComboEntry(IDC_COMBO1, -1));
}

TEST_F(MemoryDialogTest, TheColourListIsPickedFromAndNotTypedInto) {
    MemoryDialog& dialog = page(IDD_CHECK_COMBOS);
    dialog.addComboEntry(IDC_COLOUR_COMBO, "Red");
    EXPECT_FALSE(dialog.typeText(IDC_COLOUR_COMBO, "Red"));
    EXPECT_TRUE(dialog.pickComboEntry(IDC_COLOUR_COMBO, 0));
    EXPECT_EQ(dialog.text(IDC_COLOUR_COMBO), "Red");
}

TEST_F(MemoryDialogTest, AFullComboRefusesEntriesUntilItIsReset) {
    MemoryDialog& dialog = page(IDD_CHECK_COMBOS);
    dialog.limitComboSpace(IDC_COLOUR_COMBO, 1);
    EXPECT_EQ(dialog.addComboEntry(IDC_COLOUR_COMBO, "Red"), 0);
    EXPECT_EQ(dialog.addComboEntry(IDC_COLOUR_COMBO, "Blue"), -2);
    EXPECT_EQ(dialog.comboCount(IDC_COLOUR_COMBO), 1);
    dialog.resetCombo(IDC_COLOUR_COMBO);
    EXPECT_EQ(dialog.addComboEntry(IDC_COLOUR_COMBO, "Blue"), 0);
}

TEST_F(MemoryDialogTest, RowsAreSelectedOneAtATimeAndCheckedOnlyWhereTheyCarryBoxes) {
    MemoryDialog& dialog = page(IDD_CHECK_LIST);
    dialog.insertRow(IDC_CHECK_LIST, 0, "a");
    dialog.insertRow(IDC_CHECK_LIST, 1, "b");
    EXPECT_FALSE(dialog.clickRowCheck(IDC_CHECK_LIST, 1));
    dialog.setListStyle(IDC_CHECK_LIST, 0x624, 0);
    EXPECT_TRUE(dialog.clickRowCheck(IDC_CHECK_LIST, 1));
    EXPECT_TRUE(dialog.rowCheck(IDC_CHECK_LIST, 1));
    EXPECT_TRUE(dialog.clickRowCheck(IDC_CHECK_LIST, 1));
    EXPECT_FALSE(dialog.rowCheck(IDC_CHECK_LIST, 1));
    EXPECT_FALSE(dialog.clickRowCheck(IDC_CHECK_LIST, 2));

    EXPECT_TRUE(dialog.selectListRow(IDC_CHECK_LIST, 0));
    EXPECT_TRUE(dialog.selectListRow(IDC_CHECK_LIST, 1));
    EXPECT_EQ(dialog.selectedRow(IDC_CHECK_LIST), 1);
    EXPECT_FALSE(dialog.selectListRow(IDC_CHECK_LIST, -1));
    dialog.enableControl(IDC_CHECK_LIST, false);
    EXPECT_FALSE(dialog.selectListRow(IDC_CHECK_LIST, 0));
    EXPECT_FALSE(dialog.clickRowCheck(IDC_CHECK_LIST, 0));
}

}  // namespace
}  // namespace korvane
