// The rules of combo boxes, of the colour list and of tables of choices.
#include "tests/pages/BindingCases.h"

#include "pages/ColourCombo.h"

namespace korvane {
namespace {

constexpr NumberEntry kNumbers[] = {{"Off", 0, true}, {"Low", 8}, {"High", 9}, {"Also low", 8}};
constexpr TextEntry kTexts[] = {{"None", "No"}, {"All", "Yes"}, {"All, again", "YES"}};

DwordChoice numbers(int initial, int unknown) {
    return {.key = kKey, .name = "V", .entries = kNumbers, .initial = initial, .unknown = unknown};
}

StringChoice texts(Compare compare, int initial = kNoSelection, int unknown = kNoSelection) {
    return {.key = kKey, .name = "V", .entries = kTexts, .initial = initial, .unknown = unknown, .compare = compare};
}

TEST(ChoiceBindings, ShowTheFirstEntryThatFitsElseTheUnknownElseTheInitialOne) {
    struct Case {
        const char* name;
        ChoiceBinding binding;
        std::string data;
        int shown;
    };
    const Case cases[] = {
        {"number", numbers(0, 1), "dword:9", 2},
        {"first of two", numbers(0, 2), "dword:8", 1},
        {"the number of the deleting entry", numbers(1, kNoSelection), "dword:0", kNoSelection},
        {"unknown number", numbers(1, 2), "dword:77", 2},
        {"unknown number, none", numbers(1, kNoSelection), "dword:ffffffff", kNoSelection},
        {"one byte", numbers(0, 2), "hex:08", 1},
        {"no bytes", numbers(0, 2), "hex:", 2},
        {"text", numbers(0, 2), "\"\x08\"", 1},
        {"no value", numbers(1, 2), "", 1},
        {"no value, none", numbers(kNoSelection, 2), "", kNoSelection},
        {"index beyond the entries", numbers(4, 1), "", kNoSelection},
        {"too long", numbers(1, 2), bytes("09", 203), 1},
        {"202 bytes", numbers(1, 0), bytes("09", 202), 2},
        {"exact text", texts(Compare::Exact, 0, 0), "\"YES\"", 2},
        {"no exact text", texts(Compare::Exact, 1, 0), "\"yes\"", 0},
        {"ignoring case", texts(Compare::IgnoreCase), "\"yes\"", 1},
        {"contained", texts(Compare::Contains), "\"Oh YES\"", 2},
        {"as number, all alike", texts(Compare::AsNumber), "\"0\"", 0},
        {"as number", texts(Compare::AsNumber), "\"7\"", kNoSelection},
        {"unknown text", texts(Compare::Exact, 1, 2), "\"Yes \"", 2},
        {"empty text", texts(Compare::Exact, 1, 2), "\"\"", 2},
        {"no text", texts(Compare::Exact, 1, 2), "", 1},
    };
    for (const Case& each : cases) {
        OneChoice page(each.binding, each.data.empty() ? std::string(kNothingStored) : stored(each.data));
        EXPECT_EQ(page.shown(), each.shown) << each.name;
    }
    for (const Obstacle obstacle : kObstacles) {
        OneChoice number(numbers(1, 0));
        putInTheWay(number, obstacle, "09");
        EXPECT_EQ(number.shown(), 1) << static_cast<int>(obstacle);
        OneChoice text(texts(Compare::Contains, 2, 0));
        putInTheWay(text, obstacle, "59,65,73");
        EXPECT_EQ(text.shown(), 2) << static_cast<int>(obstacle);
    }
}

TEST(ChoiceBindings, ApplyTheEntryOrDoWithoutASelectionWhatTheRowSays) {
    struct Case {
        const char* name;
        ChoiceBinding binding;
        int index;
        std::string after;  // empty: no value
        std::string_view eventsWhenOpen;
    };
    const auto number = [](WhenNone whenNone, std::uint32_t none = 0xFFFFFFFF) {
        return DwordChoice{.key = kKey, .name = "V", .entries = kNumbers, .whenNone = whenNone, .noneNumber = none};
    };
    const auto text = [](WhenNone whenNone, std::string_view none = "-1") {
        return StringChoice{.key = kKey, .name = "V", .entries = kTexts, .whenNone = whenNone, .noneText = none};
    };
    const Case cases[] = {
        {"number", number(WhenNone::Writes), 2, "dword:9", "stamp "},
        {"second of two", number(WhenNone::Deletes), 3, "dword:8", "stamp "},
        {"deleting entry", number(WhenNone::Writes), 0, "", ""},
        {"no number", number(WhenNone::Writes), kNoSelection, "dword:ffffffff", "stamp "},
        {"no number, another one", number(WhenNone::Writes, 5), kNoSelection, "dword:5", "stamp "},
        {"no number, nothing", number(WhenNone::WritesNothing), kNoSelection, "\"old\"", ""},
        {"no number, deleted", number(WhenNone::Deletes), kNoSelection, "", ""},
        {"text", text(WhenNone::Writes), 1, "\"Yes\"", "stamp "},
        {"no text", text(WhenNone::Writes), kNoSelection, "\"-1\"", "stamp "},
        {"no number, deleted in the open key", number(WhenNone::DeletesInOpenKey), kNoSelection, "", "stamp "},
        {"no text, another one", text(WhenNone::Writes, "No"), kNoSelection, "\"No\"", "stamp "},
        {"no text, nothing", text(WhenNone::WritesNothing), kNoSelection, "\"old\"", ""},
        {"no text, deleted", text(WhenNone::Deletes), kNoSelection, "", ""},
    };
    for (const Case& each : cases) {
        const std::string after = stateOf(each.after.empty() ? kNothingStored : stored(each.after));
        OneChoice before(each.binding, stored("\"old\""));
        EXPECT_EQ(before.applied(each.index), after) << each.name;
        EXPECT_EQ(before.events, "stamp ") << each.name;
        OneChoice whenOpen(each.binding, stored("\"old\""), Stamp::WhenOpen);
        EXPECT_EQ(whenOpen.applied(each.index), after) << each.name;
        EXPECT_EQ(whenOpen.events, each.eventsWhenOpen) << each.name;
        for (const Obstacle obstacle : kNothingOpens) {
            OneChoice page(each.binding);
            putInTheWay(page, obstacle, "09");
            const std::string state = page.state();
            EXPECT_EQ(page.applied(each.index), state) << each.name << ", obstacle " << static_cast<int>(obstacle);
        }
    }
}

TEST(ChoiceBindings, MadeKeysAreMadeForANumberAndNotForADeletion) {
    const ChoiceBinding below = DwordChoice{.key = {Root::CurrentUser, "", "Made"}, .name = "V", .entries = kNumbers};
    EXPECT_EQ(OneChoice(below).applied(1), stateOf("[HKCU\\Made]\n\"V\"=dword:8"));
    EXPECT_EQ(OneChoice(below).applied(0), "");
    EXPECT_EQ(OneChoice(below, "[HKCU\\Made]\n\"V\"=dword:8").applied(0), stateOf("[HKCU\\Made]"));
}

TEST(ChoiceBindings, ARangeOffersItsNumbers) {
    const DwordChoice number{.key = kKey, .name = "V", .range = {5, 3600}, .initial = 1, .unknown = 0};
    const StringChoice text{.key = kKey, .name = "V", .range = {0, 50}, .initial = 10};
    OneChoice page(number, stored("dword:e10"));
    EXPECT_EQ(page.shown(), 3595);
    EXPECT_EQ(page.shown(), 3595);
    const MemoryControl& combo = *page.dialog(Page::Combos).find(IDC_COMBO1);
    ASSERT_EQ(combo.entries.size(), 3596U);
    EXPECT_EQ(combo.entries.front().text, "5");
    EXPECT_EQ(combo.entries.back().text, "3600");
    EXPECT_EQ(page.applied(2), stateOf(stored("dword:7")));
    EXPECT_EQ(page.applied(kNoSelection), stateOf(stored("dword:ffffffff")));
    for (const char* outside : {"dword:4", "dword:e11", "dword:80000005"}) {
        EXPECT_EQ(OneChoice(number, stored(outside)).shown(), 0) << outside;
    }
    EXPECT_EQ(OneChoice(number, kNothingStored).shown(), 1);

    EXPECT_EQ(OneChoice(text, stored("\" 7 logons\"")).shown(), 7);
    EXPECT_EQ(OneChoice(text, stored("\"many\"")).shown(), 0);
    EXPECT_EQ(OneChoice(text, stored("\"51\"")).shown(), kNoSelection);
    EXPECT_EQ(OneChoice(text, kNothingStored).shown(), 10);
    EXPECT_EQ(OneChoice(text, kNothingStored).applied(50), stateOf(stored("\"50\"")));
}

TEST(ChoiceBindings, ASecondKeyIsWrittenLikeTheFirst) {
    StringChoice both = texts(Compare::Exact);
    both.also = KeyPath{Root::Users, ".DEFAULT", "Made"};
    const std::string second = "\n[HKU\\.DEFAULT\\Made]\n\"V\"=\"Yes\"";
    EXPECT_EQ(OneChoice(both, std::string(kNothingStored) + "\n[HKU\\.DEFAULT]").applied(1),
              stateOf(stored("\"Yes\"") + second));
    EXPECT_EQ(OneChoice(both, "[HKU\\.DEFAULT]").applied(1), stateOf(second));
    EXPECT_EQ(OneChoice(both, kNothingStored).applied(1), stateOf(stored("\"Yes\"")));
}

TEST(ChoiceBindings, PlainEntriesAreOnlyOffered) {
    constexpr PlainEntry kPlain[] = {{"a"}, {"b"}};
    OneChoice page(ChoiceEntries{kPlain}, stored("dword:1"));
    EXPECT_EQ(page.shown(), kNoSelection);
    EXPECT_EQ(page.dialog(Page::Combos).comboCount(IDC_COMBO1), 2);
    EXPECT_EQ(page.applied(1), stateOf(stored("dword:1")));
}

TEST(ChoiceBindings, EveryShowFillsTheComboAnewAndInTheUsersLanguage) {
    OneChoice page(numbers(1, 0));
    EXPECT_EQ(page.shown(), 1);
    page.translations["1021.2"] = "Hoch";
    EXPECT_EQ(page.applied(2), stateOf(""));
    EXPECT_EQ(page.shown(), 1);
    const MemoryControl& combo = *page.dialog(Page::Combos).find(IDC_COMBO1);
    std::string entries;
    for (const MemoryComboEntry& entry : combo.entries) {
        entries += entry.text + ';';
    }
    EXPECT_EQ(entries, "Off;Low;Hoch;Also low;");
    EXPECT_EQ(combo.text, "Low");
}

TEST(ChoiceBindings, APairReachesEachRootByItself) {
    const auto pair = ScopePairOfChoices("Choice (Current User)", "Choice (All Users)", numbers(0, kNoSelection));
    const Tweak tweak{.id = 7, .title = "T", .description = "D", .page = Page::CheckCombos, .choices = pair};
    PageFixture page;
    page.load("[HKCU\\Software\\Invented]\n\"V\"=dword:8\n[HKLM\\Software\\Invented]\n\"V\"=dword:9");
    page.show(tweak);
    MemoryDialog& dialog = page.dialog(Page::CheckCombos);
    EXPECT_EQ(dialog.comboSelection(IDC_COMBO1), 1);
    EXPECT_EQ(dialog.comboSelection(IDC_COMBO2), 2);
    ASSERT_TRUE(dialog.pickComboEntry(IDC_COMBO1, 0));
    ASSERT_TRUE(dialog.pickComboEntry(IDC_COMBO2, 1));
    page.registry.deny(Root::LocalMachine, "");
    page.apply(tweak);
    EXPECT_EQ(page.state(), stateOf("[HKCU\\Software\\Invented]\n[HKLM\\Software\\Invented]\n\"V\"=dword:9"));
    page.registry.allowAll();
    page.apply(tweak);
    EXPECT_EQ(page.state(), stateOf("[HKCU\\Software\\Invented]\n[HKLM\\Software\\Invented]\n\"V\"=dword:8"));
}

// ---- Colours

TEST(ColourBindings, ColoursAreShownAndWrittenAsTextAndAsBytes) {
    struct Case {
        const char* name;
        ColourBinding binding;
        std::string data;
        std::string_view shown;
        std::string after;
    };
    const ColourText text{kKey, "V"};
    const ColourBinary binary{kKey, "V"};
    const Case cases[] = {
        {"black", text, "\"0 0 0\"", "Black", "\"0 0 0\""},
        {"the first of two names", text, "\"0 255 255\"", "Aqua", "\"0 255 255\""},
        {"red, green and blue in this order", text, "\"255 127 80\"", "Coral", "\"255 127 80\""},
        {"modulo 256", text, "\"511 256 512\"", "Red", "\"255 0 0\""},
        {"missing parts are 0", text, "\"255\"", "Red", "\"255 0 0\""},
        {"each single blank separates", text, "\"255  127 80\"", "", ""},
        {"other data behind the blue", text, "\"255 0 0 9\"", "Red", "\"255 0 0\""},
        {"bytes", binary, "hex:ff,7f,50,00", "Coral", "hex:ff,7f,50,00"},
        {"the fourth byte does not count", binary, "hex:ff,7f,50,99", "Coral", "hex:ff,7f,50,00"},
        {"three bytes", binary, "hex:ff,7f,50", "Coral", "hex:ff,7f,50,00"},
    };
    for (const Case& each : cases) {
        const ColourField colour{.label = "Colour", .binding = each.binding};
        const Choice choice{.label = "Below"};
        const Tweak tweak{.id = 7,
                          .title = "T",
                          .description = "D",
                          .page = Page::CheckCombos,
                          .choices = {&choice, 1},
                          .colour = &colour};
        PageFixture page;
        MemoryDialog& dialog = page.dialog(Page::CheckCombos);
        CColourCombo combo(dialog, IDC_COLOUR_COMBO);
        const auto shown = [&] {
            page.show(tweak);
            const MemoryControl& control = *dialog.find(IDC_COLOUR_COMBO);
            return control.selection < 0 ? "" : control.entries[static_cast<std::size_t>(control.selection)].text;
        };
        combo.FillColours();
        combo.SelectColour(rgb(0, 128, 0));
        page.load(stored(each.data));
        // A colour without a name keeps the row that was selected before, and applying writes that one.
        EXPECT_EQ(shown(), each.shown.empty() ? "Green" : each.shown) << each.name;
        EXPECT_EQ(page.visibleControls(Page::CheckCombos),
                  (std::vector{IDC_HEADER, IDC_LABEL1, IDC_LABEL2, IDC_COMBO2, IDC_COLOUR_COMBO}));
        page.apply(tweak);
        EXPECT_EQ(page.state(), stateOf(stored(each.after.empty() ? "\"0 128 0\"" : each.after))) << each.name;
        EXPECT_EQ(page.events, "stamp ");

        combo.SelectColour(rgb(0, 0, 255));
        page.registry.deny(kKey.root, kKey.path);
        EXPECT_EQ(shown(), "Blue") << each.name;
        const std::string before = page.state();
        page.apply(tweak);
        EXPECT_EQ(page.state(), before);
    }
}

// ---- DwordRowChoice

constexpr TableColumn kColumns[] = {{"Value", 99}, {"Meaning", 295}};
constexpr std::string_view kCells[] = {"0", "nothing", "1", "some", "2", "all"};
constexpr Table kTable{
    .columns = kColumns,
    .cells = kCells,
    .binding = DwordRowChoice{{Root::CurrentUser, "Software\\Policies", "Windows\\System"}, "V"},
};
constexpr Tweak kRows{.id = 7, .title = "T", .description = "D", .page = Page::Category, .table = &kTable};

TEST(TableBindings, TheSelectedRowsIndexIsWrittenAndNothingWithoutOne) {
    PageFixture page;
    MemoryDialog& dialog = page.dialog(Page::Category);
    page.load("[HKCU\\Software]");
    page.show(kRows);
    ASSERT_TRUE(dialog.selectListRow(IDC_LIST, 1));
    page.apply(kRows);  // the key above is missing
    EXPECT_EQ(page.state(), stateOf("[HKCU\\Software]"));

    page.load("[HKCU\\Software\\Policies]");
    page.show(kRows);
    page.apply(kRows);  // showing anew has cleared the selection
    EXPECT_EQ(page.state(), stateOf("[HKCU\\Software\\Policies]"));

    ASSERT_TRUE(dialog.selectListRow(IDC_LIST, 2));
    page.apply(kRows);
    EXPECT_EQ(page.state(), stateOf("[HKCU\\Software\\Policies\\Windows\\System]\n\"V\"=dword:2"));
    ASSERT_TRUE(dialog.selectListRow(IDC_LIST, 0));
    page.apply(kRows);
    EXPECT_EQ(page.state(), stateOf("[HKCU\\Software\\Policies\\Windows\\System]\n\"V\"=dword:0"));
    EXPECT_EQ(page.events, "stamp stamp stamp stamp ");

    // What is stored does not select a row.
    page.show(kRows);
    EXPECT_EQ(dialog.selectedRow(IDC_LIST), -1);
}

}  // namespace
}  // namespace korvane
