// The Files and Shortcuts tweaks: how Windows finds the targets of broken
// shortcuts, how it names files and shortcuts, and what belongs to a web page.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kFilesAndShortcutsRows[] = {{126}, {129}, {131}, {133}, {136}};
constexpr Overview kFilesAndShortcutsOverview{.rows = kFilesAndShortcutsRows};

constexpr Tweak kTweaks[] = {
    {.id = 125,
     .title = "Files and Shortcuts",
     .description = "File Name and Shortcut Settings",
     .image = 15,
     .treeParent = 122,
     .page = Page::Category,
     .overview = &kFilesAndShortcutsOverview},
    {.id = 126,
     .title = "Comprehensive Search for Broken Shortcuts",
     .description =
         "When the target of a shortcut is missing, Windows searches its whole drive for it. Checking the box stops "
         "this search for the current user, so that a broken shortcut reports its error at once.",
     .treeParent = 125},
    {.id = 127,
     .title = "Control Long Filename Support",
     .description =
         "Chooses between long file names and short ones of eight characters and a three-letter extension, for the "
         "whole computer. Short names are needed only by very old disk tools and programs that damage long names."},
    {.id = 128,
     .title = "Disable Automatic Network Shortcut Resolution",
     .description =
         "A shortcut remembers the network name of the computer on which it was made and may look there for its "
         "target, even asking for a password. Checking a box makes Windows use the local path only, for the current "
         "user or for all users."},
    {.id = 129,
     .title = "Disable Tracking of Broken Shortcut Links",
     .description =
         "Keeps Windows from using the tracking of NTFS drives to find the target of a shortcut that was moved or "
         "renamed, for the current user. Such a shortcut fails sooner instead of opening a file in a place you did not "
         "expect.",
     .treeParent = 125},
    {.id = 130,
     .title = "Extended Characters in Short Filenames",
     .description =
         "Allows characters of the extended set, such as accented letters, in the short names that NTFS makes for "
         "files. Needed where old programs should see such names; computers that use another code page may not be able "
         "to read them."},
    {.id = 131,
     .title = "Manage Windows Short File Extensions",
     .description =
         "Keeps commands from treating file extensions as if they had only three letters, for all users. With the box "
         "checked, deleting *.htm no longer catches files that end in .html; cleared, the usual shortening is in "
         "force.",
     .treeParent = 125},
    {.id = 132,
     .title = "Remove or Change the Shortcut Arrow",
     .description =
         "Windows marks shortcuts with a small arrow in the corner of their icon. The arrow can be replaced with "
         "another one or removed; without it, a shortcut can hardly be told from the file itself."},
    {.id = 133,
     .title = "Remove the'Shortcut to...'Prefix on Shortcuts",  // spelled so on purpose
     .description =
         "New shortcuts normally get a name that begins with Shortcut to. Although the label reads otherwise, a "
         "checked box removes these words from the names, for the current user or for all users; clearing it brings "
         "them back.",
     .treeParent = 125},
    {.id = 134,
     .title = "Short File Names on NTFS Partitions",
     .description =
         "Stops NTFS from making a second, short 8.3 name for each new file on this computer. Large folders get "
         "faster, but old 16-bit programs and some setup programs no longer find files with long names."},
    {.id = 135,
     .title = "Show Super Hidden File Extensions",
     .description =
         "Some extensions, such as those of shortcuts and scraps, stay hidden even when Explorer shows all others. "
         "Making them visible reveals files that pretend to be harmless documents."},
    {.id = 136,
     .title = "Use Connected Web File and Folders",
     .description =
         "A web page saved with its pictures consists of a file and a folder that Windows copies, moves and deletes "
         "together. Check the box to let the current user handle each of the two on its own.",
     .treeParent = 125},
};

}  // namespace

constinit const Unit kFilesAndShortcutsUnit{kTweaks};

}  // namespace korvane
