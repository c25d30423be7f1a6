// The Crash Control tweaks: choices stored by their index, and paths with the
// Windows folder folded into its variable.
#include "platform/memory/RegFile.h"
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class CrashControl : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, CrashControl, ::testing::ValuesIn(programKinds()), kindName);

const std::string kKey = machine("SYSTEM\\CurrentControlSet\\Control\\CrashControl");

TEST_P(CrashControl, TheDumpIsTheIndexEvenOfNoSelection) {
    const std::string strange = number("CrashDumpEnabled", 9);
    open(277, block(kKey, number("CrashDumpEnabled", 3)));
    EXPECT_EQ(shownPage(program())->text(IDC_COMBO1), "Small memory dump");
    open(277, block(kKey));
    EXPECT_EQ(combo(), 0);
    EXPECT_EQ(apply(), Changes{added(kKey, number("CrashDumpEnabled", 0))});
    open(277, block(kKey, strange));
    EXPECT_EQ(combo(), -1);
    EXPECT_EQ(apply(), (Changes{removed(kKey, strange), added(kKey, number("CrashDumpEnabled", 0xFFFFFFFF))}));
    open(275);
    pick(IDC_COMBO1, 1);
    EXPECT_EQ(apply(), Changes{}) << "the key must exist";
}

TEST_P(CrashControl, OnlyThePathsNeedWindows2000) {
    open(279, block(kKey), "nt4");
    type(IDC_EDIT1, "D:\\dumps");
    EXPECT_EQ(apply(), Changes{});
    EXPECT_EQ(alerts(), "These Tweak active only on Windows 2000/XP");
    EXPECT_FALSE(dated(279));
    program().select(276);
    EXPECT_EQ(apply(), Changes{added(kKey, number("LogEvent", 0))});
    EXPECT_TRUE(dated(276));
}

TEST(CrashControlPaths, FoldTheWindowsFolderAsItIsSpelled) {
    for (const auto& [id, name] : {std::pair{279, "MinidumpDir"}, {280, "DumpFile"}}) {
        SCOPED_TRACE(name);
        MemoryProgram program(block(kKey, text(name, "%SystemRoot%\\Minidump")) + std::string(kBareRegistry), "2000");
        ASSERT_TRUE(program.start());
        program.select(id);
        EXPECT_EQ(shownPage(program)->text(IDC_EDIT1), "C:\\WINDOWS\\Minidump");
        const auto applied = [&](std::string_view typed) {
            EXPECT_TRUE(program.type(IDC_EDIT1, typed));
            EXPECT_TRUE(program.apply());
            return dumpKey(program.registry, Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\CrashControl");
        };
        EXPECT_EQ(applied("C:\\WINDOWS\\Minidump"), block(kKey, expandable(name, "%SystemRoot%\\Minidump")));
        EXPECT_EQ(applied("C:\\Windows\\Minidump"), block(kKey, expandable(name, "C:\\Windows\\Minidump")));
        EXPECT_EQ(applied(""), block(kKey, expandable(name, "C:\\Windows\\Minidump")));
        EXPECT_TRUE(program.system.messages.shown.empty());
    }
}

}  // namespace
}  // namespace korvane
