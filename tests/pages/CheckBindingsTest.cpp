// The rules of the check boxes that stand for a single value: what shows as checked, what is written, and that nothing
// appears or disappears besides.
#include "tests/pages/BindingCases.h"

#include <array>
#include <span>

namespace korvane {
namespace {

constexpr DwordFlag kFlag{.key = kKey, .name = "V"};
constexpr DwordFlag kInverted = DwordFlagInverted(kKey, "V");
constexpr DwordFlag kOwnNumbers{.key = kKey, .name = "V", .checked = 0x95, .cleared = 0x91};
constexpr DwordFlag kDeleting{.key = kKey, .name = "V", .clearedDeletes = true};
constexpr DwordFlag kTwoValues{.key = kKey, .name = "V", .alsoName = "W"};
constexpr DwordFlag kTwoDeleting{.key = kKey, .name = "V", .clearedDeletes = true, .alsoName = "W"};
constexpr DwordCheckState kState{kKey, "V"};
constexpr StringFlag kText{kKey, "V"};
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

struct ShowCase {
    const char* name;
    CheckBinding binding;
    std::string data;
    bool checked;
};

// The type is not asked for, data that is too short counts as padded with zeros, and 202 bytes is the most that a
// query takes.
TEST(CheckBindings, ShowWhatIsStored) {
    const ShowCase cases[] = {
        {"1", kFlag, "dword:1", true},
        {"2", kFlag, "dword:2", false},
        {"0", kFlag, "dword:0", false},
        {"high byte", kFlag, "dword:1000001", false},
        {"one byte", kFlag, "hex:01", true},
        {"no bytes", kFlag, "hex:", false},
        {"text 1 is number 0x31", kFlag, "\"1\"", false},
        {"text of one byte 1", kFlag, "hex(1):01,00", true},
        {"five bytes", kFlag, "hex:01,00,00,00,ff", true},
        {"202 bytes", kFlag, bytes("01", 202), true},
        {"inverted 0", kInverted, "dword:0", true},
        {"inverted 1", kInverted, "dword:1", false},
        {"inverted 5", kInverted, "dword:5", false},
        {"inverted text", kInverted, "\"0\"", false},
        {"own number", kOwnNumbers, "dword:95", true},
        {"own cleared number", kOwnNumbers, "dword:91", false},
        {"own numbers, 1", kOwnNumbers, "dword:1", false},
        {"both agree", kTwoValues, "dword:1\n\"W\"=dword:1", true},
        {"the first alone", kTwoValues, "dword:1", false},
        {"the first disagrees", kTwoValues, "dword:0\n\"W\"=dword:1", false},
        {"the second disagrees", kTwoValues, "dword:1\n\"W\"=dword:2", false},
        {"state 0", kState, "dword:0", false},
        {"state 1", kState, "dword:1", true},
        // A two-state check box takes every state that it does not have for 1.
        {"state 2", kState, "dword:2", true},
        {"state with the sign bit", kState, "dword:80000000", true},
        {"state of no bytes", kState, "hex:", false},
        {"the first four bytes agree", kBytes, "hex:01,00,00,00,77", true},
        {"bytes of another type", kBytes, "dword:1", true},
        {"cleared bytes", kBytes, "hex:02", false},
        {"any bytes", kAnyBytes, "hex:77,77", true},
        {"none at all", kAnyBytes, "hex:", true},
        {"any text", kAnyText, "\"\"", true},
    };
    for (const ShowCase& each : cases) {
        EXPECT_EQ(OneBox(each.binding, stored(each.data)).shown(), each.checked) << each.name;
    }
}

TEST(CheckBindings, ShowTextsByTheirRuleOfComparing) {
    const auto comparing = [](Compare compare, std::string_view checked) {
        return StringFlag{.key = kKey, .name = "V", .checked = checked, .cleared = "no", .compare = compare};
    };
    const ShowCase cases[] = {
        {"equal", kText, "\"1\"", true},
        {"blank behind", kText, "\"1 \"", false},
        {"zero before", kText, "\"01\"", false},
        {"empty", kText, "\"\"", false},
        {"no bytes", kText, "hex(1):", false},
        {"number", kText, "dword:31", true},
        {"up to the first zero", kText, "hex(1):31,00,32,00", true},
        {"no zero at the end", kText, "hex:31", true},
        {"202 bytes", kText, bytes("31", 202), true},
        {"202 bytes without a zero", comparing(Compare::Contains, "11"),
         "hex:31" +
             [] {
                 std::string rest;
                 for (int i = 1; i < 202; ++i) {
                     rest += ",31";
                 }
                 return rest;
             }(),
         true},
        {"exact means case", comparing(Compare::Exact, "Yes"), "\"YES\"", false},
        {"ignoring case", comparing(Compare::IgnoreCase, "Yes"), "\"yES\"", true},
        {"ignoring case, longer", comparing(Compare::IgnoreCase, "Yes"), "\"yess\"", false},
        {"ignoring case, no letter", comparing(Compare::IgnoreCase, "@["), "\"`{\"", false},
        {"contained", comparing(Compare::Contains, "Yes"), "\"Oh Yes!\"", true},
        {"contained in another case", comparing(Compare::Contains, "Yes"), "\"yes\"", false},
        {"longer than what is stored", comparing(Compare::Contains, "Yes"), "\"Ye\"", false},
        {"as number", comparing(Compare::AsNumber, "1"), "\" 01 hour\"", true},
        {"as another number", comparing(Compare::AsNumber, "1"), "\"10\"", false},
        {"no number counts as 0", comparing(Compare::AsNumber, "0"), "\"none\"", true},
    };
    for (const ShowCase& each : cases) {
        EXPECT_EQ(OneBox(each.binding, stored(each.data)).shown(), each.checked) << each.name;
    }
}

TEST(CheckBindings, ShowOneBitOfAMask) {
    const ShowCase cases[] = {
        {"inverted, set", kInvertedMask, "hex:9e,3e,05,80", false},
        {"inverted, clear", kInvertedMask, "hex:7f,ff,ff,ff", true},
        {"set", kAssumedMask, "hex:00,00,00,20", true},
        {"all others set", kAssumedMask, "hex:ff,ff,ff,df", false},
        {"too short to hold the bit", kAssumedMask, "hex:ff,ff,ff", false},
        {"no bytes", kInvertedMask, "hex:", true},
        {"as number", kAssumedMask, "dword:20000000", true},
    };
    for (const ShowCase& each : cases) {
        EXPECT_EQ(OneBox(each.binding, stored(each.data)).shown(), each.checked) << each.name;
    }
}

TEST(CheckBindings, WhatCannotBeReadShowsAsReset) {
    struct Kind {
        const char* name;
        CheckBinding binding;
        std::string firstBytes;
        bool checked;  // with nothing in the way; the opposite of what is shown without a value
    };
    const Kind kinds[] = {
        {"flag", kFlag, "01", true},
        {"inverted", kInverted, "00", true},
        {"two values", DwordFlag{.key = kKey, .name = "V", .alsoName = "V"}, "01", true},
        {"policy", PolicyDwordFlag(kKey, "V"), "01", true},
        {"created below", PolicyDwordFlag({Root::CurrentUser, "Software", "Invented"}, "V"), "01", true},
        {"state", kState, "01", true},
        {"text", kText, "31", true},
        {"bytes", kBytes, "01", true},
        {"any bytes", kAnyBytes, "77", true},
        {"any text", kAnyText, "77", true},
        {"mask", kInvertedMask, "7f", true},
        {"assumed mask", kAssumedMask, "00", false},
    };
    for (const Kind& kind : kinds) {
        EXPECT_EQ(OneBox(kind.binding, stored(bytes(kind.firstBytes, 202))).shown(), kind.checked) << kind.name;
        for (const Obstacle obstacle : kObstacles) {
            OneBox page(kind.binding);
            putInTheWay(page, obstacle, kind.firstBytes);
            EXPECT_EQ(page.shown(), !kind.checked) << kind.name << ", obstacle " << static_cast<int>(obstacle);
        }
    }
}

struct ApplyCase {
    const char* name;
    CheckBinding binding;
    bool checked;
    std::string before;
    std::string after;
};

void expectApplied(std::span<const ApplyCase> cases) {
    for (const ApplyCase& each : cases) {
        OneBox page(each.binding, each.before.empty() ? std::string(kNothingStored) : stored(each.before));
        EXPECT_EQ(page.applied(each.checked), stateOf(each.after.empty() ? kNothingStored : stored(each.after)))
            << each.name;
        EXPECT_EQ(page.events, "stamp ") << each.name;
    }
}

TEST(CheckBindings, ApplyNumbers) {
    const ApplyCase cases[] = {
        {"checked", kFlag, true, "dword:0", "dword:1"},
        {"cleared", kFlag, false, "dword:1", "dword:0"},
        {"unchanged other number", kFlag, false, "dword:2", "dword:0"},
        {"new", kFlag, true, "", "dword:1"},
        {"cleared without a value", kFlag, false, "", "dword:0"},
        {"another type", kFlag, true, "\"text\"", "dword:1"},
        {"too long", kFlag, true, bytes("01", 203), "dword:1"},
        {"inverted checked", kInverted, true, "dword:1", "dword:0"},
        {"inverted cleared", kInverted, false, "dword:5", "dword:1"},
        {"own number", kOwnNumbers, true, "dword:91", "dword:95"},
        {"own cleared number", kOwnNumbers, false, "dword:95", "dword:91"},
        {"cleared deletes", kDeleting, false, "dword:1", ""},
        {"cleared deletes any type", kDeleting, false, "\"text\"", ""},
        {"cleared deletes nothing", kDeleting, false, "", ""},
        {"deleting, checked", kDeleting, true, "", "dword:1"},
        {"both", kTwoValues, true, "dword:1\n\"W\"=dword:7", "dword:1\n\"W\"=dword:1"},
        {"both cleared", kTwoValues, false, "", "dword:0\n\"W\"=dword:0"},
        {"both deleted", kTwoDeleting, false, "dword:1\n\"W\"=dword:1", ""},
        {"the second deleted alone", kTwoDeleting, false, "dword:1\n\"w\"=\"text\"", ""},
        {"deleted by path", DwordFlag{.key = kKey, .name = "V", .clearedDeletesByPath = true}, false, "dword:1", ""},
        {"bytes checked", kBytes, true, "hex:02", "hex:01,00,00,00,09"},
        {"bytes cleared", kBytes, false, "hex:01,00,00,00,09", "hex:02"},
        {"bytes of a value of another type", kBytes, true, "\"text\"", "hex:01,00,00,00,09"},
        {"bytes deleted", kAnyBytes, false, "hex:77", ""},
        {"any bytes become the row's", kAnyBytes, true, "hex:77", "hex:02"},
        {"state 2 stays checked", kState, true, "dword:2", "dword:1"},
        {"state cleared", kState, false, "dword:1", "dword:0"},
        {"state deleted", DwordCheckState{kKey, "V", true}, false, "dword:1", ""},
        {"state set where cleared deletes", DwordCheckState{kKey, "V", true}, true, "", "dword:1"},
    };
    expectApplied(cases);
}

TEST(CheckBindings, ApplyTexts) {
    const StringFlag yesNo{.key = kKey, .name = "V", .checked = "Yes", .cleared = "", .compare = Compare::Contains};
    const StringFlag expanding{.key = kKey, .name = "V", .checked = "%a%", .cleared = "b", .type = ValueType::ExpandSz};
    const StringFlag deleting{.key = kKey, .name = "V", .clearedDeletes = true};
    const ApplyCase cases[] = {
        {"checked", kText, true, "", "\"1\""},
        {"cleared", kText, false, "\"1\"", "\"0\""},
        {"unchanged other text", kText, false, "\"1 \"", "\"0\""},
        {"another type", kText, true, "dword:0", "\"1\""},
        {"shown for another text", yesNo, true, "\"Oh Yes!\"", "\"Yes\""},
        {"the empty text has no bytes", yesNo, false, "\"Yes\"", "hex(1):"},
        {"expanding", expanding, true, "\"b\"", "hex(2):25,61,25,00"},
        {"expanding cleared", expanding, false, "\"%a%\"", "hex(2):62,00"},
        {"cleared deletes", deleting, false, "\"1\"", ""},
        {"deleting, checked", deleting, true, "", "\"1\""},
    };
    expectApplied(cases);
}

TEST(CheckBindings, ApplyMasks) {
    const ApplyCase cases[] = {
        {"bit cleared with the low four", kInvertedMask, true, "hex:9e,3e,05,80", "hex:10,3e,05,80"},
        {"low four cleared even so", kInvertedMask, true, "hex:1f,3e,05,80", "hex:10,3e,05,80"},
        {"bit set", kInvertedMask, false, "hex:7f,3e,05,80", "hex:f0,3e,05,80"},
        {"bit already set", kInvertedMask, false, "hex:f8,ff,00,01", "hex:f0,ff,00,01"},
        {"shorter", kInvertedMask, false, "hex:01", "hex:80,00,00,00"},
        {"longer", kInvertedMask, true, "hex:80,01,02,03,04", "hex:00,01,02,03"},
        {"another type", kInvertedMask, false, "dword:01020304", "hex:80,03,02,01"},
        {"other bits of the byte are kept", kAssumedMask, true, "hex:11,22,33,44", "hex:11,22,33,64"},
        {"cleared", kAssumedMask, false, "hex:11,22,33,ff", "hex:11,22,33,df"},
        {"assumed and cleared", kAssumedMask, false, "", "hex:81,3e,9e,00"},
        {"assumed and checked", kAssumedMask, true, "", "hex:81,3e,9e,20"},
        {"nothing assumed", kInvertedMask, true, "", "hex:00,00,00,00"},
    };
    expectApplied(cases);
}

TEST(CheckBindings, AKeyThatCannotBeOpenedIsLeftOutInSilence) {
    const CheckBinding bindings[] = {kFlag,         kInverted,    kDeleting, kTwoDeleting, kState,  kText,
                                     kInvertedMask, kAssumedMask, kBytes,    kAnyBytes,    kAnyText};
    for (const CheckBinding& binding : bindings) {
        for (const Obstacle obstacle : kNothingOpens) {
            for (const bool checked : {true, false}) {
                OneBox before(binding);
                OneBox whenOpen(binding, {}, Stamp::WhenOpen);
                putInTheWay(before, obstacle, "01");
                putInTheWay(whenOpen, obstacle, "01");
                const std::string state = before.state();
                EXPECT_EQ(before.applied(checked), state);
                EXPECT_EQ(before.events, "stamp ");
                EXPECT_EQ(whenOpen.applied(checked), state);
                EXPECT_EQ(whenOpen.events, "");
            }
        }
    }
}

TEST(CheckBindings, ASecondKeyIsWrittenLikeTheFirstButNotRead) {
    const KeyPath second{Root::LocalMachine, "", "Second"};
    const CheckBinding text = StringFlag{.key = kKey, .name = "V", .also = second};
    MaskBit maskBoth = kInvertedMask;
    maskBoth.also = second;
    constexpr std::string_view kSecondStored = "\n[HKLM\\Second]\n\"V\"=";

    EXPECT_FALSE(OneBox(text, stored("\"0\"") + std::string(kSecondStored) + "\"1\"").shown());
    EXPECT_EQ(OneBox(text, kNothingStored).applied(true),
              stateOf(stored("\"1\"") + std::string(kSecondStored) + "\"1\""));
    // Each mask keeps its own other bits.
    EXPECT_EQ(
        OneBox(maskBoth, stored("hex:80,01,02,03") + std::string(kSecondStored) + "hex:ff,00,00,00").applied(true),
        stateOf(stored("hex:00,01,02,03") + std::string(kSecondStored) + "hex:70,00,00,00"));

    for (const CheckBinding& binding : {text, CheckBinding(maskBoth)}) {
        OneBox firstDenied(binding, kNothingStored, Stamp::WhenOpen);
        firstDenied.registry.deny(Root::CurrentUser, "");
        EXPECT_NE(firstDenied.applied(true), stateOf(kNothingStored));
        EXPECT_EQ(firstDenied.events, "stamp ");
        OneBox bothOpen(binding, kNothingStored, Stamp::WhenOpen);
        bothOpen.applied(true);
        EXPECT_EQ(bothOpen.events, "stamp stamp ");
    }
}

TEST(CheckBindings, AKeyMayLieElsewhereOnSomeVersions) {
    const KeyPath either{
        .root = Root::LocalMachine, .path = "Nt", .otherOn = kWindows9x, .otherPath = "Old", .otherCreated = "Made"};
    constexpr std::string_view kBoth = "[HKLM\\Nt]\n[HKLM\\Old]";
    for (const CheckBinding& binding :
         {CheckBinding(DwordFlag{.key = either, .name = "V"}), CheckBinding(DwordCheckState{either, "V"})}) {
        OneBox nt(binding, kBoth);
        EXPECT_EQ(nt.applied(true), stateOf("[HKLM\\Nt]\n\"V\"=dword:1\n[HKLM\\Old]"));
        nt.runOn("98");
        EXPECT_FALSE(nt.shown());
        EXPECT_EQ(nt.applied(true), stateOf("[HKLM\\Nt]\n\"V\"=dword:1\n[HKLM\\Old\\Made]\n\"V\"=dword:1"));
        EXPECT_TRUE(nt.shown());
    }
    const CheckBinding byPath = DwordFlag{.key = either, .name = "V", .clearedDeletesByPath = true};
    OneBox deleting(byPath, "[HKLM\\Nt]\n\"V\"=dword:1\n[HKLM\\Old\\Made]\n\"V\"=dword:1");
    deleting.runOn("me");
    EXPECT_EQ(deleting.applied(false), stateOf("[HKLM\\Nt]\n\"V\"=dword:1\n[HKLM\\Old\\Made]"));
    // Deleting by path makes no key.
    EXPECT_EQ(
        OneBox(DwordFlag{.key = {Root::Users, "", "New"}, .name = "V", .clearedDeletesByPath = true}).applied(false),
        "");
}

// ---- SubkeyFlag

TEST(SubkeyFlags, TheSubkeyIsShownMadeAndDeleted) {
    constexpr SubkeyFlag kThere{.parent = kKey, .name = "Sub"};
    constexpr SubkeyFlag kGone{.parent = kKey, .name = "Sub", .checkedWhenAbsent = true, .deletesTree = true};
    constexpr std::string_view kParent = "[HKCU\\Software\\Invented]";
    constexpr std::string_view kSub = "[HKCU\\Software\\Invented\\Sub]";
    constexpr std::string_view kDeep = "[HKCU\\Software\\Invented\\Sub\\Deep]";

    EXPECT_FALSE(OneBox(kThere, kParent).shown());
    EXPECT_TRUE(OneBox(kThere, kSub).shown());
    EXPECT_TRUE(OneBox(kGone, kParent).shown());
    EXPECT_FALSE(OneBox(kGone, kSub).shown());

    EXPECT_EQ(OneBox(kThere, kParent).applied(true), stateOf(kSub));
    EXPECT_EQ(OneBox(kThere, kSub).applied(false), stateOf(kParent));
    EXPECT_EQ(OneBox(kThere, kDeep).applied(false), stateOf(kDeep));
    EXPECT_EQ(OneBox(kGone, kParent).applied(false), stateOf(kSub));
    EXPECT_EQ(OneBox(kGone, kDeep).applied(true), stateOf(kParent));
    // A key that is there already is left as it is.
    EXPECT_EQ(OneBox(kThere, kDeep).applied(true), stateOf(kDeep));

    for (const SubkeyFlag& flag : {kThere, kGone}) {
        for (const bool checked : {true, false}) {
            for (const Obstacle obstacle : kNothingOpens) {
                OneBox page(flag, {}, Stamp::WhenOpen);
                putInTheWay(page, obstacle, "01");
                const std::string before = page.state();
                EXPECT_EQ(page.shown(), flag.checkedWhenAbsent);
                EXPECT_EQ(page.applied(checked), before);
                EXPECT_EQ(page.events, "");
            }
        }
    }
}

TEST(SubkeyFlags, ATextMayBeWrittenAndLookedAt) {
    constexpr SubkeyFlag kHandler{
        .parent = kKey, .name = "Sub", .text = "{Ab}", .shownByText = true, .compare = Compare::IgnoreCase};
    const std::string sub = "[HKCU\\Software\\Invented\\Sub]\n";
    EXPECT_FALSE(OneBox(kHandler, sub).shown());
    EXPECT_FALSE(OneBox(kHandler, sub + "@=\"{cd}\"").shown());
    EXPECT_TRUE(OneBox(kHandler, sub + "@=\"{aB}\"").shown());
    EXPECT_EQ(OneBox(kHandler, sub + "@=\"{aB}\"").applied(true), stateOf(sub + "@=\"{Ab}\""));
    EXPECT_EQ(OneBox(kHandler, "[HKCU\\Software\\Invented]").applied(true), stateOf(sub + "@=\"{Ab}\""));
    EXPECT_EQ(OneBox(kHandler, sub + "@=\"{cd}\"").applied(false), stateOf("[HKCU\\Software\\Invented]"));
}

TEST(CheckBindings, KeysAreMadeAsFarAsTheRowSays) {
    const CheckBinding policy = PolicyDwordFlag({Root::LocalMachine, "Software\\Policies\\P"}, "V");
    EXPECT_EQ(OneBox(policy).applied(true), stateOf("[HKLM\\Software\\Policies\\P]\n\"V\"=dword:1"));
    EXPECT_EQ(OneBox(policy).applied(false), stateOf("[HKLM\\Software\\Policies\\P]\n\"V\"=dword:0"));
    EXPECT_EQ(OneBox(policy, {}, Stamp::WhenOpen).applied(false), OneBox(policy).applied(false));

    const CheckBinding below = PolicyDwordFlag({Root::CurrentUser, "Software", "Policies\\P"}, "V");
    EXPECT_EQ(OneBox(below).applied(true), "");
    EXPECT_EQ(OneBox(below, "[HKCU\\Software]").applied(true), stateOf("[HKCU\\Software\\Policies\\P]\n\"V\"=dword:1"));
    EXPECT_TRUE(OneBox(below, "[HKCU\\Software\\Policies\\P]\n\"V\"=dword:1").shown());

    // A made key stays, even where a cleared box then only deletes.
    const CheckBinding deleting = StringFlag{.key = {Root::CurrentUser, "A", "B"}, .name = "V", .clearedDeletes = true};
    EXPECT_EQ(OneBox(deleting, "[HKCU\\A]").applied(false), stateOf("[HKCU\\A\\B]"));
    EXPECT_EQ(OneBox(deleting).applied(false), "");

    OneBox denied(policy);
    denied.registry.deny(Root::LocalMachine, "Software\\Policies");
    EXPECT_EQ(denied.applied(true), "");
    OneBox deniedParent(below, "[HKCU\\Software]");
    deniedParent.registry.deny(Root::CurrentUser, "Software\\Policies\\P");
    EXPECT_EQ(deniedParent.applied(true), stateOf("[HKCU\\Software]"));

    // The root itself.
    const CheckBinding ofRoot = DwordFlag{.key = {Root::Users, ""}, .name = "V"};
    EXPECT_EQ(OneBox(ofRoot).applied(true), stateOf("[HKU]\n\"V\"=dword:1"));
    EXPECT_TRUE(OneBox(ofRoot, "[HKU]\n\"V\"=dword:1").shown());
}

// ---- ScopePair

class Pair : public PageFixture {
public:
    template <typename Binding>
    explicit Pair(const Binding& binding, std::string_view blocks = {}, Stamp stamp = Stamp::BeforeOpening)
        : boxes_(ScopePair("Box (Current User)", "Box (All Users)", binding)),
          tweak_{.id = 7, .title = "T", .description = "D", .page = Page::Checks, .boxes = boxes_, .stamp = stamp} {
        load(blocks);
        show(tweak_);
    }

    std::string shown() {
        MemoryDialog& page = dialog(Page::Checks);
        return std::to_string(page.check(IDC_CHECK1)) + std::to_string(page.check(IDC_CHECK2));
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

constexpr std::string_view kUserOnMachineOff =
    "[HKCU\\Software\\Invented]\n\"V\"=dword:1\n[HKLM\\Software\\Invented]\n\"V\"=dword:0";

TEST(ScopePairs, EachBoxIsBoundToItsOwnRoot) {
    Pair page(kFlag, kUserOnMachineOff);
    EXPECT_EQ(page.shown(), "10");
    EXPECT_EQ(page.dialog(Page::Checks).text(IDC_CHECK1), "Box (Current User)");
    EXPECT_EQ(page.dialog(Page::Checks).text(IDC_CHECK2), "Box (All Users)");
    EXPECT_EQ(page.clickBothAndApply(),
              stateOf("[HKCU\\Software\\Invented]\n\"V\"=dword:0\n[HKLM\\Software\\Invented]\n\"V\"=dword:1"));
    EXPECT_EQ(page.events, "stamp ");

    Pair made(PolicyDwordFlag({Root::CurrentUser, "Software", "Policies\\P"}, "V"),
              "[HKCU\\Software]\n[HKLM\\Software]");
    EXPECT_EQ(made.clickBothAndApply(),
              stateOf("[HKCU\\Software\\Policies\\P]\n\"V\"=dword:1\n[HKLM\\Software\\Policies\\P]\n\"V\"=dword:1"));
}

TEST(ScopePairs, ADeniedRootDoesNotKeepTheOtherFromBeingReadAndWritten) {
    for (const Stamp stamp : {Stamp::BeforeOpening, Stamp::WhenOpen}) {
        Pair noMachine(kFlag, kUserOnMachineOff, stamp);
        noMachine.registry.deny(Root::LocalMachine, "");
        EXPECT_EQ(noMachine.clickBothAndApply(),
                  stateOf("[HKCU\\Software\\Invented]\n\"V\"=dword:0\n[HKLM\\Software\\Invented]\n\"V\"=dword:0"));
        EXPECT_EQ(noMachine.events, "stamp ");

        Pair noUser(kFlag, kUserOnMachineOff, stamp);
        noUser.registry.deny(Root::CurrentUser, "");
        EXPECT_EQ(noUser.clickBothAndApply(),
                  stateOf("[HKCU\\Software\\Invented]\n\"V\"=dword:1\n[HKLM\\Software\\Invented]\n\"V\"=dword:1"));
        EXPECT_EQ(noUser.events, "stamp ");
    }
}

TEST(ScopePairs, TheCurrentUserIsWrittenFirstAndEachRootStampedJustBeforeItsWrite) {
    Pair page(kFlag, kUserOnMachineOff, Stamp::WhenOpen);
    page.clickBothAndApply();
    ASSERT_EQ(page.stamps.size(), 2U);
    EXPECT_EQ(page.stamps[0].state, stateOf(kUserOnMachineOff));
    EXPECT_EQ(page.stamps[1].state,
              stateOf("[HKCU\\Software\\Invented]\n\"V\"=dword:0\n[HKLM\\Software\\Invented]\n\"V\"=dword:0"));
    for (const StampRecord& stamp : page.stamps) {
        EXPECT_EQ(stamp.openHandles, 2U);  // root and key
    }
}

}  // namespace
}  // namespace korvane
