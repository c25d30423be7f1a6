// The category System and those of its tweaks that are in no subcategory: 16-bit
// programs, memory, updates, devices and the keyboard. Most of them are not in the
// tree.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"

#include <array>

namespace korvane {
namespace {

constexpr KeyPath kExplorerPolicies{Root::CurrentUser,
                                    "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer"};
constexpr std::string_view kAutomaticUpdatesSource =
    "KB 328010, policies of Automatic Updates (from general knowledge)";

constexpr Tweak kSystem = {
    .id = 226,
    .title = "System",
    .description = "Windows System Parameters and Settings",
    .category = true,
    .image = 22,
    .treeParent = kTreeRoot,
    .page = Page::Category,
};

// Intended: a space before most of the full stops.
constexpr auto kComponentDownload = ScopePair(
    "Enable Automatic Download of COM Components (Current User).",
    "Enable Automatic Download of COM Components (All Users).",
    PolicyDwordFlag({Root::CurrentUser, "Software\\Policies\\Microsoft", "Windows\\App Management"}, "COMClassStore"));
constexpr Tweak kAutomaticDownloadComComponents = {
    .id = 256,
    .title = "Automatic Download of COM Components",
    .description =
        "When a program needs a COM component that is not installed, Windows can look for it in Active Directory "
        "and download it. This only has a use in domains that publish such components; set it for the current "
        "user, for all users or both.",
    .page = Page::Checks,
    .boxes = kComponentDownload,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = "Windows 2000 registry reference, COMClassStore; Policy CSP ADMX_COM, Download missing COM components",
};

constexpr TextEntry kSchemes[] = {{"Home/Office Desk", "0"}, {"Portable/Laptop", "1"},          {"Presentation", "2"},
                                  {"Always On", "3"},        {"Minimal Power Management", "4"}, {"Max Battery", "5"}};
constexpr Choice kPowerScheme[] = {
    {.label = "Power Scheme:",
     .binding = StringChoice{.key = {Root::CurrentUser, "Control Panel\\PowerCfg"},
                             .name = "CurrentPowerPolicy",
                             .entries = kSchemes,
                             .compare = Compare::AsNumber,
                             .whenNone = WhenNone::WritesNothing}},
};
constexpr Tweak kChangePowerManagementConfiguration = {
    .id = 257,
    .title = "Change Power Management Configuration",
    .description =
        "Selects the power scheme of the current user, as Power Options in Control Panel does. The names are those of "
        "the six schemes of Windows XP; another version may have other schemes under the stored numbers 0 to 5. "
        "Choose Portable/Laptop or Max Battery to save power, Always On for a server.",
    .page = Page::CheckCombos,
    .choices = kPowerScheme,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate98Me2000Xp,
    .source = "`Control Panel\\PowerCfg` of the Windows 2000 and XP power management (from general knowledge); the "
              "six entries are the schemes of Windows XP in their stored order",
};

constexpr KeyPath kSessionManager{Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Session Manager"};
constexpr CheckBox kSearchOrder[] = {{.text = "Search the System Directories before the Current Directory .",
                                      .binding = DwordCheckState{.key = kSessionManager, .name = "SafeDllSearchMode"}}};
constexpr Tweak kChangeLibrarySearchOrder = {
    .id = 258,
    .title = "Change the Library Search Order",
    .description =
        "Programs look for DLL files in several folders. When checked, the system directories come before the "
        "current directory, so that a harmful file placed beside a document is not loaded by mistake. It applies "
        "to the whole computer.",
    .page = Page::Checks,
    .boxes = kSearchOrder,
    .note = kRestartWindowsNote,
    .gate = kGate2000Xp,
    .source = "MSDN, Dynamic-Link Library Search Order (from general knowledge)",
};

// Only shows what the administrator has set.
constexpr KeyPath kUpdatePolicies{Root::LocalMachine, "SOFTWARE\\Policies\\Microsoft\\Windows\\WindowsUpdate"};
constexpr CheckBox kUpdateServerBox[] = {
    {.text = "Use a Software Update Services Server .",
     .binding = DwordFlag{.key = {Root::LocalMachine, "SOFTWARE\\Policies\\Microsoft\\Windows\\WindowsUpdate\\AU"},
                          .name = "UseWUServer"}},
};
constexpr Field kUpdateServers[] = {
    {.label = "Update Server:", .binding = StringValue{.key = kUpdatePolicies, .name = "WUServer"}},
    {.label = "Statistics Server:", .binding = StringValue{.key = kUpdatePolicies, .name = "WUStatusServer"}},
};
constexpr Tweak kConfigureWindowsSoftwareUpdateServices = {
    .id = 259,
    .title = "Configure Windows Software Update Services",
    .description =
        "Shows whether this computer gets its updates from a Software Update Services server of the local network "
        "and which addresses it uses for updates and statistics. The page is for viewing only: nothing is changed "
        "when it is applied.",
    .page = Page::CheckFields,
    .boxes = kUpdateServerBox,
    .fields = kUpdateServers,
    .note = kSmallRestartOrLogOutNote,
    .showOnly = true,
    .source = kAutomaticUpdatesSource,
};

constexpr Tweak kConfiguringRegistrySizeLimit = {
    .id = 260,
    .title = "Configuring the Registry Size Limit",
    .description =
        "Windows NT 4 and 2000 limit the total size that the registry may reach in memory. A larger limit helps "
        "on servers with very many users or programs, when Windows warns that the registry is nearly full.",
};

constexpr Tweak kControlMicrosoftVmGarbageCollection = {
    .id = 261,
    .title = "Control Microsoft VM Garbage Collection",
    .description =
        "Concerns the Microsoft virtual machine for Java: how it collects the memory that Java programs no longer "
        "use. Adjusting the collection can help Java programs which pause often or take up more and more memory.",
};

constexpr CheckBox kSeparateMachine[] = {
    {.text = "Enable running each application in a separate virtual machine.",
     .binding = StringFlag{.key = {Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\WOW"},
                           .name = "DefaultSeparateVDM",
                           .checked = "Yes",
                           .cleared = "No",
                           .compare = Compare::IgnoreCase}},
};
constexpr Tweak kControlDefaultVirtualMachineOption = {
    .id = 262,
    .title = "Control the Default Virtual Machine Option",
    .description =
        "Runs each 16-bit Windows program in a virtual machine of its own, so that one which crashes does not "
        "take the others with it. It costs more memory, and programs that share data with each other may need the "
        "common machine.",
    .treeParent = 226,
    .page = Page::Checks,
    .boxes = kSeparateMachine,
    .note = kRestartWindowsNote,
    .gate = kGate2000Xp,
};

// The value named in a row is one more than the number that it stores.
constexpr TableColumn kErrorColumns[] = {{"Value", 109}, {"Description", 290}};
constexpr std::string_view kErrorModes[] = {"1", "All errors appear in popups (Default)",
                                            "2", "System errors disabled, application errors still using popups",
                                            "3", "Neither system or application errors use popups"};
constexpr Table kErrorTable{
    .columns = kErrorColumns,
    .cells = kErrorModes,
    .binding = DwordRowChoice{.key = {Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Windows"},
                              .name = "ErrorMode"}};
constexpr Tweak kControlDisplayPopupErrorMessages = {
    .id = 263,
    .title = "Control the Display of Popup Error Messages",
    .description =
        "Choose whether Windows shows error messages of the system and of applications as popups. Suppress them "
        "on servers where nobody answers. The list does not mark the current setting, and the number stored is "
        "one less than the value shown.",
    .treeParent = 226,
    .page = Page::Category,
    .table = &kErrorTable,
};

// A scancode map: version, flags, the number of entries, two entries that map the Windows keys (E0 5B and E0
// 5C) to nothing, and the terminating entry; all numbers little-endian.
constexpr auto kNoWindowsKeys = [] {
    std::array<std::byte, 24> map{};
    std::size_t at = 0;
    for (const std::uint32_t number : {0u, 0u, 3u, 0xE05B0000u, 0xE05C0000u, 0u}) {
        for (unsigned shift = 0; shift < 32; shift += 8) {
            map[at++] = static_cast<std::byte>(number >> shift);
        }
    }
    return map;
}();
constexpr CheckBox kWindowsKey[] = {
    {.text = "Disable Windows Key .",
     .binding = BinaryFlag{.key = {Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Keyboard Layout"},
                           .name = "Scancode Map",
                           .checked = kNoWindowsKeys,
                           .shown = BinaryFlag::Shown::Present}},
};
constexpr Tweak kDisableWindowsKey = {
    .id = 264,
    .title = "Disable the Windows Key",
    .description =
        "Makes both Windows keys do nothing, which prevents accidental switches to the desktop in full-screen "
        "games. It holds for all users, and any other keyboard map of this computer is replaced or, when the box "
        "is cleared, removed.",
    .treeParent = 226,
    .page = Page::Checks,
    .boxes = kWindowsKey,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr std::string_view kPolicies = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies";
constexpr auto kDriverWizard =
    ScopePair("Disable Update Device Driver Wizard (Current User).", "Disable Update Device Driver Wizard (All Users).",
              PolicyDwordFlag({Root::CurrentUser, kPolicies, "Explorer"}, "NoDevMgrUpdate"));
constexpr Tweak kDisableUpdateDeviceDriverWizard = {
    .id = 265,
    .title = "Disable Update Device Driver Wizard",
    .description =
        "Sets the policy value NoDevMgrUpdate, for the current user and for all users, which keeps the update "
        "device driver wizard from looking for newer drivers at Windows Update. Use it where drivers are chosen "
        "by an administrator.",
    .page = Page::Checks,
    .boxes = kDriverWizard,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate98Me2000Xp,
    .source = "Policy value NoDevMgrUpdate of Windows 98 and later (from general knowledge)",
};

constexpr CheckBox kUnloadDlls[] = {
    {.text = "Force Windows to Unload DLLs from Memory .",
     .binding = SubkeyFlag{.parent = {Root::LocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer"},
                           .name = "AlwaysUnloadDll",
                           .text = "1",
                           .shownByText = true}},
};
constexpr Tweak kForceWindowsUnloadDLLsMemory = {
    .id = 266,
    .title = "Force Windows to Unload DLLs from Memory",
    .description =
        "Explorer keeps DLL files in memory for a while after they were last used. With this set they are "
        "unloaded at once, which saves memory and helps developers to replace a file. Windows 2000 and later "
        "accept the setting but ignore it.",
    .page = Page::Checks,
    .boxes = kUnloadDlls,
    .note = kRestartWindowsNote,
    .source = "MSDN bb776795, debugging with the shell",
};

constexpr CheckBox kManageVerb[] = {
    {.text = "Hide Computer Management Option .",
     .binding = DwordCheckState{.key = kExplorerPolicies, .name = "NoManageMyComputerVerb", .clearedDeletes = true}},
};
constexpr Tweak kHideComputerManagementOption = {
    .id = 267,
    .title = "Hide Computer Management Option",
    .description =
        "Removes the Manage command, which opens Computer Management, from the right-click menu of My Computer for "
        "the current user. Computer Management itself stays available, for example in Administrative Tools.",
    .treeParent = 226,
    .page = Page::Checks,
    .boxes = kManageVerb,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
};

constexpr KeyPath kMemoryManagement{Root::LocalMachine,
                                    "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management"};
constexpr CheckBox kPagingExecutive[] = {
    {.text = "Keep the Core System in Memory .",
     .binding = DwordCheckState{.key = kMemoryManagement, .name = "DisablePagingExecutive"}},
};
constexpr Tweak kImproveCoreSystemPerformance = {
    .id = 268,
    .title = "Improve Core System Performance",
    .description =
        "Keeps the kernel and the drivers in memory by setting DisablePagingExecutive to 1, so that they are "
        "never moved to the page file. Worth trying on computers with plenty of memory; where memory is short it "
        "slows everything else down.",
    .page = Page::Checks,
    .boxes = kPagingExecutive,
    .note = kRestartWindowsNote,
    .gate = kGateNt,
    .source = "Windows 2000 registry reference, DisablePagingExecutive (from general knowledge)",
};

constexpr CheckBox kUsbPolling[] = {
    {.text = "Increase the USB Polling Interval .",
     .binding = DwordFlag{.key = {Root::LocalMachine,
                                  "SYSTEM\\CurrentControlSet\\Control\\Class\\"
                                  "{36FC9E60-C465-11CF-8056-444553540000}\\0000"},
                          .name = "IdleEnable",
                          .clearedDeletes = true}},
};
constexpr Tweak kIncreaseUsbPollingInterval = {
    .id = 269,
    .title = "Increase the USB Polling Interval",
    .description =
        "Windows polls the first USB controller every millisecond, which keeps some mobile processors from saving "
        "power. Checking the box makes it every five milliseconds, so that the battery lasts longer; clearing it "
        "deletes the value.",
    .page = Page::Checks,
    .boxes = kUsbPolling,
    .note = kRestartWindowsNote,
    .gate = kGate2000Xp,
    .source = "KB 297045; its Windows 2000 part for the key and the value's name (from general knowledge)",
};

// No choice deletes the policy.
constexpr NumberEntry kUpdateStates[] = {{"Enabled", 0}, {"Disabled", 1}};
constexpr NumberEntry kUpdateModes[] = {{"Notify before download and before install", 2},
                                        {"Download automatically and notify before install", 3},
                                        {"Download automatically and install on schedule", 4}};
constexpr NumberEntry kUpdateDays[] = {{"Every day", 0},     {"Every Sunday", 1},    {"Every Monday", 2},
                                       {"Every Tuesday", 3}, {"Every Wednesday", 4}, {"Every Thursday", 5},
                                       {"Every Friday", 6},  {"Every Saturday", 7}};
constexpr NumberEntry kUpdateHours[] = {{"00:00", 0},  {"01:00", 1},  {"02:00", 2},  {"03:00", 3},  {"04:00", 4},
                                        {"05:00", 5},  {"06:00", 6},  {"07:00", 7},  {"08:00", 8},  {"09:00", 9},
                                        {"10:00", 10}, {"11:00", 11}, {"12:00", 12}, {"13:00", 13}, {"14:00", 14},
                                        {"15:00", 15}, {"16:00", 16}, {"17:00", 17}, {"18:00", 18}, {"19:00", 19},
                                        {"20:00", 20}, {"21:00", 21}, {"22:00", 22}, {"23:00", 23}};
constexpr DwordChoice updatePolicy(std::string_view name, std::span<const NumberEntry> entries) {
    return {.key = {Root::LocalMachine, "SOFTWARE\\Policies\\Microsoft\\Windows", "WindowsUpdate\\AU"},
            .name = name,
            .entries = entries,
            .whenNone = WhenNone::DeletesInOpenKey};
}

constexpr Choice kAutomaticUpdates[] = {
    {.label = "Automatic Updates:", .binding = updatePolicy("NoAutoUpdate", kUpdateStates)},
    {.label = "Update Mode:", .binding = updatePolicy("AUOptions", kUpdateModes)},
    {.label = "Install Day:", .binding = updatePolicy("ScheduledInstallDay", kUpdateDays)},
    {.label = "Install Time:", .binding = updatePolicy("ScheduledInstallTime", kUpdateHours)},
};
constexpr Tweak kManageAutomaticWindowsUpdates = {
    .id = 270,
    .title = "Manage Automatic Windows Updates",
    .description =
        "Turns Automatic Updates on or off for this computer and sets whether you are asked before updates are "
        "downloaded and installed, and on which day and hour a scheduled installation takes place. A box without "
        "a choice removes that policy.",
    .page = Page::EditCombos,
    .choices = kAutomaticUpdates,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = kAutomaticUpdatesSource,
};

constexpr Tweak kModifyPagedNonPagedPoolMemory = {
    .id = 271,
    .title = "Modify the Paged and Non Paged Pool Memory Sizes",
    .description =
        "Sets how much memory Windows reserves for its paged and non-paged pools, from which the kernel and "
        "drivers take their working space. Wrong sizes can keep a computer from starting; leave them to Windows "
        "unless a server runs out of pool memory.",
};

// Intended: no spaces after the second quotation mark and before the bracket.
constexpr auto kMemorySpace = ScopePair(
    "\"Run in Separate Memory Space\"is shown in the Run box(Current User).",
    "\"Run in Separate Memory Space\"is shown in the Run box(All Users).",
    DwordCheckState{.key = kExplorerPolicies.madeWhole(), .name = "MemCheckBoxInRunDlg", .clearedDeletes = true});
constexpr Tweak kShowRunSeparateMemorySpaceOption = {
    .id = 272,
    .title = "Show Run in Separate Memory Space Option",
    .description =
        "Adds the check box 'Run in Separate Memory Space' to the Run dialog, so that a 16-bit program can be "
        "kept apart from the others when you start it. Offered for the current user and for all users.",
    .treeParent = 226,
    .page = Page::Checks,
    .boxes = kMemorySpace,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
};

constexpr const Tweak* kRows[] = {&kSystem, &kAutomaticDownloadComComponents, &kChangePowerManagementConfiguration,
                                  &kChangeLibrarySearchOrder, &kConfigureWindowsSoftwareUpdateServices,
                                  &kConfiguringRegistrySizeLimit, &kControlMicrosoftVmGarbageCollection,
                                  &kControlDefaultVirtualMachineOption, &kControlDisplayPopupErrorMessages,
                                  &kDisableWindowsKey, &kDisableUpdateDeviceDriverWizard,
                                  &kForceWindowsUnloadDLLsMemory, &kHideComputerManagementOption,
                                  &kImproveCoreSystemPerformance, &kIncreaseUsbPollingInterval,
                                  &kManageAutomaticWindowsUpdates, &kModifyPagedNonPagedPoolMemory,
                                  &kShowRunSeparateMemorySpaceOption};

}  // namespace

constinit decltype(kSystemUnit) kSystemUnit{kRows};

}  // namespace korvane
