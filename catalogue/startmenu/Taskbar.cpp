// The Taskbar tweaks: grouping of buttons, the notification area, balloon tips, and
// what users may change with the mouse.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "catalogue/startmenu/StartMenuKeys.h"
#include "pages/PageContext.h"
#include "res/ControlIds.h"

#include <cstddef>

namespace korvane {
namespace {

constexpr Tweak kTaskbar = {
    .id = 187,
    .title = "Taskbar",
    .description = "Taskbar Settings and Enhancements",
    .category = true,
    .image = 20,
    .treeParent = 177,
    .page = Page::Category,
};

constexpr CheckBox kInactiveIcons[] = {
    {.text = "Hide Inactive Tray Icons .",
     .binding = DwordCheckState{.key = {Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer"},
                                .name = "EnableAutoTray"}}};
constexpr Tweak kAutomaticallyHideActiveTrayIcons = {
    .id = 188,
    .title = "Automatically Hide in Active Tray Icons",  // Intended: spelled so.
    .description =
        "Windows XP can tuck away the icons beside the clock that have not been used for a while. Check this to "
        "keep the notification area short, or clear it to see every icon all the time. It applies to the current "
        "user.",
    .treeParent = 187,
    .page = Page::Checks,
    .boxes = kInactiveIcons,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr DwordNumber kGroupSizeNumber{
    .key = kShellAdvanced, .name = "TaskbarGroupSize", .whenEmpty = WhenEmpty::Deletes};
constexpr Field kGroupSize[] = {
    {.label = "Taskbar Group Size (Current User):", .binding = kGroupSizeNumber},
    {.label = "Taskbar Group Size (All Users):", .binding = underLocalMachine(kGroupSizeNumber)}};
constexpr Tweak kChangeTaskbarGroupSize = {
    .id = 189,
    .title = "Change the Taskbar Group Size",
    .description =
        "When windows are grouped on the taskbar, this number says which ones: 0 groups the oldest windows first, "
        "1 the program with most windows first, 2 any program with two or more windows, 3 with three or more, and "
        "so on. An empty field restores the default.",
    .treeParent = 187,
    .page = Page::CheckFields,
    .fields = kGroupSize,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr Tweak kClearPastIconsTryNotificationArea = {
    .id = 190,
    .title = "Clear Past Icons from the Try Notification Area",  // Intended: spelled so.
    .description =
        "Windows XP remembers every icon that ever stood in the notification area and offers it in the Customize "
        "list as a past item. This setting empties that history, which fills up with programs removed long ago.",
};

constexpr CheckBox kBalloonTips[] = {
    {.text = "Disable Balloon Tips .", .binding = DwordFlagInverted(kShellAdvanced, "EnableBalloonTips")}};
constexpr Tweak kDisableBalloonTips = {
    .id = 191,
    .title = "Disable Balloon Tips",
    .description =
        "Stops the yellow balloons that pop up from the notification area with hints and warnings. Clear the box "
        "again if you miss messages about low disk space, the network or updates.",
    .treeParent = 187,
    .page = Page::Checks,
    .boxes = kBalloonTips,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr auto kContextMenus =
    ScopePair("Disable Taskbar Context Menus (Current User).", "Disable Taskbar Context Menus (All Users).",
              shellPolicy("NoTrayContextMenu"));
constexpr Tweak kDisableTaskbarContextMenus = {
    .id = 192,
    .title = "Disable Taskbar Context Menus",
    .description =
        "Takes away the menus that appear on a right click on the taskbar, the Start button, the clock and the "
        "taskbar buttons. Use it to keep users from changing the taskbar or closing windows there.",
    .treeParent = 187,
    .page = Page::Checks,
    .boxes = kContextMenus,
    .note = kSmallRestartOrLogOutNote,
};

constexpr auto kGrouping =
    ScopePair("Group Similar Taskbar Buttons (Current User).", "Group Similar Taskbar Buttons (All Users).",
              DwordCheckState{.key = kShellAdvanced, .name = "TaskbarGlomming"});
constexpr Tweak kGroupSimilarTaskbarBottons = {
    .id = 193,
    .title = "Group Similar Taskbar Bottons",  // Intended: spelled so.
    .description =
        "Collects the windows of one program under a single taskbar button when space runs short. Turn it off if "
        "you prefer a separate button for every window; choose for the current user, for all users or both.",
    .treeParent = 187,
    .page = Page::Checks,
    .boxes = kGrouping,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr CheckBox kLocked[] = {{.text = "Lock the Size and Position of the Taskbar.",
                                 .binding = DwordFlagInverted(kShellAdvanced, "TaskbarSizeMove")}};
// Intended: the alert's text names Me, which this gate refuses.
constexpr Gate kGateXpNamingMe{kWinXP, Alert::OnlyMeXp};
constexpr Tweak kLockSizePositionTaskbar = {
    .id = 194,
    .title = "Lock the Size and Position of the Taskbar",
    .description =
        "Fixes the taskbar where it is, so that it cannot be moved, resized or rearranged by accident with the "
        "mouse. The setting concerns the current user of Windows XP.",
    .treeParent = 187,
    .page = Page::Checks,
    .boxes = kLocked,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXpNamingMe,
};

// Shown as a number but written as binary data, and written to one fixed profile as well, whoever
// the user is.
constexpr CheckBox kBannerBox[] = {
    {.text = "Hide the arrow and\"Click here to start\"caption.", .binding = shellPolicy("NoStartBanner")}};
constexpr std::byte kNoBanner[] = {std::byte{1}, std::byte{0}, std::byte{0}, std::byte{0}};
constexpr KeyPath kFixedProfilePolicies{Root::Users,
                                        "S-1-5-21-839522115-1547161642-725345543-1003\\Software\\Microsoft\\Windows\\"
                                        "CurrentVersion\\Policies\\Explorer"};
void applyStartBanner(PageContext& context) {
    for (const KeyPath& key : {kShellPolicies, kFixedProfilePolicies}) {
        applyCheck(context, IDC_CHECK1, BinaryFlag{.key = key, .name = "NoStartBanner", .checked = kNoBanner});
    }
}

constexpr Tweak kRemoveStartBannerTaskbar = {
    .id = 195,
    .title = "Remove the Start Banner on the Taskbar",
    .description =
        "Removes the 'Click here to start' text and the arrow that slide along an empty taskbar after login. It "
        "is set for the current user, and for one other profile with a fixed identifier if this computer happens "
        "to have it.",
    .page = Page::Checks,
    .boxes = kBannerBox,
    .note = kSmallRestartOrLogOutNote,
    .apply = applyStartBanner,
    .registry = "`NoStartBanner` in `HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer` and in "
                "`HKU\\S-1-5-21-839522115-1547161642-725345543-"
                "1003\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer` (both opened): checked "
                "writes REG_BINARY `01 00 00 00`, cleared deletes the value. The box shows the first of the two, read "
                "as a number.",
};

constexpr const Tweak* kRows[] = {&kTaskbar, &kAutomaticallyHideActiveTrayIcons, &kChangeTaskbarGroupSize,
                                  &kClearPastIconsTryNotificationArea, &kDisableBalloonTips,
                                  &kDisableTaskbarContextMenus, &kGroupSimilarTaskbarBottons, &kLockSizePositionTaskbar,
                                  &kRemoveStartBannerTaskbar};

}  // namespace

constinit decltype(kTaskbarUnit) kTaskbarUnit{kRows};

}  // namespace korvane
