// The Repair tweaks: fixes for damaged settings of the shell and of applications.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "pages/PageContext.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

constexpr Tweak kRepair = {
    .id = 288,
    .title = "Repair",
    .description = "Tweaks and settings to repair Windows components and software",
    .category = true,
    .image = 29,
    .treeParent = 273,
    .page = Page::Category,
};

// Intended: two spaces before "in".
constexpr CheckBox kNewCommand[] = {
    {.text = "Add the New command to the right-click context menu  in Windows Explorer .",
     .binding = SubkeyFlag{.parent = {Root::ClassesRoot, "Directory\\Background\\shellex\\ContextMenuHandlers"},
                           .name = "New",
                           .text = "{D969A300-E7FF-11d0-A93B-00A0C90F2719}",
                           .shownByText = true}},
};
constexpr Tweak kNewCommandMissingWindowsExplorer = {
    .id = 289,
    .title = "New Command Missing in Windows Explorer",
    .description =
        "If New is missing from the menu that opens on a right click into a folder or on the desktop, checking "
        "this registers it again. Unchecking removes the New menu.",
    .treeParent = 288,
    .page = Page::Checks,
    .boxes = kNewCommand,
    .note = kSmallRestartOrLogOutNote,
};

constexpr CheckBox kStyleSheets[] = {
    {.text = "Repair internet explorer printing errors .",
     .binding = StringFlag{.key = {Root::CurrentUser, "Software\\Microsoft\\Internet Explorer\\Main"},
                           .name = "Use StyleSheets",
                           .checked = "Yes",
                           .clearedDeletes = true,
                           .compare = Compare::IgnoreCase}},
};
constexpr Tweak kRepairInternetExplorerPrintingErrors = {
    .id = 290,
    .title = "Repair Internet Explorer Printing Errors",
    .description =
        "Internet Explorer prints with the help of style sheets and shows errors or blank pages if their use is "
        "turned off. When checked, it is turned on for the current user; unchecked, the setting is deleted.",
    .treeParent = 288,
    .page = Page::Checks,
    .boxes = kStyleSheets,
    .note = kSmallRestartOrLogOutNote,
};

constexpr Tweak kRepairIconCache = {
    .id = 291,
    .title = "Repair the Icon Cache",
    .description =
        "Makes Windows build its stored collection of icon pictures anew. This cures icons on the desktop and in "
        "folders that appear black, blank or as the picture of another program.",
};

constexpr Tweak kRepairRegistryEditor = {
    .id = 293,
    .title = "Repair the Registry Editor",
    .description =
        "Resets the stored window position, column widths and last used key of the Registry Editor. Helpful when "
        "its window opens off the screen or shows no values in the right half.",
};

constexpr Tweak kRepairTaskbar = {
    .id = 294,
    .title = "Repair the Taskbar",
    .description =
        "Puts the taskbar back to its original place, size and toolbars by discarding the stored layout. Use it "
        "when the taskbar is stuck at a wrong edge or its toolbars no longer appear.",
};

// The box shows whether a subkey is missing, but an apply deletes a value of that name.
constexpr CheckBox kShortcutBar[] = {{.text = "Repair office shortcut bar."}};
constexpr KeyPath kOffice{Root::CurrentUser, "Software\\Microsoft\\Office\\10.0"};
constexpr KeyPath kShortcutBarKey{Root::CurrentUser, "Software\\Microsoft\\Office\\10.0\\Shortcut Bar"};
void showShortcutBar(PageContext& context) { context.page.setCheck(IDC_CHECK1, context.open(kShortcutBarKey) ? 0 : 1); }

void applyShortcutBar(PageContext& context) {
    if (!context.checked(IDC_CHECK1)) {
        return;
    }
    if (const OpenedKey office = context.openForWriting(kOffice)) {
        ignoreFailure(context.platform.registry.deleteValue(office.handle(), {}, "Shortcut Bar"));
    }
}

constexpr Tweak kRepairOfficeShortcutBar = {
    .id = 292,
    .title = "Repair the Office Shortcut Bar",
    .description =
        "For a shortcut bar of Office XP that fails to start: deletes the value Shortcut Bar from the Office 10.0 "
        "settings of the current user. Settings kept in a key of that name stay, and as long as it exists the box "
        "is shown unchecked.",
    .treeParent = 288,
    .page = Page::Checks,
    .boxes = kShortcutBar,
    .note = "Note:\n\tRestart any office applications.",
    .show = showShortcutBar,
    .apply = applyShortcutBar,
    .registry = "Checked deletes the value `Shortcut Bar` of `HKCU\\Software\\Microsoft\\Office\\10.0` (opened); "
                "cleared does nothing. The box is shown checked while there is no key "
                "`HKCU\\Software\\Microsoft\\Office\\10.0\\Shortcut Bar`.",
};

constexpr const Tweak* kRows[] = {&kRepair, &kNewCommandMissingWindowsExplorer, &kRepairInternetExplorerPrintingErrors,
                                  &kRepairIconCache, &kRepairOfficeShortcutBar, &kRepairRegistryEditor,
                                  &kRepairTaskbar};

}  // namespace

constinit decltype(kRepairUnit) kRepairUnit{kRows};

}  // namespace korvane
