// The Start up and Shutdown tweaks: values kept for the user and for the login
// desktop, and the text flags of the logon process.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class StartupAndShutdown : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, StartupAndShutdown, ::testing::ValuesIn(programKinds()), kindName);

const std::string kDesktop = user("Control Panel\\Desktop");
const std::string kLoginDesktop = login("Control Panel\\Desktop");
const std::string kWinlogon = machine("SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon");

TEST_P(StartupAndShutdown, EveryOtherWaitingTimeIsTwentySeconds) {
    for (const auto& [stored, entry] :
         {std::pair{"1000", 0}, {"5000 ms", 2}, {"300000", 7}, {"25000", 4}, {"0", 4}, {"", 4}, {"-1000", 4}}) {
        open(213, block(kDesktop, text("WaitToKillAppTimeout", stored)));
        EXPECT_EQ(combo(), entry) << stored;
    }
    open(213, block(kDesktop, text("WaitToKillAppTimeout", "25000"), text("AutoEndTasks", "1 ")) +
                  block(kLoginDesktop, text("WaitToKillAppTimeout", "1000"), text("AutoEndTasks", "1")));
    EXPECT_EQ(box(), 0u) << "only the user's value is shown, and only an exact 1";
    EXPECT_EQ(
        apply(),
        (Changes{removed(kDesktop, text("WaitToKillAppTimeout", "25000")),
                 added(kDesktop, text("WaitToKillAppTimeout", "20000")), removed(kDesktop, text("AutoEndTasks", "1 ")),
                 added(kDesktop, text("AutoEndTasks", "0")),
                 removed(kLoginDesktop, text("WaitToKillAppTimeout", "1000")),
                 added(kLoginDesktop, text("WaitToKillAppTimeout", "20000")),
                 removed(kLoginDesktop, text("AutoEndTasks", "1")), added(kLoginDesktop, text("AutoEndTasks", "0"))}));
}

TEST_P(StartupAndShutdown, TheLoginDesktopDoesNotNeedTheUsers) {
    open(213, block(kLoginDesktop));
    click();
    type(IDC_COMBO1, "1 second");  // typed, not chosen
    EXPECT_EQ(apply(), (Changes{added(kLoginDesktop, text("AutoEndTasks", "1")),
                                added(kLoginDesktop, text("WaitToKillAppTimeout", "20000"))}));
    program().select(225);
    type(IDC_EDIT1, "soon");
    EXPECT_EQ(apply(), Changes{added(kLoginDesktop, text("HungAppTimeout", "soon"))});
}

TEST_P(StartupAndShutdown, AResponseTimeIsRequiredButDatedFirst) {
    open(225, block(kDesktop, text("HungAppTimeout", "5000")) + block(kLoginDesktop));
    EXPECT_EQ(edit(), "5000");
    type(IDC_EDIT1, "");
    EXPECT_EQ(apply(), Changes{});
    EXPECT_EQ(alerts(), "Please insert the Response Time for Hung Applications ...");
    EXPECT_TRUE(dated(225));
}

TEST_P(StartupAndShutdown, TextFlagsAreComparedExactly) {
    struct {
        int id;
        std::string key;
        const char* name;
        const char* checked;
        const char* almost;
        const char* cleared;
    } const cases[] = {
        {217, machine("SOFTWARE\\Microsoft\\Ole"), "EnableRemoteConnect", "N", "n", "Y"},
        {219, kWinlogon, "ReportBootOk", "0", "00", "1"},
        {223, kWinlogon, "PowerdownAfterShutdown", "1", "01", "0"},
        {224, kWinlogon, "ParseAutoexec", "1", "2", "0"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        open(each.id, block(each.key, text(each.name, each.checked)));
        EXPECT_EQ(box(), 1u);
        EXPECT_EQ(apply(), Changes{});
        open(each.id, block(each.key, text(each.name, each.almost)));
        EXPECT_EQ(box(), 0u);
        open(each.id, block(each.key));
        EXPECT_EQ(box(), 0u);
        EXPECT_EQ(apply(), Changes{added(each.key, text(each.name, each.cleared))});
    }
}

TEST_P(StartupAndShutdown, ScopesAreWrittenBySeparateKeysThatAreNotMade) {
    const std::string policies = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
    open(218, block(machine(policies), number("NoSaveSettings", 1)), "95");
    EXPECT_EQ(box(IDC_CHECK1), 0u);
    EXPECT_EQ(box(IDC_CHECK2), 1u);
    click(IDC_CHECK1);
    click(IDC_CHECK2);
    EXPECT_EQ(apply(), (Changes{removed(machine(policies), number("NoSaveSettings", 1)),
                                added(machine(policies), number("NoSaveSettings", 0))}));
}

TEST_P(StartupAndShutdown, ThePrefetcherModeIsTheEntrysIndex) {
    const std::string key =
        machine("SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management\\PrefetchParameters");
    open(221, block(key, number("EnablePrefetcher", 3)));
    EXPECT_EQ(combo(), 3);
    pick(IDC_COMBO1, 0);
    EXPECT_EQ(apply(),
              (Changes{removed(key, number("EnablePrefetcher", 3)), added(key, number("EnablePrefetcher", 0))}));
    open(221, block(key, number("EnablePrefetcher", 4)));
    EXPECT_EQ(combo(), -1);
    EXPECT_EQ(apply(), (Changes{removed(key, number("EnablePrefetcher", 4)),
                                added(key, number("EnablePrefetcher", 0xFFFFFFFF))}));
}

}  // namespace
}  // namespace korvane
