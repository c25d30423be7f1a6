// The File System tweaks: prefixes, zones, time-outs and drives, whose stored
// forms are not what their controls suggest.
#include "tests/catalogue/ItemTest.h"

namespace korvane {
namespace {

class FileSystem : public ItemTest {};

INSTANTIATE_TEST_SUITE_P(Over, FileSystem, ::testing::ValuesIn(programKinds()), kindName);

const std::string kControl = "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\FileSystem]";
const std::string kExplorer = "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer]";
const std::string kMachineExplorer = "[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer]";
const std::string kPolicies = "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer]";
const std::string kMachinePolicies =
    "[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer]";
const std::string kSessionManager = "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager]";
const std::string kBootOptimization = "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction]";

TEST_P(FileSystem, GatesRefuseWithTheirAlerts) {
    const GateCase gates[] = {
        {" nt4 2000 xp 2003 ",
         "These Tweak active only on Windows NT/2000/XP",
         {124, 126, 130, 131, 134, 139, 141, 143, 147, 148}},
        {" 2000 xp 2003 ", "These Tweak active only on Windows 2000/XP", {129, 151}},
        {" xp 2003 ", "These Tweak active only on Windows XP", {138, 140, 146}},
        {" me 2000 xp 2003 ", "These Tweak active only on Windows 2000/Me/XP", {136}},
        {" 95 98 me 2000 xp 2003 ", "These Tweak active only on Windows 95/98/Me/2000/XP", {154}},
        {" 95 98 me nt4 2000 xp 2003 vista ", "", {127, 128, 133, 142}},
    };
    expectGates(gates,
                kControl + '\n' + kExplorer + '\n' + kPolicies + '\n' + kSessionManager + '\n' + kBootOptimization +
                    "\n[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management]\n"
                    "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Cdrom]\n"
                    "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\BitBucket]\n"
                    "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\EFS]\n"
                    "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced]\n");
}

// ---- Boxes

TEST_P(FileSystem, TheShortcutPrefixIsTakenAwayByFourZeros) {
    struct {
        const char* value;
        std::uint32_t checked;
    } const cases[] = {
        {"", 0},
        {"\"link\"=hex:00,00,00,00", 1},
        {"\"link\"=hex:00,00,00,00,05", 1},
        {"\"link\"=hex:00,00,00,01", 0},
        {"\"link\"=hex:1e,00,00,00", 0},
        {"\"link\"=dword:00000000", 1},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.value);
        showItem(133, kExplorer + '\n' + each.value);
        EXPECT_EQ(box(), each.checked);
        EXPECT_EQ(box(IDC_CHECK2), 0u);
    }
    showItem(133, kExplorer + "\n\"link\"=hex:1e,00,00,00\n" + kMachineExplorer);
    ASSERT_TRUE(program().click(IDC_CHECK2));
    EXPECT_EQ(applied(), '-' + kExplorer + " \"link\"=hex:1e,00,00,00\n" +  //
                             '+' + kMachineExplorer + " \"link\"=hex:00,00,00,00\n");
    // Without the key of one user, the other's is still written, and none is made.
    showItem(133, kMachineExplorer);
    ASSERT_TRUE(program().click(IDC_CHECK1));
    ASSERT_TRUE(program().click(IDC_CHECK2));
    EXPECT_EQ(applied(), '+' + kMachineExplorer + " \"link\"=hex:00,00,00,00\n");
    EXPECT_TRUE(stamped("Remove the'Shortcut to...'Prefix on Shortcuts"));
}

TEST_P(FileSystem, ShortExtensionsAreCheckedAtZero) {
    showItem(131, kControl);
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(applied(), '+' + kControl + " \"Win95TruncatedExtensions\"=dword:00000001\n");
    showItem(131, kControl + "\n\"Win95TruncatedExtensions\"=dword:0");
    EXPECT_EQ(box(), 1u);
    EXPECT_EQ(applied(), "");
    showItem(131, "");
    EXPECT_EQ(applied(), "");
}

TEST_P(FileSystem, AnyNumberButZeroIsTheStateOfACheckedBox) {
    struct {
        int id;
        std::string key;
        std::string name;
    } const cases[] = {
        {126, kPolicies, "NoResolveSearch"},        {128, kPolicies, "LinkResolveIgnoreLinkInfo"},
        {136, kExplorer, "NoFileFolderConnection"}, {134, kControl, "NtfsDisable8dot3NameCreation"},
        {140, kPolicies, "NoLowDiskSpaceChecks"},   {147, kControl, "NtfsDisableLastAccessUpdate"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.id);
        const std::string value = each.key + " \"" + each.name + "\"=dword:0000000";
        showItem(each.id, each.key + "\n\"" + each.name + "\"=dword:2");
        EXPECT_EQ(box(), 1u);
        EXPECT_EQ(applied(), '-' + value + "2\n+" + value + "1\n");
        ASSERT_TRUE(program().click(IDC_CHECK1));
        EXPECT_EQ(applied(), '-' + value + "1\n+" + value + "0\n");
    }
}

TEST_P(FileSystem, BootOptimizationKnowsOnlyACapitalY) {
    for (const std::string text : {"Y", "y", "Yes", "N", "1"}) {
        SCOPED_TRACE(text);
        showItem(138, kBootOptimization + "\n\"Enable\"=\"" + text + '"');
        EXPECT_EQ(box(), text == "Y" ? 1u : 0u);
        ASSERT_TRUE(program().click(IDC_CHECK1));
        const std::string value = kBootOptimization + " \"Enable\"=\"";
        EXPECT_EQ(applied(), '-' + value + text + "\"\n+" + value + (text == "Y" ? "N" : "Y") + "\"\n");
    }
}

TEST_P(FileSystem, OnlyTheMachinesBurningPolicyIsMade) {
    const std::string made = '+' + kMachinePolicies + '\n' + '+' + kMachinePolicies + " \"NoCDBurning\"=dword:0000000";
    showItem(146, "");
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), made + "0\n");
    showItem(146, kPolicies);
    ASSERT_TRUE(program().click(IDC_CHECK1));
    ASSERT_TRUE(program().click(IDC_CHECK2));
    EXPECT_EQ(applied(), '+' + kPolicies + " \"NoCDBurning\"=dword:00000001\n" + made + "1\n");
    // The other pair of policies makes neither.
    showItem(140, "");
    ASSERT_TRUE(program().click(IDC_CHECK2));
    EXPECT_EQ(applied(), "");
}

// ---- Choices

TEST_P(FileSystem, TableZonesCountFromOne) {
    const std::string value = kControl + " \"NtfsMftZoneReservation\"=dword:0000000";
    for (int stored = 0; stored <= 5; ++stored) {
        SCOPED_TRACE(stored);
        const bool known = stored >= 1 && stored <= 4;
        showItem(139, kControl + "\n\"NtfsMftZoneReservation\"=dword:" + std::to_string(stored));
        EXPECT_EQ(combo(), known ? stored - 1 : kNoSelection);
        // Without a choice 0 is written, which is no zone at all.
        EXPECT_EQ(applied(), stored == 5 ? '-' + value + "5\n+" + value + "0\n" : "");
    }
    showItem(139, kControl);
    EXPECT_EQ(combo(), kNoSelection);
    ASSERT_TRUE(program().pick(IDC_COMBO1, 3));
    EXPECT_EQ(applied(), '+' + value + "4\n");
}

TEST_P(FileSystem, TheTimeOutEndsAtAnHour) {
    struct {
        const char* value;
        int entry;
    } const cases[] = {
        {"", kNoSelection},
        {"\"AutoChkTimeOut\"=dword:0", 0},
        {"\"AutoChkTimeOut\"=dword:e10", 3600},
        {"\"AutoChkTimeOut\"=dword:e11", kNoSelection},
        {"\"AutoChkTimeOut\"=dword:ffffffff", kNoSelection},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.value);
        showItem(141, kSessionManager + '\n' + each.value);
        EXPECT_EQ(shownPage(program())->comboCount(IDC_COMBO1), 3601);
        EXPECT_EQ(combo(), each.entry);
        EXPECT_EQ(edit(IDC_COMBO1), each.entry == kNoSelection ? "" : std::to_string(each.entry));
    }
    showItem(141, kSessionManager);
    EXPECT_EQ(applied(), '+' + kSessionManager + " \"AutoChkTimeOut\"=dword:ffffffff\n");
    ASSERT_TRUE(program().pick(IDC_COMBO1, 10));
    EXPECT_EQ(applied(), '-' + kSessionManager + " \"AutoChkTimeOut\"=dword:ffffffff\n" +  //
                             '+' + kSessionManager + " \"AutoChkTimeOut\"=dword:0000000a\n");
}

TEST_P(FileSystem, LongNamesAreTheFirstChoiceButNoCacheIs) {
    const std::string memory =
        "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management]";
    showItem(127, kControl);
    EXPECT_EQ(combo(), 0);
    EXPECT_EQ(applied(), '+' + kControl + " \"Win31FileSystem\"=dword:00000000\n");
    showItem(127, kControl + "\n\"Win31FileSystem\"=dword:2");
    EXPECT_EQ(combo(), kNoSelection);
    showItem(124, memory);
    EXPECT_EQ(combo(), kNoSelection);
    EXPECT_EQ(applied(), '+' + memory + " \"LargeSystemCache\"=dword:ffffffff\n");
    showItem(124, memory + "\n\"LargeSystemCache\"=dword:1");
    EXPECT_EQ(combo(), 1);
}

// ---- Drives: the machine's drives are set here, which only the program in memory allows.

class Drives : public ::testing::Test {
protected:
    Drives() : program_(kPolicies + '\n' + std::string(kBareRegistry)) {}

    void show(std::vector<Drive> drives) {
        program_.system.folders.drives = std::move(drives);
        if (!program_.main) {
            ASSERT_TRUE(program_.start());
        }
        program_.select(137);
        program_.select(152);
    }
    // The rows' texts, each with a mark in front of it when it is checked.
    std::string rows() {
        std::string texts;
        for (const MemoryListRow& row : program_.window.page(IDD_CHECK_LIST)->find(IDC_CHECK_LIST)->rows) {
            texts += (row.checked ? " *" : " ") + std::string(row.cell(0));
        }
        return texts;
    }
    void check(std::initializer_list<int> rows) {
        for (const int row : rows) {
            ASSERT_TRUE(program_.clickRow(IDC_CHECK_LIST, row));
        }
    }
    std::string applied() {
        const std::string before = program_.registryText();
        EXPECT_TRUE(program_.apply());
        return registryChanges(before, program_.registryText());
    }

    MemoryProgram program_;
    const std::string written_ = '+' + kPolicies + " \"NoDriveAutoRun\"=dword:";
};

TEST_F(Drives, ListsAAndWhatCannotBeTakenOut) {
    show({{"A:\\", 2}, {"C:\\", 3}});
    EXPECT_EQ(rows(), " A:\\ C:\\ ALL");
    show({{"A:\\", 3}, {"B:\\", 3}, {"Z:\\", 4}, {"E:\\", 2}, {"D:\\", 5}, {"C:\\", 1}});
    EXPECT_EQ(rows(), " A:\\ Z:\\ D:\\ C:\\ ALL");
    show({});
    EXPECT_EQ(rows(), " A:\\ ALL");
}

TEST_F(Drives, AreAddedUp) {
    struct {
        std::vector<int> rows;
        const char* sum;
    } const cases[] = {
        {{}, "00000000"},  {{0}, "00000001"},    {{1}, "02000000"},          {{0, 2}, "00000009"},
        {{3}, "03ffffff"}, {{2, 3}, "04000007"}, {{0, 1, 2, 3}, "06000008"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.sum);
        loadRegistry(program_.registry, kPolicies + "\n\"NoDriveAutoRun\"=-\n");
        show({{"Z:\\", 4}, {"D:\\", 3}});
        EXPECT_EQ(rows(), " A:\\ Z:\\ D:\\ ALL") << "what is stored is never shown";
        for (const int row : each.rows) {
            check({row});
        }
        EXPECT_EQ(applied(), written_ + each.sum + '\n');
    }
}

TEST_F(Drives, MeanWhatWasShownEvenAfterADriveHasGone) {
    show({{"C:\\", 3}, {"D:\\", 3}, {"E:\\", 3}});
    check({3});
    program_.system.folders.drives = {{"C:\\", 3}, {"E:\\", 3}, {"F:\\", 3}};
    EXPECT_EQ(applied(), written_ + "00000010\n");
}

TEST_F(Drives, AreLeftAloneWithoutThePolicyKeyButDated) {
    loadRegistry(program_.registry, "[-" + kPolicies.substr(1) + '\n');
    show({{"C:\\", 3}});
    program_.setToday({.year = 2006, .month = 7, .day = 16});
    check({0, 1});
    EXPECT_EQ(applied(), "");
    EXPECT_EQ(dateOf(program_, "Select the Disk Drives to Start Automatically"), kLaterDay);
}

}  // namespace
}  // namespace korvane
