// The Command Processor tweaks: the command prompt in folder menus, its colours,
// its completion keys, and what it runs or refuses. Most of them are values of the
// current user that cmd.exe reads when it starts.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

constexpr KeyPath kCommandProcessor{Root::CurrentUser, "Software\\Microsoft\\Command Processor"};

// The number is the control code of the completion key. Intended: no choice writes 0xFFFFFFFF.
constexpr NumberEntry kCompletionKeys[] = {{.text = "Disable", .number = 0, .deletes = true},
                                           {"Backspace key", 8},
                                           {"TAB key", 9},
                                           {"Ctrl-D", 4},
                                           {"Ctrl-F", 6}};

constexpr Tweak kCommandProcessorTweak = {
    .id = 1,
    .title = "Command Processor",
    .description = "Enhancements for the Command Processor and DOS prompt.",
    .category = true,
    .image = 1,
    .treeParent = 0,
    .page = Page::Category,
    // Intended: the date column is wider than in other overviews.
    .overview = {.nameWidth = 280, .dateWidth = 115},
};

// The user names the menu entry; its command line depends on the Windows family.
constexpr CheckBox kPromptHere[] = {
    {.text = "Enable Command Prompt menu option",
     .binding = ShellVerbKey{.parent = {Root::ClassesRoot, "Directory\\shell"},
                             .verb = "Command",
                             .menuTextEdit = IDC_EDIT1,
                             .requiredAlert = Alert::MenuNameMissing,
                             .commandLine = "cmd.exe /k cd %1",
                             .commandLineOn9x = "command.com /k cd %1"}},
};
constexpr Field kPromptHereLabel[] = {{.label = "Menu Label:"}};
constexpr Tweak kAddCommandPromptOptionEveryFolder = {
    .id = 2,
    .title = "Add Command Prompt Option to Every Folder",
    .description =
        "If you still use the DOS prompt regularly then this setting creates a new right-click menu option to open a "
        "command prompt at the selected directory.",
    .treeParent = 1,
    .page = Page::CheckFields,
    .boxes = kPromptHere,
    .fields = kPromptHereLabel,
    .note = kRestartOrLogOutNote,
    // An empty menu text is refused before the date is recorded, and clearing the box records none.
    .stamp = Stamp::WhenOpen,
};

constexpr CheckBox kUncPaths[] = {
    {.text = "Allow UNC paths and remove the warning message",
     .binding = DwordFlag{.key = kCommandProcessor, .name = "DisableUNCCheck"}},
};
constexpr Tweak kAllowUncPathsCommandPrompt = {
    .id = 3,
    .title = "Allow UNC Paths at the Command Prompt",
    .description =
        "A command prompt normally warns about a network (UNC) path and refuses it as its current directory. This "
        "setting removes that check for the current user, which helps when scripts are started from a shared folder "
        "that has no drive letter.",
    .page = Page::Checks,
    .boxes = kUncPaths,
    .note = "Note:\n\tyou may need to restart or log out of Windows for the change to take effect.\n"
            "If you enable this feature and start a Console that has a current directory of an UNC name, start "
            "applications from that Console, and then close the Console, it could cause problems in the applications "
            "started from that Console.",
    .gate = kGateNt,
    .putBoxesBack = true,
};

constexpr Tweak kChangeCommandPrompt = {
    .id = 4,
    .title = "Change the Command Prompt",
    .description =
        "The text that the command interpreter shows before each command comes from the environment variable PROMPT. "
        "Its codes, such as $P for the current directory and $G for a greater-than sign, can be combined with the "
        "date, the time or text of your own.",
};

// A row's index is its hexadecimal digit: it sets the text colour and leaves the background black.
constexpr TableColumn kColourColumns[] = {{"Hexadecimal value", 109}, {"Color", 265}};
constexpr std::string_view kColourCells[] = {
    "0", "Black",     "1", "Blue",         "2", "Green",        "3", "Aqua",
    "4", "Red",       "5", "Purple",       "6", "Yellow",       "7", "White",
    "8", "Gray",      "9", "Light Blue",   "A", "Light Green",  "B", "Light Aqua",
    "C", "Light Red", "D", "Light Purple", "E", "Light Yellow", "F", "Bright White"};
constexpr Table kColours{
    .columns = kColourColumns, .cells = kColourCells, .binding = DwordRowChoice{kCommandProcessor, "DefaultColor"}};
constexpr Tweak kChangeCommandPromptColors = {
    .id = 5,
    .title = "Change the Command Prompt Colors",
    .description =
        "Sets the text color of new command prompt windows for the current user: select one of the sixteen colors in "
        "the list, to be shown on the usual black background. Select a row before applying; without one nothing is "
        "written.",
    .treeParent = 1,
    .page = Page::Category,
    .table = &kColours,
    .gate = kGateNt,
};

constexpr CheckBox kExtensions[] = {
    {.text = "Disable Command Processor Extensions",
     .binding = DwordFlagInverted(kCommandProcessor, "EnableExtensions")},
};
constexpr Tweak kDisableCommandProcessorExtentions = {
    .id = 6,
    .title = "Disable Command Processor Extentions",  // Intended: spelled so.
    .description =
        "Turns off command extensions, the additional features of commands such as CD, FOR, IF, SET and CALL, for the "
        "current user. Useful for old batch files that were written for the plain commands and fail with the extended "
        "ones.",
    .treeParent = 1,
    .page = Page::Checks,
    .boxes = kExtensions,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .putBoxesBack = true,
};

// Row 0 writes 0; no row deletes the value.
constexpr KeyPath kSystemPolicies{Root::CurrentUser, "Software\\Policies\\Microsoft", "Windows\\System"};
constexpr TableColumn kPromptPolicyColumns[] = {{"Value", 99}, {"Discription", 295}};
constexpr std::string_view kPromptPolicyCells[] = {"0", "(default) enable command prompt and batch files",
                                                   "1", "disable command prompt and batch files",
                                                   "2", "disable command prompt but allow batch files"};
constexpr Table kPromptPolicy{.columns = kPromptPolicyColumns,
                              .cells = kPromptPolicyCells,
                              .binding = DwordRowChoice{kSystemPolicies, "DisableCMD"}};
constexpr Tweak kDisableCommandPromptBatchFiles = {
    .id = 7,
    .title = "Disable Command Prompt and Batch Files",
    .description =
        "Keeps the current user away from the command prompt. Select in the list whether batch files are blocked too "
        "or may still run; leave them allowed if the computer uses batch files at login, logoff, startup or shutdown. "
        "Row 0 permits everything again.",
    .treeParent = 1,
    .page = Page::Category,
    .table = &kPromptPolicy,
    .gate = kGate2000Xp,
};

constexpr auto kCommandCompletion =
    ScopePairOfChoices("Command Completion(Current User)", "Command Completion(All Users)",
                       DwordChoice{.key = kCommandProcessor, .name = "CompletionChar", .entries = kCompletionKeys});
constexpr Tweak kEnableCommandCompletion = {
    .id = 8,
    .title = "Enable Command Completion",
    .description =
        "Chooses the key that completes a partly typed file or folder name at the command prompt, for the current "
        "user and for all users. Pressing it again shows the next match. Disable deletes the value. Choose an entry "
        "in both lists before you apply; without one, 0xFFFFFFFF is stored.",
    .treeParent = 1,
    .page = Page::CheckCombos,
    .choices = kCommandCompletion,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr CheckBox kDelayedExpansion[] = {
    {.text = "Enable Delayed Environment Variable Expansion",
     .binding = DwordFlag{.key = kCommandProcessor, .name = "DelayedExpansion"}},
};
constexpr Tweak kEnableDelayedEnvironmentVariableExpantion = {
    .id = 9,
    .title = "Enable Delayed Environment Variable Expantion",  // Intended: spelled so.
    .description =
        "Lets scripts of the current user write !NAME! to get the value a variable has when a command runs, where "
        "%NAME% gives the value it had when the line was read. Needed by batch files that change variables inside FOR "
        "loops or IF blocks.",
    .page = Page::Checks,
    .boxes = kDelayedExpansion,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .putBoxesBack = true,
};

constexpr auto kDirectoryCompletion =
    ScopePairOfChoices("Directory Completion(Current User)", "Directory Completion(All Users)",
                       DwordChoice{.key = kCommandProcessor, .name = "PathCompletionChar", .entries = kCompletionKeys});
constexpr Tweak kEnableDirectoryCompletion = {
    .id = 10,
    .title = "Enable Directory Completion",
    .description =
        "Chooses the key that completes a partly typed folder name at the command prompt, for the current user and "
        "for all users. It skips files, which is quicker after commands such as CD. Disable deletes the value. Choose "
        "an entry in both lists before you apply; without one, 0xFFFFFFFF is stored.",
    .treeParent = 1,
    .page = Page::CheckCombos,
    .choices = kDirectoryCompletion,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000XpNamingNt,
};

constexpr CheckBox kQuickEdit[] = {
    {.text = "Enable Quick Edit the Command Prompt",
     .binding = DwordFlag{.key = {Root::CurrentUser, "Console"}, .name = "QuickEdit"}},
};
constexpr Tweak kQuickEditCommandPrompt = {
    .id = 11,
    .title = "Quick Edit the Command Prompt",
    .description =
        "Lets the mouse mark text in the command prompt windows of the current user: drag to select, right-click to "
        "copy, right-click again to paste. Handy for moving text between the prompt and other programs, but console "
        "programs no longer receive mouse clicks.",
    .treeParent = 1,
    .page = Page::Checks,
    .boxes = kQuickEdit,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
    .putBoxesBack = true,
};

constexpr Field kAutoRun[] = {
    {.label = "The Command or Program Path:",
     .binding = StringValue{.key = kCommandProcessor, .name = "AutoRun"},
     .picker = Picker::File},
};
constexpr Tweak kRunStartupProgramsCommandPrompt = {
    .id = 12,
    .title = "Run Startup Programs in Command Prompt",
    .description =
        "Names a command or program that runs each time the command interpreter starts for the current user, batch "
        "files included. An empty field deletes the value. A stored command of more than 201 characters is not shown "
        "here, and applying the page then deletes it.",
    .treeParent = 1,
    .page = Page::CheckFields,
    .fields = kAutoRun,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000XpNamingNt,
};

constexpr const Tweak* kRows[] = {&kCommandProcessorTweak, &kAddCommandPromptOptionEveryFolder,
                                  &kAllowUncPathsCommandPrompt, &kChangeCommandPrompt, &kChangeCommandPromptColors,
                                  &kDisableCommandProcessorExtentions, &kDisableCommandPromptBatchFiles,
                                  &kEnableCommandCompletion, &kEnableDelayedEnvironmentVariableExpantion,
                                  &kEnableDirectoryCompletion, &kQuickEditCommandPrompt,
                                  &kRunStartupProgramsCommandPrompt};

}  // namespace

constinit decltype(kCommandProcessorUnit) kCommandProcessorUnit{kRows};

}  // namespace korvane
