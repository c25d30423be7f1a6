// The Scripts tweaks: whether login, logoff, startup and shutdown scripts are
// seen and waited for, and how far script files are trusted. Not in the tree.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kScriptsRows[] = {{228}, {229}, {230}, {232}, {231}, {233}, {234}, {235}, {236}, {237}};
constexpr Overview kScriptsOverview{.rows = kScriptsRows};

constexpr Tweak kTweaks[] = {
    {.id = 227,
     .title = "Scripts",
     .description = "Enhancements and Settings for System Scripts",
     .image = 23,
     .page = Page::Category,
     .overview = &kScriptsOverview},
    {.id = 228,
     .title = "Change the Default Action For Script files",
     .description =
         "Decides what a double click does to VBScript and JScript files, for all users: run the script, open it "
         "for editing, or run it in a command prompt. It sets the default verb of the file classes VBSFile and "
         "JSFile; Edit guards against scripts that come by mail."},
    {.id = 229,
     .title = "Configure Windows Script Signature Security",
     .description =
         "Tells Windows Script Host whether to run every script, to ask before running one without a trusted "
         "signature, or to refuse it. There is one policy for the current user and one for all users; software "
         "restriction policies of Windows XP can take precedence."},
    {.id = 230,
     .title = "Hide the Legacy Login Scripts",
     .description =
         "Runs login scripts that were written for Windows NT 4 and earlier without showing their command window. "
         "This looks tidier and keeps the current user from closing the window halfway."},
    {.id = 231,
     .title = "Hide the Logoff Scripts",
     .description =
         "Hides the window in which the logoff scripts of the current user run. Clear it while you look for a "
         "fault in a script and want to see its output."},
    {.id = 232,
     .title = "Hide the Login Scripts",
     .description =
         "The login scripts assigned to the current user by Group Policy run out of sight when this is checked. "
         "Show them to follow the progress of a slow script or to read its error messages."},
    {.id = 233,
     .title = "Hide the Shutdown Scripts",
     .description =
         "Shutdown scripts run before the computer goes off; when checked, users do not see them work. The setting "
         "holds for the whole computer."},
    {.id = 234,
     .title = "Hide the Startup Scripts",
     .description =
         "Keeps the window of startup scripts, which run before anybody logs in, off the screen. It applies to the "
         "whole computer; an administrator testing a script will want to see it."},
    {.id = 235,
     .title = "Run Login Scripts Synchronously",
     .description =
         "Makes the desktop wait until the login scripts have finished, so that drives and variables which they "
         "set are there when programs start. This is the policy, for the current user and for all users, and it "
         "overrides the ordinary setting."},
    {.id = 236,
     .title = "Run the Login Scripts Synchronously",
     .description =
         "Lets login scripts finish before the desktop appears. This is the ordinary user setting of the logon "
         "process, for the current user and for the computer; the policy called 'Run Login Scripts Synchronously' "
         "overrides it."},
    {.id = 237,
     .title = "Run the Startup Scripts Asynchronously",
     .description =
         "Starts all startup scripts at the same time instead of one after the other, which can shorten the boot. "
         "Leave it off if one script relies on the result of another; unchecked, each is waited for."},
    {.id = 238,
     .title = "Windows Script Host Settings",
     .description =
         "General settings of Windows Script Host, such as whether scripts may run at all on this computer, after "
         "how many seconds a running script is stopped, and whether the banner is printed by scripts in a command "
         "prompt."},
};

}  // namespace

constinit const Unit kScriptsUnit{kTweaks};

}  // namespace korvane
