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
        Alert alert;
        std::string_view passes;
    };
    const Case cases[] = {
        {kGateXp, Alert::OnlyXp, "xp 2003 "},
        {kGateNt, Alert::OnlyNt2000Xp, "nt4 2000 xp 2003 "},
        {kGate2000Xp, Alert::Only2000Xp, "2000 xp 2003 "},
        {kGate2000MeXp, Alert::Only2000MeXp, "me 2000 xp 2003 "},
        {kGate2000XpNamingNt, Alert::OnlyNt2000Xp, "2000 xp 2003 "},
        {kGateNtNamingXp, Alert::OnlyXp, "nt4 2000 xp 2003 "},
        {kGate98Me2000Xp, Alert::Only98Me2000Xp, "98 me 2000 xp 2003 "},
        {kGateNotXp, Alert::OnlyBeforeXp, "95 98 me nt4 2000 "},
        {kGateNotNt4, Alert::Only9x2000Xp, "95 98 me 2000 xp 2003 "},
        {kGate2000, Alert::Only2000, "2000 "},
        {kGateMeXp, Alert::OnlyMeXp, "me xp 2003 "},
        {kGate98, Alert::Only98, "98 "},
        {kGateNot95, Alert::Not95, "98 me nt4 2000 xp 2003 vista "},
        {kNoGate, Alert::None, "95 98 me nt4 2000 xp 2003 vista "},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(each.gate.alert, each.alert);
        EXPECT_EQ(passes(each.gate), each.passes);
        // When the system gives no version, every gate refuses but the one that names what it refuses.
        const bool opens = each.alert == Alert::None || each.alert == Alert::Not95;
        EXPECT_EQ(each.gate.open(versionOf({2, 5, 1}, true)), opens) << each.passes;
    }
}

TEST(Gates, TheMajorVersionCountsOnNtOnly) {
    EXPECT_TRUE(Gate({kWin98, Alert::Only98}).open(versionOf({1, 7, 10})));
    EXPECT_TRUE(Gate({kWinXP, Alert::OnlyXp}).open(versionOf({2, 5, 90})));
    for (const VersionRecord& unknown : {VersionRecord{1, 4, 1}, VersionRecord{0, 3, 10}, VersionRecord{2, 3, 51},
                                         VersionRecord{2, 6, 1}, VersionRecord{3, 5, 1}, VersionRecord{2, 10, 0}}) {
        EXPECT_FALSE(Gate({kWindows9x | kWindowsNT, Alert::OnlyXp}).open(versionOf(unknown))) << unknown.majorVersion;
    }
}

}  // namespace
}  // namespace korvane
