// The category Troubleshooting and those of its tweaks that are in no subcategory:
// start-up state and warnings, Remote Assistance, AutoRun of CDs and error
// reporting.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr Tweak kTroubleshooting = {
    .id = 273,
    .title = "Troubleshooting",
    .description = "Tips and Tweaks to Fix System Problems",
    .category = true,
    .image = 26,
    .treeParent = kTreeRoot,
    .page = Page::Category,
};

constexpr Field kSafeModeBackground[] = {
    {.label = "The Safe Mode Background File:",
     .binding =
         StringValue{.key = {Root::CurrentUser, "Software\\Microsoft\\Internet Explorer\\Desktop\\SafeMode\\General"},
                     .name = "Wallpaper",
                     .type = ValueType::ExpandSz,
                     .withoutQuotes = true},
     .picker = Picker::File},
};
constexpr Tweak kChangeActiveDesktopSafeModeBackground = {
    .id = 295,
    .title = "Change the Active Desktop Safe Mode Background",
    .description =
        "When Active Desktop runs into an error it shows a white recovery page. This sets the file shown instead, "
        "stored as the value Wallpaper of its safe mode settings, for the current user; an empty field removes "
        "the value.",
    .treeParent = 273,
    .page = Page::CheckFields,
    .fields = kSafeModeBackground,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate98Me2000Xp,
    .source = "Safe-mode settings of Active Desktop, `SafeMode\\General` (from general knowledge)",
};

// An empty text means no sound.
constexpr Field kMailSound[] = {
    {.label = "The Sound for New Mail:",
     .binding = StringValue{.key = {Root::CurrentUser, "AppEvents\\Schemes\\Apps\\.Default\\MailBeep\\.Current"},
                            .name = "",
                            .whenEmpty = WhenEmpty::WritesEmpty,
                            .withoutQuotes = true},
     .picker = Picker::File},
};
constexpr Tweak kChangeDefaultMailboxSoundSetting = {
    .id = 296,
    .title = "Change the Default Mailbox Sound Setting",
    .description =
        "Sets the wave file played for the sound event MailBeep (New Mail Notification) in the current sound "
        "scheme of the current user. Not every mail program uses this event; an empty field means that no sound "
        "is played.",
    .treeParent = 273,
    .page = Page::CheckFields,
    .fields = kMailSound,
    .note = kSmallRestartOrLogOutNote,
    .source = "Sound event MailBeep, the New Mail Notification (from general knowledge)",
};

// Intended: a stored number with other bits set shows as cleared, and an apply loses those bits.
constexpr StringFlag numLockIn(const KeyPath& key) {
    return {.key = key, .name = "InitialKeyboardIndicators", .checked = "2"};
}

constexpr CheckBox kNumLock[] = {
    {.text = "Turn NumLock on at Startup (Current User).",
     .binding = numLockIn({Root::CurrentUser, "Control Panel\\Keyboard"})},
    {.text = "Turn NumLock on at Startup (Before Login).",
     .binding = numLockIn({Root::Users, ".DEFAULT\\Control Panel\\Keyboard"})},
};
constexpr Tweak kChangeDefaultNumLockState = {
    .id = 297,
    .title = "Change the Default NumLock State",
    .description =
        "Decides whether NumLock is on after the current user has logged in and, separately, at the login screen. "
        "People who type numbers in their password on the keypad want both.",
    .treeParent = 273,
    .page = Page::Checks,
    .boxes = kNumLock,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
    .source = "Windows 2000 registry reference, InitialKeyboardIndicators; KB 154529 (from general knowledge)",
};

constexpr Tweak kChangeIconCacheSize = {
    .id = 298,
    .title = "Change the Icon Cache Size",
    .description =
        "Windows keeps a number of icon pictures ready in a cache. If icons are redrawn slowly or come up wrong, "
        "a larger cache may help, at the cost of a little memory and disk space.",
};

// Intended: a space before the full stops.
constexpr CheckBox kStepping[] = {
    {.text = "Enable Windows Update Stepping Mode .",
     .binding = StringFlag{.key = {Root::LocalMachine, "SOFTWARE\\Microsoft\\Active Setup"},
                           .name = "SteppingMode",
                           .checked = "Y",
                           .cleared = "N",
                           .compare = Compare::IgnoreCase}},
};
constexpr Tweak kDebugWindowsUpdateProcess = {
    .id = 299,
    .title = "Debug the Windows Update Process",
    .description =
        "Checked, sets the Active Setup value SteppingMode to Y, so that Windows Update proceeds step by step and you "
        "can see where an update fails. Cleared, sets it to N. Not every version of Windows reads this value.",
    .treeParent = 273,
    .page = Page::Checks,
    .boxes = kStepping,
    .note = kSmallRestartOrLogOutNote,
    .source = "Value SteppingMode of Active Setup (from general knowledge); no Microsoft text on it was found again",
};

constexpr CheckBox kWarnings[] = {
    {.text = "Disable Warnings on Startup .",
     .binding = DwordCheckState{.key = {Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Windows"},
                                .name = "NoPopupsOnBoot"}},
};
constexpr Tweak kDisableWarningsStartup = {
    .id = 300,
    .title = "Disable Warnings on Startup",
    .description =
        "Suppresses the message boxes that appear at startup, for example when a driver or service could not be "
        "started. The failures are still found in the event log; useful where nobody sits in front of the screen.",
    .treeParent = 273,
    .page = Page::Checks,
    .boxes = kWarnings,
    .note = kRestartWindowsNote,
    .gate = kGateNt,
    .source = "MSDN aa731206, Windows Embedded, NoPopupsOnBoot",
};

constexpr CheckBox kRemoteAssistance[] = {
    {.text = "Enable Remote Assistance .",
     .binding = DwordCheckState{.key = {Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Terminal Server"},
                                .name = "fAllowToGetHelp"}},
};
constexpr Tweak kEnableRemoteAssistance = {
    .id = 301,
    .title = "Enable Remote Assistance",
    .description =
        "Allows users of this computer to invite a helper, who then sees their screen over the network. Clear the box "
        "to turn off such invitations for all users.",
    .treeParent = 273,
    .page = Page::Checks,
    .boxes = kRemoteAssistance,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
    .source = "Remote Assistance value fAllowToGetHelp; Windows XP deployment reference, RA_AllowToGetHelp (from "
              "general knowledge)",
};

constexpr CheckBox kAthlon[] = {
    {.text = "Fix Problem with Athlon Hanging AGP Programs .",
     .binding = DwordFlag{.key = {Root::LocalMachine,
                                  "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management"},
                          .name = "LargePageMinimum",
                          .checked = 0xFFFFFFFF,
                          .clearedDeletes = true}},
};
constexpr Tweak kFixProblemAthlonHangingAgpPrograms = {
    .id = 302,
    .title = "Fix Problem with Athlon Hanging AGP Programs",
    .description =
        "On some AMD Athlon computers, programs that use the AGP graphics port hang because of the way large "
        "memory pages are handled. Checking this keeps Windows from using them; unchecking removes the setting.",
    .page = Page::Checks,
    .boxes = kAthlon,
    .note = kRestartWindowsNote,
    .gate = kGate2000Xp,
    .source = "KB 270715 (from general knowledge)",
};

// Each bit turns AutoRun off for one type of drive, this one for CDs. Without the value Windows uses 0x95, so
// that CDs do run.
constexpr CheckBox kAutoRun[] = {
    {.text = "Run Inserted CD-ROMs Automatically .",
     .binding = MaskBit{.key = {Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer"},
                        .name = "NoDriveTypeAutoRun",
                        .byte = 0,
                        .bit = 0x20,
                        .checkedWhenClear = true,
                        .whenMissing = 0x95,
                        .checkedWhenMissing = true}},
};
constexpr Tweak kRunInsertedCdROMsAutomatically = {
    .id = 303,
    .title = "Run Inserted CD-ROMs Automatically",
    .description =
        "Decides whether a CD starts by itself when it is inserted, for the current user. Only the CD-ROM bit (0x20) "
        "of the value NoDriveTypeAutoRun is changed; other drive types keep their setting. Turn AutoRun off to be "
        "safe from unwanted programs.",
    .treeParent = 273,
    .page = Page::Checks,
    .boxes = kAutoRun,
    .note = kSmallRestartOrLogOutNote,
    .source = "Windows 2000 registry reference, NoDriveTypeAutoRun (TechNet cc959381); DirectX SDK, AutoPlay, for the "
              "four bytes of REG_BINARY",
};

constexpr Tweak kShowComputerManufacturerSupportInformation = {
    .id = 304,
    .title = "Show Computer Manufacturer and Support Information",
    .description =
        "The General page of System in Control Panel can show a logo, the maker and model of the computer and a "
        "page with support information. Dealers use it to leave their address.",
};

constexpr CheckBox reporting(std::string_view text, std::string_view name) {
    return {.text = text,
            .binding = DwordCheckState{.key = {Root::LocalMachine, "SOFTWARE\\Microsoft\\PCHealth\\ErrorReporting"},
                                       .name = name}};
}

constexpr CheckBox kErrorReporting[] = {
    reporting("Enable Error Reporting .", "DoReport"),
    reporting("Notify the User when Errors Occur .", "ShowUI"),
    reporting("Report Windows Operating System Errors .", "IncludeKernelFaults"),
    reporting("Report Errors in All Programs .", "AllOrNone"),
    reporting("Report Errors in Microsoft Programs .", "IncludeMicrosoftApps"),
    reporting("Report Errors in Windows Components .", "IncludeWindowsApps"),
    reporting("Report Unplanned Shutdowns .", "IncludeShutdownErrs"),
    reporting("Force Queue Mode for Program Errors .", "ForceQueueMode"),
};
constexpr Tweak kWindowsErrorReportingSettings = {
    .id = 305,
    .title = "Windows Error Reporting Settings",
    .description =
        "When a program or Windows fails, Windows XP offers to send a report to Microsoft. Choose whether reports "
        "are made at all, whether the user is asked, and for which programs, components and shutdowns.",
    .treeParent = 273,
    .page = Page::Checks,
    .boxes = kErrorReporting,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
    .source = "Windows XP deployment reference, section PCHealth; Policy CSP ADMX_ErrorReporting; the value names "
              "(from general knowledge)",
};

constexpr const Tweak* kRows[] = {&kTroubleshooting, &kChangeActiveDesktopSafeModeBackground,
                                  &kChangeDefaultMailboxSoundSetting, &kChangeDefaultNumLockState,
                                  &kChangeIconCacheSize, &kDebugWindowsUpdateProcess, &kDisableWarningsStartup,
                                  &kEnableRemoteAssistance, &kFixProblemAthlonHangingAgpPrograms,
                                  &kRunInsertedCdROMsAutomatically, &kShowComputerManufacturerSupportInformation,
                                  &kWindowsErrorReportingSettings};

}  // namespace

constinit decltype(kTroubleshootingUnit) kTroubleshootingUnit{kRows};

}  // namespace korvane
