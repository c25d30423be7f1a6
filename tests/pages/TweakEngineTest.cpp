// The common course of showing and applying: what comes before what, and that nothing of the item shown before stays.
#include "tests/support/PageFixture.h"

#include "res/ControlIds.h"

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

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
    {.label = "One", .binding = StringValue{kUser, "One"}, .browse = true},
    {.label = "Two", .binding = StringValue{kUser, "Two"}, .required = 2007},
    {.label = "Three", .binding = StringValue{kUser, "Three"}, .browse = true, .required = 2008},
};
constexpr NumberEntry kEntries[] = {{"None", 0}, {"Some", 1}};
constexpr Choice kChoices[] = {
    {.label = "A", .binding = DwordChoice{.key = kUser, .name = "A", .entries = kEntries, .initial = 0}},
    {.label = "B", .binding = DwordChoice{.key = kMachine, .name = "B", .entries = kEntries}},
};

constexpr Tweak checksTweak() {
    return {.id = 3, .title = "T", .description = "D", .page = Page::Checks, .boxes = kBoxes, .note = "Three boxes"};
}
constexpr Tweak fieldsTweak() {
    return {.id = 4,
            .title = "T",
            .description = "D",
            .page = Page::CheckFields,
            .boxes = std::span(kBoxes).first(1),
            .fields = kFields,
            .note = "Three fields"};
}

class TweakEngineTest : public testing::Test, protected PageFixture {
protected:
    MemoryDialog& checks() { return dialog(Page::Checks); }
    MemoryDialog& fields() { return dialog(Page::CheckFields); }
    std::string checkStates(Page page) {
        std::string states;
        for (const int id : {IDC_CHECK1, IDC_CHECK2, IDC_CHECK3}) {
            states += std::to_string(dialog(page).check(id));
        }
        return states;
    }
};

// ---- Applying

TEST_F(TweakEngineTest, ARefusingGateAlertsAndDoesNothingElse) {
    Tweak tweak = checksTweak();
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
        EXPECT_EQ(checkStates(Page::Checks), putsBack ? "010" : "101");
        EXPECT_TRUE(checks().visible());
    }
    // A gate stands before a required field and before the row's own routine.
    Tweak withField = fieldsTweak();
    withField.gate = kGateXp;
    withField.apply = [](PageContext& context) { context.host.alert(1); };
    show(withField);
    events.clear();
    apply(withField);
    EXPECT_EQ(events, "alert 2004 ");
}

TEST_F(TweakEngineTest, AnEmptyRequiredFieldAlertsOnceAndWritesNothing) {
    Tweak tweak = fieldsTweak();
    load(kBothKeys);
    show(tweak);
    ASSERT_TRUE(fields().clickCheckBox(IDC_CHECK1));
    ASSERT_TRUE(fields().typeText(IDC_EDIT1, "x"));
    apply(tweak);
    EXPECT_EQ(events, "stamp alert 2007 ");
    EXPECT_EQ(state(), stateOf(kBothKeys));
    EXPECT_EQ(fields().check(IDC_CHECK1), 1U);
    EXPECT_EQ(fields().text(IDC_EDIT1), "x");

    events.clear();
    ASSERT_TRUE(fields().typeText(IDC_EDIT2, "y"));
    tweak.stamp = Stamp::WhenOpen;
    apply(tweak);
    EXPECT_EQ(events, "alert 2008 ");

    events.clear();
    ASSERT_TRUE(fields().typeText(IDC_EDIT3, " "));
    apply(tweak);
    EXPECT_EQ(events, "stamp stamp stamp stamp ");
    EXPECT_EQ(state(),
              stateOf("[HKCU\\K]\n\"First\"=dword:1\n\"One\"=\"x\"\n\"Two\"=\"y\"\n\"Three\"=\" \"\n[HKLM\\K]"));
}

TEST_F(TweakEngineTest, TheDateIsRecordedBeforeAnyKeyOrOnceEachKeyIsOpen) {
    Tweak tweak = checksTweak();
    load(kBothKeys);
    show(tweak);
    apply(tweak);
    ASSERT_EQ(stamps.size(), 1U);
    EXPECT_EQ(stamps[0].openHandles, 0U);
    EXPECT_EQ(stamps[0].state, stateOf(kBothKeys));

    registry.deny(Root::CurrentUser, "");
    registry.deny(Root::LocalMachine, "");
    apply(tweak);
    EXPECT_EQ(stamps.size(), 2U);
    tweak.stamp = Stamp::WhenOpen;
    apply(tweak);
    EXPECT_EQ(stamps.size(), 2U);

    registry.allowAll();
    const std::string before = state();
    ASSERT_TRUE(checks().clickCheckBox(IDC_CHECK1));
    apply(tweak);
    ASSERT_EQ(stamps.size(), 4U);
    EXPECT_EQ(stamps[2].openHandles, 2U);  // root and key
    EXPECT_EQ(stamps[2].state, before);
    EXPECT_EQ(stamps[3].openHandles, 2U);
    EXPECT_EQ(stamps[3].state, stateOf("[HKCU\\K]\n\"First\"=dword:1\n[HKLM\\K]\n\"Second\"=dword:0"));
}

TEST_F(TweakEngineTest, ARowsOwnRoutinesRunBehindTheReadingAndInPlaceOfTheWrites) {
    Tweak tweak = checksTweak();
    tweak.gate = kGateXp;
    tweak.show = [](PageContext& context) { context.page.setCheck(IDC_CHECK3, context.checked(IDC_CHECK1) ? 1 : 0); };
    tweak.apply = [](PageContext& context) {
        if (const OpenedKey key = context.openForWriting(kUser)) {
            writeNumber(context.platform.registry, key, "Own", context.checked(IDC_CHECK3) ? 3 : 4);
        }
    };
    load("[HKCU\\K]\n\"First\"=dword:1");
    show(tweak);
    EXPECT_EQ(checkStates(Page::Checks), "101");
    apply(tweak);
    EXPECT_EQ(state(), stateOf("[HKCU\\K]\n\"First\"=dword:1\n\"Own\"=dword:3"));
    EXPECT_EQ(events, "stamp ");
    tweak.stamp = Stamp::WhenOpen;
    apply(tweak);
    EXPECT_EQ(events, "stamp stamp ");
    EXPECT_EQ(stamps.back().openHandles, 2U);
}

// ---- Showing

TEST_F(TweakEngineTest, AShowResetsEveryControlBeforeItReads) {
    const Tweak combos{.id = 5,
                       .title = "T",
                       .description = "D",
                       .page = Page::CheckCombos,
                       .boxes = std::span(kBoxes).first(1),
                       .choices = kChoices};
    load(
        "[HKCU\\K]\n\"First\"=dword:1\n\"One\"=\"text\"\n\"Two\"=\"text\"\n\"Three\"=\"text\"\n\"A\"=dword:1\n"
        "[HKLM\\K]\n\"Second\"=dword:1\n\"B\"=dword:1");
    show(checksTweak());
    ASSERT_TRUE(checks().clickCheckBox(IDC_CHECK3));
    EXPECT_EQ(checkStates(Page::Checks), "111");
    show(fieldsTweak());
    EXPECT_EQ(fields().text(IDC_EDIT3), "text");
    show(combos);
    MemoryDialog& page = dialog(Page::CheckCombos);
    EXPECT_EQ(page.comboSelection(IDC_COMBO1), 1);
    ASSERT_TRUE(page.typeText(IDC_COMBO2, "typed"));

    registry.deny(Root::CurrentUser, "K");
    registry.deny(Root::LocalMachine, "");
    show(checksTweak());
    EXPECT_EQ(checkStates(Page::Checks), "000");
    show(fieldsTweak());
    EXPECT_EQ(fields().check(IDC_CHECK1), 0U);
    for (const int edit : {IDC_EDIT1, IDC_EDIT2, IDC_EDIT3}) {
        EXPECT_EQ(fields().text(edit), "");
    }
    show(combos);
    EXPECT_EQ(page.check(IDC_CHECK1), 0U);
    EXPECT_EQ(page.comboSelection(IDC_COMBO1), 0);
    EXPECT_EQ(page.comboSelection(IDC_COMBO2), kNoSelection);
    EXPECT_EQ(page.text(IDC_COMBO2), "");
}

TEST_F(TweakEngineTest, OnlyWhatTheRowUsesIsVisibleAndLabelled) {
    show(checksTweak());
    EXPECT_EQ(visibleControls(Page::Checks), (std::vector{IDC_HEADER, IDC_CHECK1, IDC_CHECK2, IDC_NOTE, IDC_CHECK3}));
    EXPECT_EQ(checks().text(IDC_HEADER), "Title 3:\nDescription");
    EXPECT_EQ(checks().text(IDC_CHECK2), "Second");
    EXPECT_EQ(checks().text(IDC_NOTE), "Three boxes");
    EXPECT_TRUE(applyButtonShown);

    constexpr CheckBox kOther[] = {{.text = "Other", .control = IDC_CHECK10}, {.text = "Next"}};
    const Tweak other{.id = 6, .title = "T", .description = "D", .page = Page::Checks, .boxes = kOther};
    translations["1018"] = "Weiter";
    show(other);
    EXPECT_EQ(visibleControls(Page::Checks), (std::vector{IDC_HEADER, IDC_CHECK2, IDC_CHECK10}));
    EXPECT_EQ(checks().text(IDC_CHECK10), "Other");
    EXPECT_EQ(checks().text(IDC_CHECK2), "Weiter");
    EXPECT_EQ(checks().text(IDC_HEADER), "Title 6:\nDescription");

    show(fieldsTweak());
    EXPECT_FALSE(checks().visible());
    EXPECT_EQ(visibleControls(Page::CheckFields),
              (std::vector{IDC_HEADER, IDC_CHECK1, IDC_LABEL1, IDC_EDIT1, IDC_EDIT2, IDC_LABEL2, IDC_LABEL3,
                           IDC_BROWSE1, IDC_NOTE, IDC_EDIT3, IDC_BROWSE3}));
    const Tweak oneField{.id = 7,
                         .title = "T",
                         .description = "D",
                         .page = Page::CheckFields,
                         .fields = std::span(kFields).subspan(1, 1)};
    show(oneField);
    EXPECT_EQ(visibleControls(Page::CheckFields), (std::vector{IDC_HEADER, IDC_LABEL1, IDC_EDIT1}));
    EXPECT_EQ(fields().text(IDC_LABEL1), "Two");

    // A field takes the first row, choices the ones below it.
    const Tweak mixed{.id = 8,
                      .title = "T",
                      .description = "D",
                      .page = Page::EditCombos,
                      .fields = std::span(kFields).first(1),
                      .choices = kChoices};
    show(mixed);
    MemoryDialog& page = dialog(Page::EditCombos);
    EXPECT_TRUE(page.usable(IDC_EDIT1));
    EXPECT_FALSE(page.usable(IDC_COMBO4));
    EXPECT_EQ(page.text(IDC_LABEL2), "A");
    EXPECT_EQ(page.text(IDC_LABEL3), "B");
    EXPECT_EQ(page.text(IDC_COMBO1), "None");
}

// The note's place follows the boxes that are used, both down and up again, and stays clear of the button.
TEST_F(TweakEngineTest, TheNoteStandsBetweenTheLastBoxAndTheApplyButton) {
    const std::vector<CheckBox> boxes(9, CheckBox{.text = "Box"});
    constexpr int kLastBoxes[] = {IDC_CHECK1, IDC_CHECK2, IDC_CHECK3, IDC_CHECK4, IDC_CHECK5,
                                  IDC_CHECK6, IDC_CHECK7, IDC_CHECK8, IDC_CHECK9};
    for (const std::size_t count : {1U, 9U, 4U, 1U}) {
        const Tweak tweak{.id = 9,
                          .title = "T",
                          .description = "D",
                          .page = Page::Checks,
                          .boxes = std::span(boxes).first(count),
                          .note = "Note"};
        const Rect before = checks().controlRect(IDC_NOTE);
        show(tweak);
        const Rect note = checks().controlRect(IDC_NOTE);
        const Rect box = checks().controlRect(kLastBoxes[count - 1]);
        EXPECT_GT(note.top, box.bottom) << count;
        EXPECT_LE(note.top, box.bottom + box.height()) << count;
        EXPECT_LT(note.bottom, applyButtonRect(Page::Checks).top) << count;
        EXPECT_GE(note.height(), 2 * 13) << count << ": less than two lines";
        EXPECT_EQ(note.left, before.left);
        EXPECT_EQ(note.right, before.right);
    }
    const Rect fixed = fields().controlRect(IDC_NOTE);
    show(fieldsTweak());
    EXPECT_EQ(fields().controlRect(IDC_NOTE), fixed);
}

// ---- Lists

constexpr TableColumn kTwoColumns[] = {{"Value", 99}, {"Meaning", 295}};
constexpr std::string_view kTwoByTwo[] = {"0", "nothing", "1", "all"};
constexpr Table kTwo{.columns = kTwoColumns, .cells = kTwoByTwo};
constexpr TableColumn kThreeColumns[] = {{"A", 10}, {"B", 20}, {"C", 30}};
constexpr std::string_view kOneByThree[] = {"x", "y", "z"};
constexpr Table kThree{.columns = kThreeColumns, .cells = kOneByThree};
constexpr OverviewRow kRows[] = {{11}, {12, "Shown", "Looked up"}, {13}};
constexpr Overview kOverview{.rows = kRows};
constexpr Overview kNarrow{.rows = kRows, .nameWidth = 280, .dateWidth = 115};

Tweak tableTweak(const Table& table, Page page = Page::Category) {
    return {.id = 20, .title = "T", .description = "D", .page = page, .table = &table};
}
Tweak overviewTweak(const Overview& overview) {
    return {.id = 21, .title = "T", .description = "D", .image = 5, .page = Page::Category, .overview = &overview};
}

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

TEST_F(TweakEngineTest, ListsAreBuiltAnewAndColumnsNeverPileUp) {
    titles[12] = "Twelve";
    dates = {{"Title 11", "6/15/2005"}, {"Looked up", "1/2/2006"}, {"Twelve", "no"}, {"Shown", "no"}};
    const std::string overview = "|Title 11;6/15/2005;|Shown;1/2/2006;|Title 13;;";
    const auto shown = [this](const Tweak& tweak) {
        show(tweak);
        return listText(dialog(Page::Category), IDC_LIST);
    };
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(shown(overviewTweak(kOverview)), "Name:295 Data Modified:99 " + overview);
        EXPECT_FALSE(applyButtonShown);
        EXPECT_EQ(visibleControls(Page::Category), (std::vector{IDC_HEADER, IDC_LIST}));
        EXPECT_EQ(shown(overviewTweak(kNarrow)), "Name:280 Data Modified:115 " + overview);
        EXPECT_EQ(shown(tableTweak(kThree)), "A:10 B:20 C:30 |x;y;z;");
        EXPECT_TRUE(applyButtonShown);
        EXPECT_EQ(shown(tableTweak(kTwo)), "Value:99 Meaning:295 |0;nothing;|1;all;");
    }
    dates["Title 13"] = "7/1/2005";
    EXPECT_EQ(shown(overviewTweak(kOverview)),
              "Name:295 Data Modified:99 |Title 11;6/15/2005;|Shown;1/2/2006;|Title 13;7/1/2005;");
    translations = {{"1007.c.1", "Bedeutung"}, {"1007.1.0", "eins"}};
    EXPECT_EQ(shown(tableTweak(kTwo)), "Value:99 Bedeutung:295 |0;nothing;|eins;all;");
}

// One count for both lists: columns never pile up, whichever list was shown in between.
TEST_F(TweakEngineTest, OneColumnCountServesBothLists) {
    show(tableTweak(kTwo, Page::CheckList));
    show(overviewTweak(kOverview));
    EXPECT_EQ(dialog(Page::Category).find(IDC_LIST)->columns.size(), 2U);
    show(tableTweak(kTwo, Page::CheckList));
    EXPECT_EQ(listText(dialog(Page::CheckList), IDC_CHECK_LIST), "Value:99 Meaning:295 |0;nothing;|1;all;");
    show(overviewTweak(kOverview));
    show(tableTweak(kThree, Page::CheckList));
    EXPECT_EQ(dialog(Page::CheckList).find(IDC_CHECK_LIST)->columns.size(), 3U);
    show(overviewTweak(kOverview));
    show(tableTweak(kTwo, Page::CheckList));
    EXPECT_EQ(listText(dialog(Page::CheckList), IDC_CHECK_LIST), "Value:99 Meaning:295 |0;nothing;|1;all;");
    show(overviewTweak(kOverview));
    EXPECT_EQ(dialog(Page::Category).find(IDC_LIST)->columns.size(), 2U);
}

}  // namespace
}  // namespace korvane
