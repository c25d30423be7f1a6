// The Login and Authentication tweaks: several values behind one page, places
// that differ by Windows family, and numbers that are kept as texts.
#include "tests/catalogue/ItemTest.h"

namespace korvane {
namespace {

class Login : public ItemTest {};

INSTANTIATE_TEST_SUITE_P(Over, Login, ::testing::ValuesIn(programKinds()), kindName);

const std::string kWinlogon = "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon]";
const std::string kWinlogon9x = "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Winlogon]";
const std::string kDesktop = "[HKEY_USERS\\.DEFAULT\\Control Panel\\Desktop]";
const std::string kColors = "[HKEY_USERS\\.DEFAULT\\Control Panel\\Colors]";
const std::string kSystemPolicies =
    "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\System]";
const std::string kExplorerPolicies =
    "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer]";
const std::string kMessenger = "[HKEY_CURRENT_USER\\Software\\Microsoft\\MessengerService]";
const std::string kUnreadMail = "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\UnreadMail]";

TEST_P(Login, GatesRefuseWithTheirAlerts) {
    const GateCase gates[] = {
        {" nt4 2000 xp 2003 ",
         "These Tweak active only on Windows NT/2000/XP",
         {158, 159, 163, 165, 167, 172, 173, 175, 176}},
        {" 2000 xp 2003 ", "These Tweak active only on Windows 2000/XP", {168}},
        {" xp 2003 ", "These Tweak active only on Windows XP", {156, 160, 164, 166}},
        {" 2000 ", "These Tweak active only on Windows 2000", {170}},
        {" 95 98 me nt4 2000 xp 2003 vista ", "", {161, 162, 171}},
    };
    expectGates(gates, kWinlogon + '\n' + kWinlogon9x + '\n' + kDesktop + '\n' + kSystemPolicies + '\n' +
                           kExplorerPolicies + '\n' + kMessenger + '\n');
}

// ---- 158: automatic login

TEST_P(Login, ForcedAutomaticLoginIsTheOppositeOfItsBox) {
    struct {
        const char* values;
        const char* boxes;
    } const cases[] = {
        {"", "01"},
        {"\"AutoAdminLogon\"=\"1\"\n\"ForceAutoLogon\"=\"1\"", "10"},
        {"\"AutoAdminLogon\"=\"0\"\n\"ForceAutoLogon\"=\"0\"", "01"},
        {"\"ForceAutoLogon\"=dword:1", "01"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.values);
        showItem(158, kWinlogon + '\n' + each.values);
        EXPECT_EQ(boxes(), each.boxes);
    }
    showItem(158,
             kWinlogon + "\n\"DefaultUserName\"=\"anna\"\n\"DefaultDomainName\"=\"HOME\"\n\"ForceAutoLogon\"=\"1\"");
    EXPECT_EQ(edit(), "anna");
    EXPECT_EQ(edit(IDC_EDIT2), "");
    EXPECT_EQ(edit(IDC_EDIT3), "HOME");
    ASSERT_TRUE(program().click(IDC_CHECK1));
    ASSERT_TRUE(program().click(IDC_CHECK2));
    ASSERT_TRUE(program().type(IDC_EDIT2, "secret"));
    ASSERT_TRUE(program().type(IDC_EDIT3, ""));
    EXPECT_EQ(applied(), '-' + kWinlogon + " \"DefaultDomainName\"=\"HOME\"\n" +  //
                             '-' + kWinlogon + " \"ForceAutoLogon\"=\"1\"\n" +    //
                             '+' + kWinlogon + " \"AutoAdminLogon\"=\"1\"\n" +    //
                             '+' + kWinlogon + " \"DefaultPassword\"=\"secret\"\n");
    ASSERT_TRUE(program().click(IDC_CHECK1));
    ASSERT_TRUE(program().click(IDC_CHECK2));
    EXPECT_EQ(applied(), '-' + kWinlogon + " \"AutoAdminLogon\"=\"1\"\n" +      //
                             '+' + kWinlogon + " \"AutoAdminLogon\"=\"0\"\n" +  //
                             '+' + kWinlogon + " \"ForceAutoLogon\"=\"1\"\n");
}

// Two items write the same value in two ways; each must stand what the other has left.
TEST_P(Login, ForcedAutomaticLoginIsATextHereAndANumberThere) {
    showItem(168, kWinlogon + "\n\"ForceAutoLogon\"=\"1\"");
    EXPECT_EQ(box(), 1u);
    EXPECT_EQ(applied(), '-' + kWinlogon + " \"ForceAutoLogon\"=\"1\"\n" +  //
                             '+' + kWinlogon + " \"ForceAutoLogon\"=dword:00000001\n");
    program().select(158);
    EXPECT_EQ(boxes(), "01");
    EXPECT_EQ(applied(), '-' + kWinlogon + " \"ForceAutoLogon\"=dword:00000001\n" +  //
                             '+' + kWinlogon + " \"AutoAdminLogon\"=\"0\"\n");
}

TEST_P(Login, TheShiftKeyIsObeyedWithoutAValue) {
    showItem(165, kWinlogon + "\n\"IgnoreShiftOverride\"=\"1\"");
    EXPECT_EQ(box(), 1u);
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), '-' + kWinlogon + " \"IgnoreShiftOverride\"=\"1\"\n");
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), '+' + kWinlogon + " \"IgnoreShiftOverride\"=\"1\"\n");
}

TEST_P(Login, TheNumberOfAutomaticLoginsIsANumberOnXpOnly) {
    const std::string value = '+' + kWinlogon + " \"AutoLogonCount\"=";
    struct {
        const char* windows;
        const char* typed;
        std::string written;
    } const cases[] = {
        {"xp", "5", value + "dword:00000005\n"},       {"2003", " 12 times", value + "dword:0000000c\n"},
        {"xp", "-1", value + "dword:ffffffff\n"},      {"2000", "5", value + "\"5\"\n"},
        {"nt4", "12 times", value + "\"12 times\"\n"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.typed);
        showItem(172, kWinlogon, each.windows);
        ASSERT_TRUE(program().type(IDC_EDIT1, each.typed));
        EXPECT_EQ(applied(), each.written);
    }
    for (const char* nothing : {"", "0", "often", "0x5"}) {
        SCOPED_TRACE(nothing);
        showItem(172, kWinlogon + "\n\"AutoLogonCount\"=dword:7");
        EXPECT_EQ(edit(), "7");
        ASSERT_TRUE(program().type(IDC_EDIT1, nothing));
        EXPECT_EQ(applied(), '-' + kWinlogon + " \"AutoLogonCount\"=dword:00000007\n");
    }
    showItem(172, kWinlogon + "\n\"AutoLogonCount\"=\"12\"", "2000");
    EXPECT_EQ(edit(), "12");
}

// ---- 159: the screen saver of the login screen

TEST_P(Login, TheScreenSaversBoxSwitchesItsFields) {
    struct {
        const char* value;
        std::uint32_t checked;
        bool usable;
    } const cases[] = {
        {"", 0, false},
        {"\"ScreenSaveActive\"=\"0\"", 0, false},
        {"\"ScreenSaveActive\"=\"1\"", 1, true},
        {"\"ScreenSaveActive\"=\" 1x\"", 1, true},
        {"\"ScreenSaveActive\"=\"yes\"", 0, false},
        // The box cannot show a two, but the fields tell it from a one.
        {"\"ScreenSaveActive\"=\"2\"", 1, false},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.value);
        showItem(159, kDesktop + '\n' + each.value);
        EXPECT_EQ(box(), each.checked);
        EXPECT_EQ(program().type(IDC_EDIT1, "a"), each.usable);
        EXPECT_EQ(program().type(IDC_EDIT2, "b"), each.usable);
        EXPECT_EQ(program().click(IDC_BROWSE1), each.usable);
    }
    // The fields of the next item on the same page can be used again.
    program().select(171);
    EXPECT_TRUE(program().type(IDC_EDIT1, "a"));
    EXPECT_TRUE(program().type(IDC_EDIT2, "b"));
}

TEST_P(Login, TheScreenSaverIsStoredWithoutTheSystemFolder) {
    struct {
        std::string typed;
        std::string stored;  // empty: deleted
    } const cases[] = {
        {"logon.scr", "logon.scr"},
        {"C:\\WINDOWS\\System32\\logon.scr", "logon.scr"},
        {"\"C:\\WINDOWS\\system32\\logon.scr\"", "logon.scr"},
        {"C:\\WINDOWS\\System32\\C:\\WINDOWS\\system32\\logon.scr", "logon.scr"},
        {"C:\\windows\\system32\\logon.scr", "C:\\\\windows\\\\system32\\\\logon.scr"},
        {"C:\\WINDOWS\\SYSTEM32\\logon.scr", "C:\\\\WINDOWS\\\\SYSTEM32\\\\logon.scr"},
        {"C:\\WINDOWS\\logon.scr", "C:\\\\WINDOWS\\\\logon.scr"},
        {"lo\"go\"n.scr", "logon.scr"},
        {"\"\"", ""},
        {"C:\\WINDOWS\\System32\\", ""},
        {"", ""},
    };
    const std::string active = kDesktop + " \"ScreenSaveActive\"=";
    for (const auto& each : cases) {
        SCOPED_TRACE(each.typed);
        showItem(159, kDesktop + "\n\"ScreenSaveActive\"=\"1\"\n\"SCRNSAVE.EXE\"=\"old.scr\"");
        EXPECT_EQ(edit(), "old.scr");
        ASSERT_TRUE(program().type(IDC_EDIT1, each.typed));
        // A cleared box keeps nothing from being written.
        ASSERT_TRUE(program().click(IDC_CHECK1));
        const std::string saver = kDesktop + " \"SCRNSAVE.EXE\"=\"";
        EXPECT_EQ(applied(), '-' + saver + "old.scr\"\n-" + active + "\"1\"\n" +
                                 (each.stored.empty() ? "" : '+' + saver + each.stored + "\"\n") + '+' + active +
                                 "\"0\"\n");
    }
}

TEST_P(Login, TheScreenSaversTimeOutIsWrittenOrDeleted) {
    showItem(159, kDesktop);
    ASSERT_TRUE(program().click(IDC_CHECK1));
    ASSERT_TRUE(program().type(IDC_EDIT2, "600"));
    const std::string timeOut = kDesktop + " \"ScreenSaveTimeOut\"=\"600\"\n";
    EXPECT_EQ(applied(), '+' + kDesktop + " \"ScreenSaveActive\"=\"1\"\n+" + timeOut);
    ASSERT_TRUE(program().type(IDC_EDIT2, ""));
    EXPECT_EQ(applied(), '-' + timeOut);
    showItem(159, "");
    ASSERT_TRUE(program().click(IDC_CHECK1));
    ASSERT_TRUE(program().type(IDC_EDIT1, "logon.scr"));
    EXPECT_EQ(applied(), "");
}

// ---- 161 and 162: what is behind the login dialog

TEST_P(Login, TheBackgroundColourTakesTheWallpaperAway) {
    showItem(161, kWinlogon + "\n\"Background\"=\"0 255 255\"\n" + kColors + "\n\"Background\"=\"1 2 3\"\n" + kDesktop +
                      "\n\"Wallpaper\"=\"logo.bmp\"");
    EXPECT_EQ(shownPage(program())->text(IDC_COLOUR_COMBO), "Aqua");
    const std::string noWallpaper =
        '-' + kDesktop + " \"Wallpaper\"=\"logo.bmp\"\n+" + kDesktop + " \"Wallpaper\"=\"(None)\"\n";
    EXPECT_EQ(applied(), '-' + kColors + " \"Background\"=\"1 2 3\"\n-" + kDesktop + " \"Wallpaper\"=\"logo.bmp\"\n+" +
                             kColors + " \"Background\"=\"0 255 255\"\n+" + kDesktop + " \"Wallpaper\"=\"(None)\"\n");
    // Each missing key leaves out its own step alone.
    showItem(161, kWinlogon + "\n\"Background\"=\"300 0 0\"\n" + kDesktop + "\n\"Wallpaper\"=\"logo.bmp\"");
    program().pick(IDC_COLOUR_COMBO, 0);
    EXPECT_EQ(applied(), '-' + kWinlogon + " \"Background\"=\"300 0 0\"\n-" + kDesktop +
                             " \"Wallpaper\"=\"logo.bmp\"\n+" + kWinlogon + " \"Background\"=\"240 248 255\"\n+" +
                             kDesktop + " \"Wallpaper\"=\"(None)\"\n");
    showItem(161, kDesktop + "\n\"Wallpaper\"=\"logo.bmp\"");
    EXPECT_EQ(applied(), noWallpaper);
    showItem(161, "");
    EXPECT_EQ(applied(), "");
    EXPECT_TRUE(stamped("Change the Login Screen Background Color"));
}

TEST_P(Login, AnEmptyWallpaperIsLeftButItsPatternGoes) {
    const std::string common = kDesktop + " \"Pattern\"=\"(None)\"\n+" + kDesktop + " \"TileWallpaper\"=\"";
    showItem(162, kDesktop + "\n\"Wallpaper\"=\"logo.bmp\"\n\"TileWallpaper\"=\"1\"\n\"Pattern\"=\"85 170\"");
    EXPECT_EQ(edit(), "logo.bmp");
    EXPECT_EQ(box(), 1u);
    ASSERT_TRUE(program().type(IDC_EDIT1, ""));
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), '-' + kDesktop + " \"Pattern\"=\"85 170\"\n-" + kDesktop + " \"TileWallpaper\"=\"1\"\n+" +
                             common + "0\"\n");
    showItem(162, kDesktop);
    ASSERT_TRUE(program().type(IDC_EDIT1, "C:\\sky.bmp"));
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), '+' + common + "1\"\n+" + kDesktop + " \"Wallpaper\"=\"C:\\\\sky.bmp\"\n");
}

// ---- Texts and numbers

TEST_P(Login, AnEmptyDialogTitleChangesNothing) {
    showItem(163, kWinlogon + "\n\"Welcome\"=\"Hello\"");
    EXPECT_EQ(edit(), "Hello");
    ASSERT_TRUE(program().type(IDC_EDIT1, ""));
    EXPECT_EQ(applied(), "");
    EXPECT_TRUE(stamped("Customize the Windows Login and Security Dialog Titles"));
    ASSERT_TRUE(program().type(IDC_EDIT1, "At home"));
    EXPECT_EQ(applied(), '-' + kWinlogon + " \"Welcome\"=\"Hello\"\n+" + kWinlogon + " \"Welcome\"=\"At home\"\n");
}

TEST_P(Login, RemindersAreFourBytes) {
    struct {
        const char* value;
        std::uint32_t checked;
    } const cases[] = {
        {"", 0},
        {"\"PassportBalloon\"=hex:0a,00,00,00", 1},
        {"\"PassportBalloon\"=hex:0a", 1},
        {"\"PassportBalloon\"=hex:0a,01,00,00", 0},
        {"\"PassportBalloon\"=hex:09,00,00,00", 0},
        {"\"PassportBalloon\"=hex:01,00,00,00", 0},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.value);
        showItem(164, kMessenger + '\n' + each.value);
        EXPECT_EQ(box(), each.checked);
    }
    showItem(164, kMessenger);
    const std::string value = kMessenger + " \"PassportBalloon\"=hex:";
    EXPECT_EQ(applied(), '+' + value + "01,00,00,00\n");
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), '-' + value + "01,00,00,00\n+" + value + "0a,00,00,00\n");
}

TEST_P(Login, UnreadMailIsCountedForThreeDaysOrNotAtAll) {
    showItem(166, "");
    EXPECT_EQ(box(), 0u);
    const std::string value = kUnreadMail + " \"MessageExpiryDays\"=dword:0000000";
    EXPECT_EQ(applied(), '+' + kUnreadMail + "\n+" + value + "3\n");
    ASSERT_TRUE(program().click(IDC_CHECK1));
    EXPECT_EQ(applied(), '-' + value + "3\n+" + value + "0\n");
    program().select(155);
    program().select(166);
    EXPECT_EQ(box(), 1u);
}

TEST_P(Login, CachedLoginsAreANumberKeptAsAText) {
    struct {
        const char* text;
        int entry;
    } const cases[] = {
        {"0", 0}, {"10", 10}, {"50", 50}, {"51", kNoSelection}, {"-1", kNoSelection}, {" 7 users", 7}, {"many", 0},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.text);
        showItem(173, kWinlogon + "\n\"CachedLogonsCount\"=\"" + each.text + '"');
        EXPECT_EQ(shownPage(program())->comboCount(IDC_COMBO1), 51);
        EXPECT_EQ(combo(), each.entry);
    }
    showItem(173, kWinlogon);
    EXPECT_EQ(combo(), kNoSelection);
    const std::string value = kWinlogon + " \"CachedLogonsCount\"=\"";
    EXPECT_EQ(applied(), '+' + value + "-1\"\n");
    ASSERT_TRUE(program().pick(IDC_COMBO1, 50));
    EXPECT_EQ(applied(), '-' + value + "-1\"\n+" + value + "50\"\n");
}

TEST_P(Login, OnlyTheAuthenticationModeHasAFirstChoice) {
    showItem(176, kWinlogon);
    EXPECT_EQ(combo(), 0);
    EXPECT_EQ(applied(), '+' + kWinlogon + " \"ForceUnlockLogon\"=dword:00000000\n");
    showItem(176, kWinlogon + "\n\"ForceUnlockLogon\"=dword:2");
    EXPECT_EQ(combo(), kNoSelection);
    showItem(160, kWinlogon);
    EXPECT_EQ(combo(), kNoSelection);
    EXPECT_EQ(applied(), '+' + kWinlogon + " \"LogonType\"=dword:ffffffff\n");
}

// ---- By Windows family

TEST_P(Login, TheLastUserNameIsHiddenWhereTheFamilyLooksForIt) {
    const std::string network = "[HKEY_LOCAL_MACHINE\\Network\\Logon]";
    const std::string number = " \"DontDisplayLastUserName\"=dword:0000000";
    const std::string text = " \"DontShowLastUser\"=\"";
    struct {
        const char* windows;
        std::string value;  // up to its last digit; empty: the family has none
        const char* end;
    } const cases[] = {
        {"95", "", ""},
        {"98", network + text, "\"\n"},
        {"me", network + text, "\"\n"},
        {"nt4", kWinlogon + number, "\n"},
        {"2000", kSystemPolicies + number, "\n"},
        {"xp", kSystemPolicies + number, "\n"},
        {"2003", kSystemPolicies + number, "\n"},
        {"vista", "", ""},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.windows);
        const bool known = !each.value.empty();
        showItem(169, kWinlogon + '\n' + kSystemPolicies + '\n' + network, each.windows);
        EXPECT_EQ(box(), 0u);
        ASSERT_TRUE(program().click(IDC_CHECK1));
        EXPECT_EQ(applied(), known ? '+' + each.value + '1' + each.end : "");
        EXPECT_EQ(stamped("Hide the Last User Name"), known);
        EXPECT_EQ(alerts(),
                  each.windows == std::string_view("95") ? "These Tweak active only on Windows 2000/XP/98/Me/NT" : "");
        program().select(155);
        program().select(169);
        EXPECT_EQ(box(), known ? 1u : 0u);
        if (known) {
            ASSERT_TRUE(program().click(IDC_CHECK1));
            EXPECT_EQ(applied(), '-' + each.value + '1' + each.end + '+' + each.value + '0' + each.end);
        }
    }
}

TEST_P(Login, TheLegalNoticeIsWhereTheFamilyLooksForIt) {
    const std::string values = "\"LegalNoticeCaption\"=\"Old title\"\n\"LegalNoticeText\"=\"Old text\"\n";
    for (const std::string_view windows : everyWindows()) {
        SCOPED_TRACE(windows);
        const bool nt = windows == "nt4" || windows == "2000" || windows == "xp" || windows == "2003";
        const std::string& own = nt ? kWinlogon : kWinlogon9x;
        showItem(171, own + '\n' + values + (nt ? kWinlogon9x : kWinlogon), windows);
        EXPECT_EQ(edit(), "Old title");
        EXPECT_EQ(edit(IDC_EDIT2), "Old text");
        ASSERT_TRUE(program().type(IDC_EDIT1, ""));
        ASSERT_TRUE(program().type(IDC_EDIT2, "Keep out"));
        EXPECT_EQ(applied(), '-' + own + " \"LegalNoticeCaption\"=\"Old title\"\n-" + own +
                                 " \"LegalNoticeText\"=\"Old text\"\n+" + own + " \"LegalNoticeText\"=\"Keep out\"\n");
    }
}

}  // namespace
}  // namespace korvane
