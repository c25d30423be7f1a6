// The Command Processor tweaks, case by case: what each shows of a registry,
// what it writes, and where it differs from what one would expect.
#include "tests/catalogue/ItemTest.h"

namespace korvane {
namespace {

class CommandProcessor : public ItemTest {
protected:
    // A user with the given values in the command interpreter's key.
    static std::string withValues(std::string_view values) {
        return "[HKEY_CURRENT_USER\\Software\\Microsoft\\Command Processor]\n" + std::string(values) + '\n' +
               std::string(kBareRegistry);
    }
};

INSTANTIATE_TEST_SUITE_P(Over, CommandProcessor, ::testing::ValuesIn(programKinds()), kindName);

const std::string kInterpreter = "[HKEY_CURRENT_USER\\Software\\Microsoft\\Command Processor] ";
const std::string kMachineInterpreter = "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Command Processor] ";

// ---- Gates

TEST_P(CommandProcessor, GatesRefuseWithTheirAlerts) {
    constexpr const char* kNamingNt = "These Tweak active only on Windows NT/2000/XP";
    constexpr const char* kNaming2000 = "These Tweak active only on Windows 2000/XP";
    struct {
        int id;
        const char* title;
        bool onNt4;
        const char* alert;
        bool boxPutBack;
    } const cases[] = {
        {3, "Allow UNC Paths at the Command Prompt", true, kNamingNt, true},
        {5, "Change the Command Prompt Colors", true, kNamingNt, false},
        {6, "Disable Command Processor Extentions", false, kNaming2000, true},
        {7, "Disable Command Prompt and Batch Files", false, kNaming2000, false},
        {8, "Enable Command Completion", true, kNamingNt, false},
        {9, "Enable Delayed Environment Variable Expantion", false, kNaming2000, true},
        {10, "Enable Directory Completion", false, kNamingNt, false},
        {11, "Quick Edit the Command Prompt", true, kNamingNt, true},
        {12, "Run Startup Programs in Command Prompt", false, kNamingNt, false},
    };
    for (const std::string_view windows : everyWindows()) {
        for (const auto& each : cases) {
            SCOPED_TRACE(std::string(windows) + ' ' + each.title);
            const bool accepted =
                windows == "2000" || windows == "xp" || windows == "2003" || (windows == "nt4" && each.onNt4);
            start({.windows = windows,
                   .registry = withValues("") + "[HKEY_CURRENT_USER\\Console]\n"
                                                "[HKEY_CURRENT_USER\\Software\\Policies\\Microsoft]\n"});
            program().select(each.id);
            program().click(IDC_CHECK1);
            program().pick(IDC_COMBO1, 2);
            program().type(IDC_EDIT1, "text");
            program().selectRow(IDC_LIST, 1);
            const std::string page = pageText(program());
            ASSERT_TRUE(program().apply());
            EXPECT_EQ(changes().empty(), !accepted);
            EXPECT_EQ(stamped(each.title), accepted);
            EXPECT_EQ(alerts(), accepted ? "" : each.alert);
            if (!accepted && each.boxPutBack) {
                EXPECT_EQ(box(), 0u);
            } else {
                EXPECT_EQ(pageText(program()), page);
            }
        }
    }
}

// ---- 2: the prompt in every folder's menu

class PromptHere : public CommandProcessor {
protected:
    static constexpr const char* kTitle = "Add Command Prompt Option to Every Folder";
    static constexpr const char* kShell = "[HKEY_CLASSES_ROOT\\Directory\\shell]\n@=\"none\"\n";

    static std::string withVerb(std::string_view value) {
        return kShell + std::string("[HKEY_CLASSES_ROOT\\Directory\\shell\\Command]\n") + std::string(value) + '\n' +
               std::string(kBareRegistry);
    }
};

INSTANTIATE_TEST_SUITE_P(Over, PromptHere, ::testing::ValuesIn(programKinds()), kindName);

TEST_P(PromptHere, ShowsTheMenuTextOfTheKey) {
    struct {
        std::string value;
        std::uint32_t checked;
        std::string text;
    } const cases[] = {
        {"@=\"Prompt here\"", 1, "Prompt here"},
        {"@=\"\"", 1, ""},
        {"@=\"" + std::string(201, 'x') + '"', 1, std::string(201, 'x')},
        {"@=\"" + std::string(202, 'x') + '"', 0, ""},  // with its zero a byte too long to be read
        {"\"Other\"=\"Prompt here\"", 0, ""},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.value);
        start({.registry = withVerb(each.value)});
        // The same edit box held another item's text before.
        program().select(12);
        ASSERT_TRUE(program().type(IDC_EDIT1, "stale"));
        program().select(2);
        EXPECT_EQ(box(), each.checked);
        EXPECT_EQ(edit(), each.text);
    }
    start({});
    program().select(2);
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(edit(), "");
}

TEST_P(PromptHere, WritesTheCommandLineOfTheWindowsFamily) {
    struct {
        const char* windows;
        const char* commandLine;
    } const cases[] = {
        {"95", "command.com /k cd %1"}, {"98", "command.com /k cd %1"}, {"me", "command.com /k cd %1"},
        {"nt4", "cmd.exe /k cd %1"},    {"2000", "cmd.exe /k cd %1"},   {"xp", "cmd.exe /k cd %1"},
        {"2003", "cmd.exe /k cd %1"},   {"vista", "Prompt here"},  // the menu's text for want of a better one
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.windows);
        start({.windows = each.windows, .registry = kShell + std::string(kBareRegistry)});
        program().select(2);
        ASSERT_TRUE(program().click(IDC_CHECK1));
        ASSERT_TRUE(program().type(IDC_EDIT1, "Prompt here"));
        ASSERT_TRUE(program().apply());
        EXPECT_EQ(changes(),
                  "+[HKEY_CLASSES_ROOT\\Directory\\shell\\Command\\command]\n"
                  "+[HKEY_CLASSES_ROOT\\Directory\\shell\\Command\\command] @=\"" +
                      std::string(each.commandLine) +
                      "\"\n"
                      "+[HKEY_CLASSES_ROOT\\Directory\\shell\\Command]\n"
                      "+[HKEY_CLASSES_ROOT\\Directory\\shell\\Command] @=\"Prompt here\"\n");
        EXPECT_TRUE(stamped(kTitle));
        EXPECT_EQ(alerts(), "");
        program().select(2);
        EXPECT_EQ(box(), 1u);
        EXPECT_EQ(edit(), "Prompt here");
    }
}

TEST_P(PromptHere, RefusesAnEmptyMenuText) {
    start({.registry = kShell + std::string(kBareRegistry)});
    program().select(2);
    ASSERT_TRUE(program().click(IDC_CHECK1));
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(alerts(), "Please Set the Command Prompt Menu Name");
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(changes(), "");
    EXPECT_FALSE(stamped(kTitle));
}

TEST_P(PromptHere, MakesNothingWithoutTheShellKey) {
    start({});
    program().select(2);
    ASSERT_TRUE(program().click(IDC_CHECK1));
    ASSERT_TRUE(program().type(IDC_EDIT1, "Prompt here"));
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(changes(), "");
    EXPECT_EQ(alerts(), "");
    EXPECT_FALSE(stamped(kTitle));
}

TEST_P(PromptHere, ClearedRemovesTheKeyOnAnyWindowsWithoutADate) {
    for (const char* windows : {"95", "xp", "vista"}) {
        SCOPED_TRACE(windows);
        start({.windows = windows,
               .registry = withVerb("@=\"Prompt here\"") +
                           "[HKEY_CLASSES_ROOT\\Directory\\shell\\Command\\command\\below]\n@=\"x\"\n"});
        program().select(2);
        ASSERT_TRUE(program().click(IDC_CHECK1));
        ASSERT_TRUE(program().apply());
        EXPECT_EQ(changes(),
                  "-[HKEY_CLASSES_ROOT\\Directory\\shell\\Command\\command\\below]\n"
                  "-[HKEY_CLASSES_ROOT\\Directory\\shell\\Command\\command\\below] @=\"x\"\n"
                  "-[HKEY_CLASSES_ROOT\\Directory\\shell\\Command]\n"
                  "-[HKEY_CLASSES_ROOT\\Directory\\shell\\Command] @=\"Prompt here\"\n");
        EXPECT_EQ(alerts(), "");
        EXPECT_FALSE(stamped(kTitle));
    }
}

// ---- 3, 6, 9 and 11: one number each

TEST_P(CommandProcessor, BoxesShowAndWriteTheirNumber) {
    struct {
        int id;
        std::string key;
        const char* name;
        std::uint32_t checked;  // the only number that shows as checked
    } const cases[] = {
        {3, "Software\\Microsoft\\Command Processor", "DisableUNCCheck", 1},
        {6, "Software\\Microsoft\\Command Processor", "EnableExtensions", 0},
        {9, "Software\\Microsoft\\Command Processor", "DelayedExpansion", 1},
        {11, "Console", "QuickEdit", 1},
    };
    for (const auto& each : cases) {
        const std::string key = "[HKEY_CURRENT_USER\\" + each.key + ']';
        const auto value = [&](std::uint32_t number) {
            return '"' + std::string(each.name) + "\"=dword:0000000" + std::to_string(number);
        };
        for (const std::uint32_t stored : {0u, 1u, 2u, 5u, 99u}) {
            SCOPED_TRACE(each.name + (' ' + std::to_string(stored)));
            const bool missing = stored == 99;
            start({.registry = key + '\n' + (missing ? "" : value(stored)) + '\n' + std::string(kBareRegistry)});
            program().select(each.id);
            EXPECT_EQ(box(), stored == each.checked ? 1u : 0u);
            EXPECT_EQ(changes(), "") << "showing has written";
            // Unchanged: what does not count as checked becomes the number for cleared.
            ASSERT_TRUE(program().apply());
            const std::uint32_t written = stored == each.checked ? each.checked : 1 - each.checked;
            const std::string old = missing ? "" : '-' + key + ' ' + value(stored) + '\n';
            EXPECT_EQ(changes(), written == stored ? "" : old + '+' + key + ' ' + value(written) + '\n');
            ASSERT_TRUE(program().click(IDC_CHECK1));
            ASSERT_TRUE(program().apply());
            EXPECT_EQ(changes(), '-' + key + ' ' + value(written) + "\n+" + key + ' ' + value(1 - written) + '\n');
        }
        // Without the key nothing is shown, written or said.
        start({});
        program().select(each.id);
        EXPECT_EQ(box(), 0u);
        ASSERT_TRUE(program().click(IDC_CHECK1));
        ASSERT_TRUE(program().apply());
        EXPECT_EQ(changes(), "");
        EXPECT_EQ(alerts(), "");
    }
}

// ---- 5 and 7: the index of the selected row

TEST_P(CommandProcessor, ColoursWriteTheSelectedRow) {
    constexpr const char* kTitle = "Change the Command Prompt Colors";
    start({.registry = withValues("\"DefaultColor\"=dword:00000007")});
    program().select(5);
    EXPECT_EQ(shownPage(program())->rowCount(IDC_LIST), 16);
    EXPECT_EQ(shownPage(program())->selectedRow(IDC_LIST), -1) << "the stored number is not read";
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(changes(), "");
    EXPECT_TRUE(stamped(kTitle)) << "dated although nothing was written";
    ASSERT_TRUE(program().selectRow(IDC_LIST, 15));
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(changes(), '-' + kInterpreter + "\"DefaultColor\"=dword:00000007\n+" + kInterpreter +
                             "\"DefaultColor\"=dword:0000000f\n");
    start({});
    program().select(5);
    ASSERT_TRUE(program().selectRow(IDC_LIST, 3));
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(changes(), "") << "the key must exist";
}

TEST_P(CommandProcessor, ThePromptPolicyMakesItsKeyBelowMicrosofts) {
    const std::string policies = "[HKEY_CURRENT_USER\\Software\\Policies\\Microsoft]\n\"x\"=\"\"\n";
    const std::string key = "[HKEY_CURRENT_USER\\Software\\Policies\\Microsoft\\Windows\\System]";
    start({.registry = policies + std::string(kBareRegistry)});
    program().select(7);
    EXPECT_EQ(shownPage(program())->rowCount(IDC_LIST), 3);
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(changes(), "");
    EXPECT_TRUE(stamped("Disable Command Prompt and Batch Files"));
    ASSERT_TRUE(program().selectRow(IDC_LIST, 2));
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(changes(), '+' + key + "\n+" + key + " \"DisableCMD\"=dword:00000002\n");
    // The first row permits everything again, but leaves the value.
    ASSERT_TRUE(program().selectRow(IDC_LIST, 0));
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(changes(), '-' + key + " \"DisableCMD\"=dword:00000002\n+" + key + " \"DisableCMD\"=dword:00000000\n");

    start({.registry = "[HKEY_CURRENT_USER\\Software\\Policies]\n" + std::string(kBareRegistry)});
    program().select(7);
    ASSERT_TRUE(program().selectRow(IDC_LIST, 1));
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(changes(), "");
    EXPECT_EQ(alerts(), "");
}

// ---- 8 and 10: completion keys for the user and for the machine

class Completion : public CommandProcessor {
protected:
    static std::string withBoth(const std::string& user, const std::string& machine) {
        return withValues(user) + "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Command Processor]\n" + machine + '\n';
    }
    struct Item {
        int id;
        std::string name;
    };
    static std::vector<Item> items() { return {{8, "\"CompletionChar\"="}, {10, "\"PathCompletionChar\"="}}; }
};

INSTANTIATE_TEST_SUITE_P(Over, Completion, ::testing::ValuesIn(programKinds()), kindName);

TEST_P(Completion, ShowsTheKeyOfEachScope) {
    struct {
        const char* stored;
        int entry;
    } const cases[] = {
        {"dword:00000008", 1},  {"dword:00000009", 2},  {"dword:00000004", 3},
        {"dword:00000006", 4},  {"dword:00000000", -1},                          // not "Disable"
        {"dword:00000040", -1}, {"dword:ffffffff", -1}, {"hex:09,00,00,00", 2},  // the type does not matter
        {"\"9\"", -1},
    };
    for (const Item& item : items()) {
        for (const auto& each : cases) {
            SCOPED_TRACE(item.name + each.stored);
            start({.registry = withBoth(item.name + each.stored, item.name + "dword:00000006")});
            program().select(item.id);
            EXPECT_EQ(shownPage(program())->comboCount(IDC_COMBO1), 5);
            EXPECT_EQ(combo(IDC_COMBO1), each.entry);
            EXPECT_EQ(combo(IDC_COMBO2), 4);
        }
        start({.registry = withBoth("", item.name + "dword:00000008")});
        program().select(item.id);
        EXPECT_EQ(combo(IDC_COMBO1), -1);
        EXPECT_EQ(combo(IDC_COMBO2), 1);
    }
}

TEST_P(Completion, WritesEachScopeByItself) {
    for (const Item& item : items()) {
        SCOPED_TRACE(item.name);
        start({.registry = withBoth("", "")});
        program().select(item.id);
        // Nothing selected writes the index of nothing.
        ASSERT_TRUE(program().apply());
        EXPECT_EQ(changes(), '+' + kInterpreter + item.name + "dword:ffffffff\n+" + kMachineInterpreter + item.name +
                                 "dword:ffffffff\n");
        ASSERT_TRUE(program().pick(IDC_COMBO1, 3));
        ASSERT_TRUE(program().pick(IDC_COMBO2, 0));
        ASSERT_TRUE(program().apply());
        EXPECT_EQ(changes(), '-' + kInterpreter + item.name + "dword:ffffffff\n-" + kMachineInterpreter + item.name +
                                 "dword:ffffffff\n+" + kInterpreter + item.name + "dword:00000004\n");
        // A typed text is no selection, even an entry's own.
        ASSERT_TRUE(program().type(IDC_COMBO1, "TAB key"));
        ASSERT_TRUE(program().apply());
        EXPECT_EQ(changes(),
                  '-' + kInterpreter + item.name + "dword:00000004\n+" + kInterpreter + item.name + "dword:ffffffff\n");
        EXPECT_EQ(alerts(), "");
    }
}

TEST_P(Completion, OneScopeDoesNotNeedTheOther) {
    for (const Root denied : {Root::LocalMachine, Root::CurrentUser}) {
        start({.registry = withBoth("", "")});
        program().select(8);
        if (!program().deny(denied)) {
            GTEST_SKIP() << "no root can be denied here";
        }
        ASSERT_TRUE(program().pick(IDC_COMBO1, 1));
        ASSERT_TRUE(program().pick(IDC_COMBO2, 1));
        ASSERT_TRUE(program().apply());
        EXPECT_EQ(changes(), '+' + (denied == Root::CurrentUser ? kMachineInterpreter : kInterpreter) +
                                 "\"CompletionChar\"=dword:00000008\n");
        EXPECT_EQ(alerts(), "");
    }
}

// ---- 12: the program that runs with the interpreter

TEST_P(CommandProcessor, AutoRunIsWrittenAsTextAndDeletedWhenEmpty) {
    constexpr const char* kTitle = "Run Startup Programs in Command Prompt";
    start({.registry = withValues("\"AutoRun\"=hex(2):25,00,54,00,25,00,00,00")});
    program().select(12);
    EXPECT_EQ(edit(), "%T%");
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(changes(), '-' + kInterpreter + "\"AutoRun\"=hex(2):25,00,54,00,25,00,00,00\n+" + kInterpreter +
                             "\"AutoRun\"=\"%T%\"\n");
    EXPECT_TRUE(stamped(kTitle));
    ASSERT_TRUE(program().type(IDC_EDIT1, "\"C:\\My Files\\a.bat\" /x"));
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(changes(), '-' + kInterpreter + "\"AutoRun\"=\"%T%\"\n+" + kInterpreter +
                             "\"AutoRun\"=\"\\\"C:\\\\My Files\\\\a.bat\\\" /x\"\n");
    ASSERT_TRUE(program().type(IDC_EDIT1, ""));
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(changes(), '-' + kInterpreter + "\"AutoRun\"=\"\\\"C:\\\\My Files\\\\a.bat\\\" /x\"\n");
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(changes(), "");

    start({});
    program().select(12);
    ASSERT_TRUE(program().type(IDC_EDIT1, "a.bat"));
    ASSERT_TRUE(program().apply());
    EXPECT_EQ(changes(), "") << "the key must exist";
    EXPECT_TRUE(stamped(kTitle));
}

}  // namespace
}  // namespace korvane
