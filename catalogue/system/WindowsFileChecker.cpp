// The Windows File Checker tweaks: when the protected system files are checked
// and where their cached copies are kept.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kWindowsFileCheckerRows[] = {{253}, {254}, {255}};
constexpr Overview kWindowsFileCheckerOverview{.rows = kWindowsFileCheckerRows};

constexpr Tweak kTweaks[] = {
    {.id = 250,
     .title = "Windows File Checker",
     .description = "Enhancements for the System File Checker",
     .image = 25,
     .treeParent = 226,
     .page = Page::Category,
     .overview = &kWindowsFileCheckerOverview},
    {.id = 251,
     .title = "Change the Size of the Windows File Protection Cache",
     .description =
         "Limits the disk space that Windows File Protection may use for spare copies of system files. A smaller "
         "cache saves room on the disk, but a damaged file must then more often be restored from the installation "
         "CD."},
    {.id = 252,
     .title = "Disable Windows File Protection",
     .description =
         "Windows File Protection puts back system files that a program has replaced or deleted. It should be "
         "switched off for a short time only, by experts, because nothing guards the system files while it is off."},
    {.id = 253,
     .title = "Display SFC Progress Meter",
     .description =
         "Shows a progress window while the system file checker scans the protected files, instead of working "
         "unseen. The choice is stored as a policy and in the settings of the logon process, for all users.",
     .treeParent = 250},
    {.id = 254,
     .title = "Manage Windows File Protection Scans",
     .description =
         "Decides whether Windows scans its protected system files at startup: never, at every boot or once at the "
         "next boot. A scan finds replaced files but makes the startup much longer.",
     .treeParent = 250},
    {.id = 255,
     .title = "Specify the Directory to Store Cached SFC Files",
     .description =
         "Windows keeps spare copies of system files in its dllcache folder. Name another folder, perhaps on a "
         "larger drive, to have them kept there; an empty field goes back to the default.",
     .treeParent = 250},
};

}  // namespace

constinit const Unit kWindowsFileCheckerUnit{kTweaks};

}  // namespace korvane
