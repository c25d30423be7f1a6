// The Troubleshooting and Repair tweaks and those without a category: quotation marks, handlers of one class, a value
// that hides behind a key of the same name, folders with the profile's variable, and the owner by Windows family.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class Troubleshooting : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, Troubleshooting, ::testing::ValuesIn(programKinds()), kindName);

TEST_P(Troubleshooting, PathsLoseTheirQuotationMarks) {
    const std::string general = user("Software\\Microsoft\\Internet Explorer\\Desktop\\SafeMode\\General");
    open(295, block(general, text("Wallpaper", "%SystemRoot%\\a.htt")), "98");
    EXPECT_EQ(edit(), "%SystemRoot%\\a.htt") << "variables are not expanded";
    type(IDC_EDIT1, "\"C:\\b\".htt\"");
    EXPECT_EQ(apply(),
              replaced(general, text("Wallpaper", "%SystemRoot%\\a.htt"), expandable("Wallpaper", "C:\\b.htt")));
    type(IDC_EDIT1, "\"\"");
    EXPECT_EQ(apply(), Changes{removed(general, expandable("Wallpaper", "C:\\b.htt"))});

    // Without a sound the value stays, with no data at all.
    const std::string mail = user("AppEvents\\Schemes\\Apps\\.Default\\MailBeep\\.Current");
    open(296, block(mail, text("", "C:\\a.wav")));
    type(IDC_EDIT1, "\"\"");
    EXPECT_EQ(apply(), replaced(mail, text("", "C:\\a.wav"), "@=hex(1):"));
}

TEST_P(Troubleshooting, TheNewCommandIsAHandlerOfOneClass) {
    const std::string handlers = classes("Directory\\Background\\shellex\\ContextMenuHandlers");
    const std::string key = classes("Directory\\Background\\shellex\\ContextMenuHandlers\\New");
    const std::string right = text("", "{D969A300-E7FF-11d0-A93B-00A0C90F2719}");
    const std::string otherCase = text("", "{d969a300-e7ff-11d0-a93b-00a0c90f2719}");
    open(289, block(handlers, text("x", "")) + block(key, otherCase), "98");
    EXPECT_EQ(box(), 0u);
    click();
    EXPECT_EQ(apply(), replaced(key, otherCase, right));
    click();
    EXPECT_EQ(apply(), (Changes{removedKey(key), removed(key, right)}));
}

TEST_P(Troubleshooting, TheShortcutBarsKeyStaysAndItsValueGoes) {
    const std::string office = user("Software\\Microsoft\\Office\\10.0");
    const std::string bar = user("Software\\Microsoft\\Office\\10.0\\Shortcut Bar");
    open(292, block(office));
    EXPECT_EQ(box(), 1u);
    open(292, block(office, text("Shortcut Bar", "x"), text("Other", "y")) + block(bar, text("z", "")));
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(apply(), Changes{}) << "a cleared box repairs nothing";
    click();
    EXPECT_EQ(apply(), Changes{removed(office, text("Shortcut Bar", "x"))});
    program().select(292);
    EXPECT_EQ(box(), 0u);
}

// ---- Without a category

// The profile's folder ends with a separator, which shows twice.
TEST(UserFolders, ShowTheProfileAndStoreItsVariable) {
    const std::string key = user(kExplorer + "\\User Shell Folders");
    for (const std::string_view windows : {"xp", "nt4", "98"}) {
        SCOPED_TRACE(windows);
        const bool profiles = windows != "98";
        const std::string cookies = expandable("Cookies", "%USERPROFILE%\\Cookies");
        MemoryProgram program(block(key, cookies, text("Cache", "D:\\c")) + std::string(kBareRegistry), windows);
        ASSERT_TRUE(program.start());
        program.select(306);
        EXPECT_EQ(shownPage(program)->text(IDC_EDIT1),
                  profiles ? "C:\\Documents and Settings\\User\\\\Cookies" : "%USERPROFILE%\\Cookies");
        ASSERT_TRUE(program.type(IDC_EDIT4, ""));
        ASSERT_TRUE(program.type(IDC_EDIT5, "C:\\Documents and Settings\\User\\Docs"));
        const std::string before = program.registryText();
        ASSERT_TRUE(program.apply());
        const std::string personal = profiles ? "%USERPROFILE%Docs" : "C:\\Documents and Settings\\User\\Docs";
        EXPECT_EQ(registryChanges(before, program.registryText()), added(key, expandable("Personal", personal)) + '\n');
    }
}

TEST_P(Troubleshooting, TheOwnerStandsByFamilyAndIsDatedOnlyInOne) {
    const std::string oldKey = machine("SOFTWARE\\Microsoft\\Windows\\CurrentVersion");
    const std::string newKey = machine("SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion");
    for (const std::string_view windows : {"95", "98", "me", "nt4", "xp", "vista"}) {
        SCOPED_TRACE(windows);
        const bool family9x = windows == "95" || windows == "98" || windows == "me";
        open(308, block(oldKey, text("RegisteredOwner", "old")) + block(newKey, text("RegisteredOwner", "new")),
             windows);
        EXPECT_EQ(edit(), family9x ? "old" : "new");
        type(IDC_EDIT1, "");
        type(IDC_EDIT2, "Works");
        EXPECT_EQ(apply(), Changes{added(family9x ? oldKey : newKey, text("RegisteredOrganization", "Works"))});
        EXPECT_EQ(dated(308), family9x);
    }
}

TEST_P(Troubleshooting, CoolSwitchIsTurnedOnEvenWithoutNumbers) {
    open(309, block(user(kDesktop)));
    EXPECT_EQ(apply(), (Changes{added(user(kDesktop), text("CoolSwitchColumns", "0")),
                                added(user(kDesktop), text("CoolSwitchRows", "0")),
                                added(user(kDesktop), text("CoolSwitch", "1"))}));
}

}  // namespace
}  // namespace korvane
