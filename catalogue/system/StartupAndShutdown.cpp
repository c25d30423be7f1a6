// The Start up and Shutdown tweaks: what happens while Windows starts and shuts
// down, after a stop error, and to programs that hang at shutdown.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr KeyPath kDesktop{Root::CurrentUser, "Control Panel\\Desktop"};
constexpr KeyPath kLoginDesktop{Root::Users, ".DEFAULT\\Control Panel\\Desktop"};
constexpr KeyPath kWinlogon{Root::LocalMachine, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon"};

constexpr Tweak kStartUpShutdown = {
    .id = 211,
    .title = "Start up and Shutdown",
    .description = "Enhancements for System Starup Shutdown",  // Intended: spelled so.
    .category = true,
    .image = 21,
    .treeParent = kTreeRoot,
    .page = Page::Category,
};

constexpr auto kUndock = ScopePair(
    "Enable Portables to Undock Before Login (Current User).", "Enable Portables to Undock Before Login (All Users).",
    DwordCheckState{.key = {Root::CurrentUser, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\System"},
                    .name = "UndockWithoutLogon"});
constexpr Tweak kAllowPortableUndockBeforeLogin = {
    .id = 212,
    .title = "Allow Portable to Undock Before Login",
    .description =
        "Allows a portable computer to be taken out of its docking station before anybody has logged in. When not "
        "allowed, a user must log in and undock with the command on the Start menu.",
    .page = Page::Checks,
    .boxes = kUndock,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

// Any other stored time shows as the default, and no choice writes the default.
constexpr CheckBox kEndTasks[] = {
    {.text = "Automatically end tasks that are not responding.",
     .binding = StringFlag{.key = kDesktop.writtenAlsoTo(kLoginDesktop), .name = "AutoEndTasks"}},
};
constexpr TextEntry kWaitingTimes[] = {
    {"1 second", "1000"},
    {"2 seconds", "2000"},
    {"5 seconds", "5000"},
    {"10 seconds", "10000"},
    {"20 seconds (Default)", "20000"},
    {"30 seconds", "30000"},
    {"1 minute", "60000"},
    {"5 minuts", "300000"},  // Intended: spelled so.
};
constexpr int kDefaultTime = 4;
constexpr Choice kWaitingTime[] = {
    {.label = "Time to wait for response:",
     .binding = StringChoice{.key = kDesktop.writtenAlsoTo(kLoginDesktop),
                             .name = "WaitToKillAppTimeout",
                             .entries = kWaitingTimes,
                             .initial = kDefaultTime,
                             .unknown = kDefaultTime,
                             .compare = Compare::AsNumber,
                             .noneText = kWaitingTimes[kDefaultTime].stored}},
};
constexpr Tweak kAutomaticallyEndingHungApplications = {
    .id = 213,
    .title = "Automatically Ending Hung Applications",
    .description =
        "Programs that do not answer at shutdown normally hold it up with a dialog. Here you can have them ended "
        "automatically and choose how long Windows waits for them. Both are set for the current user and for the "
        "login desktop.",
    .treeParent = 211,
    .page = Page::CheckCombos,
    .boxes = kEndTasks,
    .choices = kWaitingTime,
    .note = kRestartWindowsNote,
};

// Intended: a space before most of the full stops.
constexpr CheckBox kAutoReboot[] = {
    {.text = "Automatically Reboot on the 'Blue Screen of Death' .",
     .binding = DwordCheckState{.key = {Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\CrashControl"},
                                .name = "AutoReboot"}},
};
constexpr Tweak kAutomaticallyRebootTheBlueScreenDeath = {
    .id = 214,
    .title = "Automatically Reboot on the'Blue Screen of Death'",  // Intended: spelled so.
    .description =
        "After a stop error, the 'blue screen', Windows can restart by itself instead of waiting for someone to "
        "press a key. Good for servers that run unattended; clear it when you need time to read the error text.",
    .treeParent = 211,
    .page = Page::Checks,
    .boxes = kAutoReboot,
    .note = kRestartWindowsNote,
    .gate = kGateNt,
};

constexpr CheckBox kClearPageFile[] = {
    {.text = "Clear the Page File at System Shutdown .",
     .binding = DwordCheckState{.key = {Root::LocalMachine,
                                        "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management"},
                                .name = "ClearPageFileAtShutdown"}},
};
constexpr Tweak kClearPageFileSystemShutdown = {
    .id = 215,
    .title = "Clear The Page File at System Shutdown",
    .description =
        "Overwrites the page file with zeros at every shutdown, so that passwords or documents left over in it "
        "cannot be read by starting another system. Shutting down takes longer, the more so the larger the file "
        "is.",
    .treeParent = 211,
    .page = Page::Checks,
    .boxes = kClearPageFile,
    .note = kRestartWindowsNote,
    .gate = kGateNt,
};

// Intended: the name of the value lacks an "r".
constexpr CheckBox kShiftKey[] = {{.text = "Disable Ability to Skip Startup Programs .",
                                   .binding = DwordCheckState{.key = kWinlogon, .name = "IgnoreShiftOveride"}}};
constexpr Tweak kDisableAbilitySkipStartupPrograms = {
    .id = 216,
    .title = "Disable Ability to Skip Startup Programs",
    .description =
        "Users can hold down the Shift key while logging in to skip the programs that start automatically. When "
        "checked, the Winlogon value IgnoreShiftOveride, spelled so, is set to 1 to prevent that; unchecked sets "
        "it to 0.",
    .page = Page::Checks,
    .boxes = kShiftKey,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr CheckBox kModem[] = {
    {.text = "Disable Automatic Modem Connections at Startup .",
     .binding = StringFlag{.key = {Root::LocalMachine, "SOFTWARE\\Microsoft\\Ole"},
                           .name = "EnableRemoteConnect",
                           .checked = "N",
                           .cleared = "Y"}},
};
constexpr Tweak kDisableAutomaticModemConnectionsStartup = {
    .id = 217,
    .title = "Disable Automatic Modem Connections at Startup",
    .description =
        "Try this when the modem dials by itself as soon as Windows starts. Checked, it sets the COM value "
        "EnableRemoteConnect to N, so that components on other computers are no longer called; programs that "
        "depend on this may stop working.",
    .page = Page::Checks,
    .boxes = kModem,
    .note = kSmallRestartOrLogOutNote,
};

constexpr auto kSaveSettings = ScopePair(
    "Disable Save Settings at Exit (Current User).", "Disable Save Settings at Exit (All Users).",
    DwordCheckState{.key = {Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer"},
                    .name = "NoSaveSettings"});
constexpr Tweak kDisableSaveSettingsExit = {
    .id = 218,
    .title = "Disable Save Settings at Exit",
    .description =
        "Explorer saves the position of icons, open folder windows and the taskbar when a user logs off. Check "
        "this to discard such changes, so that each session begins with the same desktop. For the current user, "
        "for all users or both.",
    .page = Page::Checks,
    .boxes = kSaveSettings,
    .note = "Note:\n\tyou may need to restart for the changes to take effect.",
};

constexpr CheckBox kLastKnownGood[] = {
    {.text = "Disable the Creation of Last Known Good .",
     .binding = StringFlag{.key = kWinlogon, .name = "ReportBootOk", .checked = "0", .cleared = "1"}},
};
constexpr Tweak kDisableCreationLastKnownGood = {
    .id = 219,
    .title = "Disable the Creation of Last known Good",
    .description =
        "Keeps Windows from declaring a startup successful after login, so that the Last Known Good configuration "
        "is not replaced. Of use when another program is to judge the startup, or while a doubtful driver is "
        "being tried out.",
    .treeParent = 211,
    .page = Page::Checks,
    .boxes = kLastKnownGood,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr CheckBox kEventTracker[] = {
    {.text = "Enable Shutdown Event Tracker .",
     .binding =
         DwordCheckState{.key = {Root::LocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Reliability"},
                         .name = "ShutdownReasonUI"}},
};
constexpr Tweak kEnableShutdownEventTracker = {
    .id = 220,
    .title = "Enable Shutdown Event Tracker",
    .description =
        "Asks for a reason whenever the computer is shut down or restarted, and records it in the event log. The "
        "record is useful on servers; on workstations the question is usually turned off.",
    .treeParent = 211,
    .page = Page::Checks,
    .boxes = kEventTracker,
    .note = kRestartWindowsNote,
    .gate = kGateXp,
};

constexpr NumberEntry kPrefetchModes[] = {
    {"disabled", 0}, {"Application launch prefetching", 1}, {"Boot prefetching", 2}, {"Both prefetching", 3}};
constexpr KeyPath kPrefetchParameters{
    Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management\\PrefetchParameters"};
constexpr Choice kPrefetcher[] = {
    {.label = "The Windows Prefetcher Mode:",
     .binding = DwordChoice{.key = kPrefetchParameters, .name = "EnablePrefetcher", .entries = kPrefetchModes}},
};
constexpr Tweak kManageWindowsPrefetcherService = {
    .id = 221,
    .title = "Manage the Windows Prefetcher Service",
    .description =
        "Windows XP records which files are read at boot and when programs start, and reads them ahead the next time. "
        "Choose whether it does so for programs, for booting, for both or not at all; both is usually fastest. Choose "
        "an entry before you apply; without one, 0xFFFFFFFF is stored.",
    .page = Page::CheckCombos,
    .choices = kPrefetcher,
    .note = kRestartWindowsNote,
    .gate = kGateXp,
};

constexpr Tweak kModifyDurationStartupListDisplayed = {
    .id = 222,
    .title = "Modify the Duration that the Startup List is Displayed",
    .description =
        "Sets how many seconds the list of installed operating systems stays on the screen at startup before the "
        "default one is started. A short time speeds up the boot, a longer one leaves time to choose.",
};

constexpr CheckBox kPowerdown[] = {
    {.text = "Power down After Shutdown .", .binding = StringFlag{.key = kWinlogon, .name = "PowerdownAfterShutdown"}}};
constexpr Tweak kPowerComputerOffAfterShutdown = {
    .id = 223,
    .title = "Power the Computer Off After Shutdown",
    .description =
        "Turns the power off as soon as Windows has shut down, on hardware that can do so, instead of showing "
        "that it is now safe to switch off. Clear it if the computer restarts or hangs at that point.",
    .page = Page::Checks,
    .boxes = kPowerdown,
    .note = kRestartWindowsNote,
    .gate = kGateNt,
};

constexpr CheckBox kAutoexec[] = {{.text = "Enable Reading Environment Variables in Autoexec.bat File .",
                                   .binding = StringFlag{.key = kWinlogon, .name = "ParseAutoexec"}}};
constexpr Tweak kReadEnvironmentVariablesAutoexecBatFile = {
    .id = 224,
    .title = "Read Environment Variables in Autoexec.bat File",
    .description =
        "Windows can read the SET and PATH lines of Autoexec.bat at login and add them to the environment of the "
        "user. Some old DOS programs need these variables; without such programs it can be turned off.",
    .page = Page::Checks,
    .boxes = kAutoexec,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
};

// Any text is written as it is typed; only an empty one is refused, after the date has been recorded.
constexpr Field kResponseTime[] = {
    {.label = "Time in milliseconds (1000=1 second):",
     .binding = StringValue{.key = kDesktop.writtenAlsoTo(kLoginDesktop), .name = "HungAppTimeout"},
     .required = Alert::ResponseTimeMissing},
};
constexpr Tweak kSpecifyResponseTimeHungApplications = {
    .id = 225,
    .title = "Specify the Response Time for Hung Applications",
    .description =
        "Sets how many milliseconds a program may go without responding before Windows counts it as hung, for the "
        "current user and for the login desktop. A longer time spares busy programs, a shorter one lets you end "
        "frozen ones sooner. Enter a number: any text is stored as it is typed, and only an empty field is refused.",
    .treeParent = 211,
    .page = Page::CheckFields,
    .fields = kResponseTime,
    .note = kRestartWindowsNote,
};

constexpr const Tweak* kRows[] = {&kStartUpShutdown, &kAllowPortableUndockBeforeLogin,
                                  &kAutomaticallyEndingHungApplications, &kAutomaticallyRebootTheBlueScreenDeath,
                                  &kClearPageFileSystemShutdown, &kDisableAbilitySkipStartupPrograms,
                                  &kDisableAutomaticModemConnectionsStartup, &kDisableSaveSettingsExit,
                                  &kDisableCreationLastKnownGood, &kEnableShutdownEventTracker,
                                  &kManageWindowsPrefetcherService, &kModifyDurationStartupListDisplayed,
                                  &kPowerComputerOffAfterShutdown, &kReadEnvironmentVariablesAutoexecBatFile,
                                  &kSpecifyResponseTimeHungApplications};

}  // namespace

constinit decltype(kStartupAndShutdownUnit) kStartupAndShutdownUnit{kRows};

}  // namespace korvane
