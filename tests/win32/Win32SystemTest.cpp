// The running Windows behind the system's seams: profile strings against the same tests as the portable reader, and
// files, folders, drives, version, clock and help library against the system itself.
#include "platform/win32/Win32System.h"

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/platform/ProfileStringsBehaviour.h"

namespace korvane {
namespace {

using namespace std::string_view_literals;

// A folder of the test's own, which is gone afterwards with the files named in it.
class ScratchFolder {
public:
    ScratchFolder() {
        char temporary[MAX_PATH] = "";
        GetTempPathA(MAX_PATH, temporary);
        path_ = std::string(temporary) + "korvane" + std::to_string(GetCurrentProcessId());
        EXPECT_TRUE(CreateDirectoryA(path_.c_str(), nullptr));
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() {
        WIN32_FIND_DATAA found{};
        const HANDLE search = FindFirstFileA((path_ + "\\*").c_str(), &found);
        do {
            DeleteFileA(file(found.cFileName).c_str());
        } while (FindNextFileA(search, &found));
        FindClose(search);
        RemoveDirectoryA(path_.c_str());
    }

    std::string file(std::string_view name) const { return path_ + "\\" + std::string(name); }
    std::string put(std::string_view name, std::string_view content) const {
        std::FILE* out = std::fopen(file(name).c_str(), "wb");
        EXPECT_NE(out, nullptr);
        EXPECT_EQ(std::fwrite(content.data(), 1, content.size(), out), content.size());
        EXPECT_EQ(std::fclose(out), 0);
        return file(name);
    }
    std::string content(std::string_view name) const {
        std::FILE* in = std::fopen(file(name).c_str(), "rb");
        if (in == nullptr) {
            return "<missing>";
        }
        std::string text(4096, '\0');
        text.resize(std::fread(text.data(), 1, text.size(), in));
        std::fclose(in);
        return text;
    }

private:
    std::string path_;
};

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
    std::string write(std::string_view content) { return folder_.put(std::to_string(++files_) + ".ini", content); }

private:
    ScratchFolder folder_;
    WindowsProfileStrings strings_;
    int files_ = 0;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Windows, ProfileStringsBehaviour, WindowsProfileEnvironment);

TEST(Win32FilesTest, RewritingReplacesTheWholeContent) {
    const ScratchFolder folder;
    const std::string path = folder.put("a", "a long first text");
    Win32Files files;
    std::string text;
    const std::unique_ptr<File> open = files.openExisting(path);
    ASSERT_NE(open, nullptr);
    EXPECT_TRUE(open->readAll(text));
    EXPECT_EQ(text, "a long first text");
    EXPECT_TRUE(open->rewrite("short\0er"sv));
    EXPECT_EQ(folder.content("a"), "short\0er"sv);
    EXPECT_TRUE(open->rewrite("and longer than it was before"));
    EXPECT_TRUE(open->readAll(text));
    EXPECT_EQ(text, "and longer than it was before");
    EXPECT_TRUE(open->rewrite(""));
    EXPECT_EQ(folder.content("a"), "");
}

TEST(Win32FilesTest, AnOpenFileMayBeReadAndWrittenByOthers) {
    const ScratchFolder folder;
    const std::string path = folder.put("a", "old");
    Win32Files files;
    const std::unique_ptr<File> first = files.openExisting(path);
    const std::unique_ptr<File> second = files.openExisting(path);
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_TRUE(first->rewrite("new"));
    std::string text;
    EXPECT_TRUE(second->readAll(text));
    EXPECT_EQ(text, "new");
}

TEST(Win32FilesTest, ANewFileIsEmptyAtOnceAndCannotBeRead) {
    const ScratchFolder folder;
    const std::string path = folder.put("a", "old");
    Win32Files files;
    {
        const std::unique_ptr<File> made = files.createAlways(path);
        ASSERT_NE(made, nullptr);
        std::string text = "kept";
        EXPECT_FALSE(made->readAll(text));
        EXPECT_EQ(text, "kept");
        // Others may write meanwhile, but not read.
        EXPECT_EQ(files.openExisting(path), nullptr);
        EXPECT_NE(files.createAlways(path), nullptr);
    }
    EXPECT_EQ(folder.content("a"), "");
}

TEST(Win32FilesTest, WhatThePlatformRefusesIsNoFile) {
    const ScratchFolder folder;
    Win32Files files;
    EXPECT_EQ(files.openExisting(folder.file("missing")), nullptr);
    EXPECT_EQ(folder.content("missing"), "<missing>");
    EXPECT_EQ(files.createAlways(folder.file("no folder\\a")), nullptr);
    const std::string path = folder.put("a", "old");
    const HANDLE exclusive = CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(files.openExisting(path), nullptr);
    EXPECT_EQ(files.createAlways(path), nullptr);
    CloseHandle(exclusive);
    EXPECT_EQ(folder.content("a"), "old");
}

bool isFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

TEST(Win32FoldersTest, FoldersAndDrivesAreThoseOfTheSystem) {
    Win32Folders folders;
    EXPECT_TRUE(isFolder(folders.windowsFolder())) << folders.windowsFolder();
    EXPECT_FALSE(folders.windowsFolder().ends_with('\\'));
    EXPECT_TRUE(isFolder(folders.applicationDataFolder())) << folders.applicationDataFolder();

    DWORD seen = 0;
    for (const Drive& drive : folders.logicalDrives()) {
        ASSERT_EQ(drive.root.size(), 3U) << drive.root;
        EXPECT_EQ(drive.root.substr(1), ":\\");
        EXPECT_EQ(drive.driveType, GetDriveTypeA(drive.root.c_str())) << drive.root;
        seen |= 1U << (drive.root[0] - 'A');
    }
    EXPECT_EQ(seen, GetLogicalDrives());
}

// The version that the platform states without a structure: the low byte is the major number.
TEST(Win32SystemTest, TheVersionIsThatOfTheSystem) {
    const DWORD version = GetVersion();
    VersionRecord record;
    EXPECT_TRUE(Win32Version().getVersion(record));
    EXPECT_EQ(record.majorVersion, version & 0xFF);
    EXPECT_EQ(record.minorVersion, (version >> 8) & 0xFF);
    EXPECT_EQ(record.platformId, (version & 0x80000000) != 0 ? 1U : 2U);
}

TEST(Win32SystemTest, TheDateIsUtc) {
    Win32Clock clock;
    SYSTEMTIME before{};
    SYSTEMTIME after{};
    UtcDate date;
    do {  // again when midnight falls between the two
        GetSystemTime(&before);
        date = clock.utcDate();
        GetSystemTime(&after);
    } while (before.wDay != after.wDay);
    EXPECT_EQ(date.year, before.wYear);
    EXPECT_EQ(date.month, before.wMonth);
    EXPECT_EQ(date.day, before.wDay);
}

TEST(Win32SystemTest, AnExportIsFoundByItsOrdinalAndNothingIsCalledWithoutOne) {
    Win32HelpLibrary help;
    EXPECT_FALSE(help.findFunction(14));
    EXPECT_FALSE(help.load("no such library.ocx"));
    EXPECT_EQ(help.call(0, "C:\\missing.chm", 0, 0), 0U);
    ASSERT_TRUE(help.load("hhctrl.ocx"));
    EXPECT_FALSE(help.findFunction(9999));
    EXPECT_EQ(help.call(0, "C:\\missing.chm", 0, 0), 0U);
    ASSERT_TRUE(help.findFunction(14));
    EXPECT_EQ(help.call(0, "C:\\missing.chm", 0, 0), 0U);
}

TEST(Win32SystemTest, AFilterIsSplitIntoZeroTerminatedParts) {
    EXPECT_EQ(dialogFilter("All Files(*.*)|*.*||"), "All Files(*.*)\0*.*\0\0\0\0"sv);
    EXPECT_EQ(dialogFilter("*.ico||"), "*.ico\0\0\0\0"sv);
}

// Answers the next modal dialog of this thread: looks at it, then presses the button.
class ModalAnswer {
public:
    explicit ModalAnswer(int button) {
        button_ = button;
        caption_.clear();
        text_.clear();
        owner_ = nullptr;
        timer_ = SetTimer(nullptr, 0, 50, onTimer);
    }
    ModalAnswer(const ModalAnswer&) = delete;
    ModalAnswer& operator=(const ModalAnswer&) = delete;
    ~ModalAnswer() { KillTimer(nullptr, timer_); }

    const std::string& caption() const { return caption_; }
    const std::string& text() const { return text_; }
    HWND owner() const { return owner_; }

private:
    static void CALLBACK onTimer(HWND, UINT, UINT_PTR, DWORD) {
        EnumThreadWindows(
            GetCurrentThreadId(),
            [](HWND window, LPARAM) -> BOOL {
                char name[MAX_PATH] = "";
                GetClassNameA(window, name, MAX_PATH);
                if (std::string_view(name) != "#32770" || !IsWindowVisible(window)) {
                    return TRUE;
                }
                GetWindowTextA(window, name, MAX_PATH);
                caption_ = name;
                GetDlgItemTextA(window, 0xFFFF, name, MAX_PATH);
                text_ = name;
                owner_ = GetWindow(window, GW_OWNER);
                PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(button_), 0);
                return FALSE;
            },
            0);
    }

    static inline int button_ = 0;
    static inline std::string caption_;
    static inline std::string text_;
    static inline HWND owner_ = nullptr;
    UINT_PTR timer_ = 0;
};

class Win32ModalTest : public testing::Test {
protected:
    Win32ModalTest()
        : window_(CreateWindowExA(0, "STATIC", "", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr)) {}
    ~Win32ModalTest() override { DestroyWindow(window_); }

    HWND window_;
};

TEST_F(Win32ModalTest, AMessageBoxShowsItsTextAndBelongsToTheWindowOnlyWhenAsked) {
    Win32MessageBoxes boxes;
    boxes.owner = window_;
    {
        const ModalAnswer answer(IDOK);
        boxes.show({.text = "some text", .caption = "A L E R T", .icon = MessageIcon::Stop});
        EXPECT_EQ(answer.caption(), "A L E R T");
        EXPECT_EQ(answer.text(), "some text");
        EXPECT_NE(answer.owner(), window_);
    }
    const ModalAnswer answer(IDOK);
    boxes.show({.text = "owned", .caption = "C", .ownedByMainWindow = true});
    EXPECT_EQ(answer.text(), "owned");
    EXPECT_EQ(answer.owner(), window_);
}

TEST_F(Win32ModalTest, CancelledPickersAnswerAnEmptyText) {
    Win32Pickers pickers;
    pickers.owner = window_;
    {
        const ModalAnswer answer(IDCANCEL);
        EXPECT_EQ(pickers.openFile("All Files(*.*)|*.*||"), "");
        EXPECT_EQ(answer.owner(), window_);
    }
    const ModalAnswer answer(IDCANCEL);
    EXPECT_EQ(pickers.browseForFolder(), "");
    EXPECT_EQ(answer.owner(), window_);
}

}  // namespace
}  // namespace korvane
