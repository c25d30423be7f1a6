// The Windows Installer tweaks: who may install programs and what is logged. Two of
// them are stored as a machine policy and in the current user's copy of that
// policy. The category is not in the tree.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "catalogue/accessories/InstallerLogging.h"
#include "pages/PageContext.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

constexpr int kWindowsInstallerRows[] = {39, 40, 41};
constexpr Tweak kWindowsInstaller = {
    .id = 38,
    .title = "Windows Installer",
    .description = "Settings to manage Windows Installer",
    .category = true,
    .image = 6,
    .page = Page::Category,
    .overview = {.rows = kWindowsInstallerRows},
};

constexpr CheckBox kRemoteAdministration[] = {
    {.text = "Allows Administrators to Install and Configure Software using Windows Installer.",
     .binding = DwordFlag{.key = kInstallerPolicy, .name = "EnableAdminTSRemote"}},
};
constexpr Tweak kRemoteAdministrationWindowsInstaller = {
    .id = 40,
    .title = "Remote Administration of Windows Installer",
    .description =
        "Lets administrators install and configure programs with Windows Installer from a Terminal Services session. "
        "Without it they must sit at the computer itself, so it helps when servers are looked after from a distance.",
    .page = Page::Checks,
    .boxes = kRemoteAdministration,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .putBoxesBack = true,
};

constexpr Tweak kWindowsInstallerLogging = {
    .id = 41,
    .title = "Windows Installer Logging",  // Intended: the title of item 287 too.
    .description =
        "Makes Windows Installer log each installation in the Temp folder, with every option of the list except + "
        "and !, to show why a setup failed. Clearing the box removes the value and with it the current user's whole "
        "copy of this computer's software policies, not only the part for the Installer.",
    .page = Page::Category,
    .boxes = kInstallerLoggingBox,
    .table = &kInstallerLoggingLetters,
    .source = kInstallerLoggingSource,
};

constexpr Tweak kAllowUninstallWindowsComponents = {
    .id = 42,
    .title = "Allow Uninstall of Windows Components",
    .description =
        "Some parts of Windows do not appear in Add/Remove Windows Components because the setup file sysoc.inf marks "
        "them with the word hide. Removing that word from the line of a component brings it into the list, so that it "
        "can be uninstalled.",
};

constexpr PlainEntry kInstallerModes[] = {{"Enabled"}, {"Admin Only"}, {"Disabled"}};
constexpr Choice kInstaller[] = {{.label = "Windows Installer:", .binding = ChoiceEntries{kInstallerModes}}};
constexpr std::string_view kDisable = "DisableMSI";
// Shows no choice unless both places have the value; then the mirror's number is the entry.
void showDisableInstaller(PageContext& context) {
    if (!context.read(kInstallerPolicy, kDisable)) {
        return;
    }
    if (const auto mirrored = context.read(kInstallerMirror, kDisable)) {
        context.page.selectComboEntry(IDC_COMBO1, static_cast<int>(mirrored->number()));
    }
}

// Deletes the mirror's keys from the deepest up, each only if it has no subkeys.
void pruneMirror(Registry& registry) {
    std::string path(kInstallerMirror.created);
    while (!path.empty()) {
        const std::size_t slash = path.rfind('\\');
        const bool top = slash == std::string::npos;
        const std::string child = top ? path : path.substr(slash + 1);
        path = top ? std::string() : path.substr(0, slash);
        const KeyPath parent{kInstallerMirror.root, kInstallerMirror.path, path};
        if (const OpenedKey opened = openKey(registry, parent.root, parent.fullPath())) {
            ignoreFailure(registry.deleteKey(opened.handle(), child));
        }
    }
}

// "Enabled" writes 0; only no choice deletes the policy, and with it the mirror's keys.
void applyDisableInstaller(PageContext& context) {
    const int entry = context.page.comboSelection(IDC_COMBO1);
    if (entry == kNoSelection) {
        context.remove(kInstallerPolicy, kDisable);
        pruneMirror(context.platform.registry);
        return;
    }
    for (const KeyPath& place : {kInstallerPolicy, kInstallerMirror}) {
        if (const OpenedKey key = context.openForWriting(place)) {
            writeNumber(context.platform.registry, key, kDisable, static_cast<std::uint32_t>(entry));
        }
    }
}

constexpr Tweak kDisableWindowsInstaller = {
    .id = 39,
    .title = "Disable Windows Installer",
    .description =
        "Controls who can install programs with Windows Installer: Enabled sets no limit, Admin Only allows programs "
        "that an administrator distributes, Disabled stops it. An empty choice removes the policy, so make sure that "
        "an entry is shown before applying.",
    .page = Page::CheckCombos,
    .choices = kInstaller,
    .note = kRestartOrLogOutNote,
    .show = showDisableInstaller,
    .apply = applyDisableInstaller,
    .registry =
        "The entries store 0, 1 and 2 as `DisableMSI` (REG_DWORD) in "
        "`HKLM\\Software\\Policies\\Microsoft\\Windows\\Installer` (opened) and in the current user's copy of that "
        "policy, `HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Group Policy "
        "Objects\\LocalMachine\\Software\\Policies\\Microsoft\\Windows\\Installer` (created from `Software` on). The "
        "copy is shown, and only while both have the value. Without a choice the value is deleted from the first; of "
        "the copy, each key from `Installer` up to `Software` is deleted if it has no subkeys.",
};

constexpr const Tweak* kRows[] = {&kWindowsInstaller, &kDisableWindowsInstaller, &kRemoteAdministrationWindowsInstaller,
                                  &kWindowsInstallerLogging, &kAllowUninstallWindowsComponents};

}  // namespace

constinit decltype(kWindowsInstallerUnit) kWindowsInstallerUnit{kRows};

}  // namespace korvane
