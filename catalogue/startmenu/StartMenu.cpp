// The category Start Menu and Taskbar and the tweaks of the Start menu: its entries
// and lists, and their order.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "catalogue/startmenu/StartMenuKeys.h"
#include "pages/PageContext.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

constexpr Tweak kStartMenuTaskbar = {
    .id = 177,
    .title = "Start Menu and Taskbar",
    .description = "Start Menu and Taskbar Enhancements",
    .category = true,
    .image = 18,
    .treeParent = kTreeRoot,
    .page = Page::Category,
};

constexpr KeyPath kExplorer{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer"};
constexpr CheckBox kRunCommands[] = {
    {.text = "Clear Cached Run Commands.",
     .binding = SubkeyFlag{.parent = kExplorer, .name = "RunMRU", .checkedWhenAbsent = true}}};
constexpr Tweak kClearCashedRunCommands = {
    .id = 196,
    .title = "Clear the Cashed Run Commands",  // Intended: spelled so.
    .description =
        "Deletes the list of commands that the current user has typed into the Run dialog, so that nobody can look "
        "them up. The box is checked while there is no such list. Applying it cleared deletes nothing: it only "
        "creates an empty list if there is none.",
    .treeParent = 177,
    .page = Page::Checks,
    .boxes = kRunCommands,
    .note = kSmallRestartOrLogOutNote,
};

constexpr CheckBox kNewPrograms[] = {
    {.text = "Enable Highlight New Programs on Start Menu .",
     .binding = DwordCheckState{.key = kShellAdvanced.madeWhole(), .name = "Start_NotifyNewApps"}}};
constexpr Tweak kHighlightNewProgramsStartMenu = {
    .id = 198,
    .title = "Highlight New Programs on Start Menu",
    .description =
        "Newly installed programs are shown in color on the Start menu until they have been started. Clear the "
        "box if you find the marking and its balloon distracting; it affects the current user.",
    .treeParent = 177,
    .page = Page::Checks,
    .boxes = kNewPrograms,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr auto kAllPrograms = ScopePair("Remove \"All Programs\" Button from the Start Menu (Current User).",
                                        "Remove \"All Programs\" Button from the Start Menu (All Users).",
                                        shellPolicy("NoStartMenuMorePrograms"));
constexpr Tweak kRemoveAllProgramsButtonStartMenu = {
    .id = 199,
    .title = "Remove'All Programs'Button from the Start Menu",  // Intended: spelled so.
    .description =
        "Removes the All Programs button of the Windows XP Start menu, so that users can start only what is "
        "pinned or recently used. Meant for computers with a few permitted programs.",
    .treeParent = 177,
    .page = Page::Checks,
    .boxes = kAllPrograms,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr auto kFrequentPrograms = ScopePair("Remove Frequent Programs List from the Start Menu (Current User).",
                                             "Remove Frequent Programs List from the Start Menu (All Users).",
                                             shellPolicy("NoStartMenuMFUprogramsList"));
constexpr Tweak kRemoveFrequentProgramsListStartMenu = {
    .id = 200,
    .title = "Remove Frequent Programs List from the Start Menu",
    .description =
        "Leaves the list of programs that you use most often off the Start menu. Its place stays empty and nobody "
        "can see what was run; available for the current user and for all users.",
    .treeParent = 177,
    .page = Page::Checks,
    .boxes = kFrequentPrograms,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr KeyPath kNonEnum{Root::CurrentUser, {}, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\NonEnum"};
constexpr auto kMyComputer =
    ScopePair("Remove My Computer from the Desktop and Start Menu (Current User).",
              "Remove My Computer from the Desktop and Start Menu (All Users).",
              DwordCheckState{.key = kNonEnum, .name = "{20D04FE0-3AEA-1069-A2D8-08002B30309D}"});
constexpr Tweak kRemoveMyComputerDesktopStartMenu = {
    .id = 201,
    .title = "Remove My Computer from the Desktop and Start Menu",
    .description =
        "Hides My Computer on the desktop and on the Start menu, for the current user or for all users. Its drives "
        "can still be reached in other ways. The tweak of the same title in Desktop (ItemId 89) sets the same values "
        "and shares the date.",
    .treeParent = 177,
    .page = Page::Checks,
    .boxes = kMyComputer,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000XpNamingMe,
};

constexpr auto kPinnedPrograms =
    ScopePair("Remove Pinned Programs List from Start Menu (Current User).",
              "Remove Pinned Programs List from Start Menu (All Users).", shellPolicy("NoStartMenuPinnedList"));
constexpr Tweak kRemovePinnedProgramsListStartMenu = {
    .id = 202,
    .title = "Remove Pinned Programs List from Start Menu",
    .description =
        "Hides the pinned programs at the top of the Start menu, including the entries for the Internet and "
        "E-mail. Nothing is unpinned: the list returns when the box is cleared.",
    .treeParent = 177,
    .page = Page::Checks,
    .boxes = kPinnedPrograms,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr auto kProgramAccess = ScopePair("Remove Set Program Access and Defaults from Start Menu (Current User).",
                                          "Remove Set Program Access and Defaults from Start Menu (All Users).",
                                          shellPolicy("NoSMConfigurePrograms"));
constexpr Tweak kRemoveSetProgramAccessDefaultsStart = {
    .id = 203,
    .title = "Remove Set Program Access and Defaults from Start Menu",
    .description =
        "Removes the Set Program Access and Defaults entry from the Start menu, with which users choose the "
        "default browser, mail program and player. Helpful where these choices are made by an administrator.",
    .page = Page::Checks,
    .boxes = kProgramAccess,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr auto kDisconnect = ScopePair("Remove the Disconnect Menu Item (Current User).",
                                       "Remove the Disconnect Menu Item (All Users).", shellPolicy("NoDisconnect"));
constexpr Tweak kRemoveDisconnectMenuItem = {
    .id = 204,
    .title = "Remove the Disconnect Menu Item",
    .description =
        "Hides Disconnect in the Shut Down dialog of a terminal server session, so that people log off properly "
        "instead of leaving programs running on the server. Other ways of disconnecting still work.",
    .page = Page::Checks,
    .boxes = kDisconnect,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr auto kUndock =
    ScopePair("Remove Undock Computer from Start Menu (Current User).",
              "Remove Undock Computer from Start Menu (All Users).", shellPolicy("NoStartMenuEjectPC"));
constexpr Tweak kRemoveUnlockComputerStartMenu = {
    .id = 205,
    .title = "Remove Unlock Computer From the Start Menu",  // Intended: says Unlock, means Undock.
    .description =
        "Removes the Undock Computer command, which ejects a portable from its docking station, from the Start "
        "menu. The title says Unlock, but locking the computer is not touched.",
    .page = Page::Checks,
    .boxes = kUndock,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr auto kUserName =
    ScopePair("Remove Username from the Start Menu (Current User).", "Remove Username from the Start Menu (All Users).",
              shellPolicy("NoUserNameInStartMenu"));
constexpr Tweak kRemoveUsernameStartMenu = {
    .id = 206,
    .title = "Remove Username From the Start Menu",
    .description =
        "The Windows XP Start menu shows the name of the logged-in user in its heading. Remove it if the name "
        "should not be seen by bystanders or in pictures of the screen.",
    .treeParent = 177,
    .page = Page::Checks,
    .boxes = kUserName,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr auto kFavorites =
    ScopePair("Show Favorites on the Start Menu (Current User).", "Show Favorites on the Start Menu (All Users).",
              DwordCheckState{.key = kShellAdvanced, .name = "StartMenuFavorites"});
constexpr Tweak kShowFavoritesStartMenu = {
    .id = 207,
    .title = "Show Favorites on the Start Menu",
    .description =
        "Adds your Favorites as a menu to the Start menu, which gives quick access to web pages without opening "
        "Internet Explorer first. It can be set for the current user and for all users.",
    .treeParent = 177,
    .page = Page::Checks,
    .boxes = kFavorites,
    .note = "Note:\n\tLog off for the changes to take effect.",
    .gate = kGateXp,
};

// In show and apply alike, the n-th application with ".exe" in its name is the n-th row.
constexpr TableColumn kProgramColumns[] = {{"Program", 372}};
constexpr Table kPrograms{
    .columns = kProgramColumns,
    .binding = ApplicationRows{.name = "NoStartPage", .counts = ApplicationRows::Counts::NamedExe}};
constexpr Tweak kShowProgramsFrequentlyUsedProgramsList = {
    .id = 208,
    .title = "Show Programs in the Frequently Used Programs List",
    .description =
        "Lists the registered applications and lets you choose which of them may appear among the frequently used "
        "programs on the Start menu. Remove the check mark from tools that only take up space there, for all "
        "users.",
    .page = Page::CheckList,
    .table = &kPrograms,
    .gate = kGateXp,
    .registry = "Lists the subkeys of `HKCR\\Applications` whose names contain `.exe` or `.EXE`. A checked row has no "
                "value `NoStartPage` there and deletes it; a cleared row writes it, an empty REG_SZ.",
};

// A menu without a stored order is sorted.
constexpr SubkeyFlag menuOrder(std::string_view name) {
    return {.parent = {Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MenuOrder"},
            .name = name,
            .checkedWhenAbsent = true,
            .deletesTree = true};
}

constexpr CheckBox kSorted[] = {{.text = "Sort Start Menu in Alphabetical Order .", .binding = menuOrder("Start Menu")},
                                {.text = "Sort Favorites in Alphabetical Order .", .binding = menuOrder("Favorites")}};
constexpr int kFavoritesFirst[] = {IDC_CHECK2, IDC_CHECK1};
constexpr Tweak kSortStartMenuFavoritesAlphabeticalOrder = {
    .id = 209,
    .title = "Sort Start Menu and Favorites in Alphabetical Order",
    .description = "Windows keeps entries of the Start menu and of Favorites in the order in which they were added or "
                   "dragged. When checked, that stored order is deleted and the entries appear alphabetically; an "
                   "arrangement made by hand is lost.",
    .page = Page::Checks,
    .boxes = kSorted,
    .note = "Note:\n\tChanges will take effect after you restart Windows and Internet Explorer.",
    .writeOrder = kFavoritesFirst,
};

// The last two labels have no colon.
constexpr NumberEntry kFolderModes[] = {{"Hidden", 0}, {"Open when clicked", 1}, {"Expand contents", 2}};
constexpr DwordChoice folderMode(std::string_view name) {
    return {.key = kShellAdvanced, .name = name, .entries = kFolderModes, .initial = 1};
}

constexpr Choice kFolders[] = {{.label = "Control Panel Mode:", .binding = folderMode("Start_ShowControlPanel")},
                               {.label = "My Computer Mode:", .binding = folderMode("Start_ShowMyComputer")},
                               {.label = "My Documents Mode:", .binding = folderMode("Start_ShowMyDocs")},
                               {.label = "My Music Mode:", .binding = folderMode("Start_ShowMyMusic")},
                               {.label = "My Pictures Mode", .binding = folderMode("Start_ShowMyPics")},
                               {.label = "Net Connection Mode", .binding = folderMode("Start_ShowNetConn")}};
constexpr Tweak kViewEnhancedStartMenuFolders = {
    .id = 210,
    .title = "View Enhanced Start Menu Folders",
    .description =
        "Each of six Start menu folders (Control Panel, My Computer, My Documents, My Music, My Pictures, Network "
        "Connections) can be hidden, opened in a window when clicked, or expanded as a menu. The choices apply to "
        "the current user.",
    .treeParent = 177,
    .page = Page::Combos,
    .choices = kFolders,
    .gate = kGateXp,
};

// For every loaded user hive, that of the login screen included.
constexpr CheckBox kScrolling[] = {{.text = "Enable Start Menu Scrolling (Classic mode)."},
                                   {.text = "Enable Start Menu Scrolling (Ordinary mode)."}};
constexpr std::string_view kClassicScrolling = "StartMenuScrollPrograms";
constexpr std::string_view kOrdinaryScrolling = "Start_ScrollPrograms";
// Intended: the alert's text names 98 and Me, which this gate refuses.
constexpr Gate kGate2000XpNaming98{kWin2000 | kWinXP, Alert::Only98Me2000Xp};
// Calls visit(key) with the Explorer settings of every hive that has them.
template <typename Visit>
void forEachUser(PageContext& context, Visit visit) {
    Registry& registry = context.platform.registry;
    RegistryHandle users;
    if (registry.connect(Root::Users, users) != Status::Success) {
        return;
    }
    std::string name;
    for (std::uint32_t i = 0; registry.enumerateKey(users, i, name) == Status::Success; ++i) {
        if (const OpenedKey key = openKey(registry, Root::Users, name + '\\' + std::string(kShellAdvanced.path))) {
            visit(key);
        }
    }
}

// Intended: the first box is checked if any hive has "Yes"; the second shows the last hive's value.
void showScrolling(PageContext& context) {
    Registry& registry = context.platform.registry;
    forEachUser(context, [&](const OpenedKey& key) {
        const auto classic = readValue(registry, key.handle(), kClassicScrolling);
        if (classic && equalIgnoringCase(classic->text(), "Yes")) {
            context.page.setCheck(IDC_CHECK1, 1);
        }
        if (const auto ordinary = readValue(registry, key.handle(), kOrdinaryScrolling)) {
            context.page.setCheck(IDC_CHECK2, ordinary->number());
        }
    });
}

void applyScrolling(PageContext& context) {
    Registry& registry = context.platform.registry;
    forEachUser(context, [&](const OpenedKey& key) {
        writeText(registry, key, kClassicScrolling, context.checked(IDC_CHECK1) ? "Yes" : "No");
        writeNumber(registry, key, kOrdinaryScrolling, context.checked(IDC_CHECK2) ? 1 : 0);
    });
}

constexpr Tweak kEnableStartMenuScrolling = {
    .id = 197,
    .title = "Enable Start Menu Scrolling",
    .description =
        "Lets a long Programs menu scroll in one column instead of spreading over several. The two boxes are for "
        "the classic and the ordinary Start menu, and the change is made for every user whose settings are loaded "
        "at the moment.",
    .treeParent = 177,
    .page = Page::Checks,
    .boxes = kScrolling,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000XpNaming98,
    .show = showScrolling,
    .apply = applyScrolling,
    .registry = "Every subkey of `HKU` that has `Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced` "
                "gets there `StartMenuScrollPrograms` (REG_SZ, `Yes` or `No`) from the first box and "
                "`Start_ScrollPrograms` (REG_DWORD, 1 or 0) from the second. The first is shown checked if any of "
                "them has `Yes`, the second as in the last of them.",
};

constexpr const Tweak* kRows[] = {&kStartMenuTaskbar, &kClearCashedRunCommands, &kEnableStartMenuScrolling,
                                  &kHighlightNewProgramsStartMenu, &kRemoveAllProgramsButtonStartMenu,
                                  &kRemoveFrequentProgramsListStartMenu, &kRemoveMyComputerDesktopStartMenu,
                                  &kRemovePinnedProgramsListStartMenu, &kRemoveSetProgramAccessDefaultsStart,
                                  &kRemoveDisconnectMenuItem, &kRemoveUnlockComputerStartMenu,
                                  &kRemoveUsernameStartMenu, &kShowFavoritesStartMenu,
                                  &kShowProgramsFrequentlyUsedProgramsList, &kSortStartMenuFavoritesAlphabeticalOrder,
                                  &kViewEnhancedStartMenuFolders};

}  // namespace

constinit decltype(kStartMenuUnit) kStartMenuUnit{kRows};

}  // namespace korvane
