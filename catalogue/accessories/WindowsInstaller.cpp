// The Windows Installer tweaks: who may install programs with it and what it
// writes to its log. Two of them are kept as machine policy and again in the
// current user's copy of that policy; the group has no place in the tree.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kWindowsInstallerRows[] = {{39}, {40}, {41}};
constexpr Overview kWindowsInstallerOverview{.rows = kWindowsInstallerRows};

constexpr Tweak kTweaks[] = {
    {.id = 38,
     .title = "Windows Installer",
     .description = "Settings to manage Windows Installer",
     .image = 6,
     .page = Page::Category,
     .overview = &kWindowsInstallerOverview},
    {.id = 39,
     .title = "Disable Windows Installer",
     .description =
         "Controls who can install programs with Windows Installer: Enabled sets no limit, Admin Only allows programs "
         "that an administrator distributes, Disabled stops it. An empty choice removes the policy, so make sure that "
         "an entry is shown before applying."},
    {.id = 40,
     .title = "Remote Administration of Windows Installer",
     .description =
         "Lets administrators install and configure programs with Windows Installer from a Terminal Services session. "
         "Without it they must sit at the computer itself, so it helps when servers are looked after from a distance."},
    {.id = 41,
     .title = "Windows Installer Logging",  // same title as record 287, on purpose
     .description =
         "Makes Windows Installer log each installation in the Temp folder, using every option of the list except + "
         "and !. The log shows why a setup failed. Clearing the box removes the value and, with it, the whole local "
         "copy of the software policies of this computer that is stored for the current user, not only the part for "
         "the Installer."},
    {.id = 42,
     .title = "Allow Uninstall of Windows Components",
     .description =
         "Some parts of Windows do not appear in Add/Remove Windows Components because the setup file sysoc.inf marks "
         "them with the word hide. Removing that word from the line of a component brings it into the list, so that it "
         "can be uninstalled."},
};

}  // namespace

constinit const Unit kWindowsInstallerUnit{kTweaks};

}  // namespace korvane
