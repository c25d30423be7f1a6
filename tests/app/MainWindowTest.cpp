// Selecting and applying, the divider, the About box, and what a language file
// can do to all of them.
#include "res/ControlIds.h"
#include "tests/support/AppFixture.h"

#include <algorithm>

namespace korvane {
namespace {

constexpr int kQuickEdit = 11;
constexpr int kAutoRun = 12;
constexpr const char* kQuickEditTitle = "Quick Edit the Command Prompt";

// ---- The tree

TEST(Tree, ShowsItsRowsInTheirFixedPlaces) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    const auto& rows = program.window.tree().rows();
    EXPECT_EQ(rows.size(), 163u);
    EXPECT_EQ(std::ranges::count(rows, true, &MemoryTreeRow::bold), 22);
    for (const MemoryTreeRow& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(row.bold, row.normalImage != kTweakImage);
        EXPECT_EQ(row.selectedImage, row.normalImage);
        EXPECT_EQ(row.expandedImage, row.normalImage);
        EXPECT_EQ(row.expandedSelectedImage, row.normalImage);
    }
    // Subcategories stand before the tweaks of their category; the last four rows belong to no category.
    const auto depthAndText = [&](std::size_t index) {
        return std::to_string(rows[index].depth) + ' ' + rows[index].text;
    };
    EXPECT_EQ(depthAndText(0), "0 Accessories");
    EXPECT_EQ(depthAndText(1), "1 Command Processor");
    EXPECT_EQ(depthAndText(2), "2 Add Command Prompt Option to Every Folder");
    EXPECT_EQ(depthAndText(10), "1 Task Scheduler");
    EXPECT_EQ(depthAndText(17), "1 Disable Task Manager");
    EXPECT_EQ(depthAndText(20), "0 Appearance");
    EXPECT_EQ(depthAndText(158), "1 Windows Error Reporting Settings");
    EXPECT_EQ(depthAndText(159), "0 Change the Location of System and Special Folders");
    EXPECT_EQ(depthAndText(162), "0 Configure CoolSwitch Application Swapping");
}

TEST(Tree, KeepsItsOwnTextsWhereTheTableSpellsThemOtherwise) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    std::vector<std::string> differing;
    for (const MemoryTreeRow& row : program.window.tree().rows()) {
        if (row.text != program.app->items().title(static_cast<int>(row.data))) {
            differing.push_back(std::to_string(row.data) + ' ' + row.text);
        }
    }
    EXPECT_EQ(differing, (std::vector<std::string>{
                             "58 Remove the Minimize, Maximize and Close Tooltips",
                             "159 Change the Default login Screen Saver",
                             "161 Change the login Screen Background Color",
                             "163 Customize the Windows login and Security Dialog Titles",
                             "171 Legal Notice Dialog Box Before login",
                         }));
}

// ---- Selecting and applying

TEST(Selection, ShowsOnePageAtMostAndTheButtonForTweaksOnly) {
    MemoryProgram program(sampleRegistry());
    ASSERT_TRUE(program.start());
    // There and back, so that every item follows two others.
    for (int step = 0; step < 2 * kItemCount; ++step) {
        const int id = step < kItemCount ? step : 2 * kItemCount - 1 - step;
        SCOPED_TRACE(id);
        const Tweak& tweak = *findTweak(id);
        program.select(id);
        EXPECT_EQ(program.visiblePages().size(), tweak.hasShow() ? 1u : 0u);
        EXPECT_EQ(program.window.dialog().usable(IDC_APPLY), tweak.hasShow() && !tweak.isCategory());
        if (tweak.hasShow()) {
            EXPECT_EQ(shownPage(program)->text(IDC_HEADER),
                      std::string(tweak.title) + ":\n" + std::string(tweak.description));
        }
    }
    EXPECT_EQ(program.openHandles(), 0u);
}

TEST(Selection, OfAnUnknownItemShowsNothingAndAppliesNothing) {
    for (const std::uint32_t id : {311u, 1000u, 0x80000000u, 0xFFFFFFFFu}) {
        SCOPED_TRACE(id);
        MemoryProgram program("[HKEY_CURRENT_USER\\Console]\n" + std::string(kBareRegistry));
        ASSERT_TRUE(program.start());
        program.select(kQuickEdit);
        ASSERT_TRUE(program.click(IDC_CHECK1));
        const std::string before = program.registryText();
        EXPECT_TRUE(program.window.selectData(id));
        EXPECT_EQ(pageText(program), "no page");
        EXPECT_FALSE(program.apply());
        program.main->OnApplyChanges();
        EXPECT_EQ(program.registryText(), before);
    }
}

TEST(Apply, TwiceWritesTwiceAndTheLaterDateWins) {
    MemoryProgram program("[HKEY_CURRENT_USER\\Console]\n" + std::string(kBareRegistry));
    ASSERT_TRUE(program.start());
    program.select(kQuickEdit);
    ASSERT_TRUE(program.click(IDC_CHECK1));
    program.setToday({.year = 2006, .month = 7, .day = 16});
    ASSERT_TRUE(program.apply());
    EXPECT_EQ(dateOf(program, kQuickEditTitle), "7/16/2006");
    EXPECT_NE(program.registryText().find("\"QuickEdit\"=dword:00000001"), std::string::npos);
    ASSERT_TRUE(program.click(IDC_CHECK1));
    program.setToday({.year = 2006, .month = 7, .day = 17});
    ASSERT_TRUE(program.apply());
    EXPECT_EQ(dateOf(program, kQuickEditTitle), "7/17/2006");
    EXPECT_NE(program.registryText().find("\"QuickEdit\"=dword:00000000"), std::string::npos);
    EXPECT_EQ(program.main->stampCount(), 2);
    // No other date has moved.
    const std::string file = program.dateFile();
    EXPECT_EQ(file.find(",7/16/2006)"), std::string::npos);
    EXPECT_EQ(file.find(",7/17/2006)"), file.rfind(",7/17/2006)"));
}

TEST(Overview, ShowsTheDatesAsTheyAreWhenItIsSelected) {
    MemoryProgram program("[HKEY_CURRENT_USER\\Console]\n" + std::string(kBareRegistry));
    ASSERT_TRUE(program.start());
    program.select(kQuickEdit);
    program.setToday({.year = 2006, .month = 7, .day = 16});
    ASSERT_TRUE(program.apply());
    program.select(1);
    const MemoryControl& list = *program.window.page(IDD_CATEGORY)->find(IDC_LIST);
    ASSERT_EQ(list.columns.size(), 2u);
    EXPECT_EQ(list.columns[0].heading, "Name");
    EXPECT_EQ(list.columns[0].width, 280);
    EXPECT_EQ(list.columns[1].heading, "Data Modified");
    EXPECT_EQ(list.columns[1].width, 115);
    ASSERT_EQ(list.rows.size(), 8u);
    for (const MemoryListRow& row : list.rows) {
        EXPECT_EQ(row.cell(1), row.cell(0) == kQuickEditTitle ? kLaterDay : kFirstDay) << row.cell(0);
    }
    // The next list on the same page starts without the columns and rows of this one.
    program.select(7);
    EXPECT_EQ(list.columns.size(), 2u);
    EXPECT_EQ(list.columns[1].heading, "Discription");
    EXPECT_EQ(list.rows.size(), 3u);
    program.select(0);
    EXPECT_EQ(list.columns.size(), 2u);
    EXPECT_EQ(list.columns[0].width, 295);
    EXPECT_EQ(list.columns[1].width, 99);
    EXPECT_EQ(list.rows.size(), 3u);
}

// ---- The divider

TEST(Divider, MovesTheTreeThePagesAndAFractionOfThatTheirControls) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    MemoryMainWindow& window = program.window;
    MemoryDialog& checks = *window.page(IDD_CHECKS);
    const Rect old = checks.rect();
    checks.move({old.left, old.top, old.left + 500, old.bottom});
    MemoryDialog& category = *window.page(IDD_CATEGORY);
    const Rect oldCategory = category.rect();
    const Rect oldList = category.controlRect(IDC_LIST);
    const Rect tree = window.dialog().controlRect(IDC_TREE);
    const Rect button = window.dialog().controlRect(IDC_APPLY);
    const Rect box = checks.controlRect(IDC_CHECK5);

    program.main->OnDividerMoved(100);
    EXPECT_EQ(window.dialog().controlRect(IDC_TREE), (Rect{tree.left, tree.top, tree.right + 100, tree.bottom}));
    EXPECT_EQ(window.dialog().controlRect(IDC_APPLY), button);
    EXPECT_EQ(checks.rect(), (Rect{old.left + 100, old.top, old.left + 500, old.bottom}));
    EXPECT_EQ(checks.controlRect(IDC_CHECK5), (Rect{box.left + 20, box.top, box.right, box.bottom}));
    // A page of 483 pixels: 10000 / 483 is 20 whole pixels.
    ASSERT_EQ(oldCategory.width(), 483);
    EXPECT_EQ(category.rect().left, oldCategory.left + 100);
    EXPECT_EQ(category.rect().right, oldCategory.right);
    EXPECT_EQ(category.controlRect(IDC_LIST).left, oldList.left + 20);
    EXPECT_EQ(category.controlRect(IDC_LIST).right, oldList.right);
    EXPECT_EQ(window.timesRedrawn(), 1);

    // Back again, by less than a whole pixel of the controls: whole pixels count towards zero.
    program.main->OnDividerMoved(-3);
    EXPECT_EQ(checks.rect().left, old.left + 97);
    EXPECT_EQ(checks.controlRect(IDC_CHECK5).left, box.left + 20);
    program.main->OnDividerMoved(-100);
    EXPECT_EQ(checks.controlRect(IDC_CHECK5).left, box.left + 20 - 10000 / 403);
}

// ---- The About box

TEST(AboutBox, IsReachedFromTheSystemMenu) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    ASSERT_EQ(program.window.systemMenu().size(), 1u);
    EXPECT_EQ(program.window.systemMenu()[0].commandId, 16);
    ASSERT_TRUE(program.window.chooseSystemMenu(16));
    const MemoryDialog* box = program.window.aboutBox();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->result(), 1);
    EXPECT_EQ(box->find(IDC_ABOUT_VERSION)->text, "Korvane Manager Manager Version 1.0.0.1");
    const auto& calls = program.window.skinEngine()->calls();
    EXPECT_EQ(calls[calls.size() - 5].element, "Main");
    EXPECT_EQ(calls[calls.size() - 4].controlId, 1);
    EXPECT_EQ(calls[calls.size() - 4].element, "Button");
}

TEST(AboutBox, EndsWithAMessageWhenItsSkinIsRefused) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    program.window.skinEngine()->refuseCall(program.window.skinEngine()->calls().size() + 2);
    ASSERT_TRUE(program.window.chooseSystemMenu(16));
    EXPECT_EQ(program.window.aboutBox()->result(), 0);
    ASSERT_EQ(program.messages().size(), 1u);
    EXPECT_TRUE(program.window.running());
}

// ---- Language files

TEST(Languages, ReplaceTheTextsOfTheWindowTheTableAndTheAlerts) {
    MemoryProgram program(
        "[HKEY_CURRENT_USER\\Console]\n[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n"
        "\"Language\"=\"Deutsch\"\n",
        "98");
    program.setLanguageFile(
        "[102]\n102=Korvane\n1016=Anwenden\n1004=Baum\n"
        "[1004]\n112=QuickEdit\n113=Zeile\\nzwei\n02=Zubeh\xF6r\n"
        "[Item11]\n1013=Ein\n1024=Hinweis\n"
        "[KorvaneManagerStringTable]\n2001=A C H T U N G\n2002=Nur\\tNT\n101=Info\n",
        "Deutsch");
    ASSERT_TRUE(program.start());
    EXPECT_EQ(program.window.dialog().caption(), "Korvane");
    EXPECT_EQ(program.window.dialog().text(IDC_APPLY), "Anwenden");
    EXPECT_EQ(program.window.page(IDD_CATEGORY)->text(IDC_HEADER).substr(0, 10), "Zubeh\xF6r:\nT");
    // The tree keeps its texts, and the menu was made before the user's language was known.
    EXPECT_EQ(program.window.tree().findData(kQuickEdit)->text, kQuickEditTitle);
    EXPECT_EQ(program.window.systemMenu()[0].text, "&About Korvane Manager...");

    program.select(kQuickEdit);
    EXPECT_EQ(pageText(program), "page 170\n1006 QuickEdit:\nZeile\nzwei\n1013 [0] Ein\n1024 Hinweis\n");
    program.apply();
    ASSERT_EQ(program.messages().size(), 1u);
    EXPECT_EQ(program.messages()[0].text, "Nur\tNT");
    EXPECT_EQ(program.messages()[0].caption, "A C H T U N G");
    EXPECT_EQ(program.messages()[0].icon, MessageIcon::Stop);
    EXPECT_FALSE(program.messages()[0].ownedByMainWindow);
    // The texts of one item's page are no other item's.
    program.select(6);
    EXPECT_EQ(shownPage(program)->text(IDC_CHECK1), "Disable Command Processor Extensions");
    // Dates are kept by title, so by the translated one.
    EXPECT_EQ(dateOf(program, "QuickEdit"), kFirstDay);
    EXPECT_EQ(dateOf(program, kQuickEditTitle), "");
}

TEST(Languages, RedirectItemsByTheirIds) {
    MemoryProgram program("[HKEY_CURRENT_USER\\Software\\Microsoft\\Command Processor]\n");
    program.setLanguageFile("[1004]\n111=12\n61=x\n71=311\n81=-1\n101= 5 rows\n");
    ASSERT_TRUE(program.start());
    const auto rowOf = [&](std::string_view text) {
        const auto& rows = program.window.tree().rows();
        return static_cast<std::size_t>(std::ranges::find(rows, text, &MemoryTreeRow::text) - rows.begin());
    };
    // Quick Edit's row now leads to the item that runs a program, with its texts, its apply and its date.
    ASSERT_TRUE(program.window.selectRow(rowOf(kQuickEditTitle)));
    EXPECT_TRUE(shownPage(program)->text(IDC_HEADER).starts_with("Run Startup Programs in Command Prompt:\n"));
    ASSERT_TRUE(program.type(IDC_EDIT1, "start.bat"));
    program.setToday({.year = 2006, .month = 7, .day = 16});
    ASSERT_TRUE(program.apply());
    EXPECT_NE(program.registryText().find("\"AutoRun\"=\"start.bat\""), std::string::npos);
    EXPECT_EQ(dateOf(program, "Run Startup Programs in Command Prompt"), kLaterDay);
    EXPECT_EQ(dateOf(program, kQuickEditTitle), kFirstDay);
    // No number is 0, which is the first category; numbers outside the table show nothing.
    ASSERT_TRUE(program.window.selectRow(rowOf("Disable Command Processor Extentions")));
    EXPECT_TRUE(shownPage(program)->text(IDC_HEADER).starts_with("Accessories:\n"));
    EXPECT_FALSE(program.apply());
    ASSERT_TRUE(program.window.selectRow(rowOf("Disable Command Prompt and Batch Files")));
    EXPECT_EQ(pageText(program), "no page");
    ASSERT_TRUE(program.window.selectRow(rowOf("Enable Command Completion")));
    EXPECT_EQ(pageText(program), "no page");
    // A number is read as far as it goes.
    ASSERT_TRUE(program.window.selectRow(rowOf("Enable Directory Completion")));
    EXPECT_TRUE(shownPage(program)->text(IDC_HEADER).starts_with("Change the Command Prompt Colors:\n"));
}

TEST(Browsing, FillsTheFieldInQuotesAndEmptiesItOnCancel) {
    MemoryProgram program;
    program.system.pickers.answers = {"C:\\My Files\\run.bat"};
    ASSERT_TRUE(program.start());
    program.select(kAutoRun);
    ASSERT_TRUE(program.click(IDC_BROWSE1));
    EXPECT_EQ(shownPage(program)->text(IDC_EDIT1), "\"C:\\My Files\\run.bat\"");
    ASSERT_TRUE(program.click(IDC_BROWSE1));
    EXPECT_EQ(shownPage(program)->text(IDC_EDIT1), "");
    EXPECT_EQ(program.system.pickers.filters, (std::vector<std::string>(2, "All Files(*.*)|*.*||")));
    EXPECT_EQ(program.system.pickers.foldersAsked, 0);
}

}  // namespace
}  // namespace korvane
