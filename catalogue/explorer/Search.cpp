// The Search tweaks: the default options of a search, Explorer's search button and
// assistant, and Active Directory searches.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr Tweak kSearch = {
    .id = 96,
    .title = "Search",
    .description = "Enhancements for the Windows Explorer Search Features",
    .category = true,
    .image = 12,
    .treeParent = 95,
    .page = Page::Category,
};

constexpr KeyPath kExplorer{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer"};
// Intended: a space at the end of each text.
constexpr CheckBox kSearchOptions[] = {
    {.text = "Case sensitive ", .binding = DwordFlag{.key = kExplorer, .name = "CaseSensitive"}},
    {.text = "Search subfolders ", .binding = DwordFlag{.key = kExplorer, .name = "IncludeSubFolders"}},
    {.text = "Search hidden files and folders ", .binding = DwordFlag{.key = kExplorer, .name = "SearchHidden"}},
    {.text = "Search tape backup ", .binding = DwordFlag{.key = kExplorer, .name = "SearchSlowFiles"}},
    {.text = "Search system folders ", .binding = DwordFlag{.key = kExplorer, .name = "SearchSystemDirs"}},
};
constexpr Tweak kChangeDefaultSearchOptions = {
    .id = 97,
    .title = "Change Default Search Options",
    .description =
        "Sets the options that are already checked when the current user opens a search for files: upper and lower "
        "case, subfolders, hidden files, system folders and tape backups. Searching fewer places gives quicker "
        "results.",
    .treeParent = 96,
    .page = Page::Checks,
    .boxes = kSearchOptions,
    .gate = kGateXp,
};

constexpr Field kQueryLimit[] = {
    {.label = "The Number of Active Directory Search Results(0=unlimited):",
     .binding = DwordNumber{.key = {Root::CurrentUser, "Software\\Policies\\Microsoft", "Windows\\Directory UI"},
                            .name = "QueryLimit"}},
};
constexpr Tweak kChangeNumberActiveDirectorySearchResults = {
    .id = 98,
    .title = "Change the Number of Active Directory Search Results",
    .description =
        "Limits how many objects a search in Active Directory returns for the current user; 0 sets no limit. A lower "
        "number relieves the network and the domain controllers, a higher one shows large directories in full.",
    .page = Page::CheckFields,
    .fields = kQueryLimit,
    .gate = kGate2000Xp,
};

constexpr auto kSearchButton = ScopePair(
    "Hide the Search Button on the Explorer Toolbar(Current User)",
    "Hide the Search Button on the Explorer Toolbar(All Users)",
    DwordCheckState{.key = {Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer"},
                    .name = "NoShellSearchButton"});
constexpr Tweak kHideSearchButtonExplorerToolbar = {
    .id = 99,
    .title = "Hide the Search Button on the Explorer Toolbar",
    .description =
        "Removes the Search button from the toolbar of Explorer, for the current user or for all users. Searching is "
        "still possible in other ways, for example from the Start menu.",
    .treeParent = 96,
    .page = Page::Checks,
    .boxes = kSearchButton,
    .note = kRestartOrLogOutNoteWithoutStop,
    .gate = kGate2000Xp,
};

constexpr CheckBox kAllFileTypes[] = {
    {.text = "Search for All File Types .",
     .binding = DwordCheckState{.key = {Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\ContentIndex"},
                                .name = "FilterFilesWithUnknownExtensions"}},
};
constexpr Tweak kSearchAllFileTypes = {
    .id = 100,
    .title = "Search for All File Types",
    .description =
        "Lets a search for words inside files also read files whose type Windows does not know, where it would "
        "otherwise skip them. Programmers find text in their sources this way; such searches take longer. It holds "
        "for all users.",
    .page = Page::Checks,
    .boxes = kAllFileTypes,
    .note = kRestartOrLogOutNoteWithoutStop,
    .gate = kGateXp,
};

constexpr CheckBox kDirectoryFilter[] = {
    {.text = "Enable Filter in Active Directory Search Results .",
     .binding = DwordCheckState{.key = {Root::CurrentUser, "Software\\Policies\\Microsoft\\Windows", "Directory UI"},
                                .name = "EnableFilter"}},
};
constexpr Tweak kShowFilterActiveDirectorySearchResults = {
    .id = 101,
    .title = "Show Filter in Active Directory Search Results",
    .description =
        "Shows the filter bar above the results of a search in Active Directory from the start, for the current user. "
        "It helps administrators who often narrow down long lists of users or computers.",
    .page = Page::Checks,
    .boxes = kDirectoryFilter,
    .note = kRestartOrLogOutNoteWithoutStop,
    .gate = kGate2000Xp,
};

// Intended: only a lower-case "no" selects the second entry.
constexpr TextEntry kYesNo[] = {{"Yes", "yes"}, {"No", "no"}};
constexpr Choice kSearchAssistant[] = {
    {.label = "Use Search Assistant:",
     .binding = StringChoice{.key = {Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer",
                                     "CabinetState"},
                             .name = "Use Search Asst",
                             .entries = kYesNo,
                             .initial = 0,
                             .unknown = 0,
                             .noneText = "no"}},
};
constexpr Tweak kUseClassicSearchExplorer = {
    .id = 102,
    .title = "Use Classic Search in Explorer",
    .description =
        "Chooses whether the current user searches with the Search Assistant, which asks one question after another. "
        "Choose No for the plain classic search form with all its fields at once.",
    .treeParent = 96,
    .page = Page::CheckCombos,
    .choices = kSearchAssistant,
    .note = kRestartOrLogOutNoteWithoutStop,
    .gate = kGateXp,
};

constexpr const Tweak* kRows[] = {&kSearch, &kChangeDefaultSearchOptions, &kChangeNumberActiveDirectorySearchResults,
                                  &kHideSearchButtonExplorerToolbar, &kSearchAllFileTypes,
                                  &kShowFilterActiveDirectorySearchResults, &kUseClassicSearchExplorer};

}  // namespace

constinit decltype(kSearchUnit) kSearchUnit{kRows};

}  // namespace korvane
