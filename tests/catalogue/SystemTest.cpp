// The System tweaks with their scripts, services, logs and file checker: keys that are made or go, and values that
// stand in two places.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class SystemTweaks : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, SystemTweaks, ::testing::ValuesIn(programKinds()), kindName);

const std::string kPolicies = kCurrentVersion + "\\Policies";
const std::string kServices = "SYSTEM\\CurrentControlSet\\Services\\";
const std::string kTime = machine(kServices + "W32Time\\Parameters");

// ---- Scripts

TEST_P(SystemTweaks, TheScriptPolicyIsMadeAndTheSettingIsNot) {
    const std::string value = "RunLogonScriptSync";
    const std::string setting = machine("Software\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon");
    open(235, block(user(kPolicies), text("x", "")) + block(machine(kPolicies), text("x", "")) +
                  block(setting, number(value, 1)));
    click(IDC_CHECK2);
    const std::string policy = kPolicies + "\\System";
    EXPECT_EQ(apply(), (Changes{addedKey(user(policy)), added(user(policy), number(value, 0)),
                                addedKey(machine(policy)), added(machine(policy), number(value, 1))}));
    program().select(236);
    EXPECT_EQ(boxes(), "01");
    click(IDC_CHECK1);
    click(IDC_CHECK2);
    EXPECT_EQ(apply(), replaced(setting, number(value, 1), number(value, 0)));
}

// ---- Services

TEST_P(SystemTweaks, GatewaySearchMakesItsKeyOnlyWhenChecked) {
    const std::string key = machine("SOFTWARE\\Microsoft\\DirectPlayNATHelp\\DPNHUPnP");
    open(242, block(machine("SOFTWARE\\Microsoft"), text("x", "")));
    EXPECT_EQ(apply(), Changes{});
    EXPECT_TRUE(dated(242));
    click();
    EXPECT_EQ(apply(), (Changes{addedKey(key), added(key, number("UPnPMode", 2))}));
    click();
    EXPECT_EQ(apply(), Changes{removed(key, number("UPnPMode", 2))}) << "the key stays";
}

TEST_P(SystemTweaks, PlugAndPlayIsDisabledWithBothServices) {
    const std::string discovery = machine(kServices + "SSDPSRV");
    const std::string host = machine(kServices + "upnphost");
    for (const auto& [first, second, checked] : {std::tuple{4u, 4u, 1u}, {4u, 3u, 0u}, {3u, 4u, 0u}, {2u, 2u, 0u}}) {
        open(243, block(discovery, number("Start", first)) + block(host, number("Start", second)));
        EXPECT_EQ(box(), checked) << first << second;
    }
    open(243, block(host, number("Start", 4)));
    EXPECT_EQ(box(), 0u) << "the first service is missing";
    EXPECT_EQ(apply(), replaced(host, number("Start", 4), number("Start", 3)));
}

TEST_P(SystemTweaks, TheTimeServerMovedWithWindowsXp) {
    const std::string provider = machine(kServices + "W32Time\\TimeProviders\\NtpServer");
    const std::string both = block(provider, number("Enabled", 0)) + block(kTime, number("LocalNTP", 1));
    for (const std::string_view windows : {"xp", "2003", "2000", "98", "vista"}) {
        const bool moved = windows == "xp" || windows == "2003";
        open(244, both, windows);
        EXPECT_EQ(box(), moved ? 0u : 1u) << windows;
        if (windows == "98" || windows == "vista") {
            continue;  // these show it, but do not accept it
        }
        click();
        EXPECT_EQ(apply(), moved ? replaced(provider, number("Enabled", 0), number("Enabled", 1))
                                 : replaced(kTime, number("LocalNTP", 1), number("LocalNTP", 0)));
    }
}

// ---- The file checker

const std::string kChecker = machine("SOFTWARE\\Policies\\Microsoft\\Windows NT\\Windows File Protection");

TEST_P(SystemTweaks, TheCheckersPolicyIsShownAndMadeAndBothAreWritten) {
    const std::string value = "SFCShowProgress";
    open(253, block(kWinlogon, number(value, 1)));
    EXPECT_EQ(box(), 0u);
    Changes written = replaced(kWinlogon, number(value, 1), number(value, 0));
    written.merge(Changes{addedKey(kChecker), added(kChecker, number(value, 0))});
    EXPECT_EQ(apply(), written);
    open(254);
    EXPECT_EQ(combo(), 0);
    pick(IDC_COMBO1, 2);
    EXPECT_EQ(apply(), (Changes{addedKey(kChecker), added(kChecker, number("SFCScan", 2))}));
}

TEST_P(SystemTweaks, TheCheckersEmptyPolicyKeyGoesWithAllBelowIt) {
    const std::string below = kChecker.substr(0, kChecker.size() - 1) + "\\Below]";
    open(254, block(machine("SOFTWARE\\Policies\\Microsoft\\Windows NT"), text("x", "")) +
                  block(kChecker, number("SFCScan", 5)) + block(below, text("x", "")) +
                  block(kWinlogon, number("SFCScan", 1), text("SFCDllCacheDir", "c")));
    EXPECT_EQ(combo(), -1);
    EXPECT_EQ(apply(), (Changes{removedKey(kChecker), removed(kChecker, number("SFCScan", 5)), removedKey(below),
                                removed(below, text("x", "")), removed(kWinlogon, number("SFCScan", 1))}));
    // A policy key that was made only to delete from it does not stay either.
    EXPECT_EQ(apply(), Changes{});
    const std::string folder = text("SFCDllCacheDir", "D:\\cache");
    for (const std::string& other : {number("SFCShowProgress", 1), text("", "unnamed")}) {
        open(255, block(kChecker, other, folder) + block(kWinlogon, folder));
        type(IDC_EDIT1, "");
        EXPECT_EQ(apply(), (Changes{removed(kChecker, folder), removed(kWinlogon, folder)})) << other;
    }
}

// ---- Folders with variables: they depend on the machine, which only the program in memory sets.

TEST(WindowsFolders, AreFoldedAsTheyAreSpelled) {
    const std::string crash = machine("SYSTEM\\CurrentControlSet\\Control\\CrashControl");
    struct {
        int id;
        std::string key;
        const char* name;
        std::string (*stored)(const std::string&, std::string_view);
    } const cases[] = {
        {255, kChecker, "SFCDllCacheDir", text},
        {279, crash, "MinidumpDir", expandable},
        {280, crash, "DumpFile", expandable},
    };
    for (const auto& each : cases) {
        MemoryProgram program(block(each.key, text(each.name, "%SystemRoot%\\a;%systemroot%")) + '\n' +
                              std::string(kBareRegistry));
        ASSERT_TRUE(program.start());
        program.select(each.id);
        EXPECT_EQ(shownPage(program)->text(IDC_EDIT1), "C:\\WINDOWS\\a;%systemroot%") << each.name;
        ASSERT_TRUE(program.type(IDC_EDIT1, "C:\\WINDOWS\\b;C:\\Windows"));
        ASSERT_TRUE(program.apply());
        const std::string stored = block(each.key, each.stored(each.name, "%SystemRoot%\\b;C:\\Windows"));
        EXPECT_NE(program.registryText().find(stored), std::string::npos) << program.registryText();
        // Emptied, the checker's folder goes and a dump's stays.
        ASSERT_TRUE(program.type(IDC_EDIT1, ""));
        ASSERT_TRUE(program.apply());
        EXPECT_EQ(program.registryText().find(stored) != std::string::npos, each.id != 255);
    }
}

// ---- Logs

TEST_P(SystemTweaks, InstallerLoggingSharesItsDateAndClearsEveryMirroredPolicy) {
    const std::string policy = machine("Software\\Policies\\Microsoft\\Windows\\Installer");
    const std::string copies = kCurrentVersion + "\\Group Policy Objects\\LocalMachine";
    const std::string mirror = user(copies + "\\Software\\Policies\\Microsoft\\Windows\\Installer");
    const std::string other = user(copies + "\\Software\\Other");
    const std::string letters = text("Logging", "voicewarmup");
    open(287, block(policy) + block(user(copies), text("x", "")) + block(other, text("y", "")));
    click();
    EXPECT_EQ(apply(), (Changes{added(policy, letters), addedKey(mirror), added(mirror, letters)}));
    EXPECT_TRUE(dated(41));
    program().select(41);
    EXPECT_EQ(box(), 1u);
    program().select(287);
    click();
    EXPECT_EQ(apply(), (Changes{removed(policy, letters), removedKey(mirror), removed(mirror, letters),
                                removedKey(other), removed(other, text("y", ""))}));
}

// ---- Single tweaks

TEST_P(SystemTweaks, AnUpdatePolicyWithoutAChoiceIsRemoved) {
    const std::string key = machine("SOFTWARE\\Policies\\Microsoft\\Windows\\WindowsUpdate\\AU");
    open(270, block(key, number("NoAutoUpdate", 1), number("AUOptions", 1), number("ScheduledInstallDay", 7)));
    EXPECT_EQ(combo(IDC_COMBO4), 1);
    EXPECT_EQ(combo(IDC_COMBO1), -1);
    EXPECT_EQ(combo(IDC_COMBO2), 7);
    type(IDC_COMBO2, "Someday");
    EXPECT_EQ(apply(), (Changes{removed(key, number("AUOptions", 1)), removed(key, number("ScheduledInstallDay", 7))}));
    pick(IDC_COMBO1, 2);
    EXPECT_EQ(apply(), Changes{added(key, number("AUOptions", 4))});
    open(270, block(machine("SOFTWARE\\Policies\\Microsoft\\Windows"), text("x", "")));
    EXPECT_EQ(apply(), Changes{addedKey(key)}) << "made although nothing is chosen";
}

}  // namespace
}  // namespace korvane
