// The system in memory and the real files behind it: profile strings, files that cannot be written, scripted answers.
#include "platform/memory/MemorySystem.h"

#include <cstdio>
#include <ctime>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/platform/ProfileStringsBehaviour.h"

namespace korvane {
namespace {

class IniFileEnvironment {
public:
    ProfileStrings& strings() { return ini_; }
    std::string missing() const { return "no such folder\\no such file.ini"; }
    std::string write(std::string_view content) {
        const std::string path = std::to_string(++files_) + ".ini";
        ini_.setContent(path, content);
        return path;
    }

private:
    IniFile ini_;
    int files_ = 0;
};

INSTANTIATE_TYPED_TEST_SUITE_P(IniFile, ProfileStringsBehaviour, IniFileEnvironment);

// A file of the test's own, which is gone afterwards.
class RealFile {
public:
    explicit RealFile(std::string_view content)
        : path_(testing::TempDir() + "korvane_system_test_" + std::to_string(std::time(nullptr))) {
        std::FILE* file = std::fopen(path_.c_str(), "wb");
        EXPECT_NE(file, nullptr);
        EXPECT_EQ(std::fwrite(content.data(), 1, content.size(), file), content.size());
        EXPECT_EQ(std::fclose(file), 0);
    }
    RealFile(const RealFile&) = delete;
    RealFile& operator=(const RealFile&) = delete;
    ~RealFile() { std::remove(path_.c_str()); }

    const std::string& path() const { return path_; }
    std::string content() const {
        std::string text = "<unreadable>";
        readWholeFile(path_, 1 << 20, text);
        return text;
    }

private:
    std::string path_;
};

TEST(IniFileTest, ReadsARealFileOnceAndKeepsIt) {
    std::string path;
    IniFile ini;
    {
        const RealFile file("[s]\nk=v\n");
        path = file.path();
        EXPECT_EQ(ini.getString("s", "k", "", 100, path), "v");
    }
    EXPECT_EQ(ini.getString("s", "k", "", 100, path), "v");
    EXPECT_EQ(IniFile().getString("s", "k", "gone", 100, path), "gone");
    EXPECT_EQ(IniFile().getString("s", "k", "a folder", 100, testing::TempDir()), "a folder");
}

TEST(StdioFilesTest, RewritingReplacesTheWholeContent) {
    const RealFile file("a long first text");
    StdioFiles files;
    std::string text;
    {
        const std::unique_ptr<File> open = files.openExisting(file.path());
        ASSERT_NE(open, nullptr);
        EXPECT_TRUE(open->readAll(text));
        EXPECT_EQ(text, "a long first text");
        EXPECT_TRUE(open->rewrite("short"));
        EXPECT_EQ(file.content(), "short");
        EXPECT_TRUE(open->rewrite("and longer than it was before"));
        EXPECT_TRUE(open->readAll(text));
        EXPECT_EQ(text, "and longer than it was before");
        EXPECT_TRUE(open->rewrite(""));
    }
    EXPECT_EQ(file.content(), "");
}

TEST(StdioFilesTest, ANewFileIsEmptyAtOnceAndCannotBeRead) {
    const RealFile file("old");
    StdioFiles files;
    const std::unique_ptr<File> made = files.createAlways(file.path());
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(file.content(), "");
    std::string text = "kept";
    EXPECT_FALSE(made->readAll(text));
    EXPECT_EQ(text, "kept");
    EXPECT_TRUE(made->rewrite("new"));
    EXPECT_EQ(file.content(), "new");
    EXPECT_EQ(files.openExisting(file.path() + ".missing"), nullptr);
    EXPECT_EQ(files.createAlways(testing::TempDir() + "no such folder\\file"), nullptr);
}

TEST(StdioFilesTest, ReadingStopsAtTheLimit) {
    const RealFile file("12345");
    std::string text = "kept";
    EXPECT_FALSE(readWholeFile(file.path(), 4, text));
    EXPECT_EQ(text, "kept");
    EXPECT_TRUE(readWholeFile(file.path(), 5, text));
    EXPECT_EQ(text, "12345");
}

#ifdef __linux__
TEST(StdioFilesTest, AFullDiskIsReportedByTheRewriteItself) {
    StdioFiles files;
    const std::unique_ptr<File> full = files.openExisting("\\dev\\full");
    ASSERT_NE(full, nullptr);
    EXPECT_FALSE(full->rewrite("text"));
}
#endif

TEST(MemoryFilesTest, AFullDiskLeavesTheContentAlone) {
    MemoryFiles files;
    files.put("a", {.text = "old"});
    const std::unique_ptr<File> open = files.openExisting("a");
    ASSERT_NE(open, nullptr);
    files.diskFull = true;
    EXPECT_FALSE(open->rewrite("new"));
    EXPECT_EQ(files.find("a")->text, "old");
    files.diskFull = false;
    EXPECT_TRUE(open->rewrite("new"));
    EXPECT_EQ(files.find("a")->text, "new");
}

TEST(MemoryFilesTest, ReadOnlyFilesCanBeNeitherOpenedNorReplaced) {
    MemoryFiles files;
    files.put("a", {.text = "old", .readOnly = true});
    EXPECT_EQ(files.openExisting("a"), nullptr);
    EXPECT_EQ(files.createAlways("a"), nullptr);
    EXPECT_EQ(files.find("a")->text, "old");
    EXPECT_EQ(files.openExisting("missing"), nullptr);
}

TEST(MemoryFilesTest, ANewFileEmptiesTheOldOneAndCannotBeRead) {
    MemoryFiles files;
    files.put("a", {.text = "old"});
    files.refusesCreation = true;
    EXPECT_EQ(files.createAlways("b"), nullptr);
    EXPECT_EQ(files.find("b"), nullptr);
    const std::unique_ptr<File> made = files.createAlways("a");
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(files.find("a")->text, "");
    std::string text = "kept";
    EXPECT_FALSE(made->readAll(text));
    EXPECT_EQ(text, "kept");
    EXPECT_TRUE(made->rewrite("new"));
    EXPECT_EQ(files.find("a")->text, "new");
}

TEST(MemorySystemTest, ScriptedAnswersRunOutIntoCancelling) {
    ScriptedPickers pickers;
    pickers.answers = {"C:\\one", "C:\\two.ico"};
    EXPECT_EQ(pickers.browseForFolder(), "C:\\one");
    EXPECT_EQ(pickers.openFile("*.ico||"), "C:\\two.ico");
    EXPECT_EQ(pickers.openFile("All|*.*||"), "");
    EXPECT_EQ(pickers.filters, (std::vector<std::string>{"*.ico||", "All|*.*||"}));
}

TEST(MemorySystemTest, TheHelpFunctionIsReachedOnlyThroughALoadedModule) {
    ScriptedHelpLibrary help;
    EXPECT_FALSE(help.findFunction(14));
    EXPECT_FALSE(help.load("C:\\other.ocx"));
    EXPECT_EQ(help.call(0, "a.chm", 0, 0), 0U);
    EXPECT_TRUE(help.load("hhctrl.ocx"));
    EXPECT_FALSE(help.findFunction(15));
    EXPECT_TRUE(help.findFunction(14));
    EXPECT_EQ(help.call(0, "a.chm", 0, 0), 1U);
    ASSERT_EQ(help.calls.size(), 1U);
    EXPECT_EQ(help.calls[0].file, "a.chm");
}

// A failed call leaves what the caller had, and the program does not notice.
TEST(MemorySystemTest, AFailedVersionCallLeavesTheRecordAlone) {
    MemoryVersion version;
    version.record = *versionNamed("me");
    VersionRecord record;
    EXPECT_TRUE(version.getVersion(record));
    EXPECT_EQ(record.platformId, 1U);
    EXPECT_EQ(record.minorVersion, 90U);
    version.fails = true;
    version.record = *versionNamed("vista");
    EXPECT_FALSE(version.getVersion(record));
    EXPECT_EQ(record.minorVersion, 90U);
    EXPECT_FALSE(versionNamed("XP "));
}

TEST(MemorySystemTest, TheRealClockGivesADateOfThisAge) {
    SystemClock clock;
    const UtcDate date = clock.utcDate();
    EXPECT_GE(date.year, 2024);
    EXPECT_TRUE(date.month >= 1 && date.month <= 12) << date.month;
    EXPECT_TRUE(date.day >= 1 && date.day <= 31) << date.day;
}

}  // namespace
}  // namespace korvane
