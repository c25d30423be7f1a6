// The single System tweaks: numbers that differ from what is shown, values that
// are deleted, keys that are made, and a page that cannot be applied.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class SystemTweaks : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, SystemTweaks, ::testing::ValuesIn(programKinds()), kindName);

const std::string kExplorerPolicies = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";

TEST_P(SystemTweaks, APowerSchemeIsTheNumberThatItsTextBeginsWith) {
    const std::string key = user("Control Panel\\PowerCfg");
    for (const auto& [stored, entry] : {std::pair{"5", 5}, {" 3x", 3}, {"", 0}, {"max", 0}, {"6", -1}, {"-1", -1}}) {
        open(257, block(key, text("CurrentPowerPolicy", stored)));
        EXPECT_EQ(combo(), entry) << stored;
    }
    EXPECT_EQ(apply(), Changes{}) << "nothing was chosen";
    pick(IDC_COMBO1, 4);
    EXPECT_EQ(apply(),
              (Changes{removed(key, text("CurrentPowerPolicy", "-1")), added(key, text("CurrentPowerPolicy", "4"))}));
}

TEST_P(SystemTweaks, UpdateServersAreOnlyShown) {
    const std::string key = "SOFTWARE\\Policies\\Microsoft\\Windows\\WindowsUpdate";
    open(259, block(machine(key), text("WUServer", "http://updates"), text("WUStatusServer", "http://statistics")) +
                  block(machine(key + "\\AU"), number("UseWUServer", 1)));
    EXPECT_EQ(edit(IDC_EDIT1), "http://updates");
    EXPECT_EQ(edit(IDC_EDIT2), "http://statistics");
    EXPECT_EQ(box(), 1u);
    click();
    type(IDC_EDIT1, "");
    const std::string dates = program().dateFile();
    EXPECT_EQ(apply(), Changes{});
    EXPECT_EQ(program().dateFile(), dates);
    EXPECT_EQ(alerts(), "");
}

TEST_P(SystemTweaks, SeparateMachinesCompareWithoutCase) {
    const std::string key = machine("SYSTEM\\CurrentControlSet\\Control\\WOW");
    open(262, block(key, text("DefaultSeparateVDM", "yES")));
    EXPECT_EQ(box(), 1u);
    open(262, block(key, text("DefaultSeparateVDM", "1")));
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(apply(),
              (Changes{removed(key, text("DefaultSeparateVDM", "1")), added(key, text("DefaultSeparateVDM", "No"))}));
}

TEST_P(SystemTweaks, ErrorModesStoreOneLessThanTheyShow) {
    const std::string key = machine("SYSTEM\\CurrentControlSet\\Control\\Windows");
    open(263, block(key, number("ErrorMode", 1)), "95");
    EXPECT_EQ(shownPage(program())->rowCount(IDC_LIST), 3);
    EXPECT_EQ(shownPage(program())->selectedRow(IDC_LIST), -1) << "the stored number is not read";
    EXPECT_FALSE(program().shows(IDD_CATEGORY, IDC_CHECK1));
    EXPECT_EQ(apply(), Changes{});
    EXPECT_TRUE(dated(263));
    EXPECT_TRUE(program().selectRow(IDC_LIST, 2));
    EXPECT_EQ(apply(), (Changes{removed(key, number("ErrorMode", 1)), added(key, number("ErrorMode", 2))}));
}

TEST_P(SystemTweaks, TheWindowsKeyReplacesOrRemovesAnyKeyboardMap) {
    const std::string key = machine("SYSTEM\\CurrentControlSet\\Control\\Keyboard Layout");
    const std::string capsLock = "\"Scancode Map\"=hex:00,00,00,00,00,00,00,00,02,00,00,00,00,00,3a,00,00,00,00,00";
    const std::string noWindowsKeys =
        "\"Scancode Map\"=hex:00,00,00,00,00,00,00,00,03,00,00,00,00,00,5b,e0,00,00,5c,e0,00,00,00,00";
    open(264, block(key, capsLock));
    EXPECT_EQ(box(), 1u);
    EXPECT_EQ(apply(), (Changes{removed(key, capsLock), added(key, noWindowsKeys)}));
    click();
    EXPECT_EQ(apply(), Changes{removed(key, noWindowsKeys)});
    open(264);
    click();
    EXPECT_EQ(apply(), Changes{}) << "the key must exist";
}

TEST_P(SystemTweaks, UnloadingDllsIsAKeyThatHoldsOne) {
    const std::string explorer = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer";
    const std::string key = machine(explorer + "\\AlwaysUnloadDll");
    for (const auto& [stored, checked] : {std::pair{"1", 1u}, {"1 ", 0u}, {"", 0u}}) {
        open(266, block(key, text("", stored)));
        EXPECT_EQ(box(), checked) << stored;
    }
    open(266, block(machine(explorer), text("x", "")), "98");
    EXPECT_EQ(apply(), Changes{});
    click();
    EXPECT_EQ(apply(), (Changes{addedKey(key), added(key, text("", "1"))}));
    click();
    EXPECT_EQ(apply(), (Changes{removedKey(key), removed(key, text("", "1"))}));
    open(266);
    click();
    EXPECT_EQ(apply(), Changes{});
}

TEST_P(SystemTweaks, ClearedBoxesDeleteTheirValue) {
    const std::string verb = number("NoManageMyComputerVerb", 1);
    open(267, block(user(kExplorerPolicies), verb));
    EXPECT_EQ(box(), 1u);
    click();
    EXPECT_EQ(apply(), Changes{removed(user(kExplorerPolicies), verb)});
    EXPECT_EQ(apply(), Changes{});

    const std::string usb =
        machine("SYSTEM\\CurrentControlSet\\Control\\Class\\{36FC9E60-C465-11CF-8056-444553540000}\\0000");
    open(269, block(usb, number("IdleEnable", 2)));
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(apply(), Changes{removed(usb, number("IdleEnable", 2))});
}

TEST_P(SystemTweaks, AnUpdatePolicyWithoutAChoiceIsRemoved) {
    const std::string key = machine("SOFTWARE\\Policies\\Microsoft\\Windows\\WindowsUpdate\\AU");
    open(270, block(key, number("NoAutoUpdate", 1), number("AUOptions", 1), number("ScheduledInstallDay", 7),
                    number("ScheduledInstallTime", 23)));
    EXPECT_EQ(combo(IDC_COMBO4), 1);
    EXPECT_EQ(combo(IDC_COMBO1), -1);
    EXPECT_EQ(combo(IDC_COMBO2), 7);
    EXPECT_EQ(combo(IDC_COMBO3), 23);
    pick(IDC_COMBO4, 0);
    type(IDC_COMBO2, "Someday");
    EXPECT_EQ(apply(), (Changes{removed(key, number("NoAutoUpdate", 1)), added(key, number("NoAutoUpdate", 0)),
                                removed(key, number("AUOptions", 1)), removed(key, number("ScheduledInstallDay", 7))}));
    pick(IDC_COMBO1, 2);
    EXPECT_EQ(apply(), Changes{added(key, number("AUOptions", 4))});

    open(270, block(machine("SOFTWARE\\Policies\\Microsoft\\Windows"), text("x", "")));
    EXPECT_EQ(apply(), Changes{addedKey(key)}) << "made although nothing is chosen";
}

TEST_P(SystemTweaks, MemorySpaceKeysAreMadeEvenToDelete) {
    const std::string value = number("MemCheckBoxInRunDlg", 1);
    const std::string both = block(user(kExplorerPolicies), value);
    open(272, both, "2000");
    EXPECT_EQ(box(IDC_CHECK1), 1u);
    EXPECT_EQ(box(IDC_CHECK2), 0u);
    click(IDC_CHECK1);
    EXPECT_EQ(apply(), (Changes{removed(user(kExplorerPolicies), value), addedKey(machine(kExplorerPolicies))}));
    click(IDC_CHECK2);
    EXPECT_EQ(apply(), Changes{added(machine(kExplorerPolicies), value)});
}

}  // namespace
}  // namespace korvane
