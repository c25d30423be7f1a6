// The rules of edit boxes: what is made of the stored text or number, and of what was typed.
#include "tests/pages/BindingCases.h"

namespace korvane {
namespace {

TEST(FieldBindings, ShowTheStoredTextAsFarAsTheBufferHoldsIt) {
    struct Case {
        std::string data;
        std::string shown;
    };
    const std::string longest(201, 'x');
    const Case cases[] = {
        {"\"text with \\\"quotes\\\" and \\\\ \"", "text with \"quotes\" and \\ "},
        {"\"\xE9\x80\"", "\xE9\x80"},
        {"\"\"", ""},
        {"hex(1):", ""},
        {"hex(1):41,42,00,43,00", "AB"},
        {"hex(2):25,41,25,00", "%A%"},
        {"hex(7):41,00,42,00,00", "A"},
        {"dword:00004241", "AB"},
        {"hex:41", "A"},
        // With its terminating zero a text of 201 characters fills the buffer.
        {'"' + longest + '"', longest},
        {'"' + longest + "x\"", ""},
        {bytes("41", 202), "A"},
        {bytes("41", 203), ""},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(OneField(StringValue{kKey, "V"}, stored(each.data)).shown(), each.shown) << each.data;
    }
    for (const Obstacle obstacle : kObstacles) {
        OneField page(ExpandStringValue(kKey, "V"));
        putInTheWay(page, obstacle, "41");
        EXPECT_EQ(page.shown(), "") << static_cast<int>(obstacle);
    }
}

TEST(FieldBindings, ApplyTheTextOrDoWithAnEmptyOneWhatTheRowSays) {
    struct Case {
        const char* name;
        FieldBinding binding;
        std::string_view text;
        std::string after;  // empty: no value
        std::string_view eventsWhenOpen;
    };
    const StringValue deletes{kKey, "V"};
    const StringValue nothing{kKey, "V", WhenEmpty::WritesNothing};
    const StringValue empty{kKey, "V", WhenEmpty::WritesEmpty};
    const Case cases[] = {
        {"text", deletes, "a \"b\\c\" ", "\"a \\\"b\\\\c\\\" \"", "stamp "},
        {"blank is no empty text", deletes, " ", "\" \"", "stamp "},
        {"longer than can be read again", deletes, std::string_view("0123456789").substr(0, 9), "\"012345678\"",
         "stamp "},
        {"expanding", ExpandStringValue(kKey, "V"), "%x%", "hex(2):25,78,25,00", "stamp "},
        {"deletes", deletes, "", "", ""},
        {"expanding deletes", ExpandStringValue(kKey, "V"), "", "", ""},
        {"nothing", nothing, "", "\"old\"", ""},
        {"nothing but a text", nothing, "x", "\"x\"", "stamp "},
        {"empty text has no bytes", empty, "", "hex(1):", "stamp "},
        {"empty expanding", ExpandStringValue(kKey, "V", WhenEmpty::WritesEmpty), "", "hex(2):", "stamp "},
    };
    for (const Case& each : cases) {
        const std::string after = stateOf(each.after.empty() ? kNothingStored : stored(each.after));
        OneField before(each.binding, stored("\"old\""));
        EXPECT_EQ(before.applied(each.text), after) << each.name;
        EXPECT_EQ(before.events, "stamp ") << each.name;
        OneField whenOpen(each.binding, stored("\"old\""), Stamp::WhenOpen);
        EXPECT_EQ(whenOpen.applied(each.text), after) << each.name;
        EXPECT_EQ(whenOpen.events, each.eventsWhenOpen) << each.name;
        for (const Obstacle obstacle : kNothingOpens) {
            OneField page(each.binding);
            putInTheWay(page, obstacle, "41");
            const std::string state = page.state();
            EXPECT_EQ(page.applied(each.text), state) << each.name << ", obstacle " << static_cast<int>(obstacle);
        }
    }
}

TEST(FieldBindings, ATextTooLongToBeReadIsDeletedByAnUnchangedApply) {
    const std::string tooLong = '"' + std::string(202, 'x') + '"';
    EXPECT_EQ(OneField(StringValue{kKey, "V"}, stored(tooLong)).applied(""), stateOf(kNothingStored));
    EXPECT_EQ(OneField(StringValue{kKey, "V", WhenEmpty::WritesNothing}, stored(tooLong)).applied(""),
              stateOf(stored(tooLong)));
}

TEST(FieldBindings, MadeKeysAreMadeForATextAndNotForADeletion) {
    const FieldBinding below = StringValue{{Root::CurrentUser, "Software", "Made\\Here"}, "V"};
    EXPECT_EQ(OneField(below, "[HKCU\\Software]").applied("x"), stateOf("[HKCU\\Software\\Made\\Here]\n\"V\"=\"x\""));
    EXPECT_EQ(OneField(below, "[HKCU\\Software]").applied(""), stateOf("[HKCU\\Software]"));
    EXPECT_EQ(OneField(below).applied("x"), "");
    EXPECT_EQ(OneField(below, "[HKCU\\Software\\Made\\Here]\n\"V\"=\"x\"").applied(""),
              stateOf("[HKCU\\Software\\Made\\Here]"));
}

TEST(FieldBindings, FoldersAreShownWrittenOutAndStoredAsVariables) {
    StringValue windows{kKey, "V"};
    windows.folding = Folding::WindowsFolder;
    OneField page(windows, stored("\"%SystemRoot%\\\\a,%SystemRoot%b,%systemroot%\""));
    EXPECT_EQ(page.shown(), "C:\\WINDOWS\\a,C:\\WINDOWSb,%systemroot%");
    EXPECT_EQ(page.applied("C:\\WINDOWS\\x;c:\\windows;C:\\WINDOWS"),
              stateOf(stored("\"%SystemRoot%\\\\x;c:\\\\windows;%SystemRoot%\"")));
    // A folder that Windows does not tell replaces nothing, in either direction.
    page.system.folders.windows.clear();
    EXPECT_EQ(page.shown(), "%SystemRoot%\\x;c:\\windows;%SystemRoot%");
    EXPECT_EQ(page.applied("C:\\WINDOWS"), stateOf(stored("\"C:\\\\WINDOWS\"")));

    StringValue profile = ExpandStringValue(kKey, "V", WhenEmpty::WritesNothing);
    profile.folding = Folding::ProfilePrefix;
    const std::string cookies = stored("hex(2):25,55,53,45,52,50,52,4f,46,49,4c,45,25,5c,43,00");  // %USERPROFILE%\C
    OneField user(profile, cookies);
    user.system.folders.applicationData = "C:\\Users\\me\\Application Data";
    EXPECT_EQ(user.shown(), "C:\\Users\\me\\\\C");
    EXPECT_EQ(user.applied("C:\\Users\\me\\\\C"), stateOf(cookies));
    EXPECT_EQ(user.applied(""), stateOf(cookies));
    // There are no profiles to replace on the older Windows, nor where the folder has another name.
    user.runOn("me");
    EXPECT_EQ(user.shown(), "%USERPROFILE%\\C");
    user.runOn("xp");
    user.system.folders.applicationData = "C:\\Users\\me\\AppData";
    EXPECT_EQ(user.shown(), "%USERPROFILE%\\C");
}

TEST(FieldBindings, QuotesAndSuffixesAreTakenOffAndPutOn) {
    const StringValue unquoted{.key = kKey, .name = "V", .withoutQuotes = true};
    EXPECT_EQ(OneField(unquoted, kNothingStored).applied("\"C:\\a b\" \"c"), stateOf(stored("\"C:\\\\a b c\"")));
    EXPECT_EQ(OneField(unquoted, stored("\"x\"")).applied("\"\""), stateOf(kNothingStored));

    const StringValue suffixed{.key = kKey, .name = "V", .suffix = " -p %ld -g", .suffixStart = " -p %ld"};
    EXPECT_EQ(OneField(suffixed, stored("\"dbg -p %ld x -p %ld\"")).shown(), "dbg");
    EXPECT_EQ(OneField(suffixed, stored("\"dbg -p\"")).shown(), "dbg -p");
    EXPECT_EQ(OneField(suffixed, kNothingStored).applied("dbg"), stateOf(stored("\"dbg -p %ld -g\"")));
    // An empty text is still empty.
    EXPECT_EQ(OneField(suffixed, stored("\"dbg -p %ld -g\"")).applied(""), stateOf(kNothingStored));
}

TEST(FieldBindings, ASecondKeyIsWrittenAndDeletedLikeTheFirst) {
    const StringValue both{.key = kKey, .name = "V", .also = KeyPath{Root::LocalMachine, "Second"}};
    const std::string empty = std::string(kNothingStored) + "\n[HKLM\\Second]";
    const std::string full = stored("\"x\"") + "\n[HKLM\\Second]\n\"V\"=\"x\"";
    EXPECT_EQ(OneField(both, empty).applied("x"), stateOf(full));
    EXPECT_EQ(OneField(both, full).applied(""), stateOf(empty));
    EXPECT_EQ(OneField(both, "[HKLM\\Second]").applied("x"), stateOf("[HKLM\\Second]\n\"V\"=\"x\""));
    EXPECT_EQ(OneField(both, "[HKLM\\Second]\n\"V\"=\"x\"").shown(), "");
}

TEST(FieldBindings, NumbersAreShownAndTypedInDecimal) {
    const DwordNumber number{kKey, "V"};
    EXPECT_EQ(OneField(number, stored("dword:1e")).shown(), "30");
    EXPECT_EQ(OneField(number, stored("dword:ffffffff")).shown(), "-1");
    EXPECT_EQ(OneField(number, stored("hex:05")).shown(), "5");
    EXPECT_EQ(OneField(number, kNothingStored).shown(), "");
    struct Case {
        DwordNumber binding;
        std::string_view typed;
        std::string after;  // empty: no value
    };
    const DwordNumber atLeast{.key = kKey, .name = "V", .minimum = 1};
    const Case cases[] = {
        {number, "30", "dword:1e"},
        {number, " 12 seconds", "dword:c"},
        {number, "seconds", "dword:0"},
        {number, "-1", "dword:ffffffff"},
        {number, "", "dword:0"},
        {{.key = kKey, .name = "V", .whenEmpty = WhenEmpty::Deletes}, "", ""},
        {{.key = kKey, .name = "V", .whenEmpty = WhenEmpty::WritesNothing}, "", "dword:63"},
        {atLeast, "1", "dword:1"},
        {atLeast, "0", "dword:63"},
        {atLeast, "", "dword:63"},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(OneField(each.binding, stored("dword:63")).applied(each.typed),
                  stateOf(each.after.empty() ? kNothingStored : stored(each.after)))
            << each.typed;
        for (const Obstacle obstacle : kNothingOpens) {
            OneField page(each.binding);
            putInTheWay(page, obstacle, "63");
            const std::string before = page.state();
            EXPECT_EQ(page.shown(), "");
            EXPECT_EQ(page.applied(each.typed), before) << each.typed;
        }
    }
}

// ---- Numbers in texts

TEST(TextMatching, DecimalNumbersAreReadAsTheCLibraryReadsThem) {
    struct Case {
        std::string_view text;
        int number;
    };
    const Case cases[] = {
        {"", 0},
        {" \t\n\v\f\r+12x", 12},
        {"-7 8", -7},
        {"--1", 0},
        {"+-1", 0},
        {"- 1", 0},
        {"0x10", 0},
        {"007", 7},
        {std::string_view("1\0002", 3), 1},
        {"2147483647", 2147483647},
        {"2147483648", 2147483647},
        {"-2147483648", -2147483647 - 1},
        {"-2147483649", -2147483647 - 1},
        {"99999999999999999999999999", 2147483647},
        {"\xB2\xB3", 0},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(decimalNumber(each.text), each.number) << each.text;
    }
}

// What is put in is not looked at again, or a folder that holds its own variable would never come to an end.
TEST(TextMatching, EveryOccurrenceIsReplacedOnce) {
    struct Case {
        std::string text, from, to, result;
    };
    const Case cases[] = {
        {"aXbXX", "X", "yXy", "ayXybyXyyXy"},
        {"aaa", "aa", "a", "aa"},
        {"aXb", "X", "", "ab"},
        {"abc", "", "x", "abc"},
        {"", "X", "y", ""},
    };
    for (const Case& each : cases) {
        std::string text = each.text;
        replaceAll(text, each.from, each.to);
        EXPECT_EQ(text, each.result) << each.text;
    }
}

}  // namespace
}  // namespace korvane
