// The category Accessories and those of its tweaks that are in no subcategory: Task
// Manager, the tour of Windows XP, Notepad, Device Manager, audio CDs and Telnet.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr KeyPath kEnvironment{Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment"};

constexpr Tweak kAccessories = {
    .id = 0,
    .title = "Accessories",
    .description = "Tweak and Settings for Windows Accessories and Components.",
    .category = true,
    .image = 0,
    .treeParent = kTreeRoot,
    .page = Page::Category,
};

constexpr KeyPath kSystemPolicies{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies",
                                  "System"};
constexpr CheckBox kTaskManager[] = {
    {.text = "Disable Task Manager", .binding = DwordFlag{.key = kSystemPolicies, .name = "DisableTaskMgr"}},
};
constexpr Tweak kDisableTaskManager = {
    .id = 43,
    .title = "Disable Task Manager",
    .description =
        "This setting controls the ability for users to start Task Manager and view processes, running applications "
        "and make changes to the priority or state of the individual processes.",
    .treeParent = 0,
    .page = Page::Checks,
    .boxes = kTaskManager,
    .note = kRestartOrLogOutNote,
    .gate = kGateXp,
    .putBoxesBack = true,
};

constexpr KeyPath kTourKey{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Applets", "Tour"};
constexpr auto kTour = ScopePair("Disable The WindowXP Tour.(Current User)", "Disable The WindowXP Tour.(All Users)",
                                 DwordFlagInverted(kTourKey, "RunCount"));
constexpr Tweak kDisableWindowsXpTour = {
    .id = 44,
    .title = "Disable the Windows XP Tour",
    .description =
        "Stops the balloon that offers the Windows XP tour after login, for the current user, for all users or for "
        "both. It spares the users of a fresh system the interruption; clearing a box sets the number of remaining "
        "offers to one.",
    .treeParent = 0,
    .page = Page::Checks,
    .boxes = kTour,
    .note = kRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr Tweak kEasilyUseNotepadOpenFile = {
    .id = 45,
    .title = "Easily Use the Notepad to Open a File",
    .description =
        "Adds a command to the right-click menu of every file that opens it in Notepad, whatever its type. Convenient "
        "for looking into scripts, settings and other text files that have another or no program assigned.",
};

constexpr CheckBox kNotepad[] = {
    {.text = "Save Changes to Notpad Configuration.",
     .binding = DwordFlag{.key = {Root::CurrentUser, "Software\\Microsoft\\Notepad"},
                          .name = "fSavePageSettings",
                          .alsoName = "fSaveWindowPositions"}},
};
constexpr Tweak kSaveChangesNotepadConfiguration = {
    .id = 46,
    .title = "Save Changes to Notepad Configuration",
    .description =
        "Makes Notepad keep its page setup and the position of its window for the current user. Margins, header and "
        "footer then need not be entered again the next time a text is printed.",
    .page = Page::Checks,
    .boxes = kNotepad,
    .note = kRestartOrLogOutNote,
};

constexpr CheckBox kHiddenDevices[] = {
    {.text = "Show All Hidden Devices in Device Manager.",
     .binding = StringFlag{.key = kEnvironment,
                           .name = "DEVMGR_SHOW_NONPRESENT_DEVICES",
                           .clearedDeletes = true,
                           .checkedWhenPresent = true}},
};
constexpr Tweak kShowAllHiddenDevicesDeviceManager = {
    .id = 47,
    .title = "Show All Hidden Devices in Device Manager",
    .description =
        "Lets Device Manager list devices that are no longer connected, once Show hidden devices is chosen in its "
        "View menu. Use it to remove the drivers of old hardware; it is set as an environment variable for all "
        "users.",
    .page = Page::Checks,
    .boxes = kHiddenDevices,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .putBoxesBack = true,
};

constexpr CheckBox kDeviceDetails[] = {
    {.text = "Show Detailed Information in Device Manager.",
     .binding = StringFlag{.key = kEnvironment, .name = "DEVMGR_SHOW_DETAILS"}},
};
constexpr Tweak kShowDetailedInformationDeviceManager = {
    .id = 48,
    .title = "Show Detailed Information in Device Manager",
    .description =
        "Adds a Details tab to the properties of each device in Device Manager, with its identifiers, services and "
        "driver keys. It helps to find out which driver an unknown device needs, and holds for all users.",
    .page = Page::Checks,
    .boxes = kDeviceDetails,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .putBoxesBack = true,
};

// Intended: two spaces before the slash.
constexpr Field kAudioCd[] = {
    {.label = "The Program Path:",
     .binding = StringValue{.key = {Root::ClassesRoot, "AudioCD\\Shell\\Play\\Command"},
                            .name = "",
                            .suffix = "  /play %1",
                            .suffixStart = "  /play %1"},
     .picker = Picker::File,
     .required = Alert::ProgramPathMissing},
};
constexpr Tweak kSpecifyProgramPlayInsertedAudioCDs = {
    .id = 49,
    .title = "Specify the Program to Play Inserted Audio CDs",
    .description =
        "Names the program that plays audio CDs when they are inserted or opened, for all users. Enter the path of a "
        "player that understands the switch /play, which is added to the path together with the drive.",
    .treeParent = 0,
    .page = Page::CheckFields,
    .fields = kAudioCd,
    .note = kRestartOrLogOutNote,
};

constexpr CheckBox kTelnet[] = {
    {.text = "Enable Using Smooth Scrolling in Telnet.",
     .binding = DwordFlag{.key = {Root::CurrentUser, "Software\\Microsoft", "Telnet"}, .name = "SmoothScroll"}},
};
constexpr Tweak kUseSmoothScrollingTelnet = {
    .id = 50,
    .title = "Use Smooth Scrolling in Telnet",
    .description =
        "Makes the Telnet client of the current user scroll its text smoothly instead of jumping by whole lines. It "
        "is easier to follow for the eye, but slower when much text arrives at once.",
    .page = Page::Checks,
    .boxes = kTelnet,
    .note = kRestartOrLogOutNote,
};

constexpr const Tweak* kRows[] = {&kAccessories, &kDisableTaskManager, &kDisableWindowsXpTour,
                                  &kEasilyUseNotepadOpenFile, &kSaveChangesNotepadConfiguration,
                                  &kShowAllHiddenDevicesDeviceManager, &kShowDetailedInformationDeviceManager,
                                  &kSpecifyProgramPlayInsertedAudioCDs, &kUseSmoothScrollingTelnet};

}  // namespace

constinit decltype(kOtherAccessoriesUnit) kOtherAccessoriesUnit{kRows};

}  // namespace korvane
