// The top of Start Menu and Taskbar and the Start menu's own tweaks: which
// entries and lists it shows, and how they are arranged.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kStartMenuAndTaskbarRows[] = {
    {196}, {197}, {198}, {199}, {200}, {201}, {202}, {206}, {207}, {210},
};
constexpr Overview kStartMenuAndTaskbarOverview{.rows = kStartMenuAndTaskbarRows};

constexpr Tweak kTweaks[] = {
    {.id = 177,
     .title = "Start Menu and Taskbar",
     .description = "Start Menu and Taskbar Enhancements",
     .image = 18,
     .treeParent = kTreeRoot,
     .page = Page::Category,
     .overview = &kStartMenuAndTaskbarOverview},
    {.id = 196,
     .title = "Clear the Cashed Run Commands",  // spelled so on purpose
     .description =
         "Deletes the list of commands that you typed into the Run dialog, so that nobody can look them up. The "
         "box is checked when there is no list; applying it unchecked only makes sure that an empty list can be "
         "kept.",
     .treeParent = 177},
    {.id = 197,
     .title = "Enable Start Menu Scrolling",
     .description =
         "Lets a long Programs menu scroll in one column instead of spreading over several. The two boxes are for "
         "the classic and the ordinary Start menu, and the change is made for every user whose settings are loaded "
         "at the moment.",
     .treeParent = 177},
    {.id = 198,
     .title = "Highlight New Programs on Start Menu",
     .description =
         "Newly installed programs are shown in color on the Start menu until they have been started. Clear the "
         "box if you find the marking and its balloon distracting; it affects the current user.",
     .treeParent = 177},
    {.id = 199,
     .title = "Remove'All Programs'Button from the Start Menu",  // spelled so on purpose
     .description =
         "Removes the All Programs button of the Windows XP Start menu, so that users can start only what is "
         "pinned or recently used. Meant for computers with a few permitted programs.",
     .treeParent = 177},
    {.id = 200,
     .title = "Remove Frequent Programs List from the Start Menu",
     .description =
         "Leaves the list of programs that you use most often off the Start menu. Its place stays empty and nobody "
         "can see what was run; available for the current user and for all users.",
     .treeParent = 177},
    {.id = 201,
     .title = "Remove My Computer from the Desktop and Start Menu",
     .description =
         "Takes the My Computer icon off the desktop and off the Start menu, for the current user or for "
         "everybody. A tidy screen for users who are not expected to browse the drives; the drives themselves stay "
         "reachable by other ways.",
     .treeParent = 177},
    {.id = 202,
     .title = "Remove Pinned Programs List from Start Menu",
     .description =
         "Hides the pinned programs at the top of the Start menu, including the entries for the Internet and "
         "E-mail. Nothing is unpinned: the list returns when the box is cleared.",
     .treeParent = 177},
    {.id = 203,
     .title = "Remove Set Program Access and Defaults from Start Menu",
     .description =
         "Removes the Set Program Access and Defaults entry from the Start menu, with which users choose the "
         "default browser, mail program and player. Helpful where these choices are made by an administrator."},
    {.id = 204,
     .title = "Remove the Disconnect Menu Item",
     .description =
         "Hides Disconnect in the Shut Down dialog of a terminal server session, so that people log off properly "
         "instead of leaving programs running on the server. Other ways of disconnecting still work."},
    {.id = 205,
     .title = "Remove Unlock Computer From the Start Menu",  // says Unlock, means Undock: meant so
     .description =
         "Removes the Undock Computer command, which ejects a portable from its docking station, from the Start "
         "menu. The title says Unlock, but locking the computer is not touched."},
    {.id = 206,
     .title = "Remove Username From the Start Menu",
     .description =
         "The Windows XP Start menu shows the name of the logged-in user in its heading. Remove it if the name "
         "should not be seen by bystanders or in pictures of the screen.",
     .treeParent = 177},
    {.id = 207,
     .title = "Show Favorites on the Start Menu",
     .description =
         "Adds your Favorites as a menu to the Start menu, which gives quick access to web pages without opening "
         "Internet Explorer first. It can be set for the current user and for all users.",
     .treeParent = 177},
    {.id = 208,
     .title = "Show Programs in the Frequently Used Programs List",
     .description =
         "Lists the registered applications and lets you choose which of them may appear among the frequently used "
         "programs on the Start menu. Remove the check mark from tools that only take up space there, for all "
         "users."},
    {.id = 209,
     .title = "Sort Start Menu and Favorites in Alphabetical Order",
     .description =
         "Windows keeps entries of the Start menu and of Favorites in the order in which they were added or "
         "dragged. When checked, that stored order is deleted and the entries appear alphabetically; an "
         "arrangement made by hand is lost."},
    {.id = 210,
     .title = "View Enhanced Start Menu Folders",
     .description =
         "Each of six Start menu folders (Control Panel, My Computer, My Documents, My Music, My Pictures, Network "
         "Connections) can be hidden, opened in a window when clicked, or expanded as a menu. The choices apply to "
         "the current user.",
     .treeParent = 177},
};

}  // namespace

constinit const Unit kStartMenuUnit{kTweaks};

}  // namespace korvane
