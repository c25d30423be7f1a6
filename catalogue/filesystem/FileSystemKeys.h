// The keys and notes that several tweaks of the file system share. Intended: the
// notes differ in small ways.
#pragma once

#include "pages/Tweak.h"

namespace korvane {

constexpr KeyPath kFileSystemControl{Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\FileSystem"};
constexpr KeyPath kFileSystemExplorer{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer"};
constexpr KeyPath kFileSystemPolicies{Root::CurrentUser,
                                      "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer"};


}  // namespace korvane
