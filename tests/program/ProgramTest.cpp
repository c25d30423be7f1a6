// The finished program, driven from outside as a user's hands and eyes do: known
// only by its windows, the registry and the date file.
#include "tests/cli/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include <windows.h>
#include <commctrl.h>

namespace korvane::program {
namespace {

constexpr int kTree = 1004;
constexpr int kHeader = 1006;
constexpr int kOverviewList = 1007;
constexpr int kCheck = 1013;
constexpr int kApply = 1016;
constexpr DWORD kPatience = 20000;  // milliseconds
constexpr char kSettings[] = "Software\\Korvane Manager";
constexpr char kSettingsFlag[] = "DateModefiedFlage";

class ProgramTest : public testing::Test {
protected:
    ProgramTest() {
        const char* path = std::getenv("KORVANE_MANAGER");
        program = path == nullptr ? "" : path;
        dateFile = program.substr(0, program.find_last_of("\\/")) + "\\DFile.mrc";
    }
    ~ProgramTest() override {
        TerminateProcess(process.hProcess, 1);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }

    // Waits for the window, which must come within twenty seconds.
    void start() {
        STARTUPINFOA startup{};
        startup.cb = sizeof startup;
        std::string command = '"' + program + '"';
        ASSERT_TRUE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                                   &process)) << "KORVANE_MANAGER does not name a program: " << command;
        for (DWORD waited = 0; waited < kPatience && main == nullptr; waited += 50) {
            Sleep(50);
            const HWND found = FindWindowA(nullptr, "Korvane Manager");
            main = IsWindowVisible(found) ? found : nullptr;
        }
        ASSERT_NE(main, nullptr);
        SendMessageA(main, WM_NULL, 0, 0);  // initialised when it answers
        tree = FindWindowExA(GetDlgItem(main, kTree), nullptr, WC_TREEVIEWA, nullptr);
    }
    void expectCloses() {
        PostMessageA(main, WM_CLOSE, 0, 0);
        DWORD status = 1;
        EXPECT_EQ(WaitForSingleObject(process.hProcess, kPatience), WAIT_OBJECT_0);
        EXPECT_TRUE(GetExitCodeProcess(process.hProcess, &status));
        EXPECT_EQ(status, 0u);
    }

    std::vector<LRESULT> treeRows() const {
        std::vector<LRESULT> rows;
        LRESULT item = SendMessageA(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0);
        while (item != 0) {
            rows.push_back(item);
            LRESULT next = SendMessageA(tree, TVM_GETNEXTITEM, TVGN_CHILD, item);
            while (next == 0 && item != 0) {
                next = SendMessageA(tree, TVM_GETNEXTITEM, TVGN_NEXT, item);
                item = SendMessageA(tree, TVM_GETNEXTITEM, TVGN_PARENT, item);
            }
            item = next;
        }
        return rows;
    }
    void select(LRESULT row) const { SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, row); }
    // An item that has no row of its own: the row stands in for it. Its structure has to be in the program's memory.
    void selectAs(LRESULT row, LPARAM item) const {
        TVITEMA request{};
        request.mask = TVIF_PARAM;
        request.hItem = reinterpret_cast<HTREEITEM>(row);
        request.lParam = item;
        void* remote = VirtualAllocEx(process.hProcess, nullptr, sizeof request, MEM_COMMIT, PAGE_READWRITE);
        WriteProcessMemory(process.hProcess, remote, &request, sizeof request, nullptr);
        SendMessageA(tree, TVM_SETITEMA, 0, reinterpret_cast<LPARAM>(remote));
        select(row);
    }

    HWND applyButton() const { return GetDlgItem(main, kApply); }
    // On the visible page; null when no page, or more than one, is visible.
    HWND control(int id) const {
        std::vector<HWND> visible;
        for (HWND page = nullptr; (page = FindWindowExA(main, page, "#32770", nullptr)) != nullptr;) {
            if (IsWindowVisible(page)) {
                visible.push_back(page);
            }
        }
        return visible.size() == 1 ? GetDlgItem(visible.front(), id) : nullptr;
    }
    std::string header() const {
        char text[4096] = "";
        SendMessageA(control(kHeader), WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
        return text;
    }

    std::string program;
    std::string dateFile;
    PROCESS_INFORMATION process{};
    HWND main = nullptr;
    HWND tree = nullptr;
};

// The number that was there, 0 when there was none; it is removed.
DWORD takeNumber(const char* path, const char* name) {
    DWORD result = 0;
    DWORD size = sizeof result;
    HKEY key = nullptr;
    RegCreateKeyA(HKEY_CURRENT_USER, path, &key);
    RegQueryValueExA(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(&result), &size);
    RegDeleteValueA(key, name);
    RegCloseKey(key);
    return result;
}

TEST_F(ProgramTest, StartsUnselectedOnTheFirstOverviewDatesEveryRecordAndAppliesATweak) {
    takeNumber(kSettings, kSettingsFlag);
    takeNumber("Console", "QuickEdit");
    DeleteFileA(dateFile.c_str());
    ASSERT_NO_FATAL_FAILURE(start());
    EXPECT_EQ(SendMessageA(tree, TVM_GETNEXTITEM, TVGN_CARET, 0), 0);
    EXPECT_FALSE(IsWindowVisible(applyButton()));
    EXPECT_EQ(header(), "Accessories:\nTweak and Settings for Windows Accessories and Components.");
    SYSTEMTIME now{};
    GetSystemTime(&now);
    const std::string dates = readFile(dateFile);
    EXPECT_EQ(std::ranges::count(dates, '\n'), 311);
    EXPECT_NE(dates.find("," + std::to_string(now.wMonth) + "/" + std::to_string(now.wDay) + "/"), std::string::npos);
    EXPECT_EQ(takeNumber(kSettings, kSettingsFlag), 1u);

    selectAs(treeRows().front(), 11);
    EXPECT_TRUE(header().starts_with("Quick Edit the Command Prompt:\n"));
    SendMessageA(control(kCheck), BM_CLICK, 0, 0);
    SendMessageA(applyButton(), BM_CLICK, 0, 0);
    EXPECT_EQ(takeNumber("Console", "QuickEdit"), 1u);
    expectCloses();
}

TEST_F(ProgramTest, ShowsOnePageForEveryRowOfTheTreeAndLosesNoDrawingObjects) {
    ASSERT_NO_FATAL_FAILURE(start());
    const std::vector<LRESULT> rows = treeRows();
    EXPECT_EQ(rows.size(), 163u);
    int overviews = 0;
    for (const LRESULT row : rows) {
        select(row);
        SCOPED_TRACE(header());
        const bool isOverview = SendMessageA(control(kOverviewList), LVM_GETITEMCOUNT, 0, 0) > 0 &&
                                !IsWindowVisible(applyButton());
        overviews += isOverview;
        EXPECT_TRUE(isOverview || IsWindowVisible(applyButton()));
        EXPECT_NE(header().find(":\n"), std::string::npos);
    }
    EXPECT_EQ(overviews, 22);
    const DWORD before = GetGuiResources(process.hProcess, GR_GDIOBJECTS);
    for (int walk = 0; walk < 3; ++walk) {
        std::ranges::for_each(rows, [&](LRESULT row) { select(row); });
    }
    EXPECT_LE(GetGuiResources(process.hProcess, GR_GDIOBJECTS), before + 2);
    EXPECT_FALSE(IsWindowVisible(FindWindowA("Korvane.SplashPicture", nullptr)));
    expectCloses();
}

}  // namespace
}  // namespace korvane::program
