// The Windows File Checker tweaks: when the protected system files are scanned and
// where their cached copies are kept.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "pages/TweakEngine.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

// Every value is written in two keys; the one in the policy key is shown.
constexpr std::string_view kPolicyParent = "SOFTWARE\\Policies\\Microsoft\\Windows NT";
constexpr std::string_view kPolicyName = "Windows File Protection";
constexpr KeyPath kPolicy{Root::LocalMachine, {}, "SOFTWARE\\Policies\\Microsoft\\Windows NT\\Windows File Protection"};
constexpr KeyPath kLogon{Root::LocalMachine, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon"};
constexpr KeyPath kBoth = kPolicy.writtenAlsoTo(kLogon);

// True if the policy key could be opened or created and has no values left.
bool removeFromPolicy(PageContext& context, std::string_view name) {
    Registry& registry = context.platform.registry;
    const OpenedKey policy = context.openForWriting(kPolicy);
    if (!policy) {
        return false;
    }
    ignoreFailure(registry.deleteValue(policy.handle(), {}, name));
    std::string left;
    return registry.enumerateValue(policy.handle(), 0, left) == Status::NoMoreItems;
}

// Intended: a policy key without values is deleted with all its subkeys.
void removeEverywhere(PageContext& context, std::string_view name) {
    Registry& registry = context.platform.registry;
    if (removeFromPolicy(context, name)) {
        if (const OpenedKey parent = openKey(registry, kPolicy.root, kPolicyParent)) {
            ignoreFailure(registry.deleteTree(parent.handle(), kPolicyName));
        }
    }
    if (const OpenedKey logon = context.openForWriting(kLogon)) {
        ignoreFailure(registry.deleteValue(logon.handle(), {}, name));
    }
}

constexpr Tweak kWindowsFileChecker = {
    .id = 250,
    .title = "Windows File Checker",
    .description = "Enhancements for the System File Checker",
    .category = true,
    .image = 25,
    .treeParent = 226,
    .page = Page::Category,
};

constexpr Tweak kChangeSizeWindowsFileProtectionCache = {
    .id = 251,
    .title = "Change the Size of the Windows File Protection Cache",
    .description =
        "Limits the disk space that Windows File Protection may use for spare copies of system files. A smaller "
        "cache saves room on the disk, but a damaged file must then more often be restored from the installation "
        "CD.",
};

constexpr Tweak kDisableWindowsFileProtection = {
    .id = 252,
    .title = "Disable Windows File Protection",
    .description =
        "Windows File Protection puts back system files that a program has replaced or deleted. It should be "
        "switched off for a short time only, by experts, because nothing guards the system files while it is off.",
};

constexpr CheckBox kProgress[] = {
    {.text = "Display SFC Progress Meter .", .binding = DwordCheckState{.key = kBoth, .name = "SFCShowProgress"}},
};
constexpr Tweak kDisplaySfcProgressMeter = {
    .id = 253,
    .title = "Display SFC Progress Meter",
    .description =
        "Shows a progress window while the system file checker scans the protected files, instead of working "
        "unseen. The choice is stored as a policy and in the settings of the logon process, for all users.",
    .treeParent = 250,
    .page = Page::Checks,
    .boxes = kProgress,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
};

constexpr NumberEntry kScanModes[] = {{"Disabled", 0}, {"Scan every boot", 1}, {"Scan once", 2}};
constexpr std::string_view kScan = "SFCScan";
constexpr Choice kScanMode[] = {
    {.label = "SFC scan mode:",
     .binding = DwordChoice{
         .key = kBoth, .name = kScan, .entries = kScanModes, .initial = 0, .whenNone = WhenNone::Deletes}},
};
void applyScanMode(PageContext& context) {
    if (context.page.comboSelection(IDC_COMBO1) == kNoSelection) {
        removeEverywhere(context, kScan);
    } else {
        writeControls(context);
    }
}

constexpr Tweak kManageWindowsFileProtectionScans = {
    .id = 254,
    .title = "Manage Windows File Protection Scans",
    .description =
        "Decides whether Windows scans its protected system files at startup: never, at every boot or once at the "
        "next boot. A scan finds replaced files but makes the startup much longer.",
    .treeParent = 250,
    .page = Page::CheckCombos,
    .choices = kScanMode,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .apply = applyScanMode,
    .registry =
        "The value is written to, or deleted from, `HKLM\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon` "
        "(opened) as well. When deleting leaves the policy key without values, the key goes with all below it.",
};

// Stored as REG_SZ, although it may contain a variable.
constexpr std::string_view kCacheFolder = "SFCDllCacheDir";
constexpr Field kCache[] = {
    {.label = "The Directory to store cached SFC files:",
     .binding = StringValue{.key = kBoth, .name = kCacheFolder, .folding = Folding::WindowsFolder},
     .picker = Picker::Folder},
};
void applyCacheFolder(PageContext& context) {
    if (context.page.text(IDC_EDIT1).empty()) {
        removeEverywhere(context, kCacheFolder);
    } else {
        writeControls(context);
    }
}

constexpr Tweak kSpecifyDirectoryStoreCachedSfcFiles = {
    .id = 255,
    .title = "Specify the Directory to Store Cached SFC Files",
    .description =
        "Windows keeps spare copies of system files in its dllcache folder. Name another folder, perhaps on a "
        "larger drive, to have them kept there; an empty field goes back to the default.",
    .treeParent = 250,
    .page = Page::CheckFields,
    .fields = kCache,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .apply = applyCacheFolder,
    .registry = "When deleting leaves the policy key without values, the key goes with all below it.",
};

constexpr const Tweak* kRows[] = {&kWindowsFileChecker, &kChangeSizeWindowsFileProtectionCache,
                                  &kDisableWindowsFileProtection, &kDisplaySfcProgressMeter,
                                  &kManageWindowsFileProtectionScans, &kSpecifyDirectoryStoreCachedSfcFiles};

}  // namespace

constinit decltype(kWindowsFileCheckerUnit) kWindowsFileCheckerUnit{kRows};

}  // namespace korvane
