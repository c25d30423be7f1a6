// Shell verbs: keys that exist or not, with a menu text and a command line.
#include "tests/pages/BindingCases.h"

namespace korvane {
namespace {

// The menu's text is typed; the command line depends on the Windows family.
constexpr CheckBox kTypedBox[] = {{.text = "Box",
                                   .binding = ShellVerbKey{.parent = {Root::ClassesRoot, "Thing\\shell"},
                                                           .verb = "Prompt",
                                                           .menuTextEdit = IDC_EDIT1,
                                                           .requiredAlert = Alert::MenuNameMissing,
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

constexpr std::string_view kParent = "[HKCR\\Thing\\shell]\n";
constexpr std::string_view kPromptKey =
    "[HKCR\\Thing\\shell\\Prompt]\n@=\"Here\"\n[HKCR\\Thing\\shell\\Prompt\\command]\n@=\"nt.exe %1\"\n";

class ShellVerbTest : public testing::Test, protected PageFixture {
protected:
    // What is shown: the check state and the menu's text.
    std::string shown() {
        dialog(Page::CheckFields).setCheck(IDC_CHECK1, 1);
        dialog(Page::CheckFields).setText(IDC_EDIT1, "left over");
        show(kTyped);
        return std::to_string(dialog(Page::CheckFields).check(IDC_CHECK1)) + dialog(Page::CheckFields).text(IDC_EDIT1);
    }
    std::string applied(bool checked, std::string_view menuText) {
        if ((shown()[0] == '1') != checked) {
            EXPECT_TRUE(dialog(Page::CheckFields).clickCheckBox(IDC_CHECK1));
        }
        EXPECT_TRUE(dialog(Page::CheckFields).typeText(IDC_EDIT1, menuText));
        apply(kTyped);
        return state();
    }
};

TEST_F(ShellVerbTest, ShowsWhenItHasAMenuText) {
    const std::pair<std::string, const char*> cases[] = {
        {"", "0"},
        {"@=\"\"", "1"},
        {"@=\"Here\"", "1Here"},
        {"@=" + bytes("41", 202), "1A"},
        {"@=" + bytes("41", 203), "0"},
    };
    for (const auto& [value, text] : cases) {
        load("[HKCR\\Thing\\shell\\Prompt]\n" + value);
        EXPECT_EQ(shown(), text) << value;
    }
    load("[HKCR\\Thing\\shell\\Prompt]\n@=\"Here\"");
    registry.deny(Root::ClassesRoot, "Thing\\shell\\Prompt");
    EXPECT_EQ(shown(), "0");
}

TEST_F(ShellVerbTest, CheckedMakesTheKeyAndItsCommandBelowAnExistingParentOnly) {
    EXPECT_EQ(applied(true, "Here"), "");
    load(kParent);
    registry.deny(Root::ClassesRoot, "Thing\\shell\\Prompt\\command");
    const std::string withoutCommand = "[HKCR\\Thing\\shell\\Prompt]\n@=\"Here\"";
    EXPECT_EQ(applied(true, "Here"), stateOf(withoutCommand));
    EXPECT_EQ(events, "");
    registry.allowAll();
    EXPECT_EQ(applied(true, "Here"), stateOf(kPromptKey));
    // The date is recorded once the command's key is open, before its line is written.
    ASSERT_EQ(stamps.size(), 1U);
    EXPECT_EQ(stamps[0].state, stateOf(withoutCommand + "\n[HKCR\\Thing\\shell\\Prompt\\command]"));
    EXPECT_EQ(applied(true, ""), stateOf(kPromptKey));
    EXPECT_EQ(events, "stamp alert 2005 ");
    EXPECT_EQ(dialog(Page::CheckFields).check(IDC_CHECK1), 0U);
}

TEST(ShellVerbs, ATwinIsNeverMadeButShownAndDeletedTogether) {
    const ShellVerbKey verb{.parent = {Root::ClassesRoot, "Folder\\shell"},
                            .verb = "look",
                            .menuText = "Look From Here",
                            .commandLine = "look.exe /e",
                            .twin = KeyPath{Root::ClassesRoot, "Directory\\shell"}};
    const std::string parents = "[HKCR\\Folder\\shell]\n[HKCR\\Directory\\shell]";
    EXPECT_EQ(OneBox(verb, parents).applied(true),
              stateOf("[HKCR\\Folder\\shell\\look]\n@=\"Look From Here\"\n"
                      "[HKCR\\Folder\\shell\\look\\command]\n@=\"look.exe /e\"\n[HKCR\\Directory\\shell]"));
    EXPECT_EQ(OneBox(verb, parents + "\n[HKCR\\Directory\\shell\\look\\command]").applied(false), stateOf(parents));
    // One parent out of reach does not save the other's verb.
    OneBox denied(verb, "[HKCR\\Folder\\shell\\look]\n[HKCR\\Directory\\shell\\look]");
    denied.registry.deny(Root::ClassesRoot, "Folder\\shell\\look");
    EXPECT_EQ(denied.applied(false), stateOf("[HKCR\\Folder\\shell\\look]\n[HKCR\\Directory\\shell]"));
    // But without the first parent nothing happens at all.
    OneBox lonely(verb, "[HKCR\\Directory\\shell\\look]");
    EXPECT_TRUE(lonely.shown());
    EXPECT_EQ(lonely.applied(false), stateOf("[HKCR\\Directory\\shell\\look]"));
}

}  // namespace
}  // namespace korvane
