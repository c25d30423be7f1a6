// The Desktop tweaks: which icons the desktop shows, their names and order, and
// what users may do on the desktop.
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

constexpr Tweak kDesktop = {
    .id = 78,
    .title = "Desktop",
    .description = "Windows Desktop Enhancements",
    .category = true,
    .image = 10,
    .treeParent = kTreeRoot,
    .page = Page::Category,
};

constexpr Tweak kActiveWindowTracking = {
    .id = 79,
    .title = "Active Window Tracking",
    .description =
        "Makes the window under the mouse pointer active without a click, as on some other systems. It saves clicks "
        "when working in several windows at once; whether the window also comes to the front is a separate choice.",
};

constexpr Tweak kChangeApplicationFocusSettings = {
    .id = 81,
    .title = "Change the Application Focus Settings",
    .description =
        "Windows can keep programs from pushing their window in front of the one you are typing in and lets their "
        "taskbar button flash instead. The waiting time and the number of flashes can be changed.",
};

constexpr KeyPath kCleanupWizard{
    Root::CurrentUser, {}, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\CleanupWiz"};
constexpr CheckBox kCleanup[] = {
    {.text = "Disable Desktop Cleanup Wizard .", .binding = DwordCheckState{.key = kCleanupWizard, .name = "NoRun"}},
};
constexpr Tweak kDisableDesktopCleanupWizard = {
    .id = 84,
    .title = "Disable Desktop Cleanup Wizard",
    .description =
        "Stops the Desktop Cleanup Wizard, which appears every 60 days and offers to move unused shortcuts away, for "
        "the current user. Check it if you want to keep your desktop as it is.",
    .treeParent = 78,
    .page = Page::Checks,
    .boxes = kCleanup,
    .note = kRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr auto kContextMenu = ScopePair("Restrict Context Menu (Current User).", "Restrict Context Menu (All Users).",
                                        explorerPolicy("NoViewContextMenu"));
constexpr Tweak kDisableAbilityRightClickDesktop = {
    .id = 85,
    .title = "Disable the Ability to Right Click on the Desktop",
    .description =
        "Disables the menu that a right-click opens on the desktop and in Explorer, for the current user or for all "
        "users. It takes commands such as Delete and Properties out of reach on public computers.",
    .treeParent = 78,
    .page = Page::Checks,
    .boxes = kContextMenu,
    .note = kRestartOrLogOutNote,
};

constexpr auto kClassicDesktop =
    ScopePair("Disables the Various Enhanced Features of the Windows(Current User).",
              "Disables the Various Enhanced Features of the Windows(All Users).", explorerPolicy("ClassicShell"));
constexpr Tweak kForceWindowsUseClassicDesktop = {
    .id = 86,
    .title = "Force Windows to Use the Classic Desktop",
    .description =
        "Turns off the newer look of the desktop and folders, such as Active Desktop, web view and opening with a "
        "single click, for the current user or all users. It saves resources and gives the familiar look of older "
        "versions; Windows XP is not supported.",
    .treeParent = 78,
    .page = Page::Checks,
    .boxes = kClassicDesktop,
    .note = kRestartOrLogOutNote,
    .gate = kGateNotXp,
};

constexpr Tweak kLaunchWindowsDesktopSeparateProcess = {
    .id = 88,
    .title = "Launch Windows Desktop in a Separate Process",
    .description =
        "Runs the desktop and the taskbar in one process and every folder window in another. A folder window that "
        "crashes then leaves the desktop standing, at the price of more memory.",
};

constexpr KeyPath kAdvanced{Root::CurrentUser, {}, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"};
constexpr CheckBox kInfoTips[] = {
    {.text = "Show Tool Tip Information and Descriptions.",
     .binding = DwordFlag{.key = kAdvanced, .name = "ShowInfoTip"}},
};
constexpr Tweak kShowPopUpDescriptionsExplorerDesktop = {
    .id = 92,
    .title = "Show Pop-up Descriptions for Explorer and Desktop Items",
    .description =
        "Shows a short description in a box when the mouse rests on a file, a folder or an icon of the desktop. Turn "
        "it off if the boxes get in your way; it concerns the current user.",
    .treeParent = 78,
    .page = Page::Checks,
    .boxes = kInfoTips,
    .note = kRestartOrLogOutNote,
};

constexpr CheckBox kUserAndComputer[] = {
    {.text = "Show user and computer name on Desktop.",
     .binding = StringFlag{.key = {Root::ClassesRoot, {}, "CLSID\\{20D04FE0-3AEA-1069-A2D8-08002B30309D}"},
                           .name = "LocalizedString",
                           .checked = "%USERNAME% on %COMPUTERNAME%",
                           .cleared = "My Computer",
                           .type = ValueType::ExpandSz}},
};
constexpr Tweak kShowUserComputerNameDesktop = {
    .id = 93,
    .title = "Show User and Computer Name On Desktop",
    .description =
        "Labels the My Computer icon with the name of the user and of the computer, which helps when you work on "
        "several computers. It holds for all users; clearing the box sets the name My Computer again.",
    .treeParent = 78,
    .page = Page::Checks,
    .boxes = kUserAndComputer,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
    .putBoxesBack = true,
};

constexpr CheckBox kVersion[] = {
    {.text = "Show Windows Version on Desktop .",
     .binding = DwordFlag{.key = {Root::CurrentUser, "Control Panel\\Desktop"}, .name = "PaintDesktopVersion"}},
};
constexpr Tweak kShowWindowsVersionDesktop = {
    .id = 94,
    .title = "Show Windows Version On Desktop",
    .description =
        "Shows the version and build number of Windows in the lower right corner of the desktop for the current user. "
        "Support staff can then tell at a glance which version is running.",
    .treeParent = 78,
    .page = Page::Checks,
    .boxes = kVersion,
    .note = kRestartOrLogOutNoteWithoutStop,
};

// The number of seconds is stored as REG_SZ or as REG_DWORD; both are read.
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

constexpr Tweak kChangeScreenSaverGracePeriod = {
    .id = 82,
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
                "without a choice; cleared deletes the value. Either type is shown.",
};

constexpr const Tweak* kRows[] = {&kDesktop, &kActiveWindowTracking, &kChangeApplicationFocusSettings,
                                  &kChangeScreenSaverGracePeriod, &kDisableDesktopCleanupWizard,
                                  &kDisableAbilityRightClickDesktop, &kForceWindowsUseClassicDesktop,
                                  &kLaunchWindowsDesktopSeparateProcess, &kShowPopUpDescriptionsExplorerDesktop,
                                  &kShowUserComputerNameDesktop, &kShowWindowsVersionDesktop};

}  // namespace

constinit decltype(kDesktopUnit) kDesktopUnit{kRows};

}  // namespace korvane
