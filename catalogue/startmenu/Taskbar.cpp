// The Taskbar tweaks: grouping of buttons, the notification area, balloon tips
// and what the user may change with the mouse.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kTaskbarRows[] = {{188}, {189}, {191}, {192}, {193}, {194}};
constexpr Overview kTaskbarOverview{.rows = kTaskbarRows};

constexpr Tweak kTweaks[] = {
    {.id = 187,
     .title = "Taskbar",
     .description = "Taskbar Settings and Enhancements",
     .image = 20,
     .treeParent = 177,
     .page = Page::Category,
     .overview = &kTaskbarOverview},
    {.id = 188,
     .title = "Automatically Hide in Active Tray Icons",  // spelled so on purpose
     .description =
         "Windows XP can tuck away the icons beside the clock that have not been used for a while. Check this to "
         "keep the notification area short, or clear it to see every icon all the time. It applies to the current "
         "user.",
     .treeParent = 187},
    {.id = 189,
     .title = "Change the Taskbar Group Size",
     .description =
         "When windows are grouped on the taskbar, this number says which ones: 0 groups the oldest windows first, "
         "1 the program with most windows first, 2 any program with two or more windows, 3 with three or more, and "
         "so on. An empty field restores the default.",
     .treeParent = 187},
    {.id = 190,
     .title = "Clear Past Icons from the Try Notification Area",  // spelled so on purpose
     .description =
         "Windows XP remembers every icon that ever stood in the notification area and offers it in the Customize "
         "list as a past item. This setting empties that history, which fills up with programs removed long ago."},
    {.id = 191,
     .title = "Disable Balloon Tips",
     .description =
         "Stops the yellow balloons that pop up from the notification area with hints and warnings. Clear the box "
         "again if you miss messages about low disk space, the network or updates.",
     .treeParent = 187},
    {.id = 192,
     .title = "Disable Taskbar Context Menus",
     .description =
         "Takes away the menus that appear on a right click on the taskbar, the Start button, the clock and the "
         "taskbar buttons. Use it to keep users from changing the taskbar or closing windows there.",
     .treeParent = 187},
    {.id = 193,
     .title = "Group Similar Taskbar Bottons",  // spelled so on purpose
     .description =
         "Collects the windows of one program under a single taskbar button when space runs short. Turn it off if "
         "you prefer a separate button for every window; choose for the current user, for all users or both.",
     .treeParent = 187},
    {.id = 194,
     .title = "Lock the Size and Position of the Taskbar",
     .description =
         "Fixes the taskbar where it is, so that it cannot be moved, resized or rearranged by accident with the "
         "mouse. The setting concerns the current user of Windows XP.",
     .treeParent = 187},
    {.id = 195,
     .title = "Remove the Start Banner on the Taskbar",
     .description =
         "Removes the 'Click here to start' text and the arrow that slide along an empty taskbar after login. It "
         "is set for the current user, and for one other profile with a fixed identifier if this computer happens "
         "to have it."},
};

}  // namespace

constinit const Unit kTaskbarUnit{kTweaks};

}  // namespace korvane
