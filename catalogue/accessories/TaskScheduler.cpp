// The Task Scheduler tweaks: what users may do with scheduled tasks. Each is a
// policy with one check box for the current user and one for all users.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr KeyPath kScheduler{Root::CurrentUser, "Software\\Policies\\Microsoft\\Windows\\Task Scheduler5.0"};

constexpr Tweak kTaskScheduler = {
    .id = 30,
    .title = "Task Scheduler",
    .description = "Settings and restrictions for Task Scheduler",
    .category = true,
    .image = 5,
    .treeParent = 0,
    .page = Page::Category,
};

constexpr Tweak kChangeSchedulerLogFileSettings = {
    .id = 31,
    .title = "Change the Scheduler Log File Settings",
    .description =
        "The Task Scheduler notes when its tasks start, end or fail in a log file, normally in the Windows folder and "
        "at most 32 KB long. Its path and largest size can be changed, for instance to keep a longer history.",
};

// Intended: some texts have a space before the bracket, others do not.
constexpr auto kProperties =
    ScopePair("Disable Changes to Task Properties(Current User)", "Disable Changes to Task Properties(All Users)",
              PolicyDwordFlag(kScheduler, "Property Pages"));
constexpr Tweak kDisableChangesTaskProperties = {
    .id = 32,
    .title = "Disable Changes to Task Properties",
    .description =
        "Prevents users from viewing and changing the properties of existing scheduled tasks, such as their schedule "
        "or account. Use it where tasks are set up by an administrator and should stay as they are.",
    .treeParent = 30,
    .page = Page::Checks,
    .boxes = kProperties,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000MeXp,
    .stamp = Stamp::WhenOpen,
};

constexpr auto kRunCommand =
    ScopePair("Disable Changes to Task Run Command(Current User)", "Disable Changes to Task Run Command(All Users)",
              PolicyDwordFlag(kScheduler, "Allow Browse"));
constexpr Tweak kDisableChangesTaskRunCommand = {
    .id = 33,
    .title = "Disable Changes to Task Run Command",
    .description =
        "Stops users from changing the program that a scheduled task runs, and limits new tasks to programs on the "
        "Start menu by removing the Browse button. It keeps arbitrary programs from being scheduled.",
    .treeParent = 30,
    .page = Page::Checks,
    .boxes = kRunCommand,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000MeXp,
    .stamp = Stamp::WhenOpen,
};

constexpr auto kDragAndDrop =
    ScopePair("Disable Drag and Drop Task Scheduling(Current User)",
              "Disable Drag and Drop Task Scheduling (All Users)", PolicyDwordFlag(kScheduler, "DragAndDrop"));
constexpr Tweak kDisableDragsDropTaskScheduling = {
    .id = 34,
    .title = "Disable Drags and Drop Task Scheduling",  // Intended: spelled so.
    .description =
        "Disables cut, copy, paste and dragging in the Scheduled Tasks folder, so that users cannot add, copy or "
        "remove tasks with the mouse or the clipboard. Other ways to create tasks stay open.",
    .treeParent = 30,
    .page = Page::Checks,
    .boxes = kDragAndDrop,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000MeXp,
    .stamp = Stamp::WhenOpen,
};

constexpr auto kManualControl =
    ScopePair("Disable Manual Task Control(Current User)", "Disable Manual Task Control(All Users)",
              PolicyDwordFlag(kScheduler, "Execution"));
constexpr Tweak kDisableManualTaskControl = {
    .id = 35,
    .title = "Disable Manual Task Control",
    .description =
        "Removes the Run and End Task commands, so that users cannot start or stop scheduled tasks by hand. The tasks "
        "still run by their schedules, which suits backups and other jobs that must not be interrupted.",
    .treeParent = 30,
    .page = Page::Checks,
    .boxes = kManualControl,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000MeXp,
    .stamp = Stamp::WhenOpen,
};

constexpr auto kAdvanced = ScopePair("Remove Advanced Option from Task Scheduler Wizard(Current User)",
                                     "Remove Advanced Option from Task Scheduler Wizard(All Users)",
                                     PolicyDwordFlag(kScheduler, "Disable Advanced"));
constexpr Tweak kRemoveAdvancedOptionTaskSchedulerWizard = {
    .id = 36,
    .title = "Remove Advanced Option from Task Scheduler Wizard",
    .description =
        "Hides the option to open the advanced properties on the last page of the Add Scheduled Task wizard. New "
        "tasks then keep simple settings; users can still change them later in the properties of the task.",
    .treeParent = 30,
    .page = Page::Checks,
    .boxes = kAdvanced,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000MeXp,
    .stamp = Stamp::WhenOpen,
};

// One box restricts both creating and deleting.
constexpr auto kCreation =
    ScopePair("Restrict Task Creation and Deletion (Current User)", "Restrict Task Creation and Deletion (All Users)",
              DwordFlag{.key = kScheduler.madeWhole(), .name = "Task Creation", .alsoName = "Task Deletion"});
constexpr Tweak kRestrictTaskCreationDeletion = {
    .id = 37,
    .title = "Restrict Task Creation and Deletion",
    .description =
        "Prevents users from creating new scheduled tasks and from deleting existing ones; both restrictions are set "
        "together. Administrators can still add tasks with the AT command.",
    .treeParent = 30,
    .page = Page::Checks,
    .boxes = kCreation,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000MeXp,
    .stamp = Stamp::WhenOpen,
};

constexpr const Tweak* kRows[] = {&kTaskScheduler, &kChangeSchedulerLogFileSettings, &kDisableChangesTaskProperties,
                                  &kDisableChangesTaskRunCommand, &kDisableDragsDropTaskScheduling,
                                  &kDisableManualTaskControl, &kRemoveAdvancedOptionTaskSchedulerWizard,
                                  &kRestrictTaskCreationDeletion};

}  // namespace

constinit decltype(kTaskSchedulerUnit) kTaskSchedulerUnit{kRows};

}  // namespace korvane
