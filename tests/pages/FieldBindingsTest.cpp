// The rules of edit boxes: what is made of the stored text or number, and of what was typed.
#include "tests/pages/BindingCases.h"

namespace korvane {
namespace {

TEST(FieldBindings, ShowTheStoredTextAsFarAsTheBufferHoldsIt) {
    const std::string longest(201, 'x');
    const std::pair<std::string, std::string> cases[] = {
        {"\"text with \\\"quotes\\\" and \\\\ \"", "text with \"quotes\" and \\ "},
        {"\"\xE9\x80\"", "\xE9\x80"},
        {"hex(1):", ""},
        {"hex(1):41,42,00,43,00", "AB"},
        {"hex(2):25,41,25,00", "%A%"},
        {"dword:00004241", "AB"},
        {"hex:41", "A"},
        // With its terminating zero a text of 201 characters fills the buffer.
        {'"' + longest + '"', longest},
        {'"' + longest + "x\"", ""},
    };
    for (const auto& [data, shown] : cases) {
        EXPECT_EQ(OneField(StringValue{kKey, "V"}, stored(data)).shown(), shown) << data;
    }
    for (const Obstacle obstacle : kObstacles) {
        OneField page(ExpandStringValue(kKey, "V"));
        putInTheWay(page, obstacle, "41");
        EXPECT_EQ(page.shown(), "") << static_cast<int>(obstacle);
    }
}

TEST(FieldBindings, ApplyWhatWasTypedOrDoWithAnEmptyTextWhatTheRowSays) {
    struct Case {
        const char* name;
        FieldBinding binding;
        std::string_view text;
        std::string after;  // empty: no value
        std::string_view events;
    };
    const StringValue deletes{kKey, "V"};
    const DwordNumber number{kKey, "V"};
    const DwordNumber atLeast{.key = kKey, .name = "V", .minimum = 1};
    const DwordNumber numberDeletes{.key = kKey, .name = "V", .whenEmpty = WhenEmpty::Deletes};
    const Case cases[] = {
        {"text", deletes, "a \"b\\c\" ", "\"a \\\"b\\\\c\\\" \"", "stamp "},
        {"expanding", ExpandStringValue(kKey, "V"), "%x%", "hex(2):25,78,25,00", "stamp "},
        {"deletes", deletes, "", "", ""},
        {"nothing", StringValue{kKey, "V", WhenEmpty::WritesNothing}, "", "\"old\"", ""},
        {"empty text has no bytes", StringValue{kKey, "V", WhenEmpty::WritesEmpty}, "", "hex(1):", "stamp "},
        {"number", number, " 12 seconds", "dword:c", "stamp "},
        {"negative", number, "-1", "dword:ffffffff", "stamp "},
        {"number deleted", numberDeletes, "", "", "stamp "},
    };
    for (const Case& each : cases) {
        OneField page(each.binding, stored("\"old\""), Stamp::WhenOpen);
        EXPECT_EQ(page.applied(each.text), stateOf(each.after.empty() ? kNothingStored : stored(each.after)))
            << each.name;
        EXPECT_EQ(page.events, each.events) << each.name;
        for (const Obstacle obstacle : kNothingOpens) {
            OneField closed(each.binding);
            putInTheWay(closed, obstacle, "41");
            const std::string state = closed.state();
            EXPECT_EQ(closed.applied(each.text), state) << each.name << ", obstacle " << static_cast<int>(obstacle);
        }
    }
    EXPECT_EQ(OneField(number, stored("dword:ffffffff")).shown(), "-1");
    EXPECT_EQ(OneField(atLeast, stored("dword:63")).applied("0"), stateOf(stored("dword:63")));
    EXPECT_EQ(OneField(atLeast, stored("dword:63")).applied("1"), stateOf(stored("dword:1")));
    // A text too long to be read is deleted by an unchanged apply.
    EXPECT_EQ(OneField(deletes, stored('"' + std::string(202, 'x') + '"')).applied(""), stateOf(kNothingStored));
    // Keys are made for a text and not for a deletion.
    const FieldBinding below = StringValue{{Root::CurrentUser, "Software", "Made\\Here"}, "V"};
    EXPECT_EQ(OneField(below, "[HKCU\\Software]").applied("x"), stateOf("[HKCU\\Software\\Made\\Here]\n\"V\"=\"x\""));
    EXPECT_EQ(OneField(below, "[HKCU\\Software]").applied(""), stateOf("[HKCU\\Software]"));
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
    EXPECT_EQ(page.applied("C:\\WINDOWS"), stateOf(stored("\"C:\\\\WINDOWS\"")));

    StringValue profile = ExpandStringValue(kKey, "V", WhenEmpty::WritesNothing);
    profile.folding = Folding::ProfilePrefix;
    OneField user(profile, stored("hex(2):25,55,53,45,52,50,52,4f,46,49,4c,45,25,5c,43,00"));  // %USERPROFILE%\C
    user.system.folders.applicationData = "C:\\Users\\me\\Application Data";
    EXPECT_EQ(user.shown(), "C:\\Users\\me\\\\C");
    // There are no profiles to replace where the folder has another name.
    user.system.folders.applicationData = "C:\\Users\\me\\AppData";
    EXPECT_EQ(user.shown(), "%USERPROFILE%\\C");
}

TEST(TextMatching, DecimalNumbersAreReadAsTheCLibraryReadsThem) {
    const std::pair<std::string_view, int> cases[] = {
        {" \t\n\v\f\r+12x", 12},
        {"+-1", 0},
        {"- 1", 0},
        {"0x10", 0},
        {std::string_view("1\0002", 3), 1},
        {"2147483648", 2147483647},
        {"-2147483649", -2147483647 - 1},
        {"99999999999999999999999999", 2147483647},
        {"\xB2\xB3", 0},
    };
    for (const auto& [text, number] : cases) {
        EXPECT_EQ(decimalNumber(text), number) << text;
    }
}

}  // namespace
}  // namespace korvane
