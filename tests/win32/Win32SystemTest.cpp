// The running Windows behind the system's seams: registry and profile strings against the same tests as the portable
// ones, and files, folders, drives and help library against the system itself.
#include "platform/win32/Win32Registry.h"
#include "platform/win32/Win32System.h"

#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/cli/TestFolder.h"
#include "tests/platform/FilesBehaviour.h"
#include "tests/platform/ProfileStringsBehaviour.h"
#include "tests/platform/RegistryBehaviour.h"

namespace korvane {
namespace {

using namespace std::string_view_literals;

// What the program's own reader of INI files has to agree with.
class WindowsProfileStrings final : public ProfileStrings {
public:
    std::string getString(std::string_view section, std::string_view key, std::string_view defaultValue,
                          std::size_t size, const std::string& file) override {
        std::string value(size, '\0');
        const DWORD length = GetPrivateProfileStringA(std::string(section).c_str(), std::string(key).c_str(),
                                                      std::string(defaultValue).c_str(), value.data(),
                                                      static_cast<DWORD>(size), file.c_str());
        value.resize(length);
        return value;
    }
};

class WindowsProfileEnvironment {
public:
    ProfileStrings& strings() { return strings_; }
    std::string missing() const { return folder_.file("missing.ini"); }
    std::string write(std::string_view content) {
        const std::string path = folder_.file(std::to_string(++files_) + ".ini");
        writeFile(path, content);
        return path;
    }

private:
    TestFolder folder_;
    WindowsProfileStrings strings_;
    int files_ = 0;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Live, RegistryBehaviour, Win32Registry);
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, ProfileStringsBehaviour, WindowsProfileEnvironment);

class WindowsFilesEnvironment {
public:
    Files& files() { return files_; }
    std::string path() const { return folder_.file("file"); }
    void write(std::string_view text) { writeFile(path(), text); }
    std::string read() const { return readFile(path()); }

private:
    TestFolder folder_;
    Win32Files files_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Windows, FilesBehaviour, WindowsFilesEnvironment);

TEST(Win32SystemTest, FoldersDrivesAndVersionAreThoseOfTheSystem) {
    Win32Folders folders;
    for (const std::string& folder : {folders.windowsFolder(), folders.applicationDataFolder()}) {
        EXPECT_TRUE(GetFileAttributesA(folder.c_str()) & FILE_ATTRIBUTE_DIRECTORY) << folder;
        EXPECT_FALSE(folder.ends_with('\\'));
    }
    DWORD seen = 0;
    for (const Drive& drive : folders.logicalDrives()) {
        EXPECT_EQ(drive.root.substr(1), ":\\");
        EXPECT_EQ(drive.driveType, GetDriveTypeA(drive.root.c_str())) << drive.root;
        seen |= 1U << (drive.root[0] - 'A');
    }
    EXPECT_EQ(seen, GetLogicalDrives());
    // The platform states the version without a structure as well: the low byte is the major number.
    VersionRecord record;
    EXPECT_TRUE(Win32Version().getVersion(record));
    EXPECT_EQ(record.majorVersion, GetVersion() & 0xFF);
    EXPECT_EQ(record.minorVersion, (GetVersion() >> 8) & 0xFF);
}

TEST(Win32SystemTest, AnExportIsFoundByItsOrdinalAndNothingIsCalledWithoutOne) {
    Win32HelpLibrary help;
    EXPECT_FALSE(help.findFunction(14));
    ASSERT_TRUE(help.load("hhctrl.ocx"));
    EXPECT_FALSE(help.findFunction(9999));
    EXPECT_EQ(help.call(0, "C:\\missing.chm", 0, 0), 0U);
    ASSERT_TRUE(help.findFunction(14));
    EXPECT_EQ(help.call(0, "C:\\missing.chm", 0, 0), 0U);
}

TEST(Win32SystemTest, AFilterIsSplitIntoZeroTerminatedParts) {
    EXPECT_EQ(dialogFilter("All Files(*.*)|*.*||"), "All Files(*.*)\0*.*\0\0\0\0"sv);
}

}  // namespace
}  // namespace korvane
