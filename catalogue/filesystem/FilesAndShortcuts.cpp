// The Files and Shortcuts tweaks: how Windows resolves broken shortcuts, how it
// names files and shortcuts, and saved web pages.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "catalogue/filesystem/FileSystemKeys.h"

#include <cstddef>

namespace korvane {
namespace {

constexpr Tweak kFilesShortcuts = {
    .id = 125,
    .title = "Files and Shortcuts",
    .description = "File Name and Shortcut Settings",
    .category = true,
    .image = 15,
    .treeParent = 122,
    .page = Page::Category,
};

// Intended: a space before the full stop of most texts, here and in the rest of the group.
constexpr CheckBox kSearchForTargets[] = {
    {.text = "Disable Search for Broken Shortcuts .",
     .binding = DwordCheckState{.key = kFileSystemPolicies, .name = "NoResolveSearch"}}};
constexpr Tweak kComprehensiveSearchBrokenShortcuts = {
    .id = 126,
    .title = "Comprehensive Search for Broken Shortcuts",
    .description =
        "When the target of a shortcut is missing, Windows searches its whole drive for it. Checking the box stops "
        "this search for the current user, so that a broken shortcut reports its error at once.",
    .treeParent = 125,
    .page = Page::Checks,
    .boxes = kSearchForTargets,
    .note = kRestartOrLogOutNoteWithoutStop,
    .gate = kGateNt,
};

constexpr NumberEntry kNameModes[] = {{"Long File Names", 0}, {"8.3 File Names", 1}};
constexpr Choice kNameMode[] = {
    {.label = "File Name Mode:",
     .binding =
         DwordChoice{.key = kFileSystemControl, .name = "Win31FileSystem", .entries = kNameModes, .initial = 0}}};
constexpr Tweak kControlLongFilenameSupport = {
    .id = 127,
    .title = "Control Long Filename Support",
    .description =
        "Chooses between long file names and short ones of eight characters and a three-letter extension, for the "
        "whole computer. Short names are needed only by very old disk tools and programs that damage long names.",
    .page = Page::CheckCombos,
    .choices = kNameMode,
};

constexpr auto kNetworkResolution =
    ScopePair("Disable Automatic Network Shortcut Resolution (Current User) .",
              "Disable Automatic Network Shortcut Resolution (All Users) .",
              DwordCheckState{.key = kFileSystemPolicies, .name = "LinkResolveIgnoreLinkInfo"});
constexpr Tweak kDisableAutomaticNetworkShortcutResolution = {
    .id = 128,
    .title = "Disable Automatic Network Shortcut Resolution",
    .description =
        "A shortcut remembers the network name of the computer on which it was made and may look there for its "
        "target, even asking for a password. Checking a box makes Windows use the local path only, for the current "
        "user or for all users.",
    .page = Page::Checks,
    .boxes = kNetworkResolution,
    .note = kRestartOrLogOutNoteWithoutStop,
};

constexpr CheckBox kTracking[] = {{.text = "Disable Tracking of Broken Shortcut Links .",
                                   .binding = DwordCheckState{.key = kFileSystemPolicies, .name = "NoResolveTrack"}}};
constexpr Tweak kDisableTrackingBrokenShortcutLinks = {
    .id = 129,
    .title = "Disable Tracking of Broken Shortcut Links",
    .description =
        "Keeps Windows from using the tracking of NTFS drives to find the target of a shortcut that was moved or "
        "renamed, for the current user. Such a shortcut fails sooner instead of opening a file in a place you did not "
        "expect.",
    .treeParent = 125,
    .page = Page::Checks,
    .boxes = kTracking,
    .note = kRestartOrLogOutNoteWithoutStop,
    .gate = kGate2000Xp,
};

constexpr CheckBox kExtendedCharacters[] = {
    {.text = "Enable Extended Characters in Short Filenames .",
     .binding = DwordCheckState{.key = kFileSystemControl, .name = "NtfsAllowExtendedCharacterIn8dot3Name"}}};
constexpr Tweak kExtendedCharactersShortFilenames = {
    .id = 130,
    .title = "Extended Characters in Short Filenames",
    .description =
        "Allows characters of the extended set, such as accented letters, in the short names that NTFS makes for "
        "files. Needed where old programs should see such names; computers that use another code page may not be able "
        "to read them.",
    .page = Page::Checks,
    .boxes = kExtendedCharacters,
    .note = kRestartOrLogOutNoteWithoutStop,
    .gate = kGateNt,
};

constexpr CheckBox kShortExtensions[] = {
    {.text = "Manage Windows Short File Extensions .",
     .binding = DwordFlagInverted(kFileSystemControl, "Win95TruncatedExtensions")}};
constexpr Tweak kManageWindowsShortFileExtensions = {
    .id = 131,
    .title = "Manage Windows Short File Extensions",
    .description =
        "Keeps commands from treating file extensions as if they had only three letters, for all users. With the box "
        "checked, deleting *.htm no longer catches files that end in .html; cleared, the usual shortening is in "
        "force.",
    .treeParent = 125,
    .page = Page::Checks,
    .boxes = kShortExtensions,
    .note = kRestartOrLogOutNoteWithoutStop,
    .gate = kGateNt,
};

constexpr Tweak kRemoveChangeShortcutArrow = {
    .id = 132,
    .title = "Remove or Change the Shortcut Arrow",
    .description =
        "Windows marks shortcuts with a small arrow in the corner of their icon. The arrow can be replaced with "
        "another one or removed; without it, a shortcut can hardly be told from the file itself.",
};

// Intended: the text offers the prefix, but checked writes the zeros that remove it.
constexpr std::byte kNoPrefix[4] = {};
constexpr auto kShortcutPrefix = ScopePair(
    "Prefix 'Shortcut to...'to Shortcuts (Current User) .", "Prefix 'Shortcut to...'to Shortcuts (All Users) .",
    BinaryFlag{.key = kFileSystemExplorer, .name = "link", .checked = kNoPrefix});
constexpr Tweak kRemoveTheShortcutPrefixShortcuts = {
    .id = 133,
    .title = "Remove the'Shortcut to...'Prefix on Shortcuts",  // Intended: spelled so.
    .description =
        "New shortcuts normally get a name that begins with Shortcut to. Although the label reads otherwise, a "
        "checked box removes these words from the names, for the current user or for all users; clearing it brings "
        "them back.",
    .treeParent = 125,
    .page = Page::Checks,
    .boxes = kShortcutPrefix,
    .note = kRestartOrLogOutNoteWithoutStop,
};

constexpr CheckBox kShortNames[] = {
    {.text = "Disable Compatible 8.3 File Names.",
     .binding = DwordCheckState{.key = kFileSystemControl, .name = "NtfsDisable8dot3NameCreation"}}};
constexpr Tweak kShortFileNamesNtfsPartitions = {
    .id = 134,
    .title = "Short File Names on NTFS Partitions",
    .description =
        "Stops NTFS from making a second, short 8.3 name for each new file on this computer. Large folders get "
        "faster, but old 16-bit programs and some setup programs no longer find files with long names.",
    .page = Page::Checks,
    .boxes = kShortNames,
    .note = kRestartWindowsNote,
    .gate = kGateNt,
};

constexpr Tweak kShowSuperHiddenFileExtensions = {
    .id = 135,
    .title = "Show Super Hidden File Extensions",
    .description =
        "Some extensions, such as those of shortcuts and scraps, stay hidden even when Explorer shows all others. "
        "Making them visible reveals files that pretend to be harmless documents.",
};

constexpr CheckBox kConnectedFiles[] = {
    {.text = "Disable Connected Web Files and Folders .",
     .binding = DwordCheckState{.key = kFileSystemExplorer, .name = "NoFileFolderConnection"}}};
constexpr Tweak kUseConnectedWebFileFolders = {
    .id = 136,
    .title = "Use Connected Web File and Folders",
    .description =
        "A web page saved with its pictures consists of a file and a folder that Windows copies, moves and deletes "
        "together. Check the box to let the current user handle each of the two on its own.",
    .treeParent = 125,
    .page = Page::Checks,
    .boxes = kConnectedFiles,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000MeXp,
};

constexpr const Tweak* kRows[] = {&kFilesShortcuts, &kComprehensiveSearchBrokenShortcuts, &kControlLongFilenameSupport,
                                  &kDisableAutomaticNetworkShortcutResolution, &kDisableTrackingBrokenShortcutLinks,
                                  &kExtendedCharactersShortFilenames, &kManageWindowsShortFileExtensions,
                                  &kRemoveChangeShortcutArrow, &kRemoveTheShortcutPrefixShortcuts,
                                  &kShortFileNamesNtfsPartitions, &kShowSuperHiddenFileExtensions,
                                  &kUseConnectedWebFileFolders};

}  // namespace

constinit decltype(kFilesAndShortcutsUnit) kFilesAndShortcutsUnit{kRows};

}  // namespace korvane
