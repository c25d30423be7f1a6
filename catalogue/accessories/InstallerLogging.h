// The policies of Windows Installer: their keys, and the logging policy, which two
// items show.
#pragma once

#include "pages/Tweak.h"

namespace korvane {

// The machine policy and the current user's copy of it, the mirror.
constexpr KeyPath kInstallerPolicy{Root::LocalMachine, "Software\\Policies\\Microsoft\\Windows\\Installer"};
constexpr KeyPath kInstallerMirror{Root::CurrentUser,
                                   "Software\\Microsoft\\Windows\\CurrentVersion\\Group Policy Objects\\LocalMachine",
                                   "Software\\Policies\\Microsoft\\Windows\\Installer"};

// The list of letters only informs: checked always writes all of them but the last two. Intended: clearing deletes
// every mirrored policy of the current user, not only those of the installer.
constexpr TableColumn kInstallerLoggingColumns[] = {{"Letter", 99}, {"Option", 277}};
constexpr std::string_view kInstallerLoggingCells[] = {"v", "Verbose output",
                                       "o", "Out-of-disk-space messages",
                                       "i", "Status messages",
                                       "c", "Initial UI parameters",
                                       "e", "All error messages",
                                       "w", "Non-fatal warnings",
                                       "a", "Start up of actions",
                                       "r", "Action-specific records",
                                       "m", "Out-of-memory or fatal exit information",
                                       "u", "User requests",
                                       "p", "Terminal properties",
                                       "+", "Append to existing file",
                                       "!", "Flush each line to the log"};

constexpr Table kInstallerLoggingLetters{.columns = kInstallerLoggingColumns, .cells = kInstallerLoggingCells};
constexpr CheckBox kInstallerLoggingBox[] = {
    {.text = "Check it to a Combination of the Letters below to Enable the Logging Options",
     .binding = MirroredPolicy{.key = kInstallerPolicy,
                               .mirror = kInstallerMirror,
                               .name = "Logging",
                               .text = "voicewarmup",
                               .deletedTree = "Software"}},
};

constexpr std::string_view kInstallerLoggingSource = "Windows Installer policy Logging (from general knowledge)";

}  // namespace korvane
