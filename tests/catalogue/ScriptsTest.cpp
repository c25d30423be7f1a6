// The Scripts tweaks: default verbs, and policies beside the settings that they
// override.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class Scripts : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, Scripts, ::testing::ValuesIn(programKinds()), kindName);

const std::string kPolicies = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies";

TEST_P(Scripts, EveryOtherVerbShowsAsOpen) {
    const std::string basic = classes("VBSFile\\Shell");
    const std::string java = classes("JSFile\\Shell");
    struct {
        const char* stored;
        int entry;
    } const cases[] = {{"open", 0}, {"EDIT", 1}, {"oPEN2", 2}, {"Open with Command Prompt", 0}, {"", 0}};
    for (const auto& each : cases) {
        open(228, block(basic, text("", "Edit")) + block(java, text("", each.stored)));
        EXPECT_EQ(combo(IDC_COMBO1), 1);
        EXPECT_EQ(combo(IDC_COMBO2), each.entry) << each.stored;
    }
    open(228, block(basic, text("", "Play")) + block(java, text("", "EDIT")));
    type(IDC_COMBO2, "Edit");  // typed, not chosen
    EXPECT_EQ(apply(), (Changes{removed(basic, text("", "Play")), added(basic, text("", "Open"))}));
    pick(IDC_COMBO2, 2);
    EXPECT_EQ(apply(), (Changes{removed(java, text("", "EDIT")), added(java, text("", "Open2"))}));
}

TEST_P(Scripts, AnUnknownTrustIsLeftAsItIs) {
    const std::string path = "SOFTWARE\\Microsoft\\Windows Script Host\\Settings";
    open(229, block(user("SOFTWARE\\Microsoft"), text("x", "")) + block(machine(path), number("TrustPolicy", 3)));
    EXPECT_EQ(combo(IDC_COMBO1), 0);
    EXPECT_EQ(combo(IDC_COMBO2), -1);
    EXPECT_EQ(apply(), (Changes{addedKey(user(path)), added(user(path), number("TrustPolicy", 0))}));
}

TEST_P(Scripts, ThePolicyIsMadeAndTheSettingIsNot) {
    const std::string logon = "Software\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon";
    const std::string registry = block(user(kPolicies), text("x", "")) + block(machine(kPolicies), text("x", "")) +
                                 block(machine(logon), number("RunLogonScriptSync", 1));
    open(235, registry);
    EXPECT_EQ(box(IDC_CHECK2), 0u);
    click(IDC_CHECK2);
    const std::string policy = kPolicies + "\\System";
    EXPECT_EQ(apply(), (Changes{addedKey(user(policy)), added(user(policy), number("RunLogonScriptSync", 0)),
                                addedKey(machine(policy)), added(machine(policy), number("RunLogonScriptSync", 1))}));
    program().select(236);
    EXPECT_EQ(box(IDC_CHECK1), 0u);
    EXPECT_EQ(box(IDC_CHECK2), 1u);
    click(IDC_CHECK1);
    click(IDC_CHECK2);
    EXPECT_EQ(apply(), (Changes{removed(machine(logon), number("RunLogonScriptSync", 1)),
                                added(machine(logon), number("RunLogonScriptSync", 0))}));
}

TEST_P(Scripts, AsynchronousIsTheZeroOfTheValue) {
    const std::string key = machine(kPolicies + "\\System");
    open(237, block(key));
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(apply(), Changes{added(key, number("RunStartupScriptSync", 1))});
    open(237, block(key, number("RunStartupScriptSync", 0)));
    EXPECT_EQ(box(), 1u);
    EXPECT_EQ(apply(), Changes{});
    open(237, block(key, number("RunStartupScriptSync", 2)));
    EXPECT_EQ(box(), 0u);
}

}  // namespace
}  // namespace korvane
