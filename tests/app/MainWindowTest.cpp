// Selecting and applying, the divider, the About box, and what a language file
// can do to all of them.
#include "res/ControlIds.h"
#include "tests/support/AppFixture.h"

#include <algorithm>

namespace korvane {
namespace {

constexpr int kQuickEdit = 11;
constexpr const char* kQuickEditTitle = "Quick Edit the Command Prompt";

TEST(Tree, HasItsFixedPlacesAndItsOwnSpellings) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    const auto& rows = program.window.tree().rows();
    ASSERT_EQ(rows.size(), 163u);
    EXPECT_EQ(std::ranges::count(rows, true, &MemoryTreeRow::bold), 22);
    std::vector<std::string> differing;
    for (const MemoryTreeRow& row : rows) {
        EXPECT_EQ(row.bold, row.normalImage != kTweakImage) << row.text;
        if (row.text != program.app->items().title(static_cast<int>(row.data))) {
            differing.push_back(row.text);
        }
    }
    EXPECT_EQ(differing, (std::vector<std::string>{
                             "Remove the Minimize, Maximize and Close Tooltips",
                             "Change the Default login Screen Saver",
                             "Change the login Screen Background Color",
                             "Customize the Windows login and Security Dialog Titles",
                             "Legal Notice Dialog Box Before login",
                         }));
    // Subcategories stand before the tweaks of their category; the last four rows belong to no category.
    EXPECT_EQ(rows[17].text, "Disable Task Manager");
    EXPECT_EQ(rows[158].depth, 1);
    EXPECT_EQ(rows[159].depth, 0);
    EXPECT_EQ(rows[159].text, "Change the Location of System and Special Folders");
}

TEST(Divider, MovesTheTreeThePagesAndAFractionOfThatTheirControls) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    MemoryMainWindow& window = program.window;
    MemoryDialog& checks = *window.page(IDD_CHECKS);
    const Rect old = checks.rect();
    checks.move({old.left, old.top, old.left + 500, old.bottom});
    const Rect tree = window.dialog().controlRect(IDC_TREE);
    const Rect button = window.dialog().controlRect(IDC_APPLY);
    const Rect box = checks.controlRect(IDC_CHECK5);
    program.main->OnDividerMoved(100);
    EXPECT_EQ(window.dialog().controlRect(IDC_TREE), (Rect{tree.left, tree.top, tree.right + 100, tree.bottom}));
    EXPECT_EQ(window.dialog().controlRect(IDC_APPLY), button);
    EXPECT_EQ(checks.rect(), (Rect{old.left + 100, old.top, old.left + 500, old.bottom}));
    EXPECT_EQ(checks.controlRect(IDC_CHECK5), (Rect{box.left + 20, box.top, box.right, box.bottom}));
    // Back again: whole pixels of the controls count towards zero.
    program.main->OnDividerMoved(-3);
    EXPECT_EQ(checks.rect().left, old.left + 97);
    program.main->OnDividerMoved(-100);
    EXPECT_EQ(checks.controlRect(IDC_CHECK5).left, box.left + 20 - 10000 / 403);
}

TEST(Languages, ReplaceTheTextsOfTheWindowTheTableAndTheAlerts) {
    MemoryProgram program(
        "[HKEY_CURRENT_USER\\Console]\n[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n\"Language\"=\"Deutsch\"\n",
        "98");
    program.setLanguageFile(
        "[102]\n1016=Anwenden\n"
        "[1004]\n112=QuickEdit\n113=Zeile\\nzwei\n"
        "[Item11]\n1013=Ein\n1024=Hinweis\n"
        "[KorvaneManagerStringTable]\n2001=A C H T U N G\n2002=Nur\\tNT\n101=Info\n",
        "Deutsch");
    ASSERT_TRUE(program.start());
    EXPECT_EQ(program.window.dialog().text(IDC_APPLY), "Anwenden");
    // The tree keeps its texts, and the menu was made before the user's language was known.
    EXPECT_EQ(program.window.tree().findData(kQuickEdit)->text, kQuickEditTitle);
    EXPECT_EQ(program.window.systemMenu()[0].text, "&About Korvane Manager...");
    program.select(kQuickEdit);
    EXPECT_EQ(pageText(program), "page 170\n1006 QuickEdit:\nZeile\nzwei\n1013 [0] Ein\n1024 Hinweis\n");
    program.apply();
    ASSERT_EQ(program.messages().size(), 1u);
    EXPECT_EQ(program.messages()[0].text, "Nur\tNT");
    EXPECT_EQ(program.messages()[0].caption, "A C H T U N G");
    // The texts of one item's page are no other item's.
    program.select(6);
    EXPECT_EQ(shownPage(program)->text(IDC_CHECK1), "Disable Command Processor Extensions");
    // Dates are kept by title, so by the translated one.
    EXPECT_EQ(dateOf(program, "QuickEdit"), kFirstDay);
}

TEST(Languages, RedirectItemsByTheirIds) {
    MemoryProgram program("[HKEY_CURRENT_USER\\Software\\Microsoft\\Command Processor]\n");
    program.setLanguageFile("[1004]\n111=12\n61=x\n71=311\n81=-1\n101= 5 rows\n");
    ASSERT_TRUE(program.start());
    const auto textOfRow = [&](std::string_view row) {
        const auto& rows = program.window.tree().rows();
        const auto index = std::ranges::find(rows, row, &MemoryTreeRow::text) - rows.begin();
        EXPECT_TRUE(program.window.selectRow(static_cast<std::size_t>(index))) << row;
        DialogControls* page = shownPage(program);
        return page == nullptr ? "no page" : page->text(IDC_HEADER).substr(0, page->text(IDC_HEADER).find(':'));
    };
    // Quick Edit's row now leads to the item that runs a program, with its texts, its apply and its date.
    EXPECT_EQ(textOfRow(kQuickEditTitle), "Run Startup Programs in Command Prompt");
    ASSERT_TRUE(program.type(IDC_EDIT1, "start.bat"));
    program.setToday({.year = 2006, .month = 7, .day = 16});
    ASSERT_TRUE(program.apply());
    EXPECT_NE(program.registryText().find("\"AutoRun\"=\"start.bat\""), std::string::npos);
    EXPECT_EQ(dateOf(program, "Run Startup Programs in Command Prompt"), kLaterDay);
    EXPECT_EQ(dateOf(program, kQuickEditTitle), kFirstDay);
    // No number is 0, which is the first category; one outside the table shows nothing; one is read as far as it goes.
    EXPECT_EQ(textOfRow("Disable Command Processor Extentions"), "Accessories");
    EXPECT_EQ(textOfRow("Disable Command Prompt and Batch Files"), "no page");
    program.main->OnApplyChanges();
    EXPECT_EQ(textOfRow("Enable Command Completion"), "no page");
    EXPECT_EQ(textOfRow("Enable Directory Completion"), "Change the Command Prompt Colors");
}

}  // namespace
}  // namespace korvane
