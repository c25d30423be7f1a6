// The Documents and Folders tweaks: the list of recent documents, and which folders
// are cascading menus of the Start menu.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "catalogue/startmenu/StartMenuKeys.h"

namespace korvane {
namespace {

// 182 to 186 use the values of 210, where 2 is a menu, 1 a plain entry and 0 no entry. Intended: cleared writes 0,
// which removes the folder from the Start menu.
constexpr DwordFlag cascading(std::string_view name) {
    return {.key = kShellAdvanced, .name = name, .checked = 2, .cleared = 0};
}

constexpr Tweak kDocumentsFolders = {
    .id = 178,
    .title = "Documents and Folders",
    .description = "Manage Documents and Folders on the Start Menu",
    .category = true,
    .image = 19,
    .treeParent = 177,
    .page = Page::Category,
};

constexpr DwordNumber kDocumentCount{.key = kShellPolicies, .name = "MaxRecentDocs", .whenEmpty = WhenEmpty::Deletes};
constexpr Field kRecentDocuments[] = {
    {.label = "Number of recent Documents displayed (default=15)(Current User):", .binding = kDocumentCount},
    {.label = "Number of recent Documents displayed (default=15)(All Users):",
     .binding = underLocalMachine(kDocumentCount)}};
constexpr Tweak kChangeNumberRecentDocumentsDisplayed = {
    .id = 179,
    .title = "Change the Number of Recent Documents Displayed",
    .description =
        "Controls how many documents the recent documents list of the Start menu may hold, for the current user "
        "and for all users. Windows shows 15 if nothing is set; an empty field goes back to that.",
    .page = Page::CheckFields,
    .fields = kRecentDocuments,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000XpNamingMe,
};

constexpr auto kClearRecent =
    ScopePair("Clear Recent Documents on Exit (Current User).", "Clear Recent Documents on Exit (All Users).",
              shellPolicy("ClearRecentDocsOnExit"));
constexpr Tweak kClearRecentDocumentsWindowsExits = {
    .id = 180,
    .title = "Clear Recent Documents When Windows Exits",
    .description =
        "Empties the list of recently used documents each time you log off or shut down, so that nobody can see "
        "from the Start menu what you worked on. It can be switched on for the current user and for all users.",
    .treeParent = 178,
    .page = Page::Checks,
    .boxes = kClearRecent,
    .note = kSmallRestartOrLogOutNote,
};

constexpr std::string_view kSubfoldersNote =
    "Note:\n- Restart Windows for the change to take effect.\r\n- Custom Subfolders are the folders that you have "
    "draged "
    "into the start menu. In the Classic Mode of the Start Menu, your Custom subfolders will appear in the most upper "
    "section of the Start Menu, while in the Ordinary Mode, they will appear in the most upper section of the Programs "
    "List.";  // Intended: "draged" is spelled so.
// Intended: only the key for all users is created.
constexpr std::string_view kNoSubfolders = "NoStartMenuSubFolders";
constexpr CheckBox kSubfolders[] = {
    {.text = "Do not display Start Menu Subfolders (Current User).", .binding = shellPolicy(kNoSubfolders)},
    {.text = "Do not display Start Menu Subfolders (All Users).",
     .binding = DwordCheckState{.key = kShellPolicies.under(Root::LocalMachine).madeWhole(), .name = kNoSubfolders}}};
constexpr Tweak kHideStartMenuSubfolders = {
    .id = 181,
    .title = "Hide Start Menu Subfolders",
    .description =
        "Hides the folders that were dragged into the Start menu and keeps its upper part short; single shortcuts "
        "remain. It is meant for administrators who give users a Start menu of fixed contents.",
    .treeParent = 178,
    .page = Page::Checks,
    .boxes = kSubfolders,
    .note = kSubfoldersNote,
};

constexpr auto kControlPanel =
    ScopePair("Show Cascading Control Panel Items (Current User).", "Show Cascading Control Panel Items (All Users).",
              cascading("Start_ShowControlPanel"));
constexpr Tweak kShowCascadingControlPanelItems = {
    .id = 182,
    .title = "Show Cascading Control Panel Items",
    .description =
        "Opens the Control Panel as a cascading menu, so that each of its items can be started from the Start "
        "menu directly. Unchecked, the entry is hidden; a plain link can be had with 'View Enhanced Start Menu "
        "Folders'.",
    .treeParent = 178,
    .page = Page::Checks,
    .boxes = kControlPanel,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000XpNamingMe,
};

constexpr auto kMyDocuments =
    ScopePair("Show Cascading My Documents Folder (Current User).", "Show Cascading My Documents Folder (All Users).",
              cascading("Start_ShowMyDocs"));
constexpr Tweak kShowCascadingMyDocumentsFolder = {
    .id = 183,
    .title = "Show Cascading My Documents Folder",
    .description =
        "Shows the contents of My Documents as a cascading menu on the Start menu, so that a file can be opened "
        "without opening the folder first. Clearing the box removes My Documents from the Start menu; a plain entry "
        "can be had with 'View Enhanced Start Menu Folders'.",
    .treeParent = 178,
    .page = Page::Checks,
    .boxes = kMyDocuments,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000XpNamingMe,
};

constexpr auto kMyPictures = ScopePair("Show Cascading My Pictures Folder (Current User).",
                                       "Show Cascading My Pictures Folder (All Users).", cascading("Start_ShowMyPics"));
constexpr Tweak kShowCascadingMyPicturesFolder = {
    .id = 184,
    .title = "Show Cascading My Pictures Folder",
    .description =
        "With this on, the My Pictures entry of the Start menu unfolds into the pictures and folders inside it. "
        "Clearing the box takes the entry off the Start menu.",
    .treeParent = 178,
    .page = Page::Checks,
    .boxes = kMyPictures,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000XpNamingMe,
};

constexpr auto kNetworkConnections =
    ScopePair("Show Cascading Network Connections (Current User).", "Show Cascading Network Connections (All Users).",
              cascading("Start_ShowNetConn"));
constexpr Tweak kShowCascadingNetworkConnections = {
    .id = 185,
    .title = "Show Cascading Network Connections",
    .description =
        "Unfolds Network Connections on the Start menu, so that a dial-up or network connection can be picked "
        "without opening its folder. Unchecked, Network Connections is not shown there at all.",
    .treeParent = 178,
    .page = Page::Checks,
    .boxes = kNetworkConnections,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000XpNamingMe,
};

constexpr auto kPrinters = ScopePair("Show Cascading Printers Folder (Current User).",
                                     "Show Cascading Printers Folder (All Users).", cascading("Start_ShowPrinters"));
constexpr Tweak kShowCascadingPrintersFolder = {
    .id = 186,
    .title = "Show Cascading Printers Folder",
    .description =
        "The installed printers appear as a cascading menu on the Start menu, which makes their queues quick to "
        "reach. Without the check mark the Printers entry is hidden.",
    .page = Page::Checks,
    .boxes = kPrinters,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000XpNamingMe,
};

constexpr const Tweak* kRows[] = {&kDocumentsFolders, &kChangeNumberRecentDocumentsDisplayed,
                                  &kClearRecentDocumentsWindowsExits, &kHideStartMenuSubfolders,
                                  &kShowCascadingControlPanelItems, &kShowCascadingMyDocumentsFolder,
                                  &kShowCascadingMyPicturesFolder, &kShowCascadingNetworkConnections,
                                  &kShowCascadingPrintersFolder};

}  // namespace

constinit decltype(kDocumentsAndFoldersUnit) kDocumentsAndFoldersUnit{kRows};

}  // namespace korvane
