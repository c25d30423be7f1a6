// The rules of the check boxes that stand for a single value: what shows as checked, what is written, and that nothing
// appears or disappears besides.
#include "tests/pages/BindingCases.h"

#include <array>

namespace korvane {
namespace {

constexpr DwordFlag kFlag{.key = kKey, .name = "V"};
constexpr DwordFlag kInverted = DwordFlagInverted(kKey, "V");
constexpr DwordFlag kDeleting{.key = kKey, .name = "V", .clearedDeletes = true};
constexpr DwordFlag kTwoValues{.key = kKey, .name = "V", .alsoName = "W"};
constexpr DwordFlag kTwoDeleting{.key = kKey, .name = "V", .clearedDeletes = true, .alsoName = "W"};
constexpr DwordCheckState kState{kKey, "V"};
constexpr StringFlag kText{kKey, "V"};
constexpr StringFlag kExpanding{.key = kKey, .name = "V", .checked = "%a%", .cleared = "", .type = ValueType::ExpandSz};
// Bit 7 of the first byte, checked when clear; an apply also clears the four low bits of that byte.
constexpr MaskBit kInvertedMask{
    .key = kKey, .name = "V", .byte = 0, .bit = 0x80, .checkedWhenClear = true, .kept = 0xF0};
// Bit 5 of the last byte of a mask that is assumed to be there.
constexpr MaskBit kAssumedMask{
    .key = kKey, .name = "V", .byte = 3, .bit = 0x20, .whenMissing = 0x209E3E81, .checkedWhenMissing = true};
constexpr std::byte kOn[] = {std::byte{1}, std::byte{0}, std::byte{0}, std::byte{0}, std::byte{9}};
constexpr std::byte kOff[] = {std::byte{2}};
constexpr BinaryFlag kBytes{.key = kKey, .name = "V", .checked = kOn, .cleared = kOff};
constexpr BinaryFlag kAnyBytes{.key = kKey, .name = "V", .checked = kOff, .shown = BinaryFlag::Shown::Present};
constexpr StringFlag kAnyText{.key = kKey, .name = "V", .clearedDeletes = true, .checkedWhenPresent = true};

StringFlag comparing(Compare compare, std::string_view checked) {
    return {.key = kKey, .name = "V", .checked = checked, .cleared = "no", .compare = compare};
}

// The type is not asked for, data that is too short counts as padded with zeros, and 202 bytes is the most that a
// query takes.
TEST(CheckBindings, ShowWhatIsStored) {
    struct Case {
        const char* name;
        CheckBinding binding;
        std::string data;
        bool checked;
    };
    const Case cases[] = {
        {"high byte", kFlag, "dword:1000001", false},
        {"one byte", kFlag, "hex:01", true},
        {"no bytes", kFlag, "hex:", false},
        {"text 1 is number 0x31", kFlag, "\"1\"", false},
        {"the first alone", kTwoValues, "dword:1", false},
        {"the second disagrees", kTwoValues, "dword:1\n\"W\"=dword:2", false},
        // A two-state check box takes every state that it does not have for 1.
        {"state with the sign bit", kState, "dword:80000000", true},
        {"the first four bytes agree", kBytes, "hex:01,00,00,00,77", true},
        {"none at all", kAnyBytes, "hex:", true},
        {"exact means case", comparing(Compare::Exact, "Yes"), "\"YES\"", false},
        {"ignoring case, no letter", comparing(Compare::IgnoreCase, "@["), "\"`{\"", false},
        {"no number counts as 0", comparing(Compare::AsNumber, "0"), "\"none\"", true},
        {"all others set", kAssumedMask, "hex:ff,ff,ff,df", false},
        {"too short to hold the bit", kAssumedMask, "hex:ff,ff,ff", false},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(OneBox(each.binding, stored(each.data)).shown(), each.checked) << each.name;
    }
}

TEST(CheckBindings, WhatCannotBeReadShowsAsResetAndWhatCannotBeOpenedIsLeftOut) {
    struct Kind {
        const char* name;
        CheckBinding binding;
        std::string firstBytes;
        bool checked;  // with nothing in the way; the opposite of what is shown without a value
    };
    const Kind kinds[] = {
        {"flag", kFlag, "01", true},          {"inverted", kInverted, "00", true},
        {"state", kState, "01", true},        {"deleting", kDeleting, "01", true},
        {"text", kText, "31", true},          {"bytes", kBytes, "01", true},
        {"any bytes", kAnyBytes, "77", true}, {"any text", kAnyText, "77", true},
        {"mask", kInvertedMask, "7f", true},  {"assumed mask", kAssumedMask, "00", false},
    };
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.name);
        EXPECT_EQ(OneBox(kind.binding, stored(bytes(kind.firstBytes, 202))).shown(), kind.checked);
        for (const Obstacle obstacle : kObstacles) {
            OneBox page(kind.binding);
            putInTheWay(page, obstacle, kind.firstBytes);
            EXPECT_EQ(page.shown(), !kind.checked) << static_cast<int>(obstacle);
        }
        for (const Obstacle obstacle : kNothingOpens) {
            for (const bool checked : {true, false}) {
                OneBox page(kind.binding, {}, Stamp::WhenOpen);
                putInTheWay(page, obstacle, "01");
                const std::string state = page.state();
                EXPECT_EQ(page.applied(checked), state) << static_cast<int>(obstacle);
                EXPECT_EQ(page.events, "");
            }
        }
    }
}

TEST(CheckBindings, ApplyWhatTheRowSays) {
    struct Case {
        const char* name;
        CheckBinding binding;
        bool checked;
        std::string before;  // empty: no value
        std::string after;
    };
    const Case cases[] = {
        {"too long", kFlag, true, bytes("01", 203), "dword:1"},
        {"cleared deletes any type", kDeleting, false, "\"text\"", ""},
        {"both", kTwoValues, true, "dword:1\n\"W\"=dword:7", "dword:1\n\"W\"=dword:1"},
        {"the second deleted alone", kTwoDeleting, false, "dword:1\n\"w\"=\"text\"", ""},
        {"deleted by path", DwordFlag{.key = kKey, .name = "V", .clearedDeletesByPath = true}, false, "dword:1", ""},
        {"bytes of a value of another type", kBytes, true, "\"text\"", "hex:01,00,00,00,09"},
        {"any bytes become the row's", kAnyBytes, true, "hex:77", "hex:02"},
        {"state deleted", DwordCheckState{kKey, "V", true}, false, "dword:1", ""},
        {"expanding", kExpanding, true, "\"b\"", "hex(2):25,61,25,00"},
        {"the empty text has no bytes", kExpanding, false, "\"%a%\"", "hex(2):"},
        {"bit cleared with the low four", kInvertedMask, true, "hex:9e,3e,05,80", "hex:10,3e,05,80"},
        {"shorter", kInvertedMask, false, "hex:01", "hex:80,00,00,00"},
        {"other bits of the byte are kept", kAssumedMask, true, "hex:11,22,33,44", "hex:11,22,33,64"},
        {"assumed and cleared", kAssumedMask, false, "", "hex:81,3e,9e,00"},
        {"nothing assumed", kInvertedMask, true, "", "hex:00,00,00,00"},
    };
    for (const Case& each : cases) {
        OneBox page(each.binding, each.before.empty() ? std::string(kNothingStored) : stored(each.before));
        EXPECT_EQ(page.applied(each.checked), stateOf(each.after.empty() ? kNothingStored : stored(each.after)))
            << each.name;
        EXPECT_EQ(page.events, "stamp ") << each.name;
    }
}

TEST(CheckBindings, ASecondKeyIsWrittenLikeTheFirstButNotRead) {
    MaskBit mask = kInvertedMask;
    constexpr static KeyPath kSecond{Root::LocalMachine, "", "Second"};
    mask.key = mask.key.writtenAlsoTo(kSecond);
    const std::string second = "\n[HKLM\\Second]\n\"V\"=hex:";
    // Each mask keeps its own other bits.
    OneBox page(mask, stored("hex:80,01,02,03") + second + "7f,00,00,00", Stamp::WhenOpen);
    EXPECT_FALSE(page.shown());
    EXPECT_EQ(page.applied(true), stateOf(stored("hex:00,01,02,03") + second + "70,00,00,00"));
    EXPECT_EQ(page.events, "stamp stamp ");
    OneBox firstDenied(mask, kNothingStored);
    firstDenied.registry.deny(Root::CurrentUser, "");
    EXPECT_EQ(firstDenied.applied(true), stateOf(std::string(kNothingStored) + second + "00,00,00,00"));
}

TEST(CheckBindings, KeysAreMadeAsFarAsTheRowSays) {
    const CheckBinding policy = PolicyDwordFlag({Root::LocalMachine, "Software\\Policies\\P"}, "V");
    EXPECT_EQ(OneBox(policy).applied(false), stateOf("[HKLM\\Software\\Policies\\P]\n\"V\"=dword:0"));
    const CheckBinding below = PolicyDwordFlag({Root::CurrentUser, "Software", "Policies\\P"}, "V");
    EXPECT_EQ(OneBox(below).applied(true), "");
    EXPECT_EQ(OneBox(below, "[HKCU\\Software]").applied(true), stateOf("[HKCU\\Software\\Policies\\P]\n\"V\"=dword:1"));
    // A made key stays, even where a cleared box then only deletes.
    const CheckBinding deleting = DwordFlag{.key = {Root::CurrentUser, "A", "B"}, .name = "V", .clearedDeletes = true};
    EXPECT_EQ(OneBox(deleting, "[HKCU\\A]").applied(false), stateOf("[HKCU\\A\\B]"));
    // Deleting by path makes no key.
    const CheckBinding byPath = DwordFlag{.key = {Root::Users, "", "New"}, .name = "V", .clearedDeletesByPath = true};
    EXPECT_EQ(OneBox(byPath).applied(false), "");
    OneBox denied(below, "[HKCU\\Software]");
    denied.registry.deny(Root::CurrentUser, "Software\\Policies\\P");
    EXPECT_EQ(denied.applied(true), stateOf("[HKCU\\Software]"));
}

// ---- ScopePair

class Pair : public PageFixture {
public:
    Pair(std::string_view blocks, Stamp stamp)
        : boxes_(ScopePair("Box (Current User)", "Box (All Users)", kFlag)),
          tweak_{.id = 7, .title = "T", .description = "D", .page = Page::Checks, .boxes = boxes_, .stamp = stamp} {
        load(blocks);
        show(tweak_);
    }

    std::string clickBothAndApply() {
        EXPECT_TRUE(dialog(Page::Checks).clickCheckBox(IDC_CHECK1));
        EXPECT_TRUE(dialog(Page::Checks).clickCheckBox(IDC_CHECK2));
        apply(tweak_);
        return state();
    }

private:
    std::array<CheckBox, 2> boxes_;
    Tweak tweak_;
};

std::string pairState(char user, char machine) {
    return std::string("[HKCU\\Software\\Invented]\n\"V\"=dword:") + user +
           "\n[HKLM\\Software\\Invented]\n\"V\"=dword:" + machine;
}

TEST(ScopePairs, TheCurrentUserIsWrittenFirstAndEachRootStampedJustBeforeItsWrite) {
    Pair page(pairState('1', '0'), Stamp::WhenOpen);
    EXPECT_EQ(page.clickBothAndApply(), stateOf(pairState('0', '1')));
    ASSERT_EQ(page.stamps.size(), 2U);
    EXPECT_EQ(page.stamps[0].state, stateOf(pairState('1', '0')));
    EXPECT_EQ(page.stamps[1].state, stateOf(pairState('0', '0')));
}

}  // namespace
}  // namespace korvane
