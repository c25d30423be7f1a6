// The Start Menu and Taskbar tweaks: keys whose absence is the setting, values in
// every user's hive, and menus that share their values with combo boxes.
#include "tests/catalogue/ItemTest.h"

namespace korvane {
namespace {

class StartMenu : public ItemTest {};

INSTANTIATE_TEST_SUITE_P(Over, StartMenu, ::testing::ValuesIn(programKinds()), kindName);

const std::string kExplorer = "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer]";
const std::string kAdvanced = "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced]";
const std::string kMachineAdvanced =
    "[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced]";
const std::string kPolicies = "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer]";
const std::string kMachinePolicies =
    "[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer]";

std::string hive(std::string_view name) {
    return "[HKEY_USERS\\" + std::string(name) + "\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced]";
}

TEST_P(StartMenu, GatesRefuseWithTheirAlerts) {
    const GateCase gates[] = {
        {" xp 2003 ",
         "These Tweak active only on Windows XP",
         {188, 189, 191, 193, 198, 199, 200, 202, 203, 204, 205, 206, 207, 210}},
        // These texts name systems that their gates refuse.
        {" 2000 xp 2003 ", "These Tweak active only on Windows 2000/Me/XP", {179, 182, 183, 184, 185, 186, 201}},
        {" 2000 xp 2003 ", "These settings control activate only on Windows 98/Me/2000/XP", {197}},
        {" xp 2003 ", "These Tweak active only on Windows Me/XP", {194}},
        {" 95 98 me nt4 2000 xp 2003 vista ", "", {180, 181, 192, 195, 196, 209}},
    };
    expectGates(gates,
                kExplorer + '\n' + kAdvanced + '\n' + kPolicies + '\n' + hive(".DEFAULT") +
                    "\n[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MenuOrder]\n");
}

// ---- Keys whose absence is the setting

TEST_P(StartMenu, RunCommandsAreClearedWithTheirKey) {
    const std::string list = "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RunMRU]";
    const char* const kTitle = "Clear the Cashed Run Commands";
    showItem(196, kExplorer + "\n\"Other\"=dword:1\n" + list + "\n\"a\"=\"cmd\\\\1\"");
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(applied(), "") << "a list that is there stays";
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), '-' + list + "\n-" + list + " \"a\"=\"cmd\\\\1\"\n");
    EXPECT_EQ(applied(), "") << "there is nothing left to clear";
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), '+' + list + '\n');

    showItem(196, kExplorer);
    EXPECT_EQ(box(), 1u);
    EXPECT_EQ(applied(), "");
    EXPECT_TRUE(stamped(kTitle));

    // Only a key without subkeys can be deleted.
    showItem(196, list.substr(0, list.size() - 1) + "\\Sub]");
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), "");

    showItem(196, "");
    EXPECT_EQ(box(), 1u);
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), "") << "the key above is not made";
}

TEST_P(StartMenu, MenusAreSortedByDeletingTheirOrder) {
    const std::string order = "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MenuOrder";
    showItem(209, order + "\\Start Menu\\Programs]\n\"Order\"=hex:01");
    EXPECT_EQ(boxes(), "01");
    ASSERT_TRUE(program().click(IDC_CHECK1));
    ASSERT_TRUE(program().click(IDC_CHECK2));
    EXPECT_EQ(applied(), '-' + order + "\\Start Menu\\Programs]\n-" + order +
                             "\\Start Menu\\Programs] \"Order\"=hex:01\n+" + order + "\\Favorites]\n");
    program().select(177);
    program().select(209);
    EXPECT_EQ(boxes(), "10");
    showItem(209, "");
    EXPECT_EQ(boxes(), "11");
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), "");
}

// ---- 197: every hive

TEST_P(StartMenu, ScrollingIsReadFromEveryHive) {
    struct {
        std::string keys;
        const char* boxes;
    } const cases[] = {
        {"", "00"},
        {hive(".DEFAULT") + "\n\"StartMenuScrollPrograms\"=\"YES\"\n" + hive("S-1") +
             "\n\"StartMenuScrollPrograms\"=\"No\"",
         "10"},
        {hive(".DEFAULT") + "\n\"StartMenuScrollPrograms\"=\"Yes \"\n" + hive("S-1") +
             "\n\"StartMenuScrollPrograms\"=\"1\"",
         "00"},
        // The number of the last hive that has one.
        {hive(".DEFAULT") + "\n\"Start_ScrollPrograms\"=dword:1\n" + hive("S-1") +
             "\n\"Start_ScrollPrograms\"=dword:0\n" + hive("S-2"),
         "00"},
        {hive(".DEFAULT") + "\n\"Start_ScrollPrograms\"=dword:0\n" + hive("S-1") + "\n\"Start_ScrollPrograms\"=dword:1",
         "01"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.keys);
        showItem(197, each.keys);
        EXPECT_EQ(boxes(), each.boxes);
    }
}

TEST_P(StartMenu, ScrollingIsWrittenToEveryHiveThatHasTheKey) {
    showItem(197, hive(".DEFAULT") + "\n\"StartMenuScrollPrograms\"=\"No\"\n" + hive("S-1") +
                      "\n[HKEY_USERS\\S-1_Classes\\Software]\n[HKEY_USERS\\S-2\\Software\\Microsoft]\n" + hive("S-3") +
                      '\n' + kAdvanced);
    ASSERT_TRUE(program().click(IDC_CHECK1));
    const std::string yes = " \"StartMenuScrollPrograms\"=\"Yes\"\n+";
    const std::string zero = " \"Start_ScrollPrograms\"=dword:00000000\n";
    const std::string one = " \"Start_ScrollPrograms\"=dword:00000001\n";
    EXPECT_EQ(applied(), '-' + hive(".DEFAULT") + " \"StartMenuScrollPrograms\"=\"No\"\n+" + hive(".DEFAULT") + yes +
                             hive(".DEFAULT") + zero + '+' + hive("S-1") + yes + hive("S-1") + zero + '+' +
                             hive("S-3") + yes + hive("S-3") + zero);
    ASSERT_TRUE(program().click(IDC_CHECK2));
    EXPECT_EQ(applied(), '-' + hive(".DEFAULT") + zero + '-' + hive("S-1") + zero + '-' + hive("S-3") + zero +  //
                             '+' + hive(".DEFAULT") + one + '+' + hive("S-1") + one + '+' + hive("S-3") + one);
}

// ---- Which keys are made

TEST_P(StartMenu, OnlyTheseKeysAreMade) {
    const std::string nonEnum = "\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\NonEnum]";
    const std::string user = "[HKEY_CURRENT_USER" + nonEnum;
    const std::string machine = "[HKEY_LOCAL_MACHINE" + nonEnum;
    const std::string icon = " \"{20D04FE0-3AEA-1069-A2D8-08002B30309D}\"=dword:0000000";
    showItem(201, "");
    ASSERT_TRUE(program().click(IDC_CHECK2));
    EXPECT_EQ(applied(), '+' + user + "\n+" + user + icon + "0\n+" + machine + "\n+" + machine + icon + "1\n");
    showItem(198, "");
    EXPECT_EQ(applied(), '+' + kAdvanced + "\n+" + kAdvanced + " \"Start_NotifyNewApps\"=dword:00000000\n");
    showItem(181, "");
    ASSERT_TRUE(program().click(IDC_CHECK1));
    ASSERT_TRUE(program().click(IDC_CHECK2));
    EXPECT_EQ(applied(),
              '+' + kMachinePolicies + "\n+" + kMachinePolicies + " \"NoStartMenuSubFolders\"=dword:00000001\n");
    for (const int id : {179, 180, 182, 188, 189, 191, 192, 193, 194, 195, 199, 203, 206, 207, 210}) {
        SCOPED_TRACE(id);
        showItem(id, "");
        program().click(IDC_CHECK1);
        program().click(IDC_CHECK2);
        program().type(IDC_EDIT1, "7");
        program().type(IDC_EDIT2, "7");
        EXPECT_EQ(applied(), "");
        EXPECT_NE(program().dateFile().find(kLaterDay), std::string::npos);
    }
}

// ---- Menus and their combo boxes

TEST_P(StartMenu, AClearedCascadingFolderIsHiddenAltogether) {
    for (const auto& [id, name] : {std::pair(182, "Start_ShowControlPanel"), std::pair(183, "Start_ShowMyDocs"),
                                   std::pair(184, "Start_ShowMyPics"), std::pair(185, "Start_ShowNetConn"),
                                   std::pair(186, "Start_ShowPrinters")}) {
        SCOPED_TRACE(id);
        const std::string value = " \"" + std::string(name) + "\"=dword:0000000";
        const std::string stored = "\n\"" + std::string(name) + "\"=dword:";
        showItem(id, kAdvanced + stored + "1\n" + kMachineAdvanced + stored + "2");
        EXPECT_EQ(boxes(), "01");
        EXPECT_EQ(applied(), '-' + kAdvanced + value + "1\n+" + kAdvanced + value + "0\n");
        ASSERT_TRUE(program().click(IDC_CHECK1));
        ASSERT_TRUE(program().click(IDC_CHECK2));
        EXPECT_EQ(applied(), '-' + kAdvanced + value + "0\n-" + kMachineAdvanced + value + "2\n+" + kAdvanced + value +
                                 "2\n+" + kMachineAdvanced + value + "0\n");
    }
}

TEST_P(StartMenu, FolderModesAreTheirIndexes) {
    constexpr int kCombos[] = {IDC_COMBO1, IDC_COMBO2, IDC_COMBO3, IDC_COMBO4, IDC_COMBO5, IDC_COMBO6};
    const auto modes = [&] {
        std::string text;
        for (const int control : kCombos) {
            text += std::to_string(combo(control)) + ' ';
        }
        return text;
    };
    showItem(210, kAdvanced);
    EXPECT_EQ(modes(), "1 1 1 1 1 1 ");
    showItem(210, kAdvanced +
                      "\n\"Start_ShowMyMusic\"=dword:2\n\"Start_ShowNetConn\"=dword:0\n\"Start_ShowMyPics\"=dword:3");
    EXPECT_EQ(modes(), "1 1 1 2 -1 0 ");
    ASSERT_TRUE(program().pick(IDC_COMBO1, 0));
    ASSERT_TRUE(program().pick(IDC_COMBO3, 2));
    EXPECT_EQ(applied(), '-' + kAdvanced + " \"Start_ShowMyPics\"=dword:00000003\n" +            //
                             '+' + kAdvanced + " \"Start_ShowControlPanel\"=dword:00000000\n" +  //
                             '+' + kAdvanced + " \"Start_ShowMyComputer\"=dword:00000001\n" +    //
                             '+' + kAdvanced + " \"Start_ShowMyDocs\"=dword:00000002\n" +        //
                             '+' + kAdvanced + " \"Start_ShowMyPics\"=dword:ffffffff\n");
    // The boxes of the cascading folders show the same values.
    program().select(183);
    EXPECT_EQ(boxes(), "10");
    program().select(182);
    EXPECT_EQ(boxes(), "00");
}

// ---- Numbers

TEST_P(StartMenu, AnEmptyNumberIsDeletedUnderItsOwnRoot) {
    struct {
        int id;
        std::string user;
        std::string machine;
    } const cases[] = {
        {179, kPolicies + " \"MaxRecentDocs\"=dword:", kMachinePolicies + " \"MaxRecentDocs\"=dword:"},
        {189, kAdvanced + " \"TaskbarGroupSize\"=dword:", kMachineAdvanced + " \"TaskbarGroupSize\"=dword:"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.id);
        const std::string name = each.id == 179 ? "\"MaxRecentDocs\"" : "\"TaskbarGroupSize\"";
        const std::string machineKey = each.id == 179 ? kMachinePolicies : kMachineAdvanced;
        showItem(each.id, (each.id == 179 ? kPolicies : kAdvanced) + '\n' + name + "=dword:ffffffff\n" + machineKey);
        EXPECT_EQ(edit(), "-1");
        EXPECT_EQ(edit(IDC_EDIT2), "");
        ASSERT_TRUE(program().type(IDC_EDIT1, ""));
        ASSERT_TRUE(program().type(IDC_EDIT2, "3"));
        EXPECT_EQ(applied(), '-' + each.user + "ffffffff\n+" + each.machine + "00000003\n");
        ASSERT_TRUE(program().type(IDC_EDIT1, "12 windows"));
        ASSERT_TRUE(program().type(IDC_EDIT2, "all"));
        EXPECT_EQ(applied(),
                  '-' + each.machine + "00000003\n+" + each.user + "0000000c\n+" + each.machine + "00000000\n");
    }
}

TEST_P(StartMenu, TipsAndTheLockAreCheckedAtZero) {
    for (const auto& [id, name] : {std::pair(191, "EnableBalloonTips"), std::pair(194, "TaskbarSizeMove")}) {
        SCOPED_TRACE(id);
        const std::string value = kAdvanced + " \"" + name + "\"=dword:0000000";
        showItem(id, kAdvanced);
        EXPECT_EQ(box(), 0u);
        EXPECT_EQ(applied(), '+' + value + "1\n");
        ASSERT_TRUE(program().click(IDC_CHECK1));
        EXPECT_EQ(applied(), '-' + value + "1\n+" + value + "0\n");
        program().select(187);
        program().select(id);
        EXPECT_EQ(box(), 1u);
        showItem(id, kAdvanced + "\n\"" + name + "\"=dword:5");
        EXPECT_EQ(box(), 0u);
    }
}

// ---- 195: one fixed profile

TEST_P(StartMenu, TheBannerIsAlsoHiddenInOneFixedProfile) {
    const std::string profile =
        "[HKEY_USERS\\S-1-5-21-839522115-1547161642-725345543-1003\\Software\\Microsoft\\Windows\\"
        "CurrentVersion\\Policies\\Explorer]";
    const std::string hidden = " \"NoStartBanner\"=hex:01,00,00,00\n";
    showItem(195, kPolicies + '\n' + profile + '\n' + hive("S-1"));
    EXPECT_EQ(box(), 0u);
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), '+' + kPolicies + hidden + '+' + profile + hidden);
    program().select(187);
    program().select(195);
    EXPECT_EQ(box(), 1u);
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), '-' + kPolicies + hidden + '-' + profile + hidden);
    // The other profile is never read, and is written even without the user's own key.
    showItem(195, profile + "\n\"NoStartBanner\"=hex:01,00,00,00");
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(applied(), '-' + profile + hidden);
}

// ---- 208: the programs that can be listed

TEST_P(StartMenu, ProgramsAreListedByTheirExtension) {
    const std::string applications = "[HKEY_CLASSES_ROOT\\Applications\\";
    const std::string hidden = " \"NoStartPage\"=hex(1):\n";  // a text of no bytes at all
    showItem(208, applications + "a.exe]\n\"NoStartPage\"=hex(1):\n" + applications + "b.dll]\n" + applications +
                      "c.EXE]\n" + applications + "d.Exe]\n" + applications + "e.exe.old]\n" + applications +
                      "f.exe]\n\"NoStartPage\"=\"x\"\n" + "[HKEY_CLASSES_ROOT\\Applications]\n");
    EXPECT_NE(pageText(program()).find("rows -xx-\n"), std::string::npos) << pageText(program());
    EXPECT_EQ(applied(), '-' + applications + "f.exe] \"NoStartPage\"=\"x\"\n+" + applications + "f.exe]" + hidden);
    for (const int row : {0, 1, 2}) {
        ASSERT_TRUE(program().clickRow(IDC_CHECK_LIST, row));
    }
    EXPECT_EQ(applied(), '-' + applications + "a.exe]" + hidden + '+' + applications + "c.EXE]" + hidden + '+' +
                             applications + "e.exe.old]" + hidden);
    showItem(208, "");
    EXPECT_NE(pageText(program()).find("rows \n"), std::string::npos);
    EXPECT_EQ(applied(), "");
}

TEST_P(StartMenu, ProgramsAreRefusedOnOtherWindows) {
    showItem(208, "[HKEY_CLASSES_ROOT\\Applications\\a.exe]\n", "2000");
    ASSERT_TRUE(program().clickRow(IDC_CHECK_LIST, 0));
    EXPECT_EQ(applied(), "");
    EXPECT_EQ(alerts(), "These Tweak active only on Windows XP");
}

}  // namespace
}  // namespace korvane
