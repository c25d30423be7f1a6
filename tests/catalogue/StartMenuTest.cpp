// The Start Menu and Taskbar tweaks: keys whose absence is the setting, values in every user's hive, and programs that
// are listed by their extension.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class StartMenu : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, StartMenu, ::testing::ValuesIn(programKinds()), kindName);

std::string hive(const std::string& name) { return "[HKEY_USERS\\" + name + '\\' + kAdvanced + ']'; }

TEST_P(StartMenu, RunCommandsAreClearedWithTheirKey) {
    const std::string list = user(kExplorer + "\\RunMRU");
    open(196, block(user(kExplorer), number("Other", 1)) + block(list, text("a", "cmd")));
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(apply(), Changes{}) << "a list that is there stays";
    click();
    EXPECT_EQ(apply(), (Changes{removedKey(list), removed(list, text("a", "cmd"))}));
    EXPECT_EQ(apply(), Changes{}) << "there is nothing left to clear";
    click();
    EXPECT_EQ(apply(), Changes{addedKey(list)});

    // Only a key without subkeys can be deleted.
    open(196, user(kExplorer + "\\RunMRU\\Sub"));
    click();
    EXPECT_EQ(apply(), Changes{});

    open(196);
    EXPECT_EQ(box(), 1u);
    click();
    EXPECT_EQ(apply(), Changes{}) << "the key above is not made";
}

TEST_P(StartMenu, MenusAreSortedByDeletingTheirOrder) {
    const std::string programs = user(kExplorer + "\\MenuOrder\\Start Menu\\Programs");
    open(209, block(programs, "\"Order\"=hex:01"));
    EXPECT_EQ(boxes(), "01");
    click(IDC_CHECK1);
    click(IDC_CHECK2);
    EXPECT_EQ(apply(), (Changes{removedKey(programs), removed(programs, "\"Order\"=hex:01"),
                                addedKey(user(kExplorer + "\\MenuOrder\\Favorites"))}));
}

// ---- 197: every hive

TEST_P(StartMenu, ScrollingIsReadFromEveryHive) {
    const std::string name = "StartMenuScrollPrograms";
    const std::string newName = "Start_ScrollPrograms";
    const auto two = [](const std::string& first, const std::string& second) {
        return block(hive(".DEFAULT"), first) + block(hive("S-1"), second) + block(hive("S-2"));
    };
    const std::pair<std::string, const char*> cases[] = {
        {two(text(name, "YES"), text(name, "No")), "10"},
        {two(text(name, "Yes "), text(name, "1")), "00"},
        // The number of the last hive that has one.
        {two(number(newName, 1), number(newName, 0)), "00"},
        {two(number(newName, 0), number(newName, 1)), "01"},
    };
    for (const auto& [keys, shown] : cases) {
        open(197, keys);
        EXPECT_EQ(boxes(), shown) << keys;
    }
}

TEST_P(StartMenu, ScrollingIsWrittenToEveryHiveThatHasTheKey) {
    open(197, block(hive(".DEFAULT")) + block(hive("S-1")) + block("[HKEY_USERS\\S-1_Classes\\Software]") +
                  block("[HKEY_USERS\\S-2\\Software\\Microsoft]") + block(hive("S-3")) + block(user(kAdvanced)));
    click(IDC_CHECK1);
    Changes expected;
    for (const char* each : {".DEFAULT", "S-1", "S-3"}) {
        expected.insert(added(hive(each), text("StartMenuScrollPrograms", "Yes")));
        expected.insert(added(hive(each), number("Start_ScrollPrograms", 0)));
    }
    EXPECT_EQ(apply(), expected);
}

// ---- Which keys are made

TEST_P(StartMenu, OnlyTheseKeysAreMade) {
    const std::string nonEnum = kCurrentVersion + "\\Policies\\NonEnum";
    const std::string icon = "{20D04FE0-3AEA-1069-A2D8-08002B30309D}";
    open(201);
    click(IDC_CHECK2);
    EXPECT_EQ(apply(), (Changes{addedKey(user(nonEnum)), added(user(nonEnum), number(icon, 0)),
                                addedKey(machine(nonEnum)), added(machine(nonEnum), number(icon, 1))}));
    open(198);
    EXPECT_EQ(apply(), (Changes{addedKey(user(kAdvanced)), added(user(kAdvanced), number("Start_NotifyNewApps", 0))}));
    open(181);
    click(IDC_CHECK1);
    click(IDC_CHECK2);
    EXPECT_EQ(apply(), (Changes{addedKey(machine(kExplorerPolicies)),
                                added(machine(kExplorerPolicies), number("NoStartMenuSubFolders", 1))}));
}

TEST_P(StartMenu, TheBannerIsAlsoHiddenInOneFixedProfile) {
    const std::string profile = "[HKEY_USERS\\S-1-5-21-839522115-1547161642-725345543-1003\\" + kExplorerPolicies + ']';
    const std::string hidden = "\"NoStartBanner\"=hex:01,00,00,00";
    open(195, block(user(kExplorerPolicies)) + block(profile) + block(hive("S-1")));
    click();
    EXPECT_EQ(apply(), (Changes{added(user(kExplorerPolicies), hidden), added(profile, hidden)}));
    // The other profile is never read, and is written even without the user's own key.
    open(195, block(profile, hidden));
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(apply(), Changes{removed(profile, hidden)});
}

TEST_P(StartMenu, ProgramsAreListedByTheirExtension) {
    const auto application = [](const std::string& name) { return classes("Applications\\" + name); };
    const std::string hidden = "\"NoStartPage\"=hex(1):";  // a text of no bytes at all
    open(208, block(application("a.exe"), hidden) + block(application("b.dll")) + block(application("c.EXE")) +
                  block(application("d.Exe")) + block(application("e.exe.old")) +
                  block(application("f.exe"), text("NoStartPage", "x")));
    EXPECT_NE(pageText(program()).find("rows -xx-\n"), std::string::npos) << pageText(program());
    EXPECT_EQ(apply(), replaced(application("f.exe"), text("NoStartPage", "x"), hidden));
    for (const int row : {0, 1, 2}) {
        ASSERT_TRUE(program().clickRow(IDC_CHECK_LIST, row));
    }
    EXPECT_EQ(apply(), (Changes{removed(application("a.exe"), hidden), added(application("c.EXE"), hidden),
                                added(application("e.exe.old"), hidden)}));
    open(208);
    EXPECT_EQ(apply(), Changes{});
}

}  // namespace
}  // namespace korvane
