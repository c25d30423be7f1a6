// The Windows Installer's policies: where they live, and the logging policy, which two items of the catalogue show.
#pragma once

#include "pages/Tweak.h"

namespace korvane {

// The machine's policy, and the current user's copy of it (the policy mirror).
constexpr KeyPath kInstallerPolicy{Root::LocalMachine, "Software\\Policies\\Microsoft\\Windows\\Installer"};
constexpr KeyPath kInstallerMirror{
    Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Group Policy Objects\\LocalMachine",
    "Software\\Policies\\Microsoft\\Windows\\Installer"};

extern const CheckBox kInstallerLoggingBox[1];
extern const Table kInstallerLoggingLetters;

void showInstallerLogging(PageContext& context);
void applyInstallerLogging(PageContext& context);

}  // namespace korvane
