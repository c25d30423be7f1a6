// The Logging tweaks: who may read the event logs, and what Windows logs for
// troubleshooting. The category is not in the tree.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "catalogue/accessories/InstallerLogging.h"

namespace korvane {
namespace {

constexpr int kLoggingRows[] = {283, 284, 285, 286, 287};
constexpr Tweak kLogging = {
    .id = 281,
    .title = "Logging",
    .description = "Logging and Reporting Enhancements",
    .category = true,
    .image = 28,
    .page = Page::Category,
    .overview = {.rows = kLoggingRows},
};

constexpr Tweak kChangeNumberSqlServerErrorLogs = {
    .id = 282,
    .title = "Change the Number of SQL Server Error Logs",
    .description =
        "SQL Server starts a new error log each time it starts and keeps only the last few old ones. A larger "
        "number keeps a longer history on servers that are restarted often.",
};

// Intended: a space before the full stops.
constexpr DwordCheckState guestAccess(std::string_view log) {
    return {.key = {Root::LocalMachine, log}, .name = "RestrictGuestAccess"};
}

constexpr CheckBox kEventLogs[] = {
    {.text = "Restrict Guest Access to the Application Log .",
     .binding = guestAccess("SYSTEM\\CurrentControlSet\\Services\\EventLog\\Application")},
    {.text = "Restrict Guest Access to the Security Log .",
     .binding = guestAccess("SYSTEM\\CurrentControlSet\\Services\\EventLog\\Security")},
    {.text = "Restrict Guest Access to the System Log .",
     .binding = guestAccess("SYSTEM\\CurrentControlSet\\Services\\EventLog\\System")},
};
constexpr Tweak kRestrictAccessEventLogs = {
    .id = 283,
    .title = "Restrict Access to the Event Logs",
    .description =
        "Guests and anonymous users can read event logs unless they are kept out. Check the application, security "
        "and system log separately to restrict their access, because the entries tell a lot about the computer.",
    .page = Page::Checks,
    .boxes = kEventLogs,
    .note = kRestartWindowsNote,
    .gate = kGateNt,
    .source = "[MS-GPSB] 3.2.5.5",
};

constexpr KeyPath kPolicies{Root::LocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies", "System"};
constexpr CheckBox kVerboseStatus[] = {
    {.text = "Show Verbose Security Status Messages .", .binding = PolicyDwordFlag(kPolicies, "VerboseStatus")}};
constexpr Tweak kShowVerboseSecurityStatusMessages = {
    .id = 284,
    .title = "Show Verbose Security Status Messages",
    .description =
        "Shows in detail what Windows is doing while it starts, shuts down and logs users in or out. This helps "
        "to find the step at which a slow or hanging computer stops.",
    .page = Page::Checks,
    .boxes = kVerboseStatus,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = "KB 316243 (from general knowledge)",
};

// The low word is the level, the high word the destination.
constexpr NumberEntry kLevels[] = {{"None", 0},
                                   {"Normal, to the Log File (Default)", 0x10001},
                                   {"Verbose, to the Log File", 0x10002},
                                   {"Verbose, to the Log File and the Debugger", 0x30002}};
constexpr Choice kDebugLevel[] = {
    {.label = "Debug Logging Level:",
     .binding = DwordChoice{.key = {Root::LocalMachine, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon"},
                            .name = "UserEnvDebugLevel",
                            .entries = kLevels,
                            .initial = 1,
                            .whenNone = WhenNone::Deletes}},
};
constexpr Tweak kUserEnvironmentDebugLogging = {
    .id = 285,
    .title = "User Environment Debug Logging",
    .description =
        "Sets how much Windows records about loading user profiles and policies in the file "
        "Debug\\UserMode\\Userenv.log of the Windows folder. Use a verbose level when logins are slow or profiles "
        "fail to load, and set it back afterwards, because the log keeps growing.",
    .page = Page::CheckCombos,
    .choices = kDebugLevel,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = "KB 221833",
};

constexpr CheckBox kDiagnostics[] = {
    {.text = "Enable User Environment Event Logging .",
     .binding = DwordFlag{.key = {Root::LocalMachine, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", "Diagnostics"},
                          .name = "RunDiagnosticLoggingGlobal"}},
};
constexpr Tweak kUserEnvironmentEventLogging = {
    .id = 286,
    .title = "User Environment Event Logging",
    .description =
        "Writes detailed events about the processing of user profiles and Group Policy to the application event "
        "log. Turn it on to trace a policy that does not arrive, and off again so that the log does not fill up.",
    .page = Page::Checks,
    .boxes = kDiagnostics,
    .note = kRestartWindowsNote,
    .gate = kGate2000Xp,
    .source = "KB 186454 (from general knowledge)",
};

constexpr Tweak kWindowsInstallerLogging = {
    .id = 287,
    .title = "Windows Installer Logging",  // Intended: the title of item 41 too.
    .description =
        "Makes Windows Installer log every installation with all options listed below except + and !, to find out "
        "why a setup fails. Caution: applying it unchecked also removes all other local machine policies that are "
        "mirrored in the settings of the current user.",
    .page = Page::Category,
    .boxes = kInstallerLoggingBox,
    .table = &kInstallerLoggingLetters,
    .source = kInstallerLoggingSource,
};

constexpr const Tweak* kRows[] = {&kLogging, &kChangeNumberSqlServerErrorLogs, &kRestrictAccessEventLogs,
                                  &kShowVerboseSecurityStatusMessages, &kUserEnvironmentDebugLogging,
                                  &kUserEnvironmentEventLogging, &kWindowsInstallerLogging};

}  // namespace

constinit decltype(kLoggingUnit) kLoggingUnit{kRows};

}  // namespace korvane
