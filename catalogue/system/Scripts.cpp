// The Scripts tweaks: whether login, logoff, startup and shutdown scripts are
// visible and run synchronously, and which script files are trusted. The category
// is not in the tree.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr KeyPath kPolicies{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies", "System"};
constexpr KeyPath kMachinePolicies = kPolicies.under(Root::LocalMachine);
constexpr std::string_view kHiddenScriptsSource =
    "Group Policy, System, Scripts: Policy CSP ADMX_Scripts; Windows 2000 registry reference (from general knowledge)";
constexpr std::string_view kLoginScriptSource =
    "Windows 2000 registry reference, RunLogonScriptSync (TechNet cc958682, cc959699; cc962720 for Winlogon)";

constexpr int kScriptsRows[] = {228, 229, 230, 232, 231, 233, 234, 235, 236, 237};
constexpr Tweak kScripts = {
    .id = 227,
    .title = "Scripts",
    .description = "Enhancements and Settings for System Scripts",
    .category = true,
    .image = 23,
    .page = Page::Category,
    .overview = {.rows = kScriptsRows},
};

// Any other default verb shows as the first entry.
constexpr TextEntry kActions[] = {{"Open", "Open"}, {"Edit", "Edit"}, {"Open with Command Prompt", "Open2"}};
constexpr StringChoice defaultVerb(std::string_view classShell) {
    return {.key = {Root::ClassesRoot, classShell},
            .name = "",
            .entries = kActions,
            .initial = 0,
            .unknown = 0,
            .compare = Compare::IgnoreCase,
            .whenNone = WhenNone::WritesNothing};
}

constexpr Choice kDefaultAction[] = {
    {.label = "Default Action for VBScript Files:", .binding = defaultVerb("VBSFile\\Shell")},
    {.label = "Default Action for JScript Files:", .binding = defaultVerb("JSFile\\Shell")},
};
constexpr Tweak kChangeDefaultActionScriptFiles = {
    .id = 228,
    .title = "Change the Default Action For Script files",
    .description =
        "Decides what a double click does to VBScript and JScript files, for all users: run the script, open it "
        "for editing, or run it in a command prompt. It sets the default verb of the file classes VBSFile and "
        "JSFile; Edit guards against scripts that come by mail.",
    .page = Page::CheckCombos,
    .choices = kDefaultAction,
    .note = kSmallRestartOrLogOutNote,
    .source = "The verbs of the file classes VBSFile and JSFile of Windows Script Host (from general knowledge)",
};

constexpr NumberEntry kTrust[] = {
    {"Run all scripts", 0}, {"Prompt user if script is untrusted", 1}, {"Run only trusted scripts", 2}};
constexpr auto kSignaturePolicy =
    ScopePairOfChoices("Script Signature Policy (Current User):", "Script Signature Policy (All Users):",
                       DwordChoice{.key = {Root::CurrentUser, "SOFTWARE\\Microsoft", "Windows Script Host\\Settings"},
                                   .name = "TrustPolicy",
                                   .entries = kTrust,
                                   .initial = 0,
                                   .whenNone = WhenNone::WritesNothing});
constexpr Tweak kConfigureWindowsScriptSignatureSecurity = {
    .id = 229,
    .title = "Configure Windows Script Signature Security",
    .description =
        "Tells Windows Script Host whether to run every script, to ask before running one without a trusted "
        "signature, or to refuse it. There is one policy for the current user and one for all users; software "
        "restriction policies of Windows XP can take precedence.",
    .page = Page::CheckCombos,
    .choices = kSignaturePolicy,
    .note = kSmallRestartOrLogOutNote,
    .source =
        "MSDN 4d1239h7, signature verification of Windows Script Host; for all users TechNet ee156597. Windows XP "
        "reads the value only while software restriction policies are off for scripts (from general knowledge)",
};

// Intended: a space before most of the full stops.
constexpr CheckBox kLegacyLogin[] = {
    {.text = "Hide the Legacy Login Scripts .", .binding = PolicyDwordFlag(kPolicies, "HideLegacyLogonScripts")}};
constexpr Tweak kHideLegacyLoginScripts = {
    .id = 230,
    .title = "Hide the Legacy Login Scripts",
    .description =
        "Runs login scripts that were written for Windows NT 4 and earlier without showing their command window. "
        "This looks tidier and keeps the current user from closing the window halfway.",
    .page = Page::Checks,
    .boxes = kLegacyLogin,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = kHiddenScriptsSource,
};

constexpr CheckBox kLogoff[] = {
    {.text = "Hide the Logoff Scripts .", .binding = PolicyDwordFlag(kPolicies, "HideLogoffScripts")}};
constexpr Tweak kHideLogoffScripts = {
    .id = 231,
    .title = "Hide the Logoff Scripts",
    .description =
        "Hides the window in which the logoff scripts of the current user run. Clear it while you look for a "
        "fault in a script and want to see its output.",
    .page = Page::Checks,
    .boxes = kLogoff,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = kHiddenScriptsSource,
};

constexpr CheckBox kLogin[] = {
    {.text = "Hide the Login Scripts .", .binding = PolicyDwordFlag(kPolicies, "HideLogonScripts")}};
constexpr Tweak kHideLoginScripts = {
    .id = 232,
    .title = "Hide the Login Scripts",
    .description =
        "The login scripts assigned to the current user by Group Policy run out of sight when this is checked. "
        "Show them to follow the progress of a slow script or to read its error messages.",
    .page = Page::Checks,
    .boxes = kLogin,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = kHiddenScriptsSource,
};

constexpr CheckBox kShutdown[] = {
    {.text = "Hide the Shutdown Scripts .", .binding = PolicyDwordFlag(kMachinePolicies, "HideShutdownScripts")}};
constexpr Tweak kHideShutdownScripts = {
    .id = 233,
    .title = "Hide the Shutdown Scripts",
    .description =
        "Shutdown scripts run before the computer goes off; when checked, users do not see them work. The setting "
        "holds for the whole computer.",
    .page = Page::Checks,
    .boxes = kShutdown,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = kHiddenScriptsSource,
};

constexpr CheckBox kStartup[] = {
    {.text = "Hide the Startup Scripts .", .binding = PolicyDwordFlag(kMachinePolicies, "HideStartupScripts")}};
constexpr Tweak kHideStartupScripts = {
    .id = 234,
    .title = "Hide the Startup Scripts",
    .description =
        "Keeps the window of startup scripts, which run before anybody logs in, off the screen. It applies to the "
        "whole computer; an administrator testing a script will want to see it.",
    .page = Page::Checks,
    .boxes = kStartup,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = kHiddenScriptsSource,
};

// Is the policy, 236 the setting that the policy overrides.
constexpr auto kLoginPolicy =
    ScopePair("Run Login Scripts Synchronously (Current User).", "Run Login Scripts Synchronously (All Users).",
              PolicyDwordFlag(kPolicies, "RunLogonScriptSync"));
constexpr Tweak kRunLoginScriptsSynchronously = {
    .id = 235,
    .title = "Run Login Scripts Synchronously",
    .description =
        "Makes the desktop wait until the login scripts have finished, so that drives and variables which they "
        "set are there when programs start. This is the policy, for the current user and for all users, and it "
        "overrides the ordinary setting.",
    .page = Page::Checks,
    .boxes = kLoginPolicy,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = kLoginScriptSource,
};

constexpr auto kLoginSetting =
    ScopePair("Run the Login Scripts Synchronously (Current User).", "Run the Login Scripts Synchronously (All Users).",
              DwordCheckState{.key = {Root::CurrentUser, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon"},
                              .name = "RunLogonScriptSync"});
constexpr Tweak kRunLoginScriptsSynchronouslyTweak = {
    .id = 236,
    .title = "Run the Login Scripts Synchronously",
    .description =
        "Lets login scripts finish before the desktop appears. This is the ordinary user setting of the logon "
        "process, for the current user and for the computer; the policy called 'Run Login Scripts Synchronously' "
        "overrides it.",
    .page = Page::Checks,
    .boxes = kLoginSetting,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = kLoginScriptSource,
};

// The value means "synchronously", the box the opposite.
constexpr CheckBox kStartupAtOnce[] = {{.text = "Run the Startup Scripts Asynchronously .",
                                        .binding = DwordFlagInverted(kMachinePolicies, "RunStartupScriptSync")}};
constexpr Tweak kRunStartupScriptsAsynchronously = {
    .id = 237,
    .title = "Run the Startup Scripts Asynchronously",
    .description =
        "Starts all startup scripts at the same time instead of one after the other, which can shorten the boot. "
        "Leave it off if one script relies on the result of another; unchecked, each is waited for.",
    .page = Page::Checks,
    .boxes = kStartupAtOnce,
    .note = kRestartWindowsNote,
    .gate = kGate2000Xp,
    .source = "Windows 2000 registry reference, RunStartupScriptSync; the policy for running startup scripts "
              "asynchronously stores 0 when it is enabled",
};

constexpr Tweak kWindowsScriptHostSettings = {
    .id = 238,
    .title = "Windows Script Host Settings",
    .description =
        "General settings of Windows Script Host, such as whether scripts may run at all on this computer, after "
        "how many seconds a running script is stopped, and whether the banner is printed by scripts in a command "
        "prompt.",
};

constexpr const Tweak* kRows[] = {&kScripts, &kChangeDefaultActionScriptFiles,
                                  &kConfigureWindowsScriptSignatureSecurity, &kHideLegacyLoginScripts,
                                  &kHideLogoffScripts, &kHideLoginScripts, &kHideShutdownScripts, &kHideStartupScripts,
                                  &kRunLoginScriptsSynchronously, &kRunLoginScriptsSynchronouslyTweak,
                                  &kRunStartupScriptsAsynchronously, &kWindowsScriptHostSettings};

}  // namespace

constinit decltype(kScriptsUnit) kScriptsUnit{kRows};

}  // namespace korvane
