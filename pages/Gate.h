// Version gates: on which Windows versions a tweak acts, and what it says on
// the others. The texts belong to the string table; two of them do not match
// their gate, which is meant so.
#pragma once

#include "platform/OsVersion.h"

namespace korvane {

// The Windows versions on which an apply routine acts, and the alert that it shows on all others.
struct Gate {
    VersionSet accepted = {};
    int alert = 0;  // 0: no gate

    constexpr bool operator==(const Gate&) const = default;
    bool open(const COsVersion& version) const { return alert == 0 || accepted.contains(version); }
};

constexpr Gate kNoGate{};
constexpr Gate kGateXp{kWinXP, 2004};
constexpr Gate kGateNt{kWindowsNT, 2002};
constexpr Gate kGate2000Xp{kWin2000 | kWinXP, 2003};
constexpr Gate kGate2000MeXp{kWin2000 | kWinMe | kWinXP, 2011};
// The alert's text names NT, which this gate refuses: meant so.
constexpr Gate kGate2000XpNamingNt{kWin2000 | kWinXP, 2002};
// The alert's text names XP alone, although NT 4 and 2000 pass too: meant so.
constexpr Gate kGateNtNamingXp{kWindowsNT, 2004};
constexpr Gate kGate98Me2000Xp{kWin98 | kWinMe | kWin2000 | kWinXP, 2015};
constexpr Gate kGateNotXp{kWindows9x | kWinNT4 | kWin2000, 2016};
constexpr Gate kGateNotNt4{kWindows9x | kWin2000 | kWinXP, 2017};
constexpr Gate kGate2000{kWin2000, 2019};
constexpr Gate kGateMeXp{kWinMe | kWinXP, 2021};
constexpr Gate kGate98{kWin98, 2022};

}  // namespace korvane
