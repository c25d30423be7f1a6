// The tree, the divider, lists and browse buttons, and what a language file can
// do to all of them.
#include "res/ControlIds.h"
#include "tests/support/AppFixture.h"

#include <algorithm>
#include <map>
#include <set>

namespace korvane {
namespace {

constexpr int kQuickEdit = 11;
constexpr const char* kQuickEditTitle = "Quick Edit the Command Prompt";

// The only row of an overview that says something else than the title: as long as the title is English.
std::string overviewRowOf58(MemoryProgram& program) {
    program.select(52);
    const auto& rows = program.window.page(IDD_CATEGORY)->find(IDC_LIST)->rows;
    const auto found = std::ranges::find_if(rows, [](const MemoryListRow& row) {
        return row.cell(0).starts_with("Remove the Minimize") || row.cell(0) == "Knopfhilfen";
    });
    return found == rows.end() ? std::string() : std::string(found->cell(0));
}

TEST(Tree, HasItsFixedPlacesAndItsOwnSpellings) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    const auto& rows = program.window.tree().rows();
    ASSERT_EQ(rows.size(), 163u);
    std::vector<std::string> differing;
    std::string categories;
    for (const MemoryTreeRow& row : rows) {
        EXPECT_TRUE(row.bold || row.images[0] == 2) << row.text;
        EXPECT_EQ(row.images, (std::array{row.images[0], row.images[0], row.images[0], row.images[0]}));
        categories += row.bold ? std::to_string(row.data) + ':' + std::to_string(row.images[0]) + ' ' : "";
        if (row.text != program.app->items().title(static_cast<int>(row.data))) {
            differing.push_back(row.text);
        }
    }
    EXPECT_EQ(categories, "0:0 1:1 30:5 51:7 52:8 60:9 78:10 95:11 96:12 122:13 125:15 137:16 155:17 177:18 178:19 187:20 "
                          "211:21 226:22 250:25 273:26 274:27 288:29 ");
    EXPECT_EQ(differing, (std::vector<std::string>{
                             "Remove the Minimize, Maximize and Close Tooltips",
                             "Change the Default login Screen Saver",
                             "Change the login Screen Background Color",
                             "Customize the Windows login and Security Dialog Titles",
                             "Legal Notice Dialog Box Before login",
                         }));
    EXPECT_EQ(overviewRowOf58(program), differing[0]);
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
    EXPECT_EQ(window.calls().back(), "redrawn");
    // Back again: whole pixels of the controls count towards zero.
    program.main->OnDividerMoved(-3);
    EXPECT_EQ(checks.rect().left, old.left + 97);
    program.main->OnDividerMoved(-100);
    EXPECT_EQ(checks.controlRect(IDC_CHECK5).left, box.left + 20 - 10000 / 403);
}

// ---- Pages

TEST(Lists, HaveTheirColumnsInPixels) {
    const std::map<int, std::string> others = {{1, "Name 280 Data Modified 115 "},
                                               {95, "Name 295 Data Modified 83 "},
                                               {5, "Hexadecimal value 109 Color 265 "},
                                               {7, "Value 99 Discription 295 "},
                                               {41, "Letter 99 Option 277 "},
                                               {263, "Value 109 Description 290 "},
                                               {287, "Letter 99 Option 277 "}};
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    int overviews = 0;
    for (int id = 0; id < kItemCount; ++id) {
        program.select(id);
        if (!program.shows(IDD_CATEGORY, IDC_LIST)) {
            continue;
        }
        std::string columns;
        for (const MemoryListColumn& column : program.window.page(IDD_CATEGORY)->find(IDC_LIST)->columns) {
            columns += column.heading + ' ' + std::to_string(column.width) + ' ';
        }
        const auto found = others.find(id);
        EXPECT_EQ(columns, found != others.end() ? found->second : "Name 295 Data Modified 99 ") << id;
        const bool isOverview = columns.starts_with("Name");
        EXPECT_EQ(program.window.dialog().usable(IDC_APPLY), !isOverview) << id;
        overviews += isOverview ? 1 : 0;
    }
    EXPECT_GE(overviews, 22);
}

TEST(BrowseButtons, AskForAFileInQuotesOrForAFolder) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    std::set<int> folders;
    for (int id = 0; id < kItemCount; ++id) {
        program.select(id);
        for (int row = 0; const int button : {IDC_BROWSE1, IDC_BROWSE2, IDC_BROWSE3, IDC_BROWSE4, IDC_BROWSE5}) {
            constexpr int kEdits[] = {IDC_EDIT1, IDC_EDIT2, IDC_EDIT3, IDC_EDIT4, IDC_EDIT5};
            const int edit = kEdits[row++];
            program.system.pickers.answers = {"C:\\A B", ""};
            if (shownPage(program) == nullptr || !program.click(button)) {
                continue;
            }
            auto& filters = program.system.pickers.filters;
            if (filters.empty()) {
                folders.insert(id);
            } else {
                EXPECT_EQ(filters.back(), id == 62 ? "*.ico||" : "All Files(*.*)|*.*||") << id;
            }
            const std::string expected = filters.empty() ? "C:\\A B" : "\"C:\\A B\"";
            for (const int each : kEdits) {
                EXPECT_EQ(shownPage(program)->text(each) == expected, each == edit) << id << ' ' << each;
            }
            EXPECT_TRUE(program.click(button));
            EXPECT_EQ(shownPage(program)->text(edit), "") << "cancelled";
            filters.clear();
        }
    }
    EXPECT_EQ(folders, (std::set{107, 255, 306, 307}));
}

// Only the box of the logon screen saver switches fields, and only those of two rows.
TEST(CheckFields, AreSwitchedByTheBoxOfOneItem) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    for (int id = 0; id < kItemCount; ++id) {
        program.select(id);
        for (const int box : {IDC_CHECK2, IDC_CHECK1, IDC_CHECK1}) {
            if (!program.shows(IDD_CHECK_FIELDS, box) || !program.click(box)) {
                continue;
            }
            const bool on = id != 159 || program.page(IDD_CHECK_FIELDS).check(IDC_CHECK1) == 1;
            for (const int control : {IDC_EDIT1, IDC_EDIT2, IDC_BROWSE1, IDC_EDIT3, IDC_BROWSE2, IDC_BROWSE3}) {
                const bool switched = control == IDC_EDIT1 || control == IDC_EDIT2 || control == IDC_BROWSE1;
                EXPECT_EQ(program.enabled(IDD_CHECK_FIELDS, control), on || !switched) << id << ' ' << control;
            }
        }
    }
}

// ---- Languages

TEST(Languages, ReplaceTheTextsOfTheWindowTheTableAndTheAlerts) {
    MemoryProgram program(
        "[HKEY_CURRENT_USER\\Console]\n[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n\"Language\"=\"Deutsch\"\n",
        "98");
    program.setLanguageFile(
        "[102]\n1016=Anwenden\n"
        "[1004]\n112=QuickEdit\n113=Zeile\\nzwei\n582=Knopfhilfen\n"
        "[Item11]\n1013=Ein\n1024=Hinweis\n"
        "[KorvaneManagerStringTable]\n2001=A C H T U N G\n2002=Nur\\tNT\n",
        "Deutsch");
    ASSERT_TRUE(program.start());
    EXPECT_EQ(program.window.dialog().text(IDC_APPLY), "Anwenden");
    EXPECT_EQ(program.window.tree().findData(kQuickEdit)->text, kQuickEditTitle) << "the tree keeps its texts";
    EXPECT_EQ(overviewRowOf58(program), "Knopfhilfen");
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
}

TEST(Languages, RedirectItemsByTheirIds) {
    MemoryProgram program("[HKEY_CURRENT_USER\\Software\\Microsoft\\Command Processor]\n");
    program.setLanguageFile("[1004]\n111=12\n61=x\n71=311\n81=-1\n101= 5 rows\n21=4294967296\n");
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
    EXPECT_EQ(textOfRow("Add Command Prompt Option to Every Folder"), "no page");
    EXPECT_EQ(textOfRow("Enable Directory Completion"), "Change the Command Prompt Colors");
}

}  // namespace
}  // namespace korvane
