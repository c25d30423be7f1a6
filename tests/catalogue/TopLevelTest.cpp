// The tweaks without a category: folders with the profile's variable, the
// owner by Windows family, and CoolSwitch, which is always turned on.
#include "platform/memory/RegFile.h"
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class TopLevel : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, TopLevel, ::testing::ValuesIn(programKinds()), kindName);

const std::string kFolders = user("Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders");
const std::string kWindows = machine("SOFTWARE\\Microsoft\\Windows\\CurrentVersion");
const std::string kWindowsNt = machine("SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion");
const std::string kDesktop = user("Control Panel\\Desktop");

// The profile's variable; its folder ends with a separator, which shows twice.
TEST(UserFolders, ShowTheProfileAndStoreItsVariable) {
    for (const std::string_view windows : {"xp", "nt4", "98"}) {
        SCOPED_TRACE(windows);
        const bool profiles = windows != "98";
        MemoryProgram program(block(kFolders, expandable("Cookies", "%USERPROFILE%\\Cookies"), text("Cache", "D:\\c")) +
                                  std::string(kBareRegistry),
                              windows);
        ASSERT_TRUE(program.start());
        program.select(306);
        EXPECT_EQ(shownPage(program)->text(IDC_EDIT1),
                  profiles ? "C:\\Documents and Settings\\User\\\\Cookies" : "%USERPROFILE%\\Cookies");
        EXPECT_EQ(shownPage(program)->text(IDC_EDIT4), "D:\\c");
        ASSERT_TRUE(program.type(IDC_EDIT4, ""));
        ASSERT_TRUE(program.type(IDC_EDIT5, "C:\\Documents and Settings\\User\\Docs"));
        ASSERT_TRUE(program.apply());
        EXPECT_EQ(
            dumpKey(program.registry, Root::CurrentUser,
                    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders"),
            block(kFolders, text("Cache", "D:\\c"), expandable("Cookies", "%USERPROFILE%\\Cookies"),
                  expandable("Personal", profiles ? "%USERPROFILE%Docs" : "C:\\Documents and Settings\\User\\Docs")));
    }
}

TEST_P(TopLevel, FieldsLeftEmptyKeepWhatIsStored) {
    const std::string setup = machine("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Setup");
    open(307, block(setup, text("SourcePath", "D:\\")), "95");
    EXPECT_EQ(edit(), "D:\\");
    type(IDC_EDIT1, "");
    EXPECT_EQ(apply(), Changes{});
    open(308, block(kWindowsNt, text("RegisteredOwner", "A"), text("RegisteredOrganization", "B")));
    type(IDC_EDIT1, "");
    type(IDC_EDIT2, "C");
    EXPECT_EQ(apply(), (Changes{removed(kWindowsNt, text("RegisteredOrganization", "B")),
                                added(kWindowsNt, text("RegisteredOrganization", "C"))}));
}

TEST_P(TopLevel, TheOwnerStandsByFamilyAndIsDatedOnlyInOne) {
    const std::string both =
        block(kWindows, text("RegisteredOwner", "old")) + block(kWindowsNt, text("RegisteredOwner", "new"));
    struct {
        const char* windows;
        bool family9x;
    } const cases[] = {{"95", true}, {"98", true}, {"me", true}, {"nt4", false}, {"xp", false}, {"vista", false}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.windows);
        open(308, both, each.windows);
        EXPECT_EQ(edit(), each.family9x ? "old" : "new");
        type(IDC_EDIT2, "Works");
        EXPECT_EQ(apply(),
                  Changes{added(each.family9x ? kWindows : kWindowsNt, text("RegisteredOrganization", "Works"))});
        EXPECT_EQ(dated(308), each.family9x);
    }
}

TEST_P(TopLevel, CoolSwitchIsTurnedOnEvenWithoutNumbers) {
    const std::string columns = text("CoolSwitchColumns", "100");
    open(309, block(kDesktop, columns, text("CoolSwitchRows", "7 rows"), text("CoolSwitch", "0")));
    EXPECT_EQ(shownPage(program())->comboCount(IDC_COMBO1), 100);
    EXPECT_EQ(combo(IDC_COMBO1), -1);
    EXPECT_EQ(combo(IDC_COMBO2), 7);
    EXPECT_EQ(apply(), (Changes{removed(kDesktop, columns), added(kDesktop, text("CoolSwitchColumns", "-1")),
                                removed(kDesktop, text("CoolSwitchRows", "7 rows")),
                                added(kDesktop, text("CoolSwitchRows", "7")),
                                removed(kDesktop, text("CoolSwitch", "0")), added(kDesktop, text("CoolSwitch", "1"))}));
    open(309, block(kDesktop));
    EXPECT_EQ(combo(IDC_COMBO1), 0);
    pick(IDC_COMBO1, 99);
    EXPECT_EQ(apply(),
              (Changes{added(kDesktop, text("CoolSwitchColumns", "99")), added(kDesktop, text("CoolSwitchRows", "0")),
                       added(kDesktop, text("CoolSwitch", "1"))}));
}

}  // namespace
}  // namespace korvane
