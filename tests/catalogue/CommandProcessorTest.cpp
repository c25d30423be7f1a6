// The Command Processor tweaks: the prompt in every folder's menu, rows that are never read, and completion keys for
// the user and for the machine.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class CommandProcessor : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, CommandProcessor, ::testing::ValuesIn(programKinds()), kindName);

const std::string kInterpreter = user("Software\\Microsoft\\Command Processor");
const std::string kMachineInterpreter = machine("SOFTWARE\\Microsoft\\Command Processor");
const std::string kShell = classes("Directory\\shell");
const std::string kPrompt = classes("Directory\\shell\\Command");
const std::string kPromptCommand = classes("Directory\\shell\\Command\\command");

TEST_P(CommandProcessor, ThePromptHasTheCommandLineOfTheWindowsFamily) {
    const std::pair<const char*, const char*> cases[] = {
        {"95", "command.com /k cd %1"}, {"me", "command.com /k cd %1"}, {"nt4", "cmd.exe /k cd %1"},
        {"2003", "cmd.exe /k cd %1"},   {"vista", "Prompt here"},  // the menu's text for want of a better one
    };
    for (const auto& [windows, commandLine] : cases) {
        SCOPED_TRACE(windows);
        open(2, block(kShell, text("", "none")), windows);
        click();
        EXPECT_EQ(apply(), Changes{});
        EXPECT_EQ(alerts(), "Please Set the Command Prompt Menu Name");
        EXPECT_EQ(box(), 0u);
        click();
        type(IDC_EDIT1, "Prompt here");
        EXPECT_FALSE(dated(2));
        EXPECT_EQ(apply(), (Changes{addedKey(kPrompt), added(kPrompt, text("", "Prompt here")),
                                    addedKey(kPromptCommand), added(kPromptCommand, text("", commandLine))}));
        EXPECT_TRUE(dated(2));
        program().select(2);
        EXPECT_EQ(edit(), "Prompt here");
        click();
        EXPECT_EQ(apply(), (Changes{removedKey(kPrompt), removed(kPrompt, text("", "Prompt here")),
                                    removedKey(kPromptCommand), removed(kPromptCommand, text("", commandLine))}));
    }
}

TEST_P(CommandProcessor, ColoursAndThePromptPolicyAreRowsThatNeverShowWhatIsStored) {
    open(5, block(kInterpreter, number("DefaultColor", 7)));
    EXPECT_EQ(shownPage(program())->selectedRow(IDC_LIST), -1);
    EXPECT_EQ(apply(), Changes{});
    EXPECT_TRUE(dated(5)) << "dated although nothing was written";
    ASSERT_TRUE(program().selectRow(IDC_LIST, 15));
    EXPECT_EQ(apply(), replaced(kInterpreter, number("DefaultColor", 7), number("DefaultColor", 15)));

    const std::string key = user("Software\\Policies\\Microsoft\\Windows\\System");
    open(7, user("Software\\Policies"));
    ASSERT_TRUE(program().selectRow(IDC_LIST, 1));
    EXPECT_EQ(apply(), Changes{}) << "the key is made below Microsoft's";
    open(7, block(user("Software\\Policies\\Microsoft"), text("x", "")));
    ASSERT_TRUE(program().selectRow(IDC_LIST, 2));
    EXPECT_EQ(apply(), (Changes{addedKey(key), added(key, number("DisableCMD", 2))}));
    // The first row permits everything again, but leaves the value.
    ASSERT_TRUE(program().selectRow(IDC_LIST, 0));
    EXPECT_EQ(apply(), replaced(key, number("DisableCMD", 2), number("DisableCMD", 0)));
}

TEST_P(CommandProcessor, CompletionIsWrittenForEachScopeByItself) {
    for (const auto& [id, name] : {std::pair{8, "CompletionChar"}, {10, "PathCompletionChar"}}) {
        SCOPED_TRACE(name);
        open(id, block(kInterpreter, number(name, 9)) + block(kMachineInterpreter, number(name, 6)));
        EXPECT_EQ(combo(IDC_COMBO1), 2);
        EXPECT_EQ(combo(IDC_COMBO2), 4);
        pick(IDC_COMBO2, 0);
        EXPECT_EQ(apply(), Changes{removed(kMachineInterpreter, number(name, 6))});
        // A typed text is no selection, even an entry's own.
        type(IDC_COMBO1, "TAB key");
        EXPECT_EQ(apply(), replaced(kInterpreter, number(name, 9), number(name, 0xFFFFFFFF)));
    }
}

}  // namespace
}  // namespace korvane
