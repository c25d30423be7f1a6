// The Logging tweaks: three logs by themselves, a level that may be none, and
// the installer's logging, which the accessories show as well.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class Logging : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, Logging, ::testing::ValuesIn(programKinds()), kindName);

TEST_P(Logging, EventLogsAreRestrictedByThemselves) {
    const std::string application = machine("SYSTEM\\CurrentControlSet\\Services\\EventLog\\Application");
    const std::string system = machine("SYSTEM\\CurrentControlSet\\Services\\EventLog\\System");
    open(283, block(application, number("RestrictGuestAccess", 1)) + block(system), "nt4");
    EXPECT_EQ(box(IDC_CHECK1), 1u);
    EXPECT_EQ(box(IDC_CHECK3), 0u);
    click(IDC_CHECK2);
    EXPECT_EQ(apply(), Changes{added(system, number("RestrictGuestAccess", 0))});
}

TEST_P(Logging, AMissingLevelIsNormalAndAnUnknownOneIsDeleted) {
    const std::string key = machine("SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon");
    for (const auto& [stored, entry] : {std::pair{0u, 0}, {0x10001u, 1}, {0x10002u, 2}, {0x30002u, 3}, {1u, -1}}) {
        open(285, block(key, number("UserEnvDebugLevel", stored)));
        EXPECT_EQ(combo(), entry) << stored;
    }
    EXPECT_EQ(apply(), Changes{removed(key, number("UserEnvDebugLevel", 1))});
    program().select(285);
    EXPECT_EQ(combo(), 1);
    EXPECT_EQ(apply(), Changes{added(key, number("UserEnvDebugLevel", 0x10001))});
}

TEST_P(Logging, InstallerLoggingSharesItsDateWithTheAccessories) {
    const std::string policy = machine("Software\\Policies\\Microsoft\\Windows\\Installer");
    const std::string copies = "Software\\Microsoft\\Windows\\CurrentVersion\\Group Policy Objects\\LocalMachine";
    const std::string mirror = user(copies + "\\Software\\Policies\\Microsoft\\Windows\\Installer");
    const std::string other = user(copies + "\\Software\\Other");
    const std::string letters = text("Logging", "voicewarmup");
    open(287, block(policy) + block(user(copies), text("x", "")) + block(other, text("y", "")));
    EXPECT_TRUE(program().shows(IDD_CATEGORY, IDC_CHECK1));
    EXPECT_EQ(shownPage(program())->rowCount(IDC_LIST), 13);
    click();
    EXPECT_EQ(apply(), (Changes{added(policy, letters), addedKey(mirror), added(mirror, letters)}));
    EXPECT_TRUE(dated(41));
    program().select(41);
    EXPECT_EQ(box(), 1u);
    program().select(287);
    EXPECT_EQ(box(), 1u);
    click();
    EXPECT_EQ(apply(), (Changes{removed(policy, letters), removedKey(mirror), removed(mirror, letters),
                                removedKey(other), removed(other, text("y", ""))}))
        << "every mirrored policy goes";
}

}  // namespace
}  // namespace korvane
