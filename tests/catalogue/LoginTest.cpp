// The Login and Authentication tweaks: several values behind one page, places that differ by Windows family, and
// numbers that are kept as texts.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class Login : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, Login, ::testing::ValuesIn(programKinds()), kindName);

const std::string kLoginDesktop = login(kDesktop);

TEST_P(Login, TheNumberOfAutomaticLoginsIsANumberOnXpOnly) {
    struct {
        const char* windows;
        const char* typed;
        std::string written;  // empty: deleted
    } const cases[] = {
        {"2003", " 12 times", number("AutoLogonCount", 12)},
        {"xp", "-1", number("AutoLogonCount", 0xFFFFFFFF)},
        {"2000", "12 times", text("AutoLogonCount", "12 times")},
        {"xp", "0", ""},
        {"xp", "often", ""},
        {"xp", "", ""},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.typed);
        open(172, block(kWinlogon, number("AutoLogonCount", 7)), each.windows);
        type(IDC_EDIT1, each.typed);
        Changes expected{removed(kWinlogon, number("AutoLogonCount", 7))};
        if (!each.written.empty()) {
            expected.insert(added(kWinlogon, each.written));
        }
        EXPECT_EQ(apply(), expected);
    }
}

TEST_P(Login, TheScreenSaversBoxSwitchesItsFields) {
    // The box cannot show a two, but the fields tell it from a one.
    for (const auto& [stored, usable] : {std::pair{"0", false}, {" 1x", true}, {"2", false}}) {
        open(159, block(kLoginDesktop, text("ScreenSaveActive", stored)));
        EXPECT_EQ(program().type(IDC_EDIT1, "a"), usable) << stored;
        EXPECT_EQ(program().type(IDC_EDIT2, "b"), usable) << stored;
        EXPECT_EQ(program().click(IDC_BROWSE1), usable) << stored;
    }
    // The fields of the next item on the same page can be used again.
    program().select(171);
    type(IDC_EDIT1, "a");
    type(IDC_EDIT2, "b");
}

TEST_P(Login, TheScreenSaverIsStoredWithoutTheSystemFolder) {
    const std::pair<const char*, const char*> cases[] = {
        {"\"C:\\WINDOWS\\system32\\logon.scr\"", "logon.scr"},
        {"C:\\WINDOWS\\System32\\C:\\WINDOWS\\system32\\logon.scr", "logon.scr"},
        {"C:\\WINDOWS\\SYSTEM32\\logon.scr", "C:\\WINDOWS\\SYSTEM32\\logon.scr"},
        {"C:\\WINDOWS\\logon.scr", "C:\\WINDOWS\\logon.scr"},
        {"C:\\WINDOWS\\System32\\", ""},
        {"\"\"", ""},
    };
    for (const auto& [typed, stored] : cases) {
        SCOPED_TRACE(typed);
        open(159, block(kLoginDesktop, text("ScreenSaveActive", "1"), text("SCRNSAVE.EXE", "old.scr"),
                        text("ScreenSaveTimeOut", "600")));
        type(IDC_EDIT1, typed);
        type(IDC_EDIT2, "");
        // A cleared box keeps nothing from being written.
        click();
        Changes expected = replaced(kLoginDesktop, text("ScreenSaveActive", "1"), text("ScreenSaveActive", "0"));
        expected.insert(removed(kLoginDesktop, text("SCRNSAVE.EXE", "old.scr")));
        expected.insert(removed(kLoginDesktop, text("ScreenSaveTimeOut", "600")));
        if (*stored != '\0') {
            expected.insert(added(kLoginDesktop, text("SCRNSAVE.EXE", stored)));
        }
        EXPECT_EQ(apply(), expected);
    }
}

TEST_P(Login, TheBackgroundColourTakesTheWallpaperAway) {
    const std::string colors = login("Control Panel\\Colors");
    const std::string wallpaper = block(kLoginDesktop, text("Wallpaper", "logo.bmp"));
    const Changes noWallpaper = replaced(kLoginDesktop, text("Wallpaper", "logo.bmp"), text("Wallpaper", "(None)"));
    open(161,
         block(kWinlogon, text("Background", "0 255 255")) + block(colors, text("Background", "1 2 3")) + wallpaper);
    EXPECT_EQ(shownPage(program())->text(IDC_COLOUR_COMBO), "Aqua");
    Changes expected = replaced(colors, text("Background", "1 2 3"), text("Background", "0 255 255"));
    expected.insert(noWallpaper.begin(), noWallpaper.end());
    EXPECT_EQ(apply(), expected);
    // Each missing key leaves out its own step alone.
    open(161, wallpaper);
    EXPECT_EQ(apply(), noWallpaper);
    open(161);
    EXPECT_EQ(apply(), Changes{});
    EXPECT_TRUE(dated(161));
}

TEST_P(Login, AnEmptyWallpaperIsLeftButItsPatternGoes) {
    open(162, block(kLoginDesktop, text("Wallpaper", "logo.bmp"), text("TileWallpaper", "1"), text("Pattern", "85")));
    type(IDC_EDIT1, "");
    click();
    Changes expected = replaced(kLoginDesktop, text("TileWallpaper", "1"), text("TileWallpaper", "0"));
    expected.merge(replaced(kLoginDesktop, text("Pattern", "85"), text("Pattern", "(None)")));
    EXPECT_EQ(apply(), expected);
    type(IDC_EDIT1, "C:\\sky.bmp");
    EXPECT_EQ(apply(), replaced(kLoginDesktop, text("Wallpaper", "logo.bmp"), text("Wallpaper", "C:\\sky.bmp")));
}

TEST_P(Login, UnreadMailMakesItsKeyAndIsCountedForThreeDaysOrNotAtAll) {
    const std::string key = user(kCurrentVersion + "\\UnreadMail");
    open(166);
    EXPECT_EQ(apply(), (Changes{addedKey(key), added(key, number("MessageExpiryDays", 3))}));
    click();
    EXPECT_EQ(apply(), replaced(key, number("MessageExpiryDays", 3), number("MessageExpiryDays", 0)));
}

// ---- By Windows family

TEST_P(Login, TheLastUserNameIsHiddenWhereTheFamilyLooksForIt) {
    const std::string network = machine("Network\\Logon");
    const std::string policies = machine("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\System");
    const std::string name = "DontDisplayLastUserName";
    const std::string onMe = added(network, text("DontShowLastUser", "1"));
    const std::string onXp = added(policies, number(name, 1));
    const std::pair<const char*, std::string> cases[] = {
        {"95", ""},     {"98", onMe}, {"me", onMe},   {"nt4", added(kWinlogon, number(name, 1))},
        {"2000", onXp}, {"xp", onXp}, {"2003", onXp}, {"vista", ""}};
    for (const auto& [windows, change] : cases) {
        SCOPED_TRACE(windows);
        open(169, block(kWinlogon) + block(policies) + block(network), windows);
        click();
        EXPECT_EQ(apply(), change.empty() ? Changes{} : Changes{change});
        EXPECT_EQ(dated(169), !change.empty());
        EXPECT_EQ(alerts(),
                  windows == std::string_view("95") ? "These Tweak active only on Windows 2000/XP/98/Me/NT" : "");
        program().select(155);
        program().select(169);
        EXPECT_EQ(box(), change.empty() ? 0u : 1u);
    }
}

TEST_P(Login, TheLegalNoticeIsWhereTheFamilyLooksForIt) {
    const std::string winlogon9x = machine("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Winlogon");
    for (const std::string_view windows : everyWindows()) {
        SCOPED_TRACE(windows);
        const bool nt = windows == "nt4" || windows == "2000" || windows == "xp" || windows == "2003";
        const std::string& own = nt ? kWinlogon : winlogon9x;
        open(171, block(own, text("LegalNoticeCaption", "Title")) + block(nt ? winlogon9x : kWinlogon), windows);
        EXPECT_EQ(edit(), "Title");
        type(IDC_EDIT1, "");
        type(IDC_EDIT2, "Keep out");
        EXPECT_EQ(apply(), (Changes{removed(own, text("LegalNoticeCaption", "Title")),
                                    added(own, text("LegalNoticeText", "Keep out"))}));
    }
}

}  // namespace
}  // namespace korvane
