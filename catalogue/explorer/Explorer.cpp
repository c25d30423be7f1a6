// The Explorer category and its tweaks: commands in the menus of files and
// folders, what folder windows show or hide, and how they open.
// The search tweaks stand in a unit of their own.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kExplorerRows[] = {
    {103}, {104}, {105}, {107}, {108}, {109}, {110}, {111}, {112}, {113}, {116}, {117}, {118}, {119},
};
// Narrower dates than other overviews have: meant so.
constexpr Overview kExplorerOverview{.rows = kExplorerRows, .dateWidth = 83};

constexpr Tweak kTweaks[] = {
    {.id = 95,
     .title = "Explorer",
     .description = "Windows Explorer Enhancements and Settings",
     .image = 11,
     .treeParent = kTreeRoot,
     .page = Page::Category,
     .overview = &kExplorerOverview},
    {.id = 103,
     .title = "Add a Menu Option to Move or Copy to a Folder",
     .description =
         "Adds the commands Copy To Folder and Move To Folder to the right-click menu of files and folders, for all "
         "users. They ask for the target in a box, which is easier than dragging between two windows.",
     .treeParent = 95},
    {.id = 104,
     .title = "Add Explorer From Here to Every Folder",
     .description =
         "Adds Explore from here to the menu of folders, which opens a window with that folder at the top of the tree, "
         "for all users. Clearing the box removes the Explore command of folders and directories altogether, the "
         "standard one included.",
     .treeParent = 95},
    {.id = 105,
     .title = "Automatically Expand Folders in Explorer",
     .description =
         "Lets the folder tree of Explorer open a folder as soon as it is selected and close the others again, for the "
         "current user. Turn it off if you prefer to open and close branches of the tree yourself.",
     .treeParent = 95},
    {.id = 106,
     .title = "Change Drive Name and Icon",
     .description =
         "Any drive letter can be shown in My Computer with a name and an icon of your own, for example to tell "
         "several disks or network drives apart. The names and icons of the disks themselves are not changed."},
    {.id = 107,
     .title = "Change Program and Common Files Directory",
     .description =
         "Sets the folders that setup programs propose for new programs and for the files these share, for example on "
         "a larger drive. Installed programs are not moved and some may miss their files, so change it with care; an "
         "empty field changes nothing.",
     .treeParent = 95},
    {.id = 108,
     .title = "Change the Auto Complete Mode",
     .description =
         "Chooses how Explorer completes paths and addresses that the current user types: with Append Text the rest is "
         "written into the line at once, with the drop-down list the matches are only offered below it.",
     .treeParent = 95},
    {.id = 109,
     .title = "Disable the Thumbnail Cache",
     .description =
         "Stops Explorer from saving the thumbnails of pictures in a hidden file in each folder, for the current user. "
         "It saves disk space and leaves no traces, but thumbnails must be made anew each time a folder opens.",
     .treeParent = 95},
    {.id = 110,
     .title = "Launch Folder Windows in a Separate process",  // spelled so on purpose
     .description =
         "Opens each folder window of the current user in a process of its own. If one of them crashes, the others and "
         "the desktop go on working; every window takes some more memory and time to open.",
     .treeParent = 95},
    {.id = 111,
     .title = "Remove Shared Documents from My Computer",
     .description =
         "Removes the shared documents folders from My Computer, for the current user or for all users. Use it where "
         "files are exchanged in another way or not at all; the folders themselves are not deleted.",
     .treeParent = 95},
    {.id = 112,
     .title = "Restore Folder Windows at Startup",
     .description =
         "Lets Windows open the folder windows again that were open when the current user logged off, so that work can "
         "go on at the same place. Leave it off for a clean desktop after each login.",
     .treeParent = 95},
    {.id = 113,
     .title = "Show'Send to'Context Menu",  // spelled so on purpose
     .description =
         "Shows or removes the Send To menu, which copies files to a disk, a mail message or another target, for all "
         "users. Its entries are kept when it is removed, and return with it.",
     .treeParent = 95},
    {.id = 114,
     .title = "Show Attributes Column in Explorer",
     .description =
         "Adds a column with the attributes of each file, such as read-only or hidden, to the detail view of Explorer "
         "for the current user. Windows 98 only."},
    {.id = 115,
     .title = "Show Encryption Commands on the Shortcut Menu",
     .description =
         "Adds Encrypt and Decrypt to the right-click menu of files and folders on NTFS drives, for all users. It "
         "saves the way through the properties for those who encrypt files often."},
    {.id = 116,
     .title = "Show Hidden Folders and Files",
     .description =
         "Shows files and folders that have the hidden attribute in Explorer for the current user. It is needed to "
         "find settings and data that Windows and programs keep out of sight.",
     .treeParent = 95},
    {.id = 117,
     .title = "Show Hidden Operating System Files",
     .description =
         "Shows the protected files of the operating system in Explorer for the current user, if hidden files are "
         "shown as well. Check it only while you need such a file, since deleting one can keep Windows from starting.",
     .treeParent = 95},
    {.id = 118,
     .title = "Show or Hide'Open With'Program Checkbox",  // spelled so on purpose
     .description =
         "Shows the check box in the Open With window that makes the selected program the standard one for files of "
         "that type. Hide it so that a file type is not assigned to a wrong program by accident; it holds for all "
         "users.",
     .treeParent = 95},
    {.id = 119,
     .title = "Show Programs in the Open with Selection Box",
     .description =
         "Chooses which of the registered programs the Open With window offers, for all users. Clear the programs that "
         "you never open files with to get a short list; they stay installed and lose nothing else.",
     .treeParent = 95},
    {.id = 120,
     .title = "Specify Unknown File Type Options",
     .description =
         "Sets what Windows offers for a file whose type it does not know, such as a command of your own in its menu, "
         "for example to open it in a text editor instead of asking for a program each time."},
    {.id = 121,
     .title = "Speed-up Access to AVI Media Files",
     .description =
         "Explorer reads each AVI video to learn its length and picture size when it is selected, which can lock large "
         "or incomplete files for a while. Without the property handler of this type, such files can be moved or "
         "deleted at once."},
};

}  // namespace

constinit const Unit kExplorerUnit{kTweaks};

}  // namespace korvane
