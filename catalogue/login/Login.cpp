// The Login and Authentication tweaks: what the login screen shows and how a
// locked computer is unlocked.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "pages/PageContext.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

constexpr KeyPath kWinlogon{Root::LocalMachine, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon"};
// The desktop of the login screen.
constexpr KeyPath kLoginDesktop{Root::Users, ".DEFAULT\\Control Panel\\Desktop"};
constexpr std::string_view kWallpaper = "Wallpaper";
constexpr std::string_view kNone = "(None)";

constexpr Tweak kLoginAuthentication = {
    .id = 155,
    .title = "Login and Authentication",
    .description = "Login and Authentication Enhancements",
    .category = true,
    .image = 17,
    .treeParent = kTreeRoot,
    .page = Page::Category,
};

constexpr CheckBox kFastSwitching[] = {
    {.text = "Enable Fast User Switching .",
     .binding = DwordCheckState{.key = kWinlogon, .name = "AllowMultipleTSSessions"}}};
constexpr Tweak kAllowFastUserSwitching = {
    .id = 156,
    .title = "Allow Fast User Switching",
    .description =
        "With Fast User Switching another person can log in while your programs keep running in the background. "
        "Turn it off on a computer that must not hold several sessions at once, for example to save memory. The "
        "Welcome screen has to be in use.",
    .treeParent = 155,
    .page = Page::Checks,
    .boxes = kFastSwitching,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr NumberEntry kLoginWindows[] = {{"Classic Mode", 0}, {"Welcome Screen", 1}};
constexpr Choice kLoginWindow[] = {
    {.label = "Login Window Type:",
     .binding = DwordChoice{.key = kWinlogon, .name = "LogonType", .entries = kLoginWindows}}};
constexpr Tweak kChangeLoginWindow = {
    .id = 160,
    .title = "Change the Login Window",
    .description =
        "Chooses how users log in to Windows XP: on the Welcome screen with its pictures, or in the classic dialog, "
        "where they type user name and password and which does not show what accounts exist. Choose an entry before "
        "you apply; without one, 0xFFFFFFFF is stored.",
    .treeParent = 155,
    .page = Page::CheckCombos,
    .choices = kLoginWindow,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

// A wallpaper would cover the colour, so every apply removes it.
constexpr KeyPath kDesktopColours{Root::Users, ".DEFAULT\\Control Panel\\Colors"};
constexpr ColourField kBackground{
    .label = "Login Screen Color (RGB):",
    .binding = ColourText{.key = kWinlogon.writtenAfter(kDesktopColours), .name = "Background"}};
constexpr FixedText kNoWallpaper[] = {{kLoginDesktop, kWallpaper, kNone}};
constexpr Tweak kChangeLoginScreenBackgroundColor = {
    .id = 161,
    .title = "Change the Login Screen Background Color",
    .description =
        "Paints the screen behind the login dialog in the color you choose. Applying also removes the wallpaper of "
        "the login screen, because a picture would cover the color. Unless a named color is stored, the list starts "
        "with a random one, so choose yours before you apply.",
    .treeParent = 155,
    .treeText = "Change the login Screen Background Color",
    .page = Page::CheckCombos,
    .colour = &kBackground,
    .note = kRestartWindowsNoteWithoutStop,
    .writesFirst = kNoWallpaper,
};

constexpr std::string_view kWallpaperNote = "Note:\n\tRestart Windows for the changes to take effect.";
// A pattern would show around the wallpaper, so every apply removes it.
constexpr Field kWallpaperField[] = {
    {.label = "Default Wallpaper(*.bmp):",
     .binding = StringValue{.key = kLoginDesktop, .name = kWallpaper, .whenEmpty = WhenEmpty::WritesNothing},
     .picker = Picker::File}};
constexpr CheckBox kTileWallpaper[] = {
    {.text = "Tile Wallpaper.", .binding = StringFlag{.key = kLoginDesktop, .name = "TileWallpaper"}}};
constexpr FixedText kNoPattern[] = {{kLoginDesktop, "Pattern", kNone}};
constexpr int kWallpaperThenTiling[] = {IDC_EDIT1, IDC_CHECK1};
constexpr Tweak kChangeLoginScreenWallpaper = {
    .id = 162,
    .title = "Change the Login Screen Wallpaper",
    .description =
        "Puts a bitmap on the desktop behind the login dialog, repeated as tiles all over the screen if you wish, "
        "for example to show a company logo or a contact address. The background pattern of the login screen is "
        "removed.",
    .page = Page::CheckFields,
    .boxes = kTileWallpaper,
    .fields = kWallpaperField,
    .note = kWallpaperNote,
    .writesLast = kNoPattern,
    .writeOrder = kWallpaperThenTiling,
};

constexpr Field kDialogTitle[] = {
    {.label = "Dialog Title:",
     .binding = StringValue{.key = kWinlogon, .name = "Welcome", .whenEmpty = WhenEmpty::WritesNothing}}};
constexpr Tweak kCustomizeWindowsLoginSecurityDialogTitles = {
    .id = 163,
    .title = "Customize the Windows Login and Security Dialog Titles",
    .description =
        "Adds a text of your own to the title of the login dialog and of the Windows Security dialog, such as the "
        "name of the company or of the computer. An empty field leaves the present title alone.",
    .treeParent = 155,
    .treeText = "Customize the Windows login and Security Dialog Titles",
    .page = Page::CheckFields,
    .fields = kDialogTitle,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
};

// The number of reminders so far; Windows stops after the tenth.
constexpr std::byte kTenReminders[] = {std::byte{10}, std::byte{0}, std::byte{0}, std::byte{0}};
constexpr std::byte kOneReminder[] = {std::byte{1}, std::byte{0}, std::byte{0}, std::byte{0}};
constexpr CheckBox kPassport[] = {
    {.text = "Disable Passport Balloon Reminder.",
     .binding = BinaryFlag{.key = {Root::CurrentUser, "Software\\Microsoft\\MessengerService"},
                           .name = "PassportBalloon",
                           .checked = kTenReminders,
                           .cleared = kOneReminder}}};
constexpr Tweak kDisablePassportBalloonReminder = {
    .id = 164,
    .title = "Disable Passport Balloon Reminder",
    .description =
        "Windows XP shows new users a balloon that suggests adding a Passport to the account, at most ten times. "
        "Checking the box sets the count for the current user to ten, so that the balloon no longer appears; clearing "
        "it sets the count to one.",
    .treeParent = 155,
    .page = Page::Checks,
    .boxes = kPassport,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr KeyPath kUnreadMailKey{Root::CurrentUser, {}, "Software\\Microsoft\\Windows\\CurrentVersion\\UnreadMail"};
constexpr CheckBox kUnreadMail[] = {
    {.text = "Disable the Unread Mail Message on the Welcome Screen .",
     .binding = DwordFlag{.key = kUnreadMailKey, .name = "MessageExpiryDays", .checked = 0, .cleared = 3}}};
constexpr Tweak kDisableUnreadMailMessageWelcomeScreen = {
    .id = 166,
    .title = "Disable the Unread Mail Message on the Welcome Screen",
    .description =
        "The Welcome screen tells how many unread mail messages wait for an account. When checked, your account "
        "no longer shows that line; unchecked, messages of the last three days are counted again.",
    .treeParent = 155,
    .page = Page::Checks,
    .boxes = kUnreadMail,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr CheckBox kShutdown[] = {
    {.text = "Enable Shutdown from Authentication Dialog Box .",
     .binding =
         DwordCheckState{.key = {Root::LocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\system"},
                         .name = "ShutdownWithoutLogon"}}};
constexpr Tweak kEnableShutdownAuthenticationDialogBox = {
    .id = 167,
    .title = "Enable Shutdown from Authentication Dialog Box",
    .description =
        "Decides whether the Shut Down button of the login dialog works before anybody has logged in. Handy for a "
        "workstation; leave it off where only logged-in users may switch the computer off.",
    .treeParent = 155,
    .page = Page::Checks,
    .boxes = kShutdown,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
};

// The value depends on the version of Windows. Intended: Windows 95 is refused, but on an unknown version
// nothing is written and no alert is shown.
constexpr std::string_view kDontDisplayLastUser = "DontDisplayLastUserName";
constexpr VersionedBinding kLastUserPlaces[] = {
    {kWinNT4, DwordCheckState{.key = kWinlogon, .name = kDontDisplayLastUser}},
    {kWin2000 | kWinXP,
     DwordCheckState{.key = {Root::LocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System"},
                     .name = kDontDisplayLastUser}},
    {kWin98 | kWinMe, StringFlag{.key = {Root::LocalMachine, "Network\\Logon"}, .name = "DontShowLastUser"}},
};
constexpr CheckBox kLastUserBox[] = {{.text = "Do not display the last username.", .onVersions = kLastUserPlaces}};
constexpr Tweak kHideLastUserName = {
    .id = 169,
    .title = "Hide the Last User Name",
    .description =
        "The login dialog normally offers the name of the person who logged in last. Hide it so that an attacker "
        "has to guess the user name as well as the password; everybody then types both.",
    .treeParent = 155,
    .page = Page::Checks,
    .boxes = kLastUserBox,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNot95,
};

constexpr CheckBox kWelcomeScreen[] = {
    {.text = "Do not display the Welcome Screen .",
     .binding = DwordCheckState{
         .key = {Root::LocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer"},
         .name = "NoWelcomeScreen"}}};
constexpr Tweak kHideWelcomeScreen = {
    .id = 170,
    .title = "Hide the welcome Screen",
    .description =
        "Removes the Welcome to Windows window, which offers a tour and registration, for all users. This applies "
        "to Windows 2000 and its Getting Started window, not to the Welcome screen of Windows XP.",
    .treeParent = 155,
    .page = Page::Checks,
    .boxes = kWelcomeScreen,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000,
};

constexpr std::string_view kLegalNoticeNote =
    "Note:\n\tRestart Windows, and the next time you boot up you should be presented with the dialog box before "
    "logging "
    "on.";
// Windows NT 4, 2000 and XP have one key; any other version, known or not, has the other.
constexpr KeyPath kLegalNoticeKey{.root = Root::LocalMachine,
                                  .path = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Winlogon",
                                  .otherOn = kWindowsNT,
                                  .otherPath = kWinlogon.path};
constexpr Field kLegalNotice[] = {
    {.label = "Notice Title:", .binding = StringValue{.key = kLegalNoticeKey, .name = "LegalNoticeCaption"}},
    {.label = "Notice Text:", .binding = StringValue{.key = kLegalNoticeKey, .name = "LegalNoticeText"}}};
constexpr int kTextThenTitle[] = {IDC_EDIT2, IDC_EDIT1};
constexpr Tweak kLegalNoticeDialogBoxBeforeLogin = {
    .id = 171,
    .title = "Legal Notice Dialog Box Before Login",
    .description =
        "Shows a message box with your title and text before each login; every user must confirm it. Companies use it "
        "to state who may use the computer. An empty field deletes its value. A stored text of more than 201 "
        "characters is not shown here, and applying the page then deletes it.",
    .treeParent = 155,
    .treeText = "Legal Notice Dialog Box Before login",
    .page = Page::CheckFields,
    .fields = kLegalNotice,
    .note = kLegalNoticeNote,
    .writeOrder = kTextThenTitle,
};

constexpr Choice kCachedLogins[] = {
    {.label = "Number of Cached Logins\n(0=disabled, 10=default):",
     .binding = StringChoice{.key = kWinlogon, .name = "CachedLogonsCount", .range = {.first = 0, .last = 50}}}};
constexpr Tweak kModifyNumberCachedLogins = {
    .id = 173,
    .title = "Modify the Number of Cached Logins",
    .description =
        "Windows remembers the last domain users who logged in, so that they can log in while no domain controller "
        "can be reached. Choose how many: 0 is the most secure, larger numbers suit shared portables. Pick an entry "
        "of the list: a typed number does not count, and without an entry -1 is stored.",
    .treeParent = 155,
    .page = Page::CheckCombos,
    .choices = kCachedLogins,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr Tweak kShowAdministratorWelcomScreen = {
    .id = 174,
    .title = "Show Administrator on the Welcom Screen",  // Intended: spelled so.
    .description =
        "The Windows XP Welcome screen leaves out the built-in Administrator account once other accounts exist. "
        "This setting lists it there beside the others, for people who often have to work as Administrator.",
};

constexpr CheckBox kLoginOptions[] = {{.text = "Display Options on Login Dialog Box .",
                                       .binding = DwordCheckState{.key = kWinlogon, .name = "ShowLogonOptions"}}};
constexpr Tweak kShowOptionsLoginDialogBox = {
    .id = 175,
    .title = "Show Options on Login Dialog Box",
    .description =
        "Opens the login dialog with its lower part unfolded, where the domain is chosen and the computer is shut "
        "down, instead of hiding that part behind the Options button.",
    .page = Page::Checks,
    .boxes = kLoginOptions,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr std::string_view kUnlockNote =
    "Note:\n\tyou may need to restart or log out of Windows for the change to take effect.\n"
    "For Windows XP this behavior only happens when you have Fast User Switching disabled.";
constexpr NumberEntry kAuthentications[] = {{"Default Authentication", 0}, {"Online Authentication", 1}};
constexpr Choice kAuthentication[] = {
    {.label = "Authentication mode:",
     .binding = DwordChoice{.key = kWinlogon, .name = "ForceUnlockLogon", .entries = kAuthentications, .initial = 0}}};
constexpr Tweak kUseActiveAuthenticationUnlockScreenSaver = {
    .id = 176,
    .title = "Use Active Authentication for Unlock and Screen Saver",
    .description =
        "When a locked computer is unlocked, Windows normally checks the password against the copy it has cached. "
        "Online Authentication asks the domain controller each time, so that a blocked account or a changed "
        "password takes effect at once.",
    .treeParent = 155,
    .page = Page::CheckCombos,
    .choices = kAuthentication,
    .note = kUnlockNote,
    .gate = kGateNt,
};

// The box enables the fields, but they are written even if it is cleared.
constexpr std::string_view kSaverActive = "ScreenSaveActive";
constexpr std::string_view kSaverProgram = "SCRNSAVE.EXE";
constexpr CheckBox kLoginSaverBox[] = {{.text = "Enable Login Screen Saver."}};
constexpr Field kLoginSaverFields[] = {
    {.label = "Screen Saver(.exe):",
     .binding = StringValue{.key = kLoginDesktop, .name = kSaverProgram},
     .picker = Picker::File},
    {.label = "Screen Saver TimeOut:", .binding = StringValue{.key = kLoginDesktop, .name = "ScreenSaveTimeOut"}}};
void showLoginSaver(PageContext& context) {
    const auto value = context.read(kLoginDesktop, kSaverActive);
    const int state = value ? decimalNumber(value->text()) : 0;
    context.page.setCheck(IDC_CHECK1, static_cast<std::uint32_t>(state));
    for (const int control : {IDC_EDIT1, IDC_EDIT2, IDC_BROWSE1}) {
        context.page.enableControl(control, state == 1);
    }
}

// The login screen looks for the program in the system folder, so that folder's path is removed; in any other letter
// case it stays.
std::string withoutSystemFolder(PageContext& context, std::string program) {
    const std::string windows = context.platform.folders.windowsFolder();
    if (!windows.empty()) {
        replaceAll(program, windows + "\\System32\\", "");
        replaceAll(program, windows + "\\system32\\", "");
    }
    replaceAll(program, "\"", "");
    return program;
}

void applyLoginSaver(PageContext& context) {
    Registry& registry = context.platform.registry;
    const OpenedKey key = context.openForWriting(kLoginDesktop);
    if (!key) {
        return;
    }
    writeText(registry, key, kSaverActive, context.checked(IDC_CHECK1) ? "1" : "0");
    const std::string program = withoutSystemFolder(context, context.page.text(IDC_EDIT1));
    if (program.empty()) {
        context.remove(kLoginDesktop, kSaverProgram);
    } else {
        writeText(registry, key, kSaverProgram, program);
    }
    applyField(context, IDC_EDIT2, kLoginSaverFields[1].binding);
}

constexpr Tweak kChangeDefaultLoginScreenSaver = {
    .id = 159,
    .title = "Change the Default Login Screen Saver",
    .description =
        "Chooses the screen saver that runs while nobody is logged in, and after how many seconds it starts. It "
        "belongs to the login screen only; the screen savers that users have chosen for themselves stay as they "
        "are.",
    .treeParent = 155,
    .treeText = "Change the Default login Screen Saver",
    .page = Page::CheckFields,
    .boxes = kLoginSaverBox,
    .fields = kLoginSaverFields,
    .gate = kGateNt,
    .boxEnablesFields = true,
    .show = showLoginSaver,
    .apply = applyLoginSaver,
    .registry = "The box stands for `ScreenSaveActive` (REG_SZ) in `HKU\\.DEFAULT\\Control Panel\\Desktop` (opened): "
                "checked writes `1`, cleared `0`. From the program's path the Windows system folder and double "
                "quotation marks are removed before it is written.",
};

constexpr const Tweak* kRows[] = {&kLoginAuthentication, &kAllowFastUserSwitching, &kChangeDefaultLoginScreenSaver,
                                  &kChangeLoginWindow, &kChangeLoginScreenBackgroundColor, &kChangeLoginScreenWallpaper,
                                  &kCustomizeWindowsLoginSecurityDialogTitles, &kDisablePassportBalloonReminder,
                                  &kDisableUnreadMailMessageWelcomeScreen, &kEnableShutdownAuthenticationDialogBox,
                                  &kHideLastUserName, &kHideWelcomeScreen, &kLegalNoticeDialogBoxBeforeLogin,
                                  &kModifyNumberCachedLogins, &kShowAdministratorWelcomScreen,
                                  &kShowOptionsLoginDialogBox, &kUseActiveAuthenticationUnlockScreenSaver};

}  // namespace

constinit decltype(kLoginUnit) kLoginUnit{kRows};

}  // namespace korvane
