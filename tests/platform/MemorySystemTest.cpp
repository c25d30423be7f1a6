// The system in memory and the real files behind it: profile strings, files that cannot be written, scripted answers.
#include "platform/memory/MemorySystem.h"

#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/cli/TestFolder.h"
#ifdef _WIN32
#include "platform/win32/Win32System.h"
#endif
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

class RealFileTest : public testing::Test {
protected:
    TestFolder folder;
    std::string path = folder.file("file");
    std::string text = "kept";
};

TEST_F(RealFileTest, AnIniFileIsReadOnceAndKept) {
    writeFile(path, "[s]\nk=v\n");
    IniFile ini;
    EXPECT_EQ(ini.getString("s", "k", "", 100, path), "v");
    writeFile(path, "");
    EXPECT_EQ(ini.getString("s", "k", "", 100, path), "v");
    EXPECT_EQ(IniFile().getString("s", "k", "a folder", 100, folder.path()), "a folder");
}

template <class FilesOfPlatform>
class FilesTest : public RealFileTest {
protected:
    FilesOfPlatform files;
};

#ifdef _WIN32
using EveryFiles = testing::Types<StdioFiles, Win32Files>;
#else
using EveryFiles = testing::Types<StdioFiles>;
#endif
TYPED_TEST_SUITE(FilesTest, EveryFiles);

TYPED_TEST(FilesTest, RewritingReplacesTheWholeContent) {
    writeFile(this->path, "a long first text");
    const std::unique_ptr<File> open = this->files.openExisting(this->path);
    ASSERT_NE(open, nullptr);
    for (const std::string expected : {"short", "and longer than it was before"}) {
        EXPECT_TRUE(open->rewrite(expected));
        EXPECT_TRUE(open->readAll(this->text));
        EXPECT_EQ(this->text, expected);
        EXPECT_EQ(readFile(this->path), expected);
    }
}

TYPED_TEST(FilesTest, ANewFileIsEmptyAtOnceAndCannotBeRead) {
    writeFile(this->path, "old");
    std::unique_ptr<File> made = this->files.createAlways(this->path);
    ASSERT_NE(made, nullptr);
    EXPECT_FALSE(made->readAll(this->text));
    EXPECT_EQ(this->text, "kept");
    made.reset();
    EXPECT_EQ(readFile(this->path), "");
    EXPECT_EQ(this->files.openExisting(this->folder.file("missing")), nullptr);
    EXPECT_EQ(this->files.createAlways(this->folder.file("no such folder/file")), nullptr);
}

#ifdef __linux__
TEST_F(RealFileTest, AFullDiskIsReportedByTheRewriteItself) {
    const std::unique_ptr<File> full = StdioFiles().openExisting("\\dev\\full");
    ASSERT_NE(full, nullptr);
    EXPECT_FALSE(full->rewrite("text"));
}
#endif

}  // namespace
}  // namespace korvane
