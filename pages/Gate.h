// Version gates: the Windows versions that a tweak accepts, and the alert on all
// others. The texts of the alerts are in the string table; some do not match their
// gate.
#pragma once

#include "pages/Alerts.h"
#include "platform/OsVersion.h"

namespace korvane {

// The Windows versions that a tweak accepts, and the alert that it shows on all others.
struct Gate {
    VersionSet accepted = {};
    Alert alert = Alert::None;  // None: no gate
    // Instead of `accepted`: every version of Windows except these, unknown ones included.
    VersionSet refused = {};

    constexpr bool operator==(const Gate&) const = default;
    bool open(const COsVersion& version) const {
        if (alert == Alert::None) {
            return true;
        }
        return refused.empty() ? accepted.contains(version) : !refused.contains(version);
    }
};

constexpr Gate kNoGate{};
constexpr Gate kGateXp{kWinXP, Alert::OnlyXp};
constexpr Gate kGateNt{kWindowsNT, Alert::OnlyNt2000Xp};
constexpr Gate kGate2000Xp{kWin2000 | kWinXP, Alert::Only2000Xp};
constexpr Gate kGate2000MeXp{kWin2000 | kWinMe | kWinXP, Alert::Only2000MeXp};
// Intended: the alert's text names NT, which this gate refuses.
constexpr Gate kGate2000XpNamingNt{kWin2000 | kWinXP, Alert::OnlyNt2000Xp};
// Intended: the alert's text names only XP, but NT 4 and 2000 pass too.
constexpr Gate kGateNtNamingXp{kWindowsNT, Alert::OnlyXp};
constexpr Gate kGate98Me2000Xp{kWin98 | kWinMe | kWin2000 | kWinXP, Alert::Only98Me2000Xp};
constexpr Gate kGateNotXp{kWindows9x | kWinNT4 | kWin2000, Alert::OnlyBeforeXp};
constexpr Gate kGateNotNt4{kWindows9x | kWin2000 | kWinXP, Alert::Only9x2000Xp};
constexpr Gate kGateNot95{.alert = Alert::Not95, .refused = kWin95};
constexpr Gate kGate2000{kWin2000, Alert::Only2000};
constexpr Gate kGateMeXp{kWinMe | kWinXP, Alert::OnlyMeXp};
constexpr Gate kGate98{kWin98, Alert::Only98};

}  // namespace korvane
