// Controls that few items use, on pages filled by hand: what setting them does, and how they are printed.
#include "cli/PageControls.h"
#include "cli/PageJson.h"
#include "cli/PageText.h"
#include "res/ControlIds.h"
#include "tests/cli/JsonReader.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

constexpr std::uint32_t kRowsWithCheckBoxes = 4;

std::string set(MemoryDialog& page, const Assignment& assignment) {
    return setControl(page, assignment, ProgramText::Windows1252).value_or("set");
}

JsonValue jsonOf(Page page, const MemoryDialog& dialog, int id) {
    JsonWriter json;
    writePage(json, {.item = 1, .title = "Title", .page = page, .controls = &dialog}, ProgramText::Windows1252);
    const JsonValue value = JsonReader::read(json.json());
    for (const JsonValue& control : value["controls"].items) {
        if (control["id"].number == id) {
            return control;
        }
    }
    return {};
}

TEST(PageControls, RowsOfACheckedList) {
    MemoryDialog page(*findDialogTemplate(IDD_CHECK_LIST));
    page.show(true);
    page.showControl(IDC_CHECK_LIST, true);
    page.setListStyle(IDC_CHECK_LIST, kRowsWithCheckBoxes, 0);
    page.insertColumn(IDC_CHECK_LIST, 0, "Drive", 100);
    page.insertColumn(IDC_CHECK_LIST, 1, "Kind", 50);
    page.insertRow(IDC_CHECK_LIST, 0, "A:");
    page.insertRow(IDC_CHECK_LIST, 1, "C:");
    page.setCell(IDC_CHECK_LIST, 1, 1, "fixed");
    page.setRowCheck(IDC_CHECK_LIST, 0, true);

    EXPECT_EQ(set(page, {IDC_CHECK_LIST, 1, "1"}), "set");
    EXPECT_EQ(set(page, {IDC_CHECK_LIST, 1, "1"}), "set");  // is set already, and stays so
    EXPECT_EQ(set(page, {IDC_CHECK_LIST, 0, "0"}), "set");
    EXPECT_EQ(set(page, {IDC_CHECK_LIST, {}, "#1"}), "set");
    EXPECT_NE(set(page, {IDC_CHECK_LIST, 2, "1"}), "set");

    const JsonValue list = jsonOf(Page::CheckList, page, IDC_CHECK_LIST);
    ASSERT_EQ(list["rows"].items.size(), 2U);
    ASSERT_EQ(list["rows"][0].items.size(), 2U);
    EXPECT_EQ(list["rows"][0][1].text, "");
    ASSERT_EQ(list["checked"].items.size(), 1U);
    EXPECT_EQ(list["checked"][0].number, 1);
    EXPECT_EQ(list["selected"].number, 1);
    const std::string text =
        pageText({.item = 1, .title = "Drives", .page = Page::CheckList, .controls = &page, .applyVisible = true});
    EXPECT_NE(text.find("1009            Drive  Kind\n"
                        "        #0  [ ] A:\n"
                        "      > #1  [x] C:     fixed\n"),
              std::string::npos)
        << text;
}

TEST(PageControls, TheColourListTakesEntriesOnly) {
    MemoryDialog page(*findDialogTemplate(IDD_CHECK_COMBOS));
    page.show(true);
    page.showControl(IDC_COLOUR_COMBO, true);
    for (const char* name : {"Red", "Black", "Green"}) {
        page.addComboEntry(IDC_COLOUR_COMBO, name);
    }
    EXPECT_EQ(set(page, {IDC_COLOUR_COMBO, {}, "green"}), "set");
    EXPECT_EQ(page.comboSelection(IDC_COLOUR_COMBO), 1);
    EXPECT_EQ(set(page, {IDC_COLOUR_COMBO, {}, "#2"}), "set");
    EXPECT_EQ(jsonOf(Page::CheckCombos, page, IDC_COLOUR_COMBO)["selection"].number, 2);
    EXPECT_EQ(set(page, {IDC_COLOUR_COMBO, {}, "Pink"}),
              "control 1055 has no entry \"Pink\" (it has 3 entries, counted from #0)");
    EXPECT_EQ(set(page, {IDC_COLOUR_COMBO, {}, "#-1"}), "control 1055 always has an entry selected");
    EXPECT_EQ(page.comboSelection(IDC_COLOUR_COMBO), 2);
}

TEST(PageControls, DisabledControlsAreShownAndRefused) {
    MemoryDialog page(*findDialogTemplate(IDD_CHECK_FIELDS));
    page.show(true);
    page.showControl(IDC_EDIT1, true);
    page.showControl(IDC_LABEL1, true);
    page.setText(IDC_LABEL1, "Program");
    page.enableControl(IDC_EDIT1, false);
    EXPECT_EQ(set(page, {IDC_EDIT1, {}, "text"}), "control 1015 is disabled");
    const std::string text = pageText({.item = 1, .title = "T", .page = Page::CheckFields, .controls = &page});
    EXPECT_NE(text.find("\n1015  Program: [] (disabled)\n"), std::string::npos) << text;
}

TEST(PageControls, AVeryLongComboIsCut) {
    MemoryDialog page(*findDialogTemplate(IDD_CHECK_COMBO));
    page.show(true);
    page.showControl(IDC_COMBO1, true);
    for (int n = 0; n <= 10000; ++n) {
        page.addComboEntry(IDC_COMBO1, std::to_string(n));
    }
    EXPECT_EQ(set(page, {IDC_COMBO1, {}, "#9999"}), "set");
    const std::string text = pageText({.item = 1, .title = "T", .page = Page::CheckCombo, .controls = &page});
    EXPECT_NE(text.find("1021  [9999]\n        #0  0\n        #1  1\n        #2  2\n        ...\n"
                        "        #10000  10000\n"),
              std::string::npos)
        << text;
}

}  // namespace
}  // namespace korvane
