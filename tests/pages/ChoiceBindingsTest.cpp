// The rules of combo boxes and of the colour list.
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
        {"first of two", numbers(0, 2), "dword:8", 1},
        {"the number of the deleting entry", numbers(1, kNoSelection), "dword:0", kNoSelection},
        {"no bytes", numbers(0, 2), "hex:", 2},
        {"no value, none", numbers(kNoSelection, 2), "", kNoSelection},
        {"index beyond the entries", numbers(4, 1), "", kNoSelection},
        {"no exact text", texts(Compare::Exact, 1, 0), "\"yes\"", 0},
        {"empty text", texts(Compare::Exact, 1, 2), "\"\"", 2},
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
        std::string_view events;
    };
    const auto number = [](WhenNone whenNone, std::uint32_t none = 0xFFFFFFFF) {
        return DwordChoice{.key = kKey, .name = "V", .entries = kNumbers, .whenNone = whenNone, .noneNumber = none};
    };
    const auto text = [](WhenNone whenNone, std::string_view none = "-1") {
        return StringChoice{.key = kKey, .name = "V", .entries = kTexts, .whenNone = whenNone, .noneText = none};
    };
    const Case cases[] = {
        {"second of two", number(WhenNone::Deletes), 3, "dword:8", "stamp "},
        {"deleting entry", number(WhenNone::Writes), 0, "", ""},
        {"no number, another one", number(WhenNone::Writes, 5), kNoSelection, "dword:5", "stamp "},
        {"no number, deleted", number(WhenNone::Deletes), kNoSelection, "", ""},
        {"no number, deleted in the open key", number(WhenNone::DeletesInOpenKey), kNoSelection, "", "stamp "},
        {"no text", text(WhenNone::Writes), kNoSelection, "\"-1\"", "stamp "},
        {"no text, nothing", text(WhenNone::WritesNothing), kNoSelection, "\"old\"", ""},
    };
    for (const Case& each : cases) {
        OneChoice page(each.binding, stored("\"old\""), Stamp::WhenOpen);
        EXPECT_EQ(page.applied(each.index), stateOf(each.after.empty() ? kNothingStored : stored(each.after)))
            << each.name;
        EXPECT_EQ(page.events, each.events) << each.name;
        for (const Obstacle obstacle : kNothingOpens) {
            OneChoice closed(each.binding);
            putInTheWay(closed, obstacle, "09");
            const std::string state = closed.state();
            EXPECT_EQ(closed.applied(each.index), state) << each.name << ", obstacle " << static_cast<int>(obstacle);
        }
    }
    // Keys are made for a number and not for a deletion.
    const ChoiceBinding below = DwordChoice{.key = {Root::CurrentUser, "", "Made"}, .name = "V", .entries = kNumbers};
    EXPECT_EQ(OneChoice(below).applied(1), stateOf("[HKCU\\Made]\n\"V\"=dword:8"));
    EXPECT_EQ(OneChoice(below).applied(0), "");
}

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
        {"the first of two names", text, "\"0 255 255\"", "Aqua", "\"0 255 255\""},
        {"red, green and blue in this order", text, "\"255 127 80\"", "Coral", "\"255 127 80\""},
        {"modulo 256", text, "\"511 256 512\"", "Red", "\"255 0 0\""},
        // A colour without a name keeps the row that was selected before, and applying writes that one.
        {"each single blank separates", text, "\"255  127 80\"", "Green", "\"0 128 0\""},
        {"the fourth byte does not count", binary, "hex:ff,7f,50,99", "Coral", "hex:ff,7f,50,00"},
    };
    for (const Case& each : cases) {
        const ColourField colour{.label = "Colour", .binding = each.binding};
        const Tweak tweak{.id = 7, .title = "T", .description = "D", .page = Page::CheckCombos, .colour = &colour};
        PageFixture page;
        MemoryDialog& dialog = page.dialog(Page::CheckCombos);
        CColourCombo combo(dialog, IDC_COLOUR_COMBO);
        combo.FillColours();
        combo.SelectColour(rgb(0, 128, 0));
        page.load(stored(each.data));
        page.show(tweak);
        EXPECT_EQ(dialog.text(IDC_COLOUR_COMBO), each.shown) << each.name;
        page.apply(tweak);
        EXPECT_EQ(page.state(), stateOf(stored(each.after))) << each.name;
        page.registry.deny(kKey.root, kKey.path);
        combo.SelectColour(rgb(0, 0, 255));
        page.apply(tweak);
        EXPECT_EQ(page.state(), stateOf(stored(each.after))) << each.name;
    }
}

}  // namespace
}  // namespace korvane
