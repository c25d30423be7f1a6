// The Login and Authentication tweaks: what the login screen shows, who may log
// in without typing a password, and how a locked computer is unlocked.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kLoginAndAuthenticationRows[] = {
    {156}, {159}, {160}, {161}, {163}, {164}, {166}, {167}, {169}, {170}, {171}, {173}, {176},
};
constexpr Overview kLoginAndAuthenticationOverview{.rows = kLoginAndAuthenticationRows};

constexpr Tweak kTweaks[] = {
    {.id = 155,
     .title = "Login and Authentication",
     .description = "Login and Authentication Enhancements",
     .image = 17,
     .treeParent = kTreeRoot,
     .page = Page::Category,
     .overview = &kLoginAndAuthenticationOverview},
    {.id = 156,
     .title = "Allow Fast User Switching",
     .description =
         "With Fast User Switching another person can log in while your programs keep running in the background. "
         "Turn it off on a computer that must not hold several sessions at once, for example to save memory. The "
         "Welcome screen has to be in use.",
     .treeParent = 155},
    {.id = 157,
     .title = "Automatic Login for Novell Netware Clients",
     .description =
         "Logs a computer that runs the client for Novell NetWare in to its server without asking, using a stored "
         "user name and password. Convenient for unattended machines, but everybody who can start the computer "
         "gets that account."},
    {.id = 158,
     .title = "Automatic Login to Windows NT 2000 and XP",
     .description =
         "Logs the given user in at startup without a login dialog, for computers that only one person uses. The "
         "password is kept as plain text where others may read it. Clear 'Reset after reboot?' to force the "
         "automatic login again after every logoff as well."},
    {.id = 159,
     .title = "Change the Default Login Screen Saver",
     .description =
         "Chooses the screen saver that runs while nobody is logged in, and after how many seconds it starts. It "
         "belongs to the login screen only; the screen savers that users have chosen for themselves stay as they "
         "are.",
     .treeParent = 155,
     .treeText = "Change the Default login Screen Saver"},
    {.id = 160,
     .title = "Change the Login Window",
     .description =
         "Windows XP can greet users with the friendly Welcome screen and its pictures or with the classic dialog, "
         "where user name and password are typed. Classic mode does not show to passers-by which accounts exist.",
     .treeParent = 155},
    {.id = 161,
     .title = "Change the Login Screen Background Color",
     .description =
         "Paints the background of the screen behind the login dialog in a color of your choice. Applying a color "
         "also removes the wallpaper of the login screen, because a picture would cover it.",
     .treeParent = 155,
     .treeText = "Change the login Screen Background Color"},
    {.id = 162,
     .title = "Change the Login Screen Wallpaper",
     .description =
         "Puts a bitmap on the desktop behind the login dialog, repeated as tiles all over the screen if you wish, "
         "for example to show a company logo or a contact address. The background pattern of the login screen is "
         "removed."},
    {.id = 163,
     .title = "Customize the Windows Login and Security Dialog Titles",
     .description =
         "Adds a text of your own to the title of the login dialog and of the Windows Security dialog, such as the "
         "name of the company or of the computer. An empty field leaves the present title alone.",
     .treeParent = 155,
     .treeText = "Customize the Windows login and Security Dialog Titles"},
    {.id = 164,
     .title = "Disable Passport Balloon Reminder",
     .description =
         "Windows XP keeps reminding each new user with a balloon to add a Passport to the account. When checked, "
         "the reminder counter of the current user is set to ten, so that Windows takes the matter as settled; "
         "unchecked, it begins at one again.",
     .treeParent = 155},
    {.id = 165,
     .title = "Disable the Auto Login Shift Override Feature",
     .description =
         "On a computer that logs in automatically, holding down the Shift key during startup lets somebody log in "
         "under another name. Check this to have the key ignored, so that the automatic login cannot be passed by."},
    {.id = 166,
     .title = "Disable the Unread Mail Message on the Welcome Screen",
     .description =
         "The Welcome screen tells how many unread mail messages wait for an account. When checked, your account "
         "no longer shows that line; unchecked, messages of the last three days are counted again.",
     .treeParent = 155},
    {.id = 167,
     .title = "Enable Shutdown from Authentication Dialog Box",
     .description =
         "Decides whether the Shut Down button of the login dialog works before anybody has logged in. Handy for a "
         "workstation; leave it off where only logged-in users may switch the computer off.",
     .treeParent = 155},
    {.id = 168,
     .title = "Force the Use of Automatic Login",
     .description =
         "When the automatic login is set up, this option logs the same user in again right after every logoff. "
         "Useful for public terminals that must never stay at the login screen."},
    {.id = 169,
     .title = "Hide the Last User Name",
     .description =
         "The login dialog normally offers the name of the person who logged in last. Hide it so that an attacker "
         "has to guess the user name as well as the password; everybody then types both.",
     .treeParent = 155},
    {.id = 170,
     .title = "Hide the welcome Screen",
     .description =
         "Removes the Welcome to Windows window, which offers a tour and registration, for all users. This applies "
         "to Windows 2000 and its Getting Started window, not to the Welcome screen of Windows XP.",
     .treeParent = 155},
    {.id = 171,
     .title = "Legal Notice Dialog Box Before Login",
     .description =
         "Shows a message box with your title and text before each login, which every user must confirm. Companies "
         "use it to state who may use the computer. Leave both fields empty to remove the message.",
     .treeParent = 155,
     .treeText = "Legal Notice Dialog Box Before login"},
    {.id = 172,
     .title = "Limit the Number of Automatic Logins",
     .description =
         "Sets how often Windows may still log in automatically. The number falls by one at each startup, and at "
         "zero the automatic login ends; this helps when an installation needs a fixed number of restarts. Enter 0 "
         "or nothing to remove the limit."},
    {.id = 173,
     .title = "Modify the Number of Cached Logins",
     .description =
         "Windows remembers the last domain users who logged in, so that they can log in again while no domain "
         "controller can be reached. Choose how many it remembers: 0 is the most secure, larger numbers suit "
         "portables that are shared.",
     .treeParent = 155},
    {.id = 174,
     .title = "Show Administrator on the Welcom Screen",  // spelled so on purpose
     .description =
         "The Windows XP Welcome screen leaves out the built-in Administrator account once other accounts exist. "
         "This setting lists it there beside the others, for people who often have to work as Administrator."},
    {.id = 175,
     .title = "Show Options on Login Dialog Box",
     .description =
         "Opens the login dialog with its lower part unfolded, where the domain is chosen and the computer is shut "
         "down, instead of hiding that part behind the Options button."},
    {.id = 176,
     .title = "Use Active Authentication for Unlock and Screen Saver",
     .description =
         "When a locked computer is unlocked, Windows normally checks the password against the copy it has cached. "
         "Online Authentication asks the domain controller each time, so that a blocked account or a changed "
         "password takes effect at once.",
     .treeParent = 155},
};

}  // namespace

constinit const Unit kLoginUnit{kTweaks};

}  // namespace korvane
