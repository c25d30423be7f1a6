// Automatic login: who is logged in without a dialog, how often, and whether the
// user can prevent it.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "pages/PageContext.h"
#include "pages/PageLayout.h"
#include "res/ControlIds.h"

#include <iterator>

namespace korvane {
namespace {

constexpr KeyPath kWinlogon{Root::LocalMachine, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon"};
constexpr std::string_view kForceAutoLogon = "ForceAutoLogon";

constexpr Tweak kAutomaticLoginNovellNetwareClients = {
    .id = 157,
    .title = "Automatic Login for Novell Netware Clients",
    .description =
        "Logs a computer that runs the client for Novell NetWare in to its server without asking, using a stored "
        "user name and password. Convenient for unattended machines, but everybody who can start the computer "
        "gets that account.",
};

constexpr CheckBox kShiftOverride[] = {
    {.text = "Disable the Auto Login Shift Override Feature .",
     .binding = StringFlag{.key = kWinlogon, .name = "IgnoreShiftOverride", .clearedDeletes = true}}};
constexpr Tweak kDisableAutoLoginShiftOverrideFeature = {
    .id = 165,
    .title = "Disable the Auto Login Shift Override Feature",
    .description =
        "On a computer that logs in automatically, holding down the Shift key during startup lets somebody log in "
        "under another name. Check this to have the key ignored, so that the automatic login cannot be passed by.",
    .page = Page::Checks,
    .boxes = kShiftOverride,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
};

// Intended: a number here, the text "1" in 158.
constexpr CheckBox kForceAutoLogin[] = {
    {.text = "Force Auto-Login.", .binding = DwordCheckState{.key = kWinlogon, .name = kForceAutoLogon}}};
constexpr Tweak kForceUseAutomaticLogin = {
    .id = 168,
    .title = "Force the Use of Automatic Login",
    .description =
        "Logs the same user in again after every logoff, once automatic login is set up. Useful for public terminals "
        "that must never stay at the login screen. ForceAutoLogon is stored as a number here; 'Automatic Login to "
        "Windows NT 2000 and XP' stores it as a text, and does not recognize the number.",
    .page = Page::Checks,
    .boxes = kForceAutoLogin,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
};

// The second box is inverted: it is checked unless the value is "1", and checked deletes the value.
constexpr CheckBox kAutoLoginBoxes[] = {{.text = "Login automatically at system startup.",
                                         .binding = StringFlag{.key = kWinlogon, .name = "AutoAdminLogon"}},
                                        {.text = "Reset after reboot?"}};
constexpr Field kAutoLoginFields[] = {
    {.label = "UserName:", .binding = StringValue{.key = kWinlogon, .name = "DefaultUserName"}},
    {.label = "Password:", .binding = StringValue{.key = kWinlogon, .name = "DefaultPassword"}},
    {.label = "Domain(optional):", .binding = StringValue{.key = kWinlogon, .name = "DefaultDomainName"}}};
void showAutoLogin(PageContext& context) {
    const auto forced = context.read(kWinlogon, kForceAutoLogon);
    context.page.setCheck(IDC_CHECK2, forced && forced->text() == "1" ? 0 : 1);
}

void applyAutoLogin(PageContext& context) {
    applyCheck(context, IDC_CHECK1, kAutoLoginBoxes[0].binding);
    for (std::size_t i = std::size(kAutoLoginFields); i-- > 0;) {  // the domain first
        applyField(context, fieldControls(context.tweak, i).edit, kAutoLoginFields[i].binding);
    }
    if (context.checked(IDC_CHECK2)) {
        context.remove(kWinlogon, kForceAutoLogon);
    } else if (const OpenedKey key = context.openForWriting(kWinlogon)) {
        writeText(context.platform.registry, key, kForceAutoLogon, "1");
    }
}

constexpr Tweak kAutomaticLoginWindowsNt2000Xp = {
    .id = 158,
    .title = "Automatic Login to Windows NT 2000 and XP",
    .description =
        "Logs the given user in at startup without a login dialog. The password is stored as plain text, where others "
        "may read it. Clear 'Reset after reboot?' to log in again after every logoff too: that box stores "
        "ForceAutoLogon as the text 1, and does not recognize the number that 'Force the Use of Automatic Login' "
        "stores there.",
    .page = Page::CheckFields,
    .boxes = kAutoLoginBoxes,
    .fields = kAutoLoginFields,
    .gate = kGateNt,
    .show = showAutoLogin,
    .apply = applyAutoLogin,
    .registry = "'Reset after reboot?' stands for `ForceAutoLogon` (REG_SZ) in `HKLM\\SOFTWARE\\Microsoft\\Windows "
                "NT\\CurrentVersion\\Winlogon` (opened): checked deletes the value, cleared writes `1`. The box is "
                "shown checked unless the value is `1`.",
};

// Stored as REG_DWORD on Windows XP and as REG_SZ before; both are shown as a number.
constexpr std::string_view kAutoLogonCount = "AutoLogonCount";
constexpr Field kAutoLoginCount[] = {{.label = "Number of Automatic Logins:"}};
void showAutoLoginCount(PageContext& context) {
    if (const auto value = context.read(kWinlogon, kAutoLogonCount)) {
        const int count =
            value->type == ValueType::Sz ? decimalNumber(value->text()) : static_cast<int>(value->number());
        context.page.setText(IDC_EDIT1, std::to_string(count));
    }
}

void applyAutoLoginCount(PageContext& context) {
    Registry& registry = context.platform.registry;
    const std::string text = context.page.text(IDC_EDIT1);
    const int count = decimalNumber(text);
    if (count == 0) {
        context.remove(kWinlogon, kAutoLogonCount);
    } else if (const OpenedKey key = context.openForWriting(kWinlogon)) {
        if (context.version.IsWinXP()) {
            writeNumber(registry, key, kAutoLogonCount, static_cast<std::uint32_t>(count));
        } else {
            writeText(registry, key, kAutoLogonCount, text);
        }
    }
}

constexpr Tweak kLimitNumberAutomaticLogins = {
    .id = 172,
    .title = "Limit the Number of Automatic Logins",
    .description =
        "Sets how often Windows may still log in automatically. The number falls by one at each startup, and at "
        "zero the automatic login ends; this helps when an installation needs a fixed number of restarts. Enter 0 "
        "or nothing to remove the limit.",
    .page = Page::CheckFields,
    .fields = kAutoLoginCount,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateNt,
    .show = showAutoLoginCount,
    .apply = applyAutoLoginCount,
    .registry = "`AutoLogonCount` in `HKLM\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon` (opened): the "
                "number as REG_DWORD on Windows XP, what is typed as REG_SZ before it. 0, or no number, deletes the "
                "value. Either type is shown.",
};

constexpr const Tweak* kRows[] = {&kAutomaticLoginNovellNetwareClients, &kAutomaticLoginWindowsNt2000Xp,
                                  &kDisableAutoLoginShiftOverrideFeature, &kForceUseAutomaticLogin,
                                  &kLimitNumberAutomaticLogins};

}  // namespace

constinit decltype(kAutomaticLoginUnit) kAutomaticLoginUnit{kRows};

}  // namespace korvane
