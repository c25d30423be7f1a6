// The Repair tweaks: damaged shell and application settings and what puts them
// right.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kRepairRows[] = {{289}, {290}, {292}};
constexpr Overview kRepairOverview{.rows = kRepairRows};

constexpr Tweak kTweaks[] = {
    {.id = 288,
     .title = "Repair",
     .description = "Tweaks and settings to repair Windows components and software",
     .image = 29,
     .treeParent = 273,
     .page = Page::Category,
     .overview = &kRepairOverview},
    {.id = 289,
     .title = "New Command Missing in Windows Explorer",
     .description =
         "If New is missing from the menu that opens on a right click into a folder or on the desktop, checking "
         "this registers it again. Unchecking removes the New menu.",
     .treeParent = 288},
    {.id = 290,
     .title = "Repair Internet Explorer Printing Errors",
     .description =
         "Internet Explorer prints with the help of style sheets and shows errors or blank pages if their use is "
         "turned off. When checked, it is turned on for the current user; unchecked, the setting is deleted.",
     .treeParent = 288},
    {.id = 291,
     .title = "Repair the Icon Cache",
     .description =
         "Makes Windows build its stored collection of icon pictures anew. This cures icons on the desktop and in "
         "folders that appear black, blank or as the picture of another program."},
    {.id = 292,
     .title = "Repair the Office Shortcut Bar",
     .description =
         "For a shortcut bar of Office XP that fails to start: deletes the value Shortcut Bar from the Office 10.0 "
         "settings of the current user. Settings kept in a key of that name stay, and as long as it exists the box "
         "is shown unchecked.",
     .treeParent = 288},
    {.id = 293,
     .title = "Repair the Registry Editor",
     .description =
         "Resets the stored window position, column widths and last used key of the Registry Editor. Helpful when "
         "its window opens off the screen or shows no values in the right half."},
    {.id = 294,
     .title = "Repair the Taskbar",
     .description =
         "Puts the taskbar back to its original place, size and toolbars by discarding the stored layout. Use it "
         "when the taskbar is stuck at a wrong edge or its toolbars no longer appear."},
};

}  // namespace

constinit const Unit kRepairUnit{kTweaks};

}  // namespace korvane
