// The category Explorer and its tweaks: commands in the menus of files and folders,
// what folder windows show, and how they open. The search tweaks are in a unit of
// their own.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr KeyPath kAdvanced{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"};

constexpr Tweak kExplorer = {
    .id = 95,
    .title = "Explorer",
    .description = "Windows Explorer Enhancements and Settings",
    .category = true,
    .image = 11,
    .treeParent = kTreeRoot,
    .page = Page::Category,
    // Intended: the date column is narrower than in other overviews.
    .overview = {.dateWidth = 83},
};

// Each handler of the shell is a subkey whose default value is its class identifier.
constexpr KeyPath kHandlers{Root::ClassesRoot, {}, "AllFilesystemObjects\\shellex\\ContextMenuHandlers"};
constexpr SubkeyFlag handler(std::string_view name, std::string_view classId) {
    return {.parent = kHandlers, .name = name, .text = classId, .shownByText = true, .compare = Compare::IgnoreCase};
}

constexpr CheckBox kCopyAndMove[] = {
    {.text = "Add 'Copy To Folder' to Folder menu option:",
     .binding = handler("Copy To", "{C2FBB630-2971-11d1-A18C-00C04FD75D13}")},
    {.text = "Add 'Move To Folder' to Folder menu option:",
     .binding = handler("Move To", "{C2FBB631-2971-11d1-A18C-00C04FD75D13}")},
};
constexpr Tweak kAddMenuOptionMoveCopyFolder = {
    .id = 103,
    .title = "Add a Menu Option to Move or Copy to a Folder",
    .description =
        "Adds the commands Copy To Folder and Move To Folder to the right-click menu of files and folders, for all "
        "users. They ask for the target in a box, which is easier than dragging between two windows.",
    .treeParent = 95,
    .page = Page::Checks,
    .boxes = kCopyAndMove,
};

// Checked creates the verb for folders only; cleared deletes it for directories too, and either
// shows.
constexpr CheckBox kExploreHere[] = {
    {.text = "Add Explore From Here to Every Folder Menu.",
     .binding = ShellVerbKey{.parent = {Root::ClassesRoot, "Folder\\shell"},
                             .verb = "explore",
                             .menuText = "E&xplore from here",
                             .commandLine = "explorer.exe /e,/root,/idlist,%i",
                             .twin = KeyPath{Root::ClassesRoot, "Directory\\shell"}}},
};
constexpr Tweak kAddExplorerHereEveryFolder = {
    .id = 104,
    .title = "Add Explorer From Here to Every Folder",
    .description =
        "Adds Explore from here to the menu of folders, which opens a window with that folder at the top of the tree, "
        "for all users. Clearing the box removes the Explore command of folders and directories altogether, the "
        "standard one included.",
    .treeParent = 95,
    .page = Page::Checks,
    .boxes = kExploreHere,
    .note = kRestartOrLogOutNoteWithoutStop,
};

constexpr CheckBox kExpandFolders[] = {{.text = "Automatically Expand Folders in Explorer .",
                                        .binding = DwordCheckState{.key = kAdvanced, .name = "FriendlyTree"}}};
constexpr Tweak kAutomaticallyExpandFoldersExplorer = {
    .id = 105,
    .title = "Automatically Expand Folders in Explorer",
    .description =
        "Lets the folder tree of Explorer open a folder as soon as it is selected and close the others again, for the "
        "current user. Turn it off if you prefer to open and close branches of the tree yourself.",
    .treeParent = 95,
    .page = Page::Checks,
    .boxes = kExpandFolders,
    .note = kRestartOrLogOutNoteWithoutStop,
};

constexpr Tweak kChangeDriveNameIcon = {
    .id = 106,
    .title = "Change Drive Name and Icon",
    .description =
        "Any drive letter can be shown in My Computer with a name and an icon of your own, for example to tell "
        "several disks or network drives apart. The names and icons of the disks themselves are not changed.",
};

constexpr KeyPath kCurrentVersion{Root::LocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion"};
constexpr Field kProgramFolders[] = {
    {.label = "Program Directory:",
     .binding = StringValue{.key = kCurrentVersion, .name = "ProgramFilesDir", .whenEmpty = WhenEmpty::WritesNothing},
     .picker = Picker::Folder},
    {.label = "Common Files Directory:",
     .binding = StringValue{.key = kCurrentVersion, .name = "CommonFilesDir", .whenEmpty = WhenEmpty::WritesNothing},
     .picker = Picker::Folder},
};
constexpr Tweak kChangeProgramCommonFilesDirectory = {
    .id = 107,
    .title = "Change Program and Common Files Directory",
    .description =
        "Sets the folders that setup programs propose for new programs and for the files these share, for example on "
        "a larger drive. Installed programs are not moved and some may miss their files, so change it with care; an "
        "empty field changes nothing.",
    .treeParent = 95,
    .page = Page::CheckFields,
    .fields = kProgramFolders,
    .note = kRestartWindowsNote,
};

constexpr TextEntry kCompletionModes[] = {{"Append Text", "Yes"}, {"Show Drop-down List", "No"}};
constexpr KeyPath kAutoCompleteKey{
    Root::CurrentUser, {}, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoComplete"};
constexpr Choice kAutoComplete[] = {{.label = "Auto-Complete Mode:",
                                     .binding = StringChoice{.key = kAutoCompleteKey,
                                                             .name = "Append Completion",
                                                             .entries = kCompletionModes,
                                                             .initial = 1,
                                                             .unknown = 1,
                                                             .compare = Compare::Contains,
                                                             .noneText = "No"}}};
constexpr Tweak kChangeAutoCompleteMode = {
    .id = 108,
    .title = "Change the Auto Complete Mode",
    .description =
        "Chooses how Explorer completes paths and addresses that the current user types: with Append Text the rest is "
        "written into the line at once, with the drop-down list the matches are only offered below it.",
    .treeParent = 95,
    .page = Page::CheckCombos,
    .choices = kAutoComplete,
    .note = kRestartWindowsNote,
};

constexpr CheckBox kThumbnailCache[] = {
    {.text = "Disable the Thumbnail Cache .",
     .binding = DwordCheckState{.key = kAdvanced, .name = "DisableThumbnailCache"}}};
constexpr Tweak kDisableThumbnailCache = {
    .id = 109,
    .title = "Disable the Thumbnail Cache",
    .description =
        "Stops Explorer from saving the thumbnails of pictures in a hidden file in each folder, for the current user. "
        "It saves disk space and leaves no traces, but thumbnails must be made anew each time a folder opens.",
    .treeParent = 95,
    .page = Page::Checks,
    .boxes = kThumbnailCache,
    .note = kRestartWindowsNote,
    .gate = kGateXp,
    .putBoxesBack = true,
};

constexpr CheckBox kSeparateProcess[] = {{.text = "Launch Folder Windows in a Separate Process .",
                                          .binding = DwordCheckState{.key = kAdvanced, .name = "SeparateProcess"}}};
constexpr Tweak kLaunchFolderWindowsSeparateProcess = {
    .id = 110,
    .title = "Launch Folder Windows in a Separate process",  // Intended: spelled so.
    .description =
        "Opens each folder window of the current user in a process of its own. If one of them crashes, the others and "
        "the desktop go on working; every window takes some more memory and time to open.",
    .treeParent = 95,
    .page = Page::Checks,
    .boxes = kSeparateProcess,
    .note = kRestartWindowsNote,
};

constexpr KeyPath kPolicies{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer"};
constexpr auto kSharedDocuments = ScopePair("Remove Shared Documents from My Computer(Current User) .",
                                            "Remove Shared Documents from My Computer(All Users) .",
                                            DwordCheckState{.key = kPolicies, .name = "NoSharedDocuments"});
constexpr Tweak kRemoveSharedDocumentsMyComputer = {
    .id = 111,
    .title = "Remove Shared Documents from My Computer",
    .description =
        "Removes the shared documents folders from My Computer, for the current user or for all users. Use it where "
        "files are exchanged in another way or not at all; the folders themselves are not deleted.",
    .treeParent = 95,
    .page = Page::Checks,
    .boxes = kSharedDocuments,
    .note = kRestartWindowsNote,
    .gate = kGateXp,
};

constexpr NumberEntry kRestoreModes[] = {{"do not re-open", 0}, {"re-open windows", 1}};
constexpr Choice kRestoreWindows[] = {
    {.label = "Folder Windows at Startup Mode:",
     .binding = DwordChoice{.key = kAdvanced, .name = "PersistBrowsers", .entries = kRestoreModes, .initial = 0}}};
constexpr Tweak kRestoreFolderWindowsStartup = {
    .id = 112,
    .title = "Restore Folder Windows at Startup",
    .description =
        "Lets Windows open the folder windows again that were open when the current user logged off, so that work can "
        "go on at the same place. Leave it off for a clean desktop after each login.",
    .treeParent = 95,
    .page = Page::CheckCombos,
    .choices = kRestoreWindows,
    .note = kRestartWindowsNote,
    .gate = kGateXp,
};

// Cleared keeps the key and empties its default value.
constexpr CheckBox kSendTo[] = {
    {.text = "Enable \"Send to\" Context Menu .",
     .binding =
         StringFlag{.key = {Root::ClassesRoot, {}, "AllFilesystemObjects\\shellex\\ContextMenuHandlers\\Send To"},
                    .name = "",
                    .checked = "{7BA4C740-9E81-11CF-99D3-00AA004AE837}",
                    .cleared = ""}},
};
constexpr Tweak kShowSendToContextMenu = {
    .id = 113,
    .title = "Show'Send to'Context Menu",  // Intended: spelled so.
    .description =
        "Shows or removes the Send To menu, which copies files to a disk, a mail message or another target, for all "
        "users. Its entries are kept when it is removed, and return with it.",
    .treeParent = 95,
    .page = Page::Checks,
    .boxes = kSendTo,
    .note = kRestartOrLogOutNote,
};

constexpr CheckBox kAttributesColumn[] = {{.text = "Show Attributes Column in Explorer .",
                                           .binding = DwordCheckState{.key = kAdvanced, .name = "ShowAttribCol"}}};
constexpr Tweak kShowAttributesColumnExplorer = {
    .id = 114,
    .title = "Show Attributes Column in Explorer",
    .description =
        "Adds a column with the attributes of each file, such as read-only or hidden, to the detail view of Explorer "
        "for the current user. Windows 98 only.",
    .page = Page::Checks,
    .boxes = kAttributesColumn,
    .note = kRestartWindowsNoteWithBlank,
    .gate = kGate98,
};

constexpr CheckBox kEncryptionMenu[] = {
    {.text = "Show Encryption Commands on the Shortcut Menu .",
     .binding = DwordCheckState{.key = kAdvanced.under(Root::LocalMachine), .name = "EncryptionContextMenu"}},
};
constexpr Tweak kShowEncryptionCommandsShortcutMenu = {
    .id = 115,
    .title = "Show Encryption Commands on the Shortcut Menu",
    .description =
        "Adds Encrypt and Decrypt to the right-click menu of files and folders on NTFS drives, for all users. If you "
        "encrypt files often, this is quicker than opening their properties.",
    .page = Page::Checks,
    .boxes = kEncryptionMenu,
    .note = kRestartOrLogOutNoteWithBlank,
    .gate = kGate2000Xp,
    .putBoxesBack = true,
};

// Intended: cleared writes 0, not Explorer's own 2.
constexpr CheckBox kHiddenFiles[] = {
    {.text = "Show Hidden Folders and Files.", .binding = DwordFlag{.key = kAdvanced, .name = "Hidden"}},
};
constexpr Tweak kShowHiddenFoldersFiles = {
    .id = 116,
    .title = "Show Hidden Folders and Files",
    .description =
        "Shows files and folders that have the hidden attribute in Explorer for the current user. It is needed to "
        "find settings and data that Windows and programs keep out of sight.",
    .treeParent = 95,
    .page = Page::Checks,
    .boxes = kHiddenFiles,
    .note = kRestartOrLogOutNoteWithBlank,
};

constexpr CheckBox kSuperHidden[] = {{.text = "Show Hidden Operating System Files.",
                                      .binding = DwordCheckState{.key = kAdvanced, .name = "ShowSuperHidden"}}};
constexpr Tweak kShowHiddenOperatingSystemFiles = {
    .id = 117,
    .title = "Show Hidden Operating System Files",
    .description =
        "Shows the protected files of the operating system in Explorer for the current user, if hidden files are "
        "shown as well. Check it only while you need such a file, since deleting one can keep Windows from starting.",
    .treeParent = 95,
    .page = Page::Checks,
    .boxes = kSuperHidden,
    .note = kRestartOrLogOutNoteWithBlank,
};

constexpr std::string_view kRefreshNote = "Note:\n\tReturn to the desktop and press F5 for the change to take effect. ";
constexpr CheckBox kOpenWithBox[] = {
    {.text = "Show \"Open With\" Program Checkbox .",
     .binding = StringFlag{.key = {Root::ClassesRoot, {}, "Unknown\\shell\\openas\\command"},
                           .name = "",
                           .checked = "rundll32.exe shell32.dll,OpenAs_RunDLL %1",
                           .cleared = "rundll32.exe shell32.dll,OpenAs_RunDLL %1 %2"}},
};
constexpr Tweak kShowHideOpenWithProgramCheckbox = {
    .id = 118,
    .title = "Show or Hide'Open With'Program Checkbox",  // Intended: spelled so.
    .description =
        "Shows the check box in the Open With window that makes the selected program the standard one for files of "
        "that type. Hide it so that a file type is not assigned to a wrong program by accident; it holds for all "
        "users.",
    .treeParent = 95,
    .page = Page::Checks,
    .boxes = kOpenWithBox,
    .note = kRefreshNote,
};

// In show and apply alike, the n-th application with a "shell" subkey is the n-th row.
constexpr TableColumn kApplicationColumns[] = {{"Program", 372}};
constexpr Table kApplications{
    .columns = kApplicationColumns,
    .binding = ApplicationRows{.name = "NoOpenWith", .counts = ApplicationRows::Counts::WithShellSubkey}};
constexpr Tweak kShowProgramsOpenSelectionBox = {
    .id = 119,
    .title = "Show Programs in the Open with Selection Box",
    .description =
        "Chooses which of the registered programs the Open With window offers, for all users. Clear the programs that "
        "you never open files with to get a short list; they stay installed and lose nothing else.",
    .treeParent = 95,
    .page = Page::CheckList,
    .table = &kApplications,
    .registry = "Lists the subkeys of `HKCR\\Applications` that have a subkey `shell`. A checked row has no value "
                "`NoOpenWith` there and deletes it; a cleared row writes it, an empty REG_SZ.",
};

constexpr Tweak kSpecifyUnknownFileTypeOptions = {
    .id = 120,
    .title = "Specify Unknown File Type Options",
    .description =
        "Sets what Windows offers for a file whose type it does not know, such as a command of your own in its menu, "
        "for example to open it in a text editor instead of asking for a program each time.",
};

constexpr Tweak kSpeedUpAccessAviMediaFiles = {
    .id = 121,
    .title = "Speed-up Access to AVI Media Files",
    .description =
        "Explorer reads each AVI video to learn its length and picture size when it is selected, which can lock large "
        "or incomplete files for a while. Without the property handler of this type, such files can be moved or "
        "deleted at once.",
};

constexpr const Tweak* kRows[] = {&kExplorer, &kAddMenuOptionMoveCopyFolder, &kAddExplorerHereEveryFolder,
                                  &kAutomaticallyExpandFoldersExplorer, &kChangeDriveNameIcon,
                                  &kChangeProgramCommonFilesDirectory, &kChangeAutoCompleteMode,
                                  &kDisableThumbnailCache, &kLaunchFolderWindowsSeparateProcess,
                                  &kRemoveSharedDocumentsMyComputer, &kRestoreFolderWindowsStartup,
                                  &kShowSendToContextMenu, &kShowAttributesColumnExplorer,
                                  &kShowEncryptionCommandsShortcutMenu, &kShowHiddenFoldersFiles,
                                  &kShowHiddenOperatingSystemFiles, &kShowHideOpenWithProgramCheckbox,
                                  &kShowProgramsOpenSelectionBox, &kSpecifyUnknownFileTypeOptions,
                                  &kSpeedUpAccessAviMediaFiles};

}  // namespace

constinit decltype(kExplorerUnit) kExplorerUnit{kRows};

}  // namespace korvane
