// What the tweaks of the Start menu and the taskbar share: their keys, their note
// and a gate.
#pragma once

#include "pages/Tweak.h"

namespace korvane {

constexpr KeyPath kShellPolicies{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer"};
constexpr KeyPath kShellAdvanced{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"};

// The small letter is meant so.
constexpr std::string_view kShellNote =
    "Note:\n\tyou may need to restart or log out of Windows for the change to take effect.";

// The alert's text names Me, which this gate refuses: meant so.
constexpr Gate kGate2000XpNamingMe{kWin2000 | kWinXP, Alert::Only2000MeXp};

constexpr DwordCheckState shellPolicy(std::string_view name) { return {.key = kShellPolicies, .name = name}; }

}  // namespace korvane
