// The icons of the desktop: which there are, their order, and what users may do
// with them.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "pages/PageContext.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

constexpr std::string_view kPolicies = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies";
constexpr KeyPath kExplorerPolicies{Root::CurrentUser, kPolicies, "Explorer"};
constexpr DwordFlag explorerPolicy(std::string_view name) {
    return {.key = kExplorerPolicies, .name = name, .clearedDeletes = true};
}

// Any other stored number shows as My Computer, and no choice writes the number of My Computer.
constexpr NumberEntry kFirstIcons[] = {{"My Documents", 0x48}, {"My Computer", 0x54}};
constexpr Choice kFirstIcon[] = {
    {.label = "Choose the First Desktop Icon :",
     .binding = DwordChoice{.key = {Root::ClassesRoot, "CLSID\\{450D8FBA-AD25-11D0-98A8-0800361B1103}"},
                            .name = "SortOrderIndex",
                            .entries = kFirstIcons,
                            .unknown = 1,
                            .noneNumber = 0x54}},
};
constexpr Tweak kChooseFirstDesktopIcon = {
    .id = 83,
    .title = "Choose the First Desktop Icon",
    .description =
        "Decides whether My Documents or My Computer comes first among the icons of the desktop, for all users. Put "
        "the one that is opened most often at the top; applying without a choice puts My Computer first.",
    .treeParent = 78,
    .page = Page::CheckCombos,
    .choices = kFirstIcon,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000MeXp,
};

constexpr auto kInternetIcon =
    ScopePair("Hide the Internet Explorer Icon (Current User).", "Hide the Internet Explorer Icon (All Users).",
              explorerPolicy("NoInternetIcon"));
constexpr Tweak kHideInternetExplorerIcon = {
    .id = 87,
    .title = "Hide the Internet Explorer Icon",
    .description =
        "Hides the Internet Explorer icon on the desktop, for the current user or for all users. The program itself "
        "stays installed; use it where another browser is preferred or the desktop should be empty.",
    .treeParent = 78,
    .page = Page::Checks,
    .boxes = kInternetIcon,
    .note = kRestartOrLogOutNote,
};

constexpr auto kMyComputer = ScopePair(
    "Remove My Computer from the Desktop and Start Menu(Current User).",
    "Remove My Computer from the Desktop and Start Menu(All Users).",
    DwordFlag{.key = {Root::CurrentUser, kPolicies, "NonEnum"}, .name = "{20D04FE0-3AEA-1069-A2D8-08002B30309D}"});
constexpr Tweak kRemoveMyComputerDesktopStartMenu = {
    .id = 89,
    .title = "Remove My Computer from the Desktop and Start Menu",  // Intended: the title of item 201 too.
    .description =
        "Hides My Computer on the desktop and on the Start menu, for the current user or for all users. Its drives "
        "can still be reached in other ways. The tweak of the same title in Start Menu and Taskbar (ItemId 201) sets "
        "the same values and shares the date.",
    .treeParent = 78,
    .page = Page::Checks,
    .boxes = kMyComputer,
    .note = kRestartOrLogOutNoteWithoutStop,
    .gate = kGate2000MeXp,
};

// The two numbers differ only in the bit that hides the folder; Windows 95, 98 and Me have it in another key.
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
constexpr Tweak kRemoveMyDocumentsDesktop = {
    .id = 90,
    .title = "Remove My Documents from the Desktop",
    .description =
        "Hides the My Documents icon on the desktop, for the current user or for all users. The folder and the files "
        "in it stay where they are, so it only tidies the desktop.",
    .treeParent = 78,
    .page = Page::Checks,
    .boxes = kMyDocuments,
    .note = kRestartOrLogOutNoteWithoutStop,
};

// A row is a key of the desktop's name space. Intended: the letter case of the class identifiers.
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

constexpr Tweak kChangeDesktopIconVisibility = {
    .id = 80,
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
                "checked row has it and creates it; a cleared row deletes it unless it has subkeys.",
};

// Both permissions are in the first of the four bytes, so both boxes are read and written at once.
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

constexpr Tweak kRenameDeleteSpecialFolders = {
    .id = 91,
    .title = "Rename or Delete Special Folders",
    .description =
        "Decides whether the Recycle Bin can be renamed and whether it can be deleted from the desktop, like an "
        "ordinary icon; its menu gains the commands that you allow. It holds for all users.",
    .treeParent = 78,
    .page = Page::Checks,
    .boxes = kRecycleBinBoxes,
    .note = kRestartOrLogOutNoteWithoutStop,
    .show = showRecycleBin,
    .apply = applyRecycleBin,
    .registry = "`Attributes` (REG_BINARY, four bytes) and `CallForAttributes` (REG_DWORD) in "
                "`HKCR\\CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\ShellFolder` (created). Every apply writes "
                "`Attributes` as `40 01 00 20`, its first byte larger by `10` if renaming and by `20` if deleting is "
                "allowed (hexadecimal), and `CallForAttributes` as 0. The boxes are shown from a first byte of `50`, "
                "`60` or `70`; with any other both are cleared.",
};

constexpr const Tweak* kRows[] = {&kChangeDesktopIconVisibility, &kChooseFirstDesktopIcon, &kHideInternetExplorerIcon,
                                  &kRemoveMyComputerDesktopStartMenu, &kRemoveMyDocumentsDesktop,
                                  &kRenameDeleteSpecialFolders};

}  // namespace

constinit decltype(kDesktopIconsUnit) kDesktopIconsUnit{kRows};

}  // namespace korvane
