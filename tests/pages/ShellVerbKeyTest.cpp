// Shell verbs: keys that exist or not, with a menu text and a command line.
#include "tests/pages/BindingCases.h"

namespace korvane {
namespace {

constexpr int kNoMenuText = 2005;

// The menu's text is typed; the command line depends on the Windows family.
constexpr CheckBox kTypedBox[] = {{.text = "Box",
                                   .binding = ShellVerbKey{.parent = {Root::ClassesRoot, "Thing\\shell"},
                                                           .verb = "Prompt",
                                                           .menuTextEdit = IDC_EDIT1,
                                                           .requiredAlert = kNoMenuText,
                                                           .commandLine = "nt.exe %1",
                                                           .commandLineOn9x = "old.com %1"}}};
constexpr Field kMenuText[] = {{.label = "Menu text"}};
constexpr Tweak kTyped{.id = 7,
                       .title = "T",
                       .description = "D",
                       .page = Page::CheckFields,
                       .boxes = kTypedBox,
                       .fields = kMenuText,
                       .stamp = Stamp::WhenOpen};

// The menu's text is fixed, and the verb may also stand below a second parent.
constexpr CheckBox kFixedBox[] = {{.text = "Box",
                                   .binding = ShellVerbKey{.parent = {Root::ClassesRoot, "Folder\\shell"},
                                                           .verb = "look",
                                                           .menuText = "Look From Here",
                                                           .commandLine = "look.exe /e",
                                                           .twin = KeyPath{Root::ClassesRoot, "Directory\\shell"}}}};
constexpr Tweak kFixed{.id = 8, .title = "T", .description = "D", .page = Page::Checks, .boxes = kFixedBox};

constexpr std::string_view kParent = "[HKCR\\Thing\\shell]\n";
constexpr std::string_view kPromptKey =
    "[HKCR\\Thing\\shell\\Prompt]\n@=\"Here\"\n[HKCR\\Thing\\shell\\Prompt\\command]\n@=\"nt.exe %1\"\n";

class ShellVerbTest : public testing::Test, protected PageFixture {
protected:
    MemoryDialog& fields() { return dialog(Page::CheckFields); }

    // What kTyped shows: the check state and the menu's text.
    std::string typedShown() {
        fields().setCheck(IDC_CHECK1, 1);
        fields().setText(IDC_EDIT1, "left over");
        show(kTyped);
        return std::to_string(fields().check(IDC_CHECK1)) + fields().text(IDC_EDIT1);
    }

    void applyTyped(bool checked, std::string_view menuText) {
        show(kTyped);
        if ((fields().check(IDC_CHECK1) == 1) != checked) {
            EXPECT_TRUE(fields().clickCheckBox(IDC_CHECK1));
        }
        EXPECT_TRUE(fields().typeText(IDC_EDIT1, menuText));
        apply(kTyped);
    }
};

TEST_F(ShellVerbTest, WithAnEditBoxTheVerbShowsWhenItHasAMenuText) {
    EXPECT_EQ(typedShown(), "0");
    load(kParent);
    EXPECT_EQ(typedShown(), "0");
    load("[HKCR\\Thing\\shell\\Prompt]");
    EXPECT_EQ(typedShown(), "0");
    load("[HKCR\\Thing\\shell\\Prompt]\n@=\"\"");
    EXPECT_EQ(typedShown(), "1");
    // The command line does not matter.
    load("[HKCR\\Thing\\shell\\Prompt]\n@=\"Here\"");
    EXPECT_EQ(typedShown(), "1Here");
    load("[HKCR\\Thing\\shell\\Prompt]\n@=" + bytes("41", 202));
    EXPECT_EQ(typedShown(), "1A");
    load("[HKCR\\Thing\\shell\\Prompt]\n@=" + bytes("41", 203));
    EXPECT_EQ(typedShown(), "0");
    load("[HKCR\\Thing\\shell\\Prompt]\n@=\"Here\"");
    registry.deny(Root::ClassesRoot, "Thing\\shell\\Prompt");
    EXPECT_EQ(typedShown(), "0");
}

TEST_F(ShellVerbTest, WithAFixedTextTheKeyAloneShowsUnderEitherParent) {
    const auto shown = [this] {
        show(kFixed);
        return dialog(Page::Checks).check(IDC_CHECK1);
    };
    load("[HKCR\\Folder\\shell]\n[HKCR\\Directory\\shell]");
    EXPECT_EQ(shown(), 0U);
    load("[HKCR\\Directory\\shell\\look]");
    EXPECT_EQ(shown(), 1U);
    load("[-HKCR\\Directory]\n[HKCR\\Folder\\shell\\look]");
    EXPECT_EQ(shown(), 1U);
    registry.deny(Root::ClassesRoot, "Folder");
    EXPECT_EQ(shown(), 0U);
    load("[HKCR\\Directory\\shell\\look]");
    EXPECT_EQ(shown(), 1U);
}

TEST_F(ShellVerbTest, CheckedMakesTheKeyAndItsCommandBelowAnExistingParentOnly) {
    applyTyped(true, "Here");
    EXPECT_EQ(state(), "");
    EXPECT_EQ(events, "");

    load(kParent);
    applyTyped(true, "Here");
    EXPECT_EQ(state(), stateOf(kPromptKey));
    EXPECT_EQ(events, "stamp ");
    // The date is recorded once the command's key is open, before its line is written.
    ASSERT_EQ(stamps.size(), 1U);
    EXPECT_EQ(stamps[0].state,
              stateOf("[HKCR\\Thing\\shell\\Prompt]\n@=\"Here\"\n[HKCR\\Thing\\shell\\Prompt\\command]"));

    // Texts are replaced and everything else stays.
    load("[HKCR\\Thing\\shell\\Prompt]\n\"Icon\"=dword:2\n[HKCR\\Thing\\shell\\Prompt\\command]\n@=dword:5");
    applyTyped(true, "There");
    EXPECT_EQ(state(), stateOf("[HKCR\\Thing\\shell\\Prompt]\n@=\"There\"\n\"Icon\"=dword:2\n"
                               "[HKCR\\Thing\\shell\\Prompt\\command]\n@=\"nt.exe %1\""));
}

TEST_F(ShellVerbTest, KeysThatCannotBeMadeAreLeftOut) {
    load(kParent);
    registry.deny(Root::ClassesRoot, "Thing\\shell\\Prompt\\command");
    applyTyped(true, "Here");
    EXPECT_EQ(state(), stateOf("[HKCR\\Thing\\shell\\Prompt]\n@=\"Here\""));
    EXPECT_EQ(events, "");

    load("[-HKCR\\Thing\\shell\\Prompt]");
    registry.deny(Root::ClassesRoot, "");
    applyTyped(true, "Here");
    EXPECT_EQ(state(), stateOf(kParent));
    EXPECT_EQ(events, "");
}

TEST_F(ShellVerbTest, TheCommandLineSuitsTheWindowsFamily) {
    load(kParent);
    const auto commandLineOn = [this](std::string_view windows) {
        runOn(windows);
        applyTyped(true, "Here");
        const OpenedKey key = openKey(registry, Root::ClassesRoot, "Thing\\shell\\Prompt\\command");
        return readValue(registry, key.handle(), "")->text();
    };
    for (const char* windows : {"nt4", "2000", "xp", "2003"}) {
        EXPECT_EQ(commandLineOn(windows), "nt.exe %1") << windows;
    }
    for (const char* windows : {"95", "98", "me"}) {
        EXPECT_EQ(commandLineOn(windows), "old.com %1") << windows;
    }
    // An unknown family gets the menu's text.
    EXPECT_EQ(commandLineOn("vista"), "Here");
    system.version.fails = true;
    EXPECT_EQ(commandLineOn("xp"), "Here");
}

TEST_F(ShellVerbTest, AnEmptyMenuTextIsRefusedAndTheBoxClearedAgain) {
    load(std::string(kParent) + std::string(kPromptKey));
    applyTyped(true, "");
    EXPECT_EQ(events, "alert 2005 ");
    EXPECT_EQ(fields().check(IDC_CHECK1), 0U);
    EXPECT_EQ(state(), stateOf(kPromptKey));
}

TEST_F(ShellVerbTest, ClearedDeletesTheTreeOnEveryWindowsAndRecordsNoDate) {
    load("[HKCR\\Thing\\shell\\Prompt\\command\\deeper]\n\"v\"=\"1\"\n[HKCR\\Thing\\shell\\Prompt2]\n" +
         std::string(kPromptKey));
    runOn("vista");
    applyTyped(false, "");
    EXPECT_EQ(state(), stateOf("[HKCR\\Thing\\shell\\Prompt2]"));
    applyTyped(false, "");
    EXPECT_EQ(state(), stateOf("[HKCR\\Thing\\shell\\Prompt2]"));
    EXPECT_EQ(events, "");
}

TEST_F(ShellVerbTest, TheTwinIsNeverMadeButDeletedTogether) {
    load("[HKCR\\Folder\\shell]\n[HKCR\\Directory\\shell]");
    show(kFixed);
    ASSERT_TRUE(dialog(Page::Checks).clickCheckBox(IDC_CHECK1));
    apply(kFixed);
    EXPECT_EQ(state(), stateOf("[HKCR\\Folder\\shell\\look]\n@=\"Look From Here\"\n"
                               "[HKCR\\Folder\\shell\\look\\command]\n@=\"look.exe /e\"\n[HKCR\\Directory\\shell]"));
    EXPECT_EQ(events, "stamp ");

    load("[HKCR\\Directory\\shell\\look\\command]\n@=\"other\"");
    show(kFixed);
    ASSERT_TRUE(dialog(Page::Checks).clickCheckBox(IDC_CHECK1));
    apply(kFixed);
    EXPECT_EQ(state(), stateOf("[HKCR\\Folder\\shell]\n[HKCR\\Directory\\shell]"));

    // One parent out of reach does not save the other's verb.
    load("[HKCR\\Folder\\shell\\look]\n[HKCR\\Directory\\shell\\look]");
    show(kFixed);
    ASSERT_TRUE(dialog(Page::Checks).clickCheckBox(IDC_CHECK1));
    registry.deny(Root::ClassesRoot, "Folder\\shell\\look");
    apply(kFixed);
    EXPECT_EQ(state(), stateOf("[HKCR\\Folder\\shell\\look]\n[HKCR\\Directory\\shell]"));

    // But without the first parent nothing happens at all.
    registry.allowAll();
    load("[-HKCR\\Folder]\n[HKCR\\Directory\\shell\\look]");
    show(kFixed);
    ASSERT_TRUE(dialog(Page::Checks).clickCheckBox(IDC_CHECK1));
    apply(kFixed);
    EXPECT_EQ(state(), stateOf("[HKCR\\Directory\\shell\\look]"));
}

}  // namespace
}  // namespace korvane
