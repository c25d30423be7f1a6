// The common course of showing and applying: what comes before what, and that nothing of the item shown before stays.
#include "tests/support/PageFixture.h"

#include "res/ControlIds.h"

#include <gtest/gtest.h>

#include <span>

namespace korvane {
namespace {

constexpr KeyPath kUser{Root::CurrentUser, "K"};
constexpr KeyPath kMachine{Root::LocalMachine, "K"};
constexpr std::string_view kBothKeys = "[HKCU\\K]\n[HKLM\\K]\n";

constexpr CheckBox kBoxes[] = {
    {.text = "First", .binding = DwordFlag{.key = kUser, .name = "First"}},
    {.text = "Second", .binding = DwordFlag{.key = kMachine, .name = "Second"}},
    {.text = "Third"},
};
constexpr Field kFields[] = {
    {.label = "One", .binding = StringValue{kUser, "One"}, .picker = Picker::File},
    {.label = "Two", .binding = StringValue{kUser, "Two"}, .required = Alert::LogFolderMissing},
    {.label = "Three", .binding = StringValue{kUser, "Three"}, .required = Alert::DumpFileMissing},
};
constexpr NumberEntry kEntries[] = {{"None", 0}, {"Some", 1}};
constexpr Choice kChoices[] = {
    {.label = "A", .binding = DwordChoice{.key = kUser, .name = "A", .entries = kEntries, .initial = 0}},
    {.label = "B", .binding = DwordChoice{.key = kMachine, .name = "B", .entries = kEntries}},
};
constexpr Tweak kChecks{
    .id = 3, .title = "T", .description = "D", .page = Page::Checks, .boxes = kBoxes, .note = "Three boxes"};
constexpr Tweak kFieldsBelow{
    .id = 4, .title = "T", .description = "D", .page = Page::CheckFields, .boxes = {kBoxes, 1}, .fields = kFields};

class TweakEngineTest : public testing::Test, protected PageFixture {
protected:
    MemoryDialog& checks() { return dialog(Page::Checks); }
    MemoryDialog& fields() { return dialog(Page::CheckFields); }
    std::string checkStates() {
        std::string states;
        for (const int id : {IDC_CHECK1, IDC_CHECK2, IDC_CHECK3}) {
            states += std::to_string(checks().check(id));
        }
        return states;
    }
};

// ---- Applying

TEST_F(TweakEngineTest, ARefusingGateAlertsAndDoesNothingElse) {
    Tweak tweak = kChecks;
    tweak.gate = kGateXp;
    runOn("2000");
    load(kBothKeys);
    for (const bool putsBack : {false, true}) {
        tweak.putBoxesBack = putsBack;
        events.clear();
        show(tweak);
        ASSERT_TRUE(checks().clickCheckBox(IDC_CHECK1));
        ASSERT_TRUE(checks().clickCheckBox(IDC_CHECK3));
        apply(tweak);
        EXPECT_EQ(events, "alert 2004 ");
        EXPECT_EQ(state(), stateOf(kBothKeys));
        EXPECT_EQ(checkStates(), putsBack ? "010" : "101");
    }
    // A gate stands before a required field and before the row's own routine.
    Tweak withField = kFieldsBelow;
    withField.gate = kGateXp;
    withField.apply = [](PageContext& context) { context.host.alert(Alert::Only98); };
    show(withField);
    events.clear();
    apply(withField);
    EXPECT_EQ(events, "alert 2004 ");
}

TEST_F(TweakEngineTest, AnEmptyRequiredFieldAlertsOnceAndWritesNothing) {
    Tweak tweak = kFieldsBelow;
    load(kBothKeys);
    show(tweak);
    ASSERT_TRUE(fields().clickCheckBox(IDC_CHECK1));
    apply(tweak);
    ASSERT_TRUE(fields().typeText(IDC_EDIT2, "y"));
    tweak.stamp = Stamp::WhenOpen;
    apply(tweak);
    EXPECT_EQ(events, "stamp alert 2007 alert 2008 ");
    EXPECT_EQ(state(), stateOf(kBothKeys));
    ASSERT_TRUE(fields().typeText(IDC_EDIT3, " "));
    apply(tweak);
    EXPECT_EQ(state(), stateOf("[HKCU\\K]\n\"First\"=dword:1\n\"Two\"=\"y\"\n\"Three\"=\" \"\n[HKLM\\K]"));
}

TEST_F(TweakEngineTest, TheDateIsRecordedBeforeAnyKeyOrOnceEachKeyIsOpen) {
    Tweak tweak = kChecks;
    load(kBothKeys);
    show(tweak);
    registry.deny(Root::CurrentUser, "");
    registry.deny(Root::LocalMachine, "");
    apply(tweak);
    ASSERT_EQ(stamps.size(), 1U);
    EXPECT_EQ(stamps[0].openHandles, 0U);
    tweak.stamp = Stamp::WhenOpen;
    apply(tweak);
    EXPECT_EQ(stamps.size(), 1U);

    registry.allowAll();
    apply(tweak);
    ASSERT_EQ(stamps.size(), 3U);
    EXPECT_EQ(stamps[1].openHandles, 2U);  // root and key
    EXPECT_EQ(stamps[1].state, stateOf(kBothKeys));
    EXPECT_EQ(stamps[2].openHandles, 2U);
    EXPECT_EQ(stamps[2].state, stateOf("[HKCU\\K]\n\"First\"=dword:0\n[HKLM\\K]"));
}

TEST_F(TweakEngineTest, ARowsOwnRoutinesRunBehindTheReadingAndInPlaceOfTheWrites) {
    Tweak tweak = kChecks;
    tweak.show = [](PageContext& context) { context.page.setCheck(IDC_CHECK3, context.checked(IDC_CHECK1) ? 1 : 0); };
    tweak.apply = [](PageContext& context) {
        if (const OpenedKey key = context.openForWriting(kUser)) {
            writeNumber(context.platform.registry, key, "Own", context.checked(IDC_CHECK3) ? 3 : 4);
        }
    };
    load("[HKCU\\K]\n\"First\"=dword:1");
    show(tweak);
    EXPECT_EQ(checkStates(), "101");
    apply(tweak);
    EXPECT_EQ(state(), stateOf("[HKCU\\K]\n\"First\"=dword:1\n\"Own\"=dword:3"));
    EXPECT_EQ(events, "stamp ");
}

// ---- Showing

TEST_F(TweakEngineTest, OnlyWhatTheRowUsesIsVisibleAndLabelled) {
    show(kChecks);
    EXPECT_EQ(visibleControls(Page::Checks), (std::vector{IDC_HEADER, IDC_CHECK1, IDC_CHECK2, IDC_NOTE, IDC_CHECK3}));
    EXPECT_EQ(checks().text(IDC_HEADER), "Title 3:\nDescription");
    constexpr CheckBox kOther[] = {{.text = "Other", .control = IDC_CHECK10}, {.text = "Next"}};
    const Tweak other{.id = 6, .title = "T", .description = "D", .page = Page::Checks, .boxes = kOther};
    translations["1018"] = "Weiter";
    show(other);
    EXPECT_EQ(visibleControls(Page::Checks), (std::vector{IDC_HEADER, IDC_CHECK2, IDC_CHECK10}));
    EXPECT_EQ(checks().text(IDC_CHECK2), "Weiter");
    // A field takes the first row, choices the ones below it.
    const Tweak mixed{.id = 8,
                      .title = "T",
                      .description = "D",
                      .page = Page::EditCombos,
                      .fields = {kFields, 1},
                      .choices = kChoices};
    show(mixed);
    EXPECT_FALSE(checks().visible());
    EXPECT_FALSE(dialog(Page::EditCombos).usable(IDC_COMBO4));
    EXPECT_EQ(dialog(Page::EditCombos).text(IDC_LABEL2), "A");
}

// The note's place follows the boxes that are used, both down and up again, and stays clear of the button.
TEST_F(TweakEngineTest, TheNoteStandsBetweenTheLastBoxAndTheApplyButton) {
    const std::vector<CheckBox> boxes(9, CheckBox{.text = "Box"});
    for (const auto& [count, lastBox] : {std::pair{1U, IDC_CHECK1}, {9U, IDC_CHECK9}, {4U, IDC_CHECK4}}) {
        Tweak tweak = kChecks;
        tweak.boxes = std::span(boxes).first(count);
        show(tweak);
        const Rect note = checks().controlRect(IDC_NOTE);
        const Rect box = checks().controlRect(lastBox);
        EXPECT_GT(note.top, box.bottom) << count;
        EXPECT_LE(note.top, box.bottom + box.height()) << count;
        EXPECT_LT(note.bottom, applyButtonRect(Page::Checks).top) << count;
        EXPECT_GE(note.height(), 2 * 13) << count << ": less than two lines";
    }
}

// ---- Lists

// "heading:width" for each column, then the cells, row by row.
std::string listText(const MemoryDialog& page, int id) {
    const MemoryControl& list = *page.find(id);
    std::string text;
    for (const MemoryListColumn& column : list.columns) {
        text += column.heading + ':' + std::to_string(column.width) + ' ';
    }
    for (const MemoryListRow& row : list.rows) {
        text += '|';
        for (std::size_t i = 0; i < list.columns.size(); ++i) {
            text += std::string(row.cell(i)) + ';';
        }
    }
    return text;
}

// One count of columns for both lists: they never pile up, whichever list was shown in between.
TEST_F(TweakEngineTest, ListsAreBuiltAnewAndColumnsNeverPileUp) {
    constexpr TableColumn kColumns[] = {{"A", 10}, {"B", 20}, {"C", 30}};
    constexpr std::string_view kCells[] = {"x", "y", "z"};
    const Table table{.columns = kColumns, .cells = kCells};
    const auto shown = [&](Page page, bool isOverview) {
        show({.id = 20,
              .title = "T",
              .description = "D",
              .category = isOverview,
              .page = page,
              .table = isOverview ? nullptr : &table});
        EXPECT_EQ(applyButtonShown, !isOverview);
        return listText(dialog(page), page == Page::Category ? IDC_LIST : IDC_CHECK_LIST);
    };
    overview = {{"Title 11", "6/15/2005"}, {"Shown", "1/2/2006"}, {"Title 13", ""}};
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(shown(Page::Category, true),
                  "Name:295 Data Modified:99 |Title 11;6/15/2005;|Shown;1/2/2006;|Title 13;;");
        EXPECT_EQ(shown(Page::Category, false), "A:10 B:20 C:30 |x;y;z;");
        EXPECT_EQ(shown(Page::CheckList, false), "A:10 B:20 C:30 |x;y;z;");
    }
    translations = {{"1007.c.1", "Bedeutung"}, {"1007.0.0", "eins"}};
    EXPECT_EQ(shown(Page::Category, false), "A:10 Bedeutung:20 C:30 |eins;y;z;");
}

}  // namespace
}  // namespace korvane
