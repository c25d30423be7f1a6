// The keys, the note and the gate that the tweaks of Start menu and taskbar share.
#pragma once

#include "pages/Tweak.h"

namespace korvane {

constexpr KeyPath kShellPolicies{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer"};
constexpr KeyPath kShellAdvanced{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"};


// Intended: the alert's text names Me, which this gate refuses.
constexpr Gate kGate2000XpNamingMe{kWin2000 | kWinXP, Alert::Only2000MeXp};

constexpr DwordCheckState shellPolicy(std::string_view name) { return {.key = kShellPolicies, .name = name}; }

}  // namespace korvane
