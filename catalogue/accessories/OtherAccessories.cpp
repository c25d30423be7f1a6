// The Accessories category and those of its tweaks that belong to no group: Task
// Manager, the tour of Windows XP, Notepad, Device Manager, audio CDs and Telnet.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kAccessoriesRows[] = {{43}, {44}, {49}};
constexpr Overview kAccessoriesOverview{.rows = kAccessoriesRows};

constexpr Tweak kTweaks[] = {
    {.id = 0,
     .title = "Accessories",
     .description = "Tweak and Settings for Windows Accessories and Components.",
     .image = 0,
     .treeParent = kTreeRoot,
     .page = Page::Category,
     .overview = &kAccessoriesOverview},
    {.id = 43,
     .title = "Disable Task Manager",
     .description =
         "This setting controls the ability for users to start Task Manager and view processes, running applications "
         "and make changes to the priority or state of the individual processes.",
     .treeParent = 0},
    {.id = 44,
     .title = "Disable the Windows XP Tour",
     .description =
         "Stops the balloon that offers the Windows XP tour after login, for the current user, for all users or for "
         "both. It spares the users of a fresh system the interruption; clearing a box sets the number of remaining "
         "offers to one.",
     .treeParent = 0},
    {.id = 45,
     .title = "Easily Use the Notepad to Open a File",
     .description =
         "Adds a command to the right-click menu of every file that opens it in Notepad, whatever its type. Convenient "
         "for looking into scripts, settings and other text files that have another or no program assigned."},
    {.id = 46,
     .title = "Save Changes to Notepad Configuration",
     .description =
         "Makes Notepad keep its page setup and the position of its window for the current user. Margins, header and "
         "footer then need not be entered again the next time a text is printed."},
    {.id = 47,
     .title = "Show All Hidden Devices in Device Manager",
     .description =
         "Lets Device Manager list devices that are no longer connected, once Show hidden devices is chosen in its "
         "View menu. Use it to remove the drivers of old hardware; it is set as an environment variable for all "
         "users."},
    {.id = 48,
     .title = "Show Detailed Information in Device Manager",
     .description =
         "Adds a Details tab to the properties of each device in Device Manager, with its identifiers, services and "
         "driver keys. It helps to find out which driver an unknown device needs, and holds for all users."},
    {.id = 49,
     .title = "Specify the Program to Play Inserted Audio CDs",
     .description =
         "Names the program that plays audio CDs when they are inserted or opened, for all users. Enter the path of a "
         "player that understands the switch /play, which is added to the path together with the drive.",
     .treeParent = 0},
    {.id = 50,
     .title = "Use Smooth Scrolling in Telnet",
     .description =
         "Makes the Telnet client of the current user scroll its text smoothly instead of jumping by whole lines. It "
         "is easier to follow for the eye, but slower when much text arrives at once."},
};

}  // namespace

constinit const Unit kOtherAccessoriesUnit{kTweaks};

}  // namespace korvane
