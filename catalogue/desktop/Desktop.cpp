// The Desktop tweaks: which icons the desktop shows, what they are called and in
// which order they stand, and what users may do with the desktop.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kDesktopRows[] = {{80}, {82}, {83}, {84}, {85}, {86}, {87}, {89}, {90}, {91}, {92}, {93}, {94}};
constexpr Overview kDesktopOverview{.rows = kDesktopRows};

constexpr Tweak kTweaks[] = {
    {.id = 78,
     .title = "Desktop",
     .description = "Windows Desktop Enhancements",
     .image = 10,
     .treeParent = kTreeRoot,
     .page = Page::Category,
     .overview = &kDesktopOverview},
    {.id = 79,
     .title = "Active Window Tracking",
     .description =
         "Makes the window under the mouse pointer active without a click, as on some other systems. It saves clicks "
         "when working in several windows at once; whether the window also comes to the front is a separate choice."},
    {.id = 80,
     .title = "Change Desktop Icon Visibility",
     .description =
         "Chooses which special folders, such as the Recycle Bin or Network Connections, appear as icons on the "
         "desktop of all users. Clearing a row deletes its registry key with everything in it; checking it again "
         "creates an empty key.",
     .treeParent = 78},
    {.id = 81,
     .title = "Change the Application Focus Settings",
     .description =
         "Windows can keep programs from pushing their window in front of the one you are typing in and lets their "
         "taskbar button flash instead. The waiting time and the number of flashes can be changed."},
    {.id = 82,
     .title = "Change the Screen Saver Grace Period",
     .description =
         "After a screen saver with a password starts, it can still be ended without the password for a few seconds. "
         "This setting changes how many seconds that is; 0 locks at once. Choose a number when the box is checked; "
         "clearing it restores the default.",
     .treeParent = 78},
    {.id = 83,
     .title = "Choose the First Desktop Icon",
     .description =
         "Decides whether My Documents or My Computer comes first among the icons of the desktop, for all users. Put "
         "the one that is opened most often at the top; applying without a choice puts My Computer first.",
     .treeParent = 78},
    {.id = 84,
     .title = "Disable Desktop Cleanup Wizard",
     .description =
         "Stops the Desktop Cleanup Wizard, which appears every 60 days and offers to move unused shortcuts away, for "
         "the current user. Check it if you want to keep your desktop as it is.",
     .treeParent = 78},
    {.id = 85,
     .title = "Disable the Ability to Right Click on the Desktop",
     .description =
         "Disables the menu that a right-click opens on the desktop and in Explorer, for the current user or for all "
         "users. It takes commands such as Delete and Properties out of reach on public computers.",
     .treeParent = 78},
    {.id = 86,
     .title = "Force Windows to Use the Classic Desktop",
     .description =
         "Turns off the newer look of the desktop and folders, such as Active Desktop, web view and opening with a "
         "single click, for the current user or all users. It saves resources and gives the familiar look of older "
         "versions; Windows XP is not supported.",
     .treeParent = 78},
    {.id = 87,
     .title = "Hide the Internet Explorer Icon",
     .description =
         "Hides the Internet Explorer icon on the desktop, for the current user or for all users. The program itself "
         "stays installed; use it where another browser is preferred or the desktop should be empty.",
     .treeParent = 78},
    {.id = 88,
     .title = "Launch Windows Desktop in a Separate Process",
     .description =
         "Runs the desktop and the taskbar in one process and every folder window in another. A folder window that "
         "crashes then leaves the desktop standing, at the price of more memory."},
    {.id = 89,
     .title = "Remove My Computer from the Desktop and Start Menu",  // same title as record 201, on purpose
     .description =
         "Hides My Computer on the desktop and on the Start menu, for the current user or for all users. It keeps "
         "inexperienced users away from the drives, though these can still be reached in other ways.",
     .treeParent = 78},
    {.id = 90,
     .title = "Remove My Documents from the Desktop",
     .description =
         "Hides the My Documents icon on the desktop, for the current user or for all users. The folder and the files "
         "in it stay where they are, so it only tidies the desktop.",
     .treeParent = 78},
    {.id = 91,
     .title = "Rename or Delete Special Folders",
     .description =
         "Decides whether the Recycle Bin can be renamed and whether it can be deleted from the desktop, like an "
         "ordinary icon; its menu gains the commands that you allow. It holds for all users.",
     .treeParent = 78},
    {.id = 92,
     .title = "Show Pop-up Descriptions for Explorer and Desktop Items",
     .description =
         "Shows a short description in a box when the mouse rests on a file, a folder or an icon of the desktop. Turn "
         "it off if the boxes get in your way; it concerns the current user.",
     .treeParent = 78},
    {.id = 93,
     .title = "Show User and Computer Name On Desktop",
     .description =
         "Labels the My Computer icon with the name of the user and of the computer, which helps when you work on "
         "several computers. It holds for all users; clearing the box sets the name My Computer again.",
     .treeParent = 78},
    {.id = 94,
     .title = "Show Windows Version On Desktop",
     .description =
         "Shows the version and build number of Windows in the lower right corner of the desktop for the current user. "
         "Support staff can then tell at a glance which version is running.",
     .treeParent = 78},
};

}  // namespace

constinit const Unit kDesktopUnit{kTweaks};

}  // namespace korvane
