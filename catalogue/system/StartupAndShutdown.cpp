// The Start up and Shutdown tweaks: what happens between power-on and the
// desktop, after a stop error, and to programs that hang at shutdown.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kStartUpAndShutdownRows[] = {{213}, {214}, {215}, {219}, {220}, {225}};
constexpr Overview kStartUpAndShutdownOverview{.rows = kStartUpAndShutdownRows};

constexpr Tweak kTweaks[] = {
    {.id = 211,
     .title = "Start up and Shutdown",
     .description = "Enhancements for System Starup Shutdown",  // spelled so on purpose
     .image = 21,
     .treeParent = kTreeRoot,
     .page = Page::Category,
     .overview = &kStartUpAndShutdownOverview},
    {.id = 212,
     .title = "Allow Portable to Undock Before Login",
     .description =
         "Allows a portable computer to be taken out of its docking station before anybody has logged in. When not "
         "allowed, a user must log in and undock with the command on the Start menu."},
    {.id = 213,
     .title = "Automatically Ending Hung Applications",
     .description =
         "Programs that do not answer at shutdown normally hold it up with a dialog. Here you can have them ended "
         "automatically and choose how long Windows waits for them. Both are set for the current user and for the "
         "login desktop.",
     .treeParent = 211},
    {.id = 214,
     .title = "Automatically Reboot on the'Blue Screen of Death'",  // spelled so on purpose
     .description =
         "After a stop error, the 'blue screen', Windows can restart by itself instead of waiting for someone to "
         "press a key. Good for servers that run unattended; clear it when you need time to read the error text.",
     .treeParent = 211},
    {.id = 215,
     .title = "Clear The Page File at System Shutdown",
     .description =
         "Overwrites the page file with zeros at every shutdown, so that passwords or documents left over in it "
         "cannot be read by starting another system. Shutting down takes longer, the more so the larger the file "
         "is.",
     .treeParent = 211},
    {.id = 216,
     .title = "Disable Ability to Skip Startup Programs",
     .description =
         "Users can hold down the Shift key while logging in to skip the programs that start automatically. When "
         "checked, the Winlogon value IgnoreShiftOveride, spelled so, is set to 1 to prevent that; unchecked sets "
         "it to 0."},
    {.id = 217,
     .title = "Disable Automatic Modem Connections at Startup",
     .description =
         "Try this when the modem dials by itself as soon as Windows starts. Checked, it sets the COM value "
         "EnableRemoteConnect to N, so that components on other computers are no longer called; programs that "
         "depend on this may stop working."},
    {.id = 218,
     .title = "Disable Save Settings at Exit",
     .description =
         "Explorer saves the position of icons, open folder windows and the taskbar when a user logs off. Check "
         "this to discard such changes, so that each session begins with the same desktop. For the current user, "
         "for all users or both."},
    {.id = 219,
     .title = "Disable the Creation of Last known Good",
     .description =
         "Keeps Windows from declaring a startup successful after login, so that the Last Known Good configuration "
         "is not replaced. Of use when another program is to judge the startup, or while a doubtful driver is "
         "being tried out.",
     .treeParent = 211},
    {.id = 220,
     .title = "Enable Shutdown Event Tracker",
     .description =
         "Asks for a reason whenever the computer is shut down or restarted and records it in the event log. "
         "Servers profit from the record; on a workstation of Windows XP the question is usually switched off.",
     .treeParent = 211},
    {.id = 221,
     .title = "Manage the Windows Prefetcher Service",
     .description =
         "Windows XP notes which files are loaded at boot and when programs start, and reads them ahead the next "
         "time. Choose whether this is done for programs, for booting, for both or not at all; both is usually the "
         "fastest."},
    {.id = 222,
     .title = "Modify the Duration that the Startup List is Displayed",
     .description =
         "Sets how many seconds the list of installed operating systems stays on the screen at startup before the "
         "default one is started. A short time speeds up the boot, a longer one leaves time to choose."},
    {.id = 223,
     .title = "Power the Computer Off After Shutdown",
     .description =
         "Turns the power off as soon as Windows has shut down, on hardware that can do so, instead of showing "
         "that it is now safe to switch off. Clear it if the computer restarts or hangs at that point."},
    {.id = 224,
     .title = "Read Environment Variables in Autoexec.bat File",
     .description =
         "Windows can read the SET and PATH lines of Autoexec.bat at login and add them to the environment of the "
         "user. Some old DOS programs need these variables; without such programs it can be turned off."},
    {.id = 225,
     .title = "Specify the Response Time for Hung Applications",
     .description =
         "Sets how many milliseconds a program may go without reacting before Windows counts it as hung. A longer "
         "time spares programs that are merely busy, a shorter one lets you end frozen ones sooner. Set for the "
         "current user and for the login desktop; a number is required.",
     .treeParent = 211},
};

}  // namespace

constinit const Unit kStartupAndShutdownUnit{kTweaks};

}  // namespace korvane
