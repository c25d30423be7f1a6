// The Dr Watson tweaks: what it records when a program fails, how it tells the
// user, and where its log and crash dump go. All of them apply to the whole
// machine. The category is not in the tree.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr KeyPath kDrWatson{Root::LocalMachine, "SOFTWARE\\Microsoft\\DrWatson"};

constexpr int kDrWatsonRows[] = {14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24};
constexpr Tweak kDrWatsonTweak = {
    .id = 13,
    .title = "Dr Watson",
    .description = "Setting for the Dr Watson Diagnostic utility.",
    .category = true,
    .image = 3,
    .page = Page::Category,
    .overview = {.rows = kDrWatsonRows},
};

constexpr CheckBox kSymbols[] = {
    {.text = "Enable Symbol Dumping in Dr Watson", .binding = DwordFlag{.key = kDrWatson, .name = "DumpSymbols"}}};
constexpr Tweak kControlSymbolDumpingDrWatson = {
    .id = 14,
    .title = "Control Symbol Dumping in Dr Watson",
    .description =
        "Writes the symbols of every module of a failing program to the Dr Watson log. They help a developer to find "
        "the place of the error, but make the log much longer.",
    .page = Page::Checks,
    .boxes = kSymbols,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
    .putBoxesBack = true,
};

constexpr CheckBox kNewLog[] = {{.text = "Create a new logFile for each application error that occurs.",
                                 .binding = DwordFlagInverted(kDrWatson, "AppendToLogFile")}};
constexpr Tweak kControlLogFileCreationMethodDr = {
    .id = 15,
    .title = "Control the Log File Creation Method of Dr Watson",
    .description =
        "Decides whether Dr Watson starts a new log file for each application error or adds to the existing one. A "
        "new file stays short but holds only the latest error; a cleared box keeps the history of all of them.",
    .page = Page::Checks,
    .boxes = kNewLog,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
    .putBoxesBack = true,
};

constexpr CheckBox kThreads[] = {{.text = "Dump the contents of all threads during an application error",
                                  .binding = DwordFlag{.key = kDrWatson, .name = "DumpAllThreads"}}};
constexpr Tweak kControlThreadDumbingDrWatson = {
    .id = 16,
    .title = "Control Thread Dumbing in Dr Watson",  // Intended: spelled so.
    .description =
        "Records the state of all threads of a failing program in the Dr Watson log. With the box cleared only the "
        "thread that caused the error is recorded, which is often enough and keeps the log small.",
    .page = Page::Checks,
    .boxes = kThreads,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
    .putBoxesBack = true,
};

// Intended: two spaces before "encounters" in both.
constexpr CheckBox kPopups[] = {{.text = "Enable Popups Alert when Dr Watson  encounters an application error",
                                 .binding = DwordFlag{.key = kDrWatson, .name = "VisualNotification"}}};
constexpr Tweak kControlWhetherDrWatsonAlartsUsing = {
    .id = 17,
    .title = "Control Whether Dr Watson Alarts Using Popups",  // Intended: spelled so.
    .description =
        "Shows a message box whenever Dr Watson handles an application error. Clear it on servers and unattended "
        "computers, where nobody is there to close the box.",
    .page = Page::Checks,
    .boxes = kPopups,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
    .putBoxesBack = true,
};

constexpr CheckBox kSound[] = {{.text = "Enable Sound Alert when Dr Watson  encounters an application error",
                                .binding = DwordFlag{.key = kDrWatson, .name = "SoundNotification"}}};
constexpr Tweak kControlWhetherDrWatsonAlartsUsingTweak = {
    .id = 18,
    .title = "Control Whether Dr Watson Alarts Using Sound",  // Intended: spelled so.
    .description =
        "Plays a sound when Dr Watson handles an application error, so that a failure is noticed even when nobody is "
        "watching the screen. It can be combined with the message box.",
    .page = Page::Checks,
    .boxes = kSound,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
    .putBoxesBack = true,
};

constexpr CheckBox kCrashDump[] = {{.text = "Enable Creating a Crash Dump file after an Application Crash",
                                    .binding = DwordFlag{.key = kDrWatson, .name = "CreateCrashDump"}}};
constexpr Tweak kControlWhetherDrWatsonCreatsCrash = {
    .id = 19,
    .title = "Control Whether Dr Watson Creats a Crash Dump",  // Intended: spelled so.
    .description =
        "Saves the memory of a failed program to a crash dump file, which can be loaded into a debugger later. Turn "
        "it on to have a recurring crash examined; turn it off to save disk space.",
    .page = Page::Checks,
    .boxes = kCrashDump,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
    .putBoxesBack = true,
};

// Intended: the arguments are never shown, and every apply appends these, so that a debugger set up with other
// arguments loses them.
constexpr Field kDebugger[] = {
    {.label = "The Alternate Program Path:",
     .binding = StringValue{.key = {Root::LocalMachine, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\AeDebug"},
                            .name = "Debugger",
                            .suffix = " -p %ld -e %ld -g",
                            .suffixStart = " -p %ld -e %ld"},
     .picker = Picker::File,
     .required = Alert::AlternatePathMissing},
};
constexpr Tweak kSpecifyAlternatDebuggingUtility = {
    .id = 20,
    .title = "Specify the Alternat Debugging Utility",  // Intended: spelled so.
    .description =
        "Names the program that Windows starts when an application fails, in place of the one set now. It is meant "
        "for developers with a debugger of their own; the usual process and event arguments are added to the path and "
        "replace any others.",
    .page = Page::CheckFields,
    .fields = kDebugger,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr Field kLogFolder[] = {{.label = "The Log File Directory Path:",
                                 .binding = StringValue{.key = kDrWatson, .name = "LogFilePath"},
                                 .picker = Picker::File,
                                 .required = Alert::LogFolderMissing}};
constexpr Tweak kSpecifyDrWatsonLogDirectory = {
    .id = 21,
    .title = "Specify the Dr Watson Log Directory",
    .description =
        "Sets the folder in which Dr Watson keeps its log, for example one on a drive with more space or one that the "
        "support staff can reach. Type the path of the folder; the browse button can only pick files.",
    .page = Page::CheckFields,
    .fields = kLogFolder,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr Field kDumpFile[] = {{.label = "The Location of the Dump File:",
                                .binding = ExpandStringValue(kDrWatson, "CrashDumpFile"),
                                .picker = Picker::File,
                                .required = Alert::DumpFileMissing}};
constexpr Tweak kSpecifyLocationDumpFile = {
    .id = 22,
    .title = "Specify the Location of the Dump File",
    .description =
        "Sets the path and name of the file to which Dr Watson saves the memory of a failed program. Change it when "
        "the system drive is short of space; the path may contain environment variables.",
    .page = Page::CheckFields,
    .fields = kDumpFile,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr Field kInstructions[] = {{.label = "The Number of Instructions To Record:",
                                    .binding = DwordNumber{.key = kDrWatson, .name = "Instructions"},
                                    .required = Alert::InstructionCountMissing}};
constexpr Tweak kSpecifyNumberInstructionsRecord = {
    .id = 23,
    .title = "Specify the Number of Instructions to Record",
    .description =
        "Sets how many instructions before and after the point of failure Dr Watson writes to its log for each "
        "thread. More of them give a developer a better view of the error and make the log longer.",
    .page = Page::CheckFields,
    .fields = kInstructions,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr Field kWaveFile[] = {{.label = "The Location of Wave File for Sound Notification:",
                                .binding = ExpandStringValue(kDrWatson, "WaveFile"),
                                .picker = Picker::File,
                                .required = Alert::WaveFileMissing}};
constexpr Tweak kSpecifyWaveFileSoundNotification = {
    .id = 24,
    .title = "Specify the Wave File for Sound Notification",
    .description =
        "Names the wave file that Dr Watson plays when a program fails, provided that its sound notification is "
        "turned on. The path may contain environment variables.",
    .page = Page::CheckFields,
    .fields = kWaveFile,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr const Tweak* kRows[] = {&kDrWatsonTweak, &kControlSymbolDumpingDrWatson, &kControlLogFileCreationMethodDr,
                                  &kControlThreadDumbingDrWatson, &kControlWhetherDrWatsonAlartsUsing,
                                  &kControlWhetherDrWatsonAlartsUsingTweak, &kControlWhetherDrWatsonCreatsCrash,
                                  &kSpecifyAlternatDebuggingUtility, &kSpecifyDrWatsonLogDirectory,
                                  &kSpecifyLocationDumpFile, &kSpecifyNumberInstructionsRecord,
                                  &kSpecifyWaveFileSoundNotification};

}  // namespace

constinit decltype(kDrWatsonUnit) kDrWatsonUnit{kRows};

}  // namespace korvane
