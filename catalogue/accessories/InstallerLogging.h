// The Windows Installer's policies: where they live, and the logging policy, which two items of the catalogue show.
#pragma once

#include "pages/Tweak.h"

namespace korvane {

// The machine's policy, and the current user's copy of it (the policy mirror).
constexpr KeyPath kInstallerPolicy{Root::LocalMachine, "Software\\Policies\\Microsoft\\Windows\\Installer"};
constexpr KeyPath kInstallerMirror{Root::CurrentUser,
                                   "Software\\Microsoft\\Windows\\CurrentVersion\\Group Policy Objects\\LocalMachine",
                                   "Software\\Policies\\Microsoft\\Windows\\Installer"};

extern const CheckBox kInstallerLoggingBox[1];
extern const Table kInstallerLoggingLetters;

void showInstallerLogging(PageContext& context);
void applyInstallerLogging(PageContext& context);

constexpr std::string_view kInstallerLoggingRegistry =
    "Checked writes `voicewarmup` to `Logging` (REG_SZ) in `HKLM\\Software\\Policies\\Microsoft\\Windows\\Installer` "
    "(opened) and in the current user's copy of that policy, "
    "`HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Group Policy "
    "Objects\\LocalMachine\\Software\\Policies\\Microsoft\\Windows\\Installer` (created from `Software` on). Cleared "
    "deletes the value from the first, and the key `HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Group Policy "
    "Objects\\LocalMachine\\Software` with all below it. The box is shown checked while both have the value.";
constexpr std::string_view kInstallerLoggingSource = "Windows Installer policy Logging (from general knowledge)";

}  // namespace korvane
