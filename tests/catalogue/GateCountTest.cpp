// How many tweaks act on which versions of Windows. A gate that was forgotten
// or mixed up with its neighbour changes two of these numbers.
#include "catalogue/Catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace korvane {
namespace {

struct GateCount {
    Gate gate;
    int tweaks;
};

// These accept fewer versions than their alert names, and count with the gate whose alert they show.
constexpr Gate kNarrower[] = {{kWin2000 | kWinXP, Alert::Only2000MeXp}, {kWin2000 | kWinXP, Alert::Only98Me2000Xp}, {kWinXP, Alert::OnlyMeXp}};

bool sameCount(const Gate& gate, const Gate& row) {
    return gate == row || (gate.alert == row.alert && std::ranges::find(kNarrower, gate) != std::end(kNarrower));
}

TEST(Gates, AreSpreadOverTheCatalogueAsMeant) {
    constexpr GateCount kCounts[] = {
        {kGateXp, 42},        {kGateNt, 53},        {kGate2000Xp, 42}, {kGate2000MeXp, 18}, {kGate2000XpNamingNt, 2},
        {kGateNtNamingXp, 1}, {kGate98Me2000Xp, 5}, {kGateNotXp, 1},   {kGateNotNt4, 1},    {kGate2000, 1},
        {kGateMeXp, 1},       {kGate98, 1},         {kGateNot95, 1},   {kNoGate, 72},
    };
    for (const GateCount& row : kCounts) {
        int tweaks = 0;
        for (int id = 0; id < kItemCount; ++id) {
            tweaks += findTweak(id)->hasApply() && sameCount(findTweak(id)->gate, row.gate) ? 1 : 0;
        }
        EXPECT_EQ(tweaks, row.tweaks) << "alert " << static_cast<int>(row.gate.alert);
    }
}

}  // namespace
}  // namespace korvane
