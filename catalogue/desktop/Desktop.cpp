// The Desktop tweaks: which icons the desktop shows, their names and order, and
// what users may do on the desktop.
#include "catalogue/Units.h"
#include "pages/PageContext.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

constexpr std::string_view kNoteWithoutStop =
    "Note:\n\tYou may need to restart or log out of Windows for the change to take effect";  // Intended: no full stop.

// ---- 80: a row is a key of the desktop's name space. Intended: the letter case of the class identifiers.
constexpr KeyPath kNameSpace{Root::LocalMachine,
                             "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\NameSpace"};

struct NameSpaceRow {
    std::string_view text;
    std::string_view classId;
};

constexpr NameSpaceRow kNameSpaceRows[] = {
    {"Administrative Tools", "{D20EA4E1-3957-11d2-A40B-0C5020524153}"},
    {"Fonts", "{D20EA4E1-3957-11d2-A40B-0C5020524152}"},
    {"History", "{FF393560-C2A7-11CF-BFF4-444553540000}"},
    {"Inbox", "{00020D75-0000-0000-C000-000000000046}"},
    {"Microsoft Network", "{00028B00-0000-0000-C000-000000000046}"},
    {"Network Connections", "{7007ACC7-3202-11D1-AAD2-00805FC1270E}"},
    {"Printers and Faxes", "{2227A280-3AEA-1069-A2DE-08002B30309D}"},
    {"Programs Folder", "{7be9d83c-a729-4d97-b5a7-1b7313c39e0a}"},
    {"Recycle Bin", "{645FF040-5081-101B-9F08-00AA002F954E}"},
    {"Scanners and Cameras", "{E211B736-43FD-11D1-9EFB-0000F8757FCD}"},
    {"Scheduled Tasks", "{D6277990-4C6A-11CF-8D87-00AA0060F5BF}"},
    {"Start Menu Folder", "{48e7caab-b918-4e58-a94d-505519c795dc}"},
    {"Temporary Internet Files", "{7BD29E00-76C1-11CF-9DD0-00A0C9034933}"},
};

constexpr TableColumn kIconColumns[] = {{"Desktop Icon", 372}};
constexpr Table kIconList{.columns = kIconColumns};

void showIconVisibility(PageContext& context) {
    int index = 0;
    for (const NameSpaceRow& row : kNameSpaceRows) {
        context.page.insertRow(IDC_CHECK_LIST, index, row.text);
        const std::string path = kNameSpace.fullPath() + '\\' + std::string(row.classId);
        const bool there = static_cast<bool>(openKey(context.platform.registry, kNameSpace.root, path));
        context.page.setRowCheck(IDC_CHECK_LIST, index++, there);
    }
}

void applyIconVisibility(PageContext& context) {
    Registry& registry = context.platform.registry;
    const OpenedKey nameSpace = context.openForWriting(kNameSpace);
    if (!nameSpace) {
        return;
    }
    int index = 0;
    for (const NameSpaceRow& row : kNameSpaceRows) {
        if (context.page.rowCheck(IDC_CHECK_LIST, index++)) {
            RegistryHandle made;
            ignoreFailure(registry.createKey(nameSpace.handle(), row.classId, made));
        } else {
            ignoreFailure(registry.deleteKey(nameSpace.handle(), row.classId));
        }
    }
}

// ---- 82: the number of seconds is stored as REG_SZ or as REG_DWORD; both are read.
constexpr KeyPath kWinlogon{Root::LocalMachine, {}, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon"};
constexpr std::string_view kGracePeriod = "ScreenSaverGracePeriod";
constexpr CheckBox kGracePeriodBox[] = {{.text = "Change the Screen Saver Grace Period."}};
constexpr Choice kGracePeriodSeconds[] = {{.label = "Screen Saver Grace Period(Seconds):"}};

void showGracePeriod(PageContext& context) {
    const auto value = context.read(kWinlogon, kGracePeriod);
    context.page.setCheck(IDC_CHECK1, value ? 1 : 0);
    context.page.enableControl(IDC_COMBO1, value.has_value());
    context.page.selectComboEntry(IDC_COMBO1, kNoSelection);
    if (value) {
        const int seconds =
            value->type == ValueType::Sz ? decimalNumber(value->text()) : static_cast<int>(value->number());
        context.page.selectComboEntry(IDC_COMBO1, seconds);
    }
}

// Intended: no choice writes "-1". The REG_DWORD is only the fallback if the REG_SZ cannot be written.
void applyGracePeriod(PageContext& context) {
    Registry& registry = context.platform.registry;
    const OpenedKey key = context.openForWriting(kWinlogon);
    if (!key) {
        return;
    }
    if (!context.checked(IDC_CHECK1)) {
        ignoreFailure(registry.deleteValue(key.handle(), {}, kGracePeriod));
        return;
    }
    const int seconds = context.page.comboSelection(IDC_COMBO1);
    const std::string text = std::to_string(seconds);
    if (registry.setValue(key.handle(), kGracePeriod, ValueType::Sz, std::as_bytes(std::span(text))) !=
        Status::Success) {
        writeNumber(registry, key, kGracePeriod, static_cast<std::uint32_t>(seconds));
    }
}

// ---- 83: any other stored number shows as My Computer, and no choice writes the number of My Computer.
constexpr NumberEntry kFirstIcons[] = {{"My Documents", 0x48}, {"My Computer", 0x54}};
constexpr Choice kFirstIcon[] = {
    {.label = "Choose the First Desktop Icon :",
     .binding = DwordChoice{.key = {Root::ClassesRoot, "CLSID\\{450D8FBA-AD25-11D0-98A8-0800361B1103}"},
                            .name = "SortOrderIndex",
                            .entries = kFirstIcons,
                            .unknown = 1,
                            .noneNumber = 0x54}},
};

constexpr KeyPath kCleanupWizard{
    Root::CurrentUser, {}, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\CleanupWiz"};
constexpr CheckBox kCleanup[] = {
    {.text = "Disable Desktop Cleanup Wizard .", .binding = DwordCheckState{.key = kCleanupWizard, .name = "NoRun"}},
};

// ---- 85 to 87: cleared deletes the value; in 89 it writes 0.
constexpr std::string_view kPolicies = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies";
constexpr KeyPath kExplorerPolicies{Root::CurrentUser, kPolicies, "Explorer"};
constexpr DwordFlag explorerPolicy(std::string_view name) {
    return {.key = kExplorerPolicies, .name = name, .clearedDeletes = true};
}
constexpr auto kContextMenu = ScopePair("Restrict Context Menu (Current User).", "Restrict Context Menu (All Users).",
                                        explorerPolicy("NoViewContextMenu"));
constexpr auto kClassicDesktop =
    ScopePair("Disables the Various Enhanced Features of the Windows(Current User).",
              "Disables the Various Enhanced Features of the Windows(All Users).", explorerPolicy("ClassicShell"));
constexpr auto kInternetIcon =
    ScopePair("Hide the Internet Explorer Icon (Current User).", "Hide the Internet Explorer Icon (All Users).",
              explorerPolicy("NoInternetIcon"));
constexpr auto kMyComputer = ScopePair(
    "Remove My Computer from the Desktop and Start Menu(Current User).",
    "Remove My Computer from the Desktop and Start Menu(All Users).",
    DwordFlag{.key = {Root::CurrentUser, kPolicies, "NonEnum"}, .name = "{20D04FE0-3AEA-1069-A2D8-08002B30309D}"});

// ---- 90: the two numbers differ only in the bit that hides the folder; Windows 95, 98 and Me have it in another key.
constexpr KeyPath kMyDocumentsKey{.root = Root::CurrentUser,
                                  .path = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer",
                                  .created = "CLSID\\{450D8FBA-AD25-11D0-98A8-0800361B1103}\\ShellFolder",
                                  .otherOn = kWindows9x,
                                  .otherPath = "Software\\Classes",
                                  .otherCreated = "CLSID\\{450D8FBA-AD25-11D0-98A8-0800361B1103}\\ShellFolder"};
constexpr auto kMyDocuments =
    ScopePair("Remove My Documents from the Desktop and Start Menu(Current User).",
              "Remove My Documents from the Desktop and Start Menu(All Users).",
              DwordFlag{.key = kMyDocumentsKey, .name = "Attributes", .checked = 0xF0500174, .cleared = 0xF0400174});

// ---- 91: both permissions are in the first of the four bytes, so both boxes are read and written at once.
constexpr KeyPath kRecycleBin{Root::ClassesRoot, {}, "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\ShellFolder"};
constexpr CheckBox kRecycleBinBoxes[] = {{.text = "Allow Rename of Recycle Bin."},
                                         {.text = "Allow Delete of Recycle Bin."}};
constexpr std::uint32_t kNeither = 0x40;
constexpr std::uint32_t kRename = 0x10;
constexpr std::uint32_t kDelete = 0x20;

void showRecycleBin(PageContext& context) {
    const auto value = context.read(kRecycleBin, "Attributes");
    const std::uint32_t first = value ? value->number() & 0xFF : 0;
    const bool known =
        first == (kNeither | kRename) || first == (kNeither | kDelete) || first == (kNeither | kRename | kDelete);
    context.page.setCheck(IDC_CHECK1, known && (first & kRename) != 0 ? 1 : 0);
    context.page.setCheck(IDC_CHECK2, known && (first & kDelete) != 0 ? 1 : 0);
}

void applyRecycleBin(PageContext& context) {
    const OpenedKey key = context.openForWriting(kRecycleBin);
    if (!key) {
        return;
    }
    const std::uint32_t first =
        kNeither | (context.checked(IDC_CHECK1) ? kRename : 0) | (context.checked(IDC_CHECK2) ? kDelete : 0);
    const std::byte attributes[] = {static_cast<std::byte>(first), std::byte{0x01}, std::byte{0x00}, std::byte{0x20}};
    writeBinary(context.platform.registry, key, "Attributes", attributes);
    writeNumber(context.platform.registry, key, "CallForAttributes", 0);
}

constexpr KeyPath kAdvanced{Root::CurrentUser, {}, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"};
constexpr CheckBox kInfoTips[] = {
    {.text = "Show Tool Tip Information and Descriptions.",
     .binding = DwordFlag{.key = kAdvanced, .name = "ShowInfoTip"}},
};

constexpr CheckBox kUserAndComputer[] = {
    {.text = "Show user and computer name on Desktop.",
     .binding = StringFlag{.key = {Root::ClassesRoot, {}, "CLSID\\{20D04FE0-3AEA-1069-A2D8-08002B30309D}"},
                           .name = "LocalizedString",
                           .checked = "%USERNAME% on %COMPUTERNAME%",
                           .cleared = "My Computer",
                           .type = ValueType::ExpandSz}},
};

constexpr CheckBox kVersion[] = {
    {.text = "Show Windows Version on Desktop .",
     .binding = DwordFlag{.key = {Root::CurrentUser, "Control Panel\\Desktop"}, .name = "PaintDesktopVersion"}},
};


constexpr Tweak kTweaks[] = {
    {.id = 78,
     .title = "Desktop",
     .description = "Windows Desktop Enhancements",
     .category = true,
     .image = 10,
     .treeParent = kTreeRoot,
     .page = Page::Category},
    {.id = 79,
     .title = "Active Window Tracking",
     .description =
         "Makes the window under the mouse pointer active without a click, as on some other systems. It saves clicks "
         "when working in several windows at once; whether the window also comes to the front is a separate choice."},
    {.id = 80,
     .title = "Change Desktop Icon Visibility",
     .description =
         "Chooses which special folders, such as the Recycle Bin or Network Connections, appear as icons on the "
         "desktop of all users. Clearing a row deletes its registry key unless other keys lie in it; checking it "
         "creates an empty key.",
     .treeParent = 78,
     .page = Page::CheckList,
     .table = &kIconList,
     .show = showIconVisibility,
     .apply = applyIconVisibility,
     .registry = "A row stands for a subkey, named by the folder's class identifier, of "
                 "`HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\NameSpace` (opened). A "
                 "checked row has it and creates it; a cleared row deletes it unless it has subkeys."},
    {.id = 81,
     .title = "Change the Application Focus Settings",
     .description =
         "Windows can keep programs from pushing their window in front of the one you are typing in and lets their "
         "taskbar button flash instead. The waiting time and the number of flashes can be changed."},
    {.id = 82,
     .title = "Change the Screen Saver Grace Period",
     .description =
         "For a few seconds after a screen saver with a password has started, it can be ended without the password. "
         "This sets how many; 0 locks at once. Pick an entry of the list: a typed number does not count, and without "
         "an entry -1 is stored. Clearing the box deletes the value, so that the default applies again.",
     .treeParent = 78,
     .page = Page::CheckCombo,
     .boxes = kGracePeriodBox,
     .choices = kGracePeriodSeconds,
     .note = kRestartOrLogOutNote,
     .gate = kGateNt,
     .show = showGracePeriod,
     .apply = applyGracePeriod,
     .registry = "`ScreenSaverGracePeriod` in `HKLM\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon` "
                 "(created). Checked writes the number of seconds as REG_SZ, or as REG_DWORD if that fails, and `-1` "
                 "without a choice; cleared deletes the value. Either type is shown."},
    {.id = 83,
     .title = "Choose the First Desktop Icon",
     .description =
         "Decides whether My Documents or My Computer comes first among the icons of the desktop, for all users. Put "
         "the one that is opened most often at the top; applying without a choice puts My Computer first.",
     .treeParent = 78,
     .page = Page::CheckCombos,
     .choices = kFirstIcon,
     .note = kRestartOrLogOutNote,
     .gate = kGate2000MeXp},
    {.id = 84,
     .title = "Disable Desktop Cleanup Wizard",
     .description =
         "Stops the Desktop Cleanup Wizard, which appears every 60 days and offers to move unused shortcuts away, for "
         "the current user. Check it if you want to keep your desktop as it is.",
     .treeParent = 78,
     .page = Page::Checks,
     .boxes = kCleanup,
     .note = kRestartOrLogOutNote,
     .gate = kGateXp},
    {.id = 85,
     .title = "Disable the Ability to Right Click on the Desktop",
     .description =
         "Disables the menu that a right-click opens on the desktop and in Explorer, for the current user or for all "
         "users. It takes commands such as Delete and Properties out of reach on public computers.",
     .treeParent = 78,
     .page = Page::Checks,
     .boxes = kContextMenu,
     .note = kRestartOrLogOutNote},
    {.id = 86,
     .title = "Force Windows to Use the Classic Desktop",
     .description =
         "Turns off the newer look of the desktop and folders, such as Active Desktop, web view and opening with a "
         "single click, for the current user or all users. It saves resources and gives the familiar look of older "
         "versions; Windows XP is not supported.",
     .treeParent = 78,
     .page = Page::Checks,
     .boxes = kClassicDesktop,
     .note = kRestartOrLogOutNote,
     .gate = kGateNotXp},
    {.id = 87,
     .title = "Hide the Internet Explorer Icon",
     .description =
         "Hides the Internet Explorer icon on the desktop, for the current user or for all users. The program itself "
         "stays installed; use it where another browser is preferred or the desktop should be empty.",
     .treeParent = 78,
     .page = Page::Checks,
     .boxes = kInternetIcon,
     .note = kRestartOrLogOutNote},
    {.id = 88,
     .title = "Launch Windows Desktop in a Separate Process",
     .description =
         "Runs the desktop and the taskbar in one process and every folder window in another. A folder window that "
         "crashes then leaves the desktop standing, at the price of more memory."},
    {.id = 89,
     .title = "Remove My Computer from the Desktop and Start Menu",  // Intended: the title of item 201 too.
     .description =
         "Hides My Computer on the desktop and on the Start menu, for the current user or for all users. Its drives "
         "can still be reached in other ways. The tweak of the same title in Start Menu and Taskbar (ItemId 201) sets "
         "the same values and shares the date.",
     .treeParent = 78,
     .page = Page::Checks,
     .boxes = kMyComputer,
     .note = kNoteWithoutStop,
     .gate = kGate2000MeXp},
    {.id = 90,
     .title = "Remove My Documents from the Desktop",
     .description =
         "Hides the My Documents icon on the desktop, for the current user or for all users. The folder and the files "
         "in it stay where they are, so it only tidies the desktop.",
     .treeParent = 78,
     .page = Page::Checks,
     .boxes = kMyDocuments,
     .note = kNoteWithoutStop},
    {.id = 91,
     .title = "Rename or Delete Special Folders",
     .description =
         "Decides whether the Recycle Bin can be renamed and whether it can be deleted from the desktop, like an "
         "ordinary icon; its menu gains the commands that you allow. It holds for all users.",
     .treeParent = 78,
     .page = Page::Checks,
     .boxes = kRecycleBinBoxes,
     .note = kNoteWithoutStop,
     .show = showRecycleBin,
     .apply = applyRecycleBin,
     .registry = "`Attributes` (REG_BINARY, four bytes) and `CallForAttributes` (REG_DWORD) in "
                 "`HKCR\\CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\ShellFolder` (created). Every apply writes "
                 "`Attributes` as `40 01 00 20`, its first byte larger by `10` if renaming and by `20` if deleting is "
                 "allowed (hexadecimal), and `CallForAttributes` as 0. The boxes are shown from a first byte of `50`, "
                 "`60` or `70`; with any other both are cleared."},
    {.id = 92,
     .title = "Show Pop-up Descriptions for Explorer and Desktop Items",
     .description =
         "Shows a short description in a box when the mouse rests on a file, a folder or an icon of the desktop. Turn "
         "it off if the boxes get in your way; it concerns the current user.",
     .treeParent = 78,
     .page = Page::Checks,
     .boxes = kInfoTips,
     .note = kRestartOrLogOutNote},
    {.id = 93,
     .title = "Show User and Computer Name On Desktop",
     .description =
         "Labels the My Computer icon with the name of the user and of the computer, which helps when you work on "
         "several computers. It holds for all users; clearing the box sets the name My Computer again.",
     .treeParent = 78,
     .page = Page::Checks,
     .boxes = kUserAndComputer,
     .note = kRestartOrLogOutNote,
     .gate = kGateNt,
     .putBoxesBack = true},
    {.id = 94,
     .title = "Show Windows Version On Desktop",
     .description =
         "Shows the version and build number of Windows in the lower right corner of the desktop for the current user. "
         "Support staff can then tell at a glance which version is running.",
     .treeParent = 78,
     .page = Page::Checks,
     .boxes = kVersion,
     .note = kNoteWithoutStop},
};

}  // namespace

constinit const Unit kDesktopUnit{kTweaks};

}  // namespace korvane
