// The Crash Control tweaks: what Windows writes and whom it tells after a stop
// error.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr KeyPath kCrashControl{Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\CrashControl"};

constexpr StringValue dumpPath(std::string_view name) {
    return {.key = kCrashControl,
            .name = name,
            .whenEmpty = WhenEmpty::WritesNothing,
            .type = ValueType::ExpandSz,
            .folding = Folding::WindowsFolder};
}

constexpr Tweak kCrashControlTweak = {
    .id = 274,
    .title = "Crash Control",
    .description = "Settings to manage system errors and restoration",
    .category = true,
    .image = 27,
    .treeParent = 273,
    .page = Page::Category,
};

// The number is the index of the entry. Intended: no choice writes 0xFFFFFFFF.
constexpr NumberEntry kMethods[] = {{"Append", 0}, {"Overwrite", 1}};
constexpr Choice kMethod[] = {
    {.label = "The Dump Creation Mode:",
     .binding = DwordChoice{.key = kCrashControl, .name = "Overwrite", .entries = kMethods, .initial = 0}}};
constexpr Tweak kControlDumpCreationMethod = {
    .id = 275,
    .title = "Control the Dump Creation Method",
    .description =
        "Decides what becomes of the memory dump of an earlier crash when the system crashes again. Overwrite "
        "replaces it with the new one; with Append the existing file is not overwritten.",
    .treeParent = 274,
    .page = Page::CheckCombos,
    .choices = kMethod,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr CheckBox kEventLog[] = {{.text = "Enable Windows logs a system crash to the event log.",
                                   .binding = DwordCheckState{.key = kCrashControl, .name = "LogEvent"}}};
constexpr Tweak kControlWhetherWindowsLogsSystemCrash = {
    .id = 276,
    .title = "Control Whether Windows Logs a System Crash",
    .description =
        "Writes an entry to the system event log whenever Windows stops with an error, so that an administrator "
        "can see later when and with which code it happened.",
    .page = Page::Checks,
    .boxes = kEventLog,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr NumberEntry kDumps[] = {{"None", 0},
                                  {"Complete memory dump", 1},
                                  {"Kernal memory dump", 2},  // Intended: spelled so.
                                  {"Small memory dump", 3}};
constexpr Choice kDump[] = {
    {.label = "The Dump Creation Mode:",
     .binding = DwordChoice{.key = kCrashControl, .name = "CrashDumpEnabled", .entries = kDumps, .initial = 0}}};
constexpr Tweak kCreateSystemCrashDumpFile = {
    .id = 277,
    .title = "Create a System Crash Dump File",
    .description =
        "Chooses how much memory Windows writes to a file when it stops with an error: nothing, everything, the "
        "kernel memory or a small dump. Support staff need a dump to find the cause; a complete one is as large "
        "as the memory.",
    .treeParent = 274,
    .page = Page::CheckCombos,
    .choices = kDump,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
};

// Intended: a space before the full stop here, and before the colon below.
constexpr CheckBox kAlerts[] = {{.text = "Enable sending administrative alerts of system crashes .",
                                 .binding = DwordCheckState{.key = kCrashControl, .name = "SendAlert"}}};
constexpr Tweak kSendAdministrativeAlertsSystemCrashes = {
    .id = 278,
    .title = "Send Administrative Alerts of System Crashes",
    .description =
        "Sends a message to the administrators over the network when the system stops with an error, so that a "
        "crashed server is noticed quickly. The alerts have to be set up on the computer, with the Alerter "
        "service running.",
    .treeParent = 274,
    .page = Page::Checks,
    .boxes = kAlerts,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr Field kSmallDumps[] = {
    {.label = "The small memory dump directory :", .binding = dumpPath("MinidumpDir"), .picker = Picker::File}};
constexpr Tweak kSpecifySmallMemoryDumpDirectory = {
    .id = 279,
    .title = "Specify the Small Memory Dump Directory",
    .description =
        "Names the folder in which Windows keeps its small memory dumps, one file for each crash. An empty field "
        "leaves the present folder as it is.",
    .treeParent = 274,
    .page = Page::CheckFields,
    .fields = kSmallDumps,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
};

constexpr Field kDumpFile[] = {
    {.label = "The system crash dump file location:", .binding = dumpPath("DumpFile"), .picker = Picker::File}};
constexpr Tweak kSpecifySystemCrashDumpFileLocation = {
    .id = 280,
    .title = "Specify the System Crash Dump File Location",
    .description =
        "Names the file to which Windows writes a kernel or complete memory dump after a crash. Move it to "
        "another drive if the system drive has too little room; an empty field leaves the present file as it is.",
    .treeParent = 274,
    .page = Page::CheckFields,
    .fields = kDumpFile,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
};

constexpr const Tweak* kRows[] = {&kCrashControlTweak, &kControlDumpCreationMethod,
                                  &kControlWhetherWindowsLogsSystemCrash, &kCreateSystemCrashDumpFile,
                                  &kSendAdministrativeAlertsSystemCrashes, &kSpecifySmallMemoryDumpDirectory,
                                  &kSpecifySystemCrashDumpFileLocation};

}  // namespace

constinit decltype(kCrashControlUnit) kCrashControlUnit{kRows};

}  // namespace korvane
