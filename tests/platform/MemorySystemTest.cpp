// The system in memory and the real files behind it: profile strings, files that cannot be written, scripted answers.
#include "platform/memory/MemorySystem.h"

#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/cli/TestFolder.h"
#include "tests/platform/FilesBehaviour.h"
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

class MemoryFilesEnvironment {
public:
    Files& files() { return files_; }
    std::string path() const { return "file"; }
    void write(std::string_view text) { files_.put("file", {.text = std::string(text)}); }
    std::string read() const { return files_.find("file")->text; }

private:
    MemoryFiles files_;
};
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, FilesBehaviour, MemoryFilesEnvironment);

}  // namespace
}  // namespace korvane
