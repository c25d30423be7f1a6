// The Windows File Checker tweaks: each value stands in two places, and the
// policy key goes once nothing is left in it.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class WindowsFileChecker : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, WindowsFileChecker, ::testing::ValuesIn(programKinds()), kindName);

const std::string kPolicyParent = machine("SOFTWARE\\Policies\\Microsoft\\Windows NT");
const std::string kPolicy = machine("SOFTWARE\\Policies\\Microsoft\\Windows NT\\Windows File Protection");
const std::string kLogon = machine("SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon");

TEST_P(WindowsFileChecker, ThePolicyIsShownAndMadeAndBothAreWritten) {
    open(253, block(kLogon, number("SFCShowProgress", 1)));
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(apply(),
              (Changes{addedKey(kPolicy), added(kPolicy, number("SFCShowProgress", 0)),
                       removed(kLogon, number("SFCShowProgress", 1)), added(kLogon, number("SFCShowProgress", 0))}));
    open(254);
    EXPECT_EQ(combo(), 0);
    pick(IDC_COMBO1, 2);
    EXPECT_EQ(apply(), (Changes{addedKey(kPolicy), added(kPolicy, number("SFCScan", 2))}))
        << "the logon key is not made";
}

TEST_P(WindowsFileChecker, AnEmptyPolicyKeyGoesWithAllBelowIt) {
    const std::string below = kPolicy.substr(0, kPolicy.size() - 1) + "\\Below]";
    const std::string scan = number("SFCScan", 5);
    open(254, block(kPolicyParent, text("x", "")) + block(kPolicy, scan) + block(below, text("x", "")) +
                  block(kLogon, number("SFCScan", 1), text("SFCDllCacheDir", "c")));
    EXPECT_EQ(combo(), -1);
    EXPECT_EQ(apply(), (Changes{removedKey(kPolicy), removed(kPolicy, scan), removedKey(below),
                                removed(below, text("x", "")), removed(kLogon, number("SFCScan", 1))}));
    // A policy key that was made only to delete from it does not stay either.
    EXPECT_EQ(apply(), Changes{});
    EXPECT_EQ(alerts(), "");
}

TEST_P(WindowsFileChecker, APolicyKeyWithAnotherValueStays) {
    const std::string folder = text("SFCDllCacheDir", "D:\\cache");
    for (const std::string& other : {number("SFCShowProgress", 1), text("", "unnamed")}) {
        open(255, block(kPolicy, other, folder) + block(kLogon, folder));
        EXPECT_EQ(edit(), "D:\\cache");
        type(IDC_EDIT1, "");
        EXPECT_EQ(apply(), (Changes{removed(kPolicy, folder), removed(kLogon, folder)}));
    }
}

TEST(WindowsFileCheckerFolder, IsFoldedIntoAPlainText) {
    MemoryProgram program(block(kPolicy, text("SFCDllCacheDir", "%SystemRoot%\\a;%SystemRoot%\\b;%systemroot%")) +
                          block(kLogon) + std::string(kBareRegistry));
    ASSERT_TRUE(program.start());
    program.select(255);
    EXPECT_EQ(shownPage(program)->text(IDC_EDIT1), "C:\\WINDOWS\\a;C:\\WINDOWS\\b;%systemroot%");
    ASSERT_TRUE(program.type(IDC_EDIT1, "C:\\WINDOWS\\system32\\dllcache;C:\\Windows"));
    ASSERT_TRUE(program.apply());
    const std::string folded = text("SFCDllCacheDir", "%SystemRoot%\\system32\\dllcache;C:\\Windows") + '\n';
    const std::string now = program.registryText();
    EXPECT_NE(now.find(kPolicy + '\n' + folded), std::string::npos) << now;
    EXPECT_NE(now.find(kLogon + '\n' + folded), std::string::npos) << now;
}

}  // namespace
}  // namespace korvane
