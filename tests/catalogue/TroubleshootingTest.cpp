// The single Troubleshooting tweaks: paths without their quotation marks, exact
// texts, the AutoRun bit, and error reporting.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class Troubleshooting : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, Troubleshooting, ::testing::ValuesIn(programKinds()), kindName);

TEST_P(Troubleshooting, PathsLoseTheirQuotationMarks) {
    const std::string general = user("Software\\Microsoft\\Internet Explorer\\Desktop\\SafeMode\\General");
    open(295, block(general, text("Wallpaper", "%SystemRoot%\\a.htt")), "98");
    EXPECT_EQ(edit(), "%SystemRoot%\\a.htt") << "variables are not expanded";
    type(IDC_EDIT1, "\"C:\\b\".htt\"");
    EXPECT_EQ(apply(), (Changes{removed(general, text("Wallpaper", "%SystemRoot%\\a.htt")),
                                added(general, expandable("Wallpaper", "C:\\b.htt"))}));
    type(IDC_EDIT1, "\"\"");
    EXPECT_EQ(apply(), Changes{removed(general, expandable("Wallpaper", "C:\\b.htt"))});

    // Without a sound the value stays, with no data at all.
    const std::string mail = user("AppEvents\\Schemes\\Apps\\.Default\\MailBeep\\.Current");
    open(296, block(mail, text("", "C:\\a.wav")));
    EXPECT_EQ(edit(), "C:\\a.wav");
    type(IDC_EDIT1, "\"\"");
    EXPECT_EQ(apply(), (Changes{removed(mail, text("", "C:\\a.wav")), added(mail, "@=hex(1):")}));
}

TEST_P(Troubleshooting, NumLockIsExactlyTwo) {
    const std::string current = user("Control Panel\\Keyboard");
    const std::string before = login("Control Panel\\Keyboard");
    const std::string strange = text("InitialKeyboardIndicators", "2147483648");
    const std::string on = text("InitialKeyboardIndicators", "2");
    open(297, block(current, strange) + block(before, on));
    EXPECT_EQ(box(IDC_CHECK1), 0u);
    EXPECT_EQ(box(IDC_CHECK2), 1u);
    EXPECT_EQ(apply(), (Changes{removed(current, strange), added(current, text("InitialKeyboardIndicators", "0"))}));
    open(297, block(before));
    click(IDC_CHECK2);
    EXPECT_EQ(apply(), Changes{added(before, on)});
}

TEST_P(Troubleshooting, SteppingComparesWithoutCase) {
    const std::string key = machine("SOFTWARE\\Microsoft\\Active Setup");
    open(299, block(key, text("SteppingMode", "y")), "95");
    EXPECT_EQ(box(), 1u);
    EXPECT_EQ(apply(), (Changes{removed(key, text("SteppingMode", "y")), added(key, text("SteppingMode", "Y"))}));
    click();
    EXPECT_EQ(apply(), (Changes{removed(key, text("SteppingMode", "Y")), added(key, text("SteppingMode", "N"))}));
}

TEST_P(Troubleshooting, TheAthlonFixIsTheHighestNumberOrNone) {
    const std::string key = machine("SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management");
    const std::string fixed = number("LargePageMinimum", 0xFFFFFFFF);
    open(302, block(key, number("LargePageMinimum", 1)));
    EXPECT_EQ(box(), 0u);
    click();
    EXPECT_EQ(apply(), (Changes{removed(key, number("LargePageMinimum", 1)), added(key, fixed)}));
    program().select(302);
    EXPECT_EQ(box(), 1u);
    click();
    EXPECT_EQ(apply(), Changes{removed(key, fixed)});
}

TEST_P(Troubleshooting, AutoRunOfCdsIsOneBitOfFourBytes) {
    const std::string key = user("Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer");
    const auto bytes = [](const char* data) { return "\"NoDriveTypeAutoRun\"=hex:" + std::string(data); };
    struct {
        std::string stored;
        std::uint32_t checked;
        std::string toggled;
    } const cases[] = {
        {number("NoDriveTypeAutoRun", 0x91), 1, bytes("b1,00,00,00")},
        {bytes("ff,ff,ff,03"), 0, bytes("df,ff,ff,03")},
        {bytes("20"), 0, bytes("00,00,00,00")},
    };
    for (const auto& each : cases) {
        open(303, block(key, each.stored), "95");
        EXPECT_EQ(box(), each.checked) << each.stored;
        click();
        EXPECT_EQ(apply(), (Changes{removed(key, each.stored), added(key, each.toggled)}));
    }
    open(303, block(key));
    EXPECT_EQ(box(), 1u);
    EXPECT_EQ(apply(), Changes{added(key, bytes("95,00,00,00"))});
    click();
    EXPECT_EQ(apply(), (Changes{removed(key, bytes("95,00,00,00")), added(key, bytes("b5,00,00,00"))}));
    open(303);
    EXPECT_EQ(box(), 1u);
    EXPECT_EQ(apply(), Changes{}) << "the key must exist";
}

TEST_P(Troubleshooting, EachBoxOfErrorReportingIsAValue) {
    const std::string key = machine("SOFTWARE\\Microsoft\\PCHealth\\ErrorReporting");
    const std::pair<int, const char*> boxes[] = {{IDC_CHECK1, "DoReport"},
                                                 {IDC_CHECK2, "ShowUI"},
                                                 {IDC_CHECK3, "IncludeKernelFaults"},
                                                 {IDC_CHECK4, "AllOrNone"},
                                                 {IDC_CHECK5, "IncludeMicrosoftApps"},
                                                 {IDC_CHECK6, "IncludeWindowsApps"},
                                                 {IDC_CHECK7, "IncludeShutdownErrs"},
                                                 {IDC_CHECK8, "ForceQueueMode"}};
    for (const auto& [control, name] : boxes) {
        open(305, block(key, number(name, 1)));
        Changes written;
        for (const auto& [other, otherName] : boxes) {
            EXPECT_EQ(box(other), other == control ? 1u : 0u) << name << " in the box of " << otherName;
            if (other != control) {
                written.insert(added(key, number(otherName, 0)));
            }
        }
        EXPECT_EQ(apply(), written);
    }
}

}  // namespace
}  // namespace korvane
