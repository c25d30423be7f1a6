// The Services tweaks: two services behind one box, a time server that moved,
// and the values of the time service that are left alone.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class Services : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, Services, ::testing::ValuesIn(programKinds()), kindName);

const std::string kServices = "SYSTEM\\CurrentControlSet\\Services\\";
const std::string kTime = machine(kServices + "W32Time\\Parameters");

TEST_P(Services, ComIsDisabledByTheLetterN) {
    const std::string key = machine("SOFTWARE\\Microsoft\\Ole");
    for (const auto& [stored, checked] : {std::pair{"n", 1u}, {"N", 1u}, {"No", 0u}, {"Y", 0u}, {"", 0u}}) {
        open(240, block(key, text("EnableDCOM", stored)));
        EXPECT_EQ(box(), checked) << stored;
    }
    open(240, block(key));
    EXPECT_EQ(apply(), Changes{added(key, text("EnableDCOM", "Y"))});
}

TEST_P(Services, GatewaySearchMakesItsKeyOnlyWhenChecked) {
    const std::string key = machine("SOFTWARE\\Microsoft\\DirectPlayNATHelp\\DPNHUPnP");
    open(242, block(machine("SOFTWARE\\Microsoft"), text("x", "")));
    EXPECT_EQ(apply(), Changes{});
    EXPECT_TRUE(dated(242));
    click();
    EXPECT_EQ(apply(), (Changes{addedKey(key), added(key, number("UPnPMode", 2))}));
    click();
    EXPECT_EQ(apply(), Changes{removed(key, number("UPnPMode", 2))}) << "the key stays";
    open(242, block(key, number("UPnPMode", 1)));
    EXPECT_EQ(box(), 0u);
}

TEST_P(Services, PlugAndPlayIsDisabledWithBothServices) {
    const std::string discovery = machine(kServices + "SSDPSRV");
    const std::string host = machine(kServices + "upnphost");
    struct {
        std::uint32_t discovery;
        std::uint32_t host;
        std::uint32_t checked;
    } const cases[] = {{4, 4, 1}, {4, 3, 0}, {3, 4, 0}, {2, 2, 0}};
    for (const auto& each : cases) {
        open(243, block(discovery, number("Start", each.discovery)) + block(host, number("Start", each.host)));
        EXPECT_EQ(box(), each.checked) << each.discovery << each.host;
    }
    open(243, block(discovery, number("Start", 4)) + block(host, number("Start", 3)));
    EXPECT_EQ(apply(), (Changes{removed(discovery, number("Start", 4)), added(discovery, number("Start", 3))}));
    open(243, block(host, number("Start", 4)));
    EXPECT_EQ(box(), 0u) << "the first service is missing";
    click();
    EXPECT_EQ(apply(), Changes{});
    click();
    EXPECT_EQ(apply(), (Changes{removed(host, number("Start", 4)), added(host, number("Start", 3))}));
}

TEST_P(Services, TheTimeServerMovedWithWindowsXp) {
    const std::string provider = machine(kServices + "W32Time\\TimeProviders\\NtpServer");
    const std::string older = block(provider, number("Enabled", 0)) + block(kTime, number("LocalNTP", 1));
    for (const auto& [windows, checked] :
         {std::pair{"xp", 0u}, {"2003", 0u}, {"2000", 1u}, {"98", 1u}, {"vista", 1u}}) {
        open(244, older, windows);
        EXPECT_EQ(box(), checked) << windows;
    }
    open(244, older);
    click();
    EXPECT_EQ(apply(), (Changes{removed(provider, number("Enabled", 0)), added(provider, number("Enabled", 1))}));
    open(244, older, "2000");
    click();
    EXPECT_EQ(apply(), (Changes{removed(kTime, number("LocalNTP", 1)), added(kTime, number("LocalNTP", 0))}));
}

TEST_P(Services, AnIntervalBelowOneSecondIsNotWritten) {
    const std::string key = machine(kServices + "W32Time\\TimeProviders\\NtpClient");
    const std::string old = number("SpecialPollInterval", 604800);
    open(245, block(key, old));
    EXPECT_EQ(edit(), "604800");
    for (const char* refused : {"", "0", "-1", "weekly"}) {
        type(IDC_EDIT1, refused);
        EXPECT_EQ(apply(), Changes{}) << refused;
    }
    type(IDC_EDIT1, " 1 day");
    EXPECT_EQ(apply(), (Changes{removed(key, old), added(key, number("SpecialPollInterval", 1))}));
    open(245, block(key, number("SpecialPollInterval", 0x80000000)));
    EXPECT_EQ(edit(), "-2147483648");
}

TEST_P(Services, ServerSizesOutsideTheListAreLeftAsTheyAre) {
    const std::string key = machine(kServices + "LanmanServer\\Parameters");
    for (const std::uint32_t size : {0u, 4u, 0xFFFFFFFFu}) {
        open(247, block(key, number("Size", size)), "nt4");
        EXPECT_EQ(combo(), -1);
        EXPECT_EQ(apply(), Changes{});
    }
    pick(IDC_COMBO1, 2);
    EXPECT_EQ(apply(), (Changes{removed(key, number("Size", 0xFFFFFFFF)), added(key, number("Size", 3))}));
}

TEST_P(Services, TimeSettingsWithoutAChoiceAreLeftAsTheyAre) {
    const std::string server = text("NtpServer", "time.example");
    open(249, block(kTime, server, number("Period", 24), number("ReliableTimeSource", 2), text("Type", "ntp ")),
         "2000");
    EXPECT_EQ(edit(), "time.example");
    for (const int control : {IDC_COMBO1, IDC_COMBO2, IDC_COMBO3}) {
        EXPECT_EQ(combo(control), -1);
    }
    type(IDC_EDIT1, "");
    EXPECT_EQ(apply(), Changes{removed(kTime, server)});

    open(249, block(kTime, number("Period", 65531), number("ReliableTimeSource", 1), text("Type", "nosync")));
    EXPECT_EQ(combo(IDC_COMBO1), 5);
    EXPECT_EQ(combo(IDC_COMBO2), 1);
    EXPECT_EQ(combo(IDC_COMBO3), 2);
    pick(IDC_COMBO1, 3);
    EXPECT_EQ(apply(), (Changes{removed(kTime, number("Period", 65531)), added(kTime, number("Period", 65533)),
                                removed(kTime, text("Type", "nosync")), added(kTime, text("Type", "NoSync"))}));
}

}  // namespace
}  // namespace korvane
