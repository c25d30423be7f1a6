// Version gates: which Windows each of them lets pass.
#include "pages/Gate.h"
#include "platform/memory/MemorySystem.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace korvane {
namespace {

constexpr std::string_view kWindows[] = {"95", "98", "me", "nt4", "2000", "xp", "2003", "vista"};

COsVersion versionOf(VersionRecord record, bool fails = false) {
    MemoryVersion source;
    source.record = record;
    source.fails = fails;
    return COsVersion(source);
}

std::string passes(const Gate& gate) {
    std::string passed;
    for (const std::string_view windows : kWindows) {
        if (gate.open(versionOf(*versionNamed(windows)))) {
            passed += std::string(windows) + ' ';
        }
    }
    return passed;
}

TEST(Gates, LetTheirVersionsPassAndServer2003AsXp) {
    struct Case {
        Gate gate;
        int alert;
        std::string_view passes;
    };
    const Case cases[] = {
        {kGateXp, 2004, "xp 2003 "},
        {kGateNt, 2002, "nt4 2000 xp 2003 "},
        {kGate2000Xp, 2003, "2000 xp 2003 "},
        {kGate2000MeXp, 2011, "me 2000 xp 2003 "},
        {kGate2000XpNamingNt, 2002, "2000 xp 2003 "},
        {kGateNtNamingXp, 2004, "nt4 2000 xp 2003 "},
        {kGate98Me2000Xp, 2015, "98 me 2000 xp 2003 "},
        {kGateNotXp, 2016, "95 98 me nt4 2000 "},
        {kGateNotNt4, 2017, "95 98 me 2000 xp 2003 "},
        {kGate2000, 2019, "2000 "},
        {kGateMeXp, 2021, "me xp 2003 "},
        {kGate98, 2022, "98 "},
        {{kWindows9x | kWindowsNT, 2018}, 2018, "95 98 me nt4 2000 xp 2003 "},
        {kNoGate, 0, "95 98 me nt4 2000 xp 2003 vista "},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(passes(each.gate), each.passes) << each.alert;
        // When the system gives no version, every gate refuses.
        EXPECT_EQ(each.gate.open(versionOf({2, 5, 1}, true)), each.alert == 0) << each.alert;
    }
}

TEST(Gates, TheMajorVersionCountsOnNtOnly) {
    EXPECT_TRUE(Gate({kWin98, 1}).open(versionOf({1, 7, 10})));
    EXPECT_TRUE(Gate({kWinXP, 1}).open(versionOf({2, 5, 90})));
    for (const VersionRecord& unknown : {VersionRecord{1, 4, 1}, VersionRecord{0, 3, 10}, VersionRecord{2, 3, 51},
                                         VersionRecord{2, 6, 1}, VersionRecord{3, 5, 1}, VersionRecord{2, 10, 0}}) {
        EXPECT_FALSE(Gate({kWindows9x | kWindowsNT, 1}).open(versionOf(unknown))) << unknown.majorVersion;
    }
}

}  // namespace
}  // namespace korvane
