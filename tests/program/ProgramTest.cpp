// The finished program, driven from outside as a user's hands and eyes do: known
// only by its windows, the registry and the date file.
#include "tests/cli/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <regex>
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
constexpr int kEdit = 1015;
constexpr int kCombo = 1021;
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

    // Waits for the window, which must come within twenty seconds. Wine looks up the version of Windows that a program
    // sees under the program's own name first.
    void start(const std::string& version = "winxp") {
        HKEY key = nullptr;
        RegCreateKeyA(HKEY_CURRENT_USER, "Software\\Wine\\AppDefaults\\KorvaneManager.exe", &key);
        RegSetValueExA(key, "Version", 0, REG_SZ, reinterpret_cast<const BYTE*>(version.c_str()),
                       static_cast<DWORD>(version.size() + 1));
        RegCloseKey(key);
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
        sendRemote(tree, TVM_SETITEMA, 0, request);
        SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, 0);
        select(row);
    }
    void selectListRow(int row) const {
        LVITEMA request{};
        request.state = request.stateMask = LVIS_SELECTED;
        sendRemote(control(kOverviewList), LVM_SETITEMSTATE, static_cast<WPARAM>(row), request);
    }
    template <class Structure>
    void sendRemote(HWND window, UINT message, WPARAM wParam, const Structure& structure) const {
        void* remote = VirtualAllocEx(process.hProcess, nullptr, sizeof structure, MEM_COMMIT, PAGE_READWRITE);
        WriteProcessMemory(process.hProcess, remote, &structure, sizeof structure, nullptr);
        SendMessageA(window, message, wParam, reinterpret_cast<LPARAM>(remote));
        VirtualFreeEx(process.hProcess, remote, 0, MEM_RELEASE);
    }
    // Presses the button. The text of the alert where one is expected; else the press has done its work when it returns.
    std::string apply(bool alertExpected) const {
        if (!alertExpected) {
            DWORD_PTR result = 0;
            EXPECT_NE(SendMessageTimeoutA(applyButton(), BM_CLICK, 0, 0, SMTO_NORMAL, kPatience, &result), 0);
            return "";
        }
        PostMessageA(applyButton(), BM_CLICK, 0, 0);
        HWND box = nullptr;
        for (DWORD waited = 0; waited < kPatience && box == nullptr; waited += 10) {
            Sleep(10);
            box = FindWindowA(nullptr, "A L E R T");
        }
        char text[200] = "";
        SendMessageA(GetDlgItem(box, 0xFFFF), WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
        SendMessageA(box, WM_COMMAND, IDOK, 0);
        SendMessageA(main, WM_NULL, 0, 0);
        return text;
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

TEST_F(ProgramTest, ShowsOnePageForEveryRowOfTheTree) {
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
    EXPECT_FALSE(IsWindowVisible(FindWindowA("Korvane.SplashPicture", nullptr)));
    expectCloses();
}

// ---- Every tweak of the Command Processor

constexpr const char* kProcessor = "Software\\Microsoft\\Command Processor";
constexpr const char* kPolicy = "Software\\Policies\\Microsoft\\Windows\\System";
constexpr const char* kNamesNt = "These Tweak active only on Windows NT/2000/XP";
constexpr const char* kNames2000 = "These Tweak active only on Windows 2000/XP";

// What a hand does: a box is clicked, a row or an entry selected, a text typed. What is then stored for the user.
const struct {
    int id;
    const char* title;
    int control;
    int choice;
    const char* alert;
    bool onNt4;
    const char* key;
    const char* name;
    DWORD stored;
} kSteps[] = {
    {3, "Allow UNC Paths at the Command Prompt", kCheck, 0, kNamesNt, true, kProcessor, "DisableUNCCheck", 1},
    {5, "Change the Command Prompt Colors", kOverviewList, 10, kNamesNt, true, kProcessor, "DefaultColor", 10},
    {6, "Disable Command Processor Extentions", kCheck, 0, kNames2000, false, kProcessor, "EnableExtensions", 0},
    {7, "Disable Command Prompt and Batch Files", kOverviewList, 2, kNames2000, false, kPolicy, "DisableCMD", 2},
    {8, "Enable Command Completion", kCombo, 2, kNamesNt, true, kProcessor, "CompletionChar", 9},
    {9, "Enable Delayed Environment Variable Expantion", kCheck, 0, kNames2000, false, kProcessor,
     "DelayedExpansion", 1},
    {10, "Enable Directory Completion", kCombo, 3, kNamesNt, false, kProcessor, "PathCompletionChar", 4},
    {11, "Quick Edit the Command Prompt", kCheck, 0, kNamesNt, true, "Console", "QuickEdit", 1},
    {12, "Run Startup Programs in Command Prompt", kEdit, 0, kNamesNt, false, kProcessor, "AutoRun", 'x'},
};

class CommandProcessorProgram : public ProgramTest, public testing::WithParamInterface<const char*> {};

TEST_P(CommandProcessorProgram, AppliesOrRefusesEveryTweak) {
    const std::string version = GetParam();
    for (const auto& step : kSteps) {
        HKEY key = nullptr;
        RegCreateKeyA(HKEY_CURRENT_USER, step.key, &key);
        RegDeleteValueA(key, step.name);
        RegCloseKey(key);
    }
    std::string dates = std::regex_replace(readFile(dateFile), std::regex(",[0-9/]*"), ",1/2/2003");
    writeFile(dateFile, dates);
    ASSERT_NO_FATAL_FAILURE(start(version));
    for (const auto& step : kSteps) {
        SCOPED_TRACE(step.title);
        selectAs(treeRows().front(), step.id);
        EXPECT_TRUE(header().starts_with(std::string(step.title) + ":\n"));
        switch (step.control) {
            case kCheck: SendMessageA(control(kCheck), BM_CLICK, 0, 0); break;
            case kOverviewList: selectListRow(step.choice); break;
            case kCombo: SendMessageA(control(kCombo), CB_SETCURSEL, static_cast<WPARAM>(step.choice), 0); break;
            default: SendMessageA(control(kEdit), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("x")); break;
        }
        const bool accepted = version == "winxp" || version == "win2k" || (version == "nt40" && step.onNt4);
        EXPECT_EQ(apply(!accepted), accepted ? "" : step.alert);
        DWORD stored = 0;
        DWORD size = sizeof stored;
        const LONG result = RegGetValueA(HKEY_CURRENT_USER, step.key, step.name, RRF_RT_ANY, nullptr, &stored, &size);
        EXPECT_EQ(result, accepted ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND);
        EXPECT_EQ(stored, accepted ? step.stored : 0u);
        const bool old = readFile(dateFile).find("\"" + std::string(step.title) + "\",1/2/2003") != std::string::npos;
        EXPECT_EQ(old, !accepted);
    }
    // The menu entry is for every Windows, but it needs a text, and the key of all such entries.
    HKEY entries = nullptr;
    RegCreateKeyA(HKEY_CLASSES_ROOT, "Directory\\shell", &entries);
    RegDeleteKeyA(entries, "Command\\command");
    RegDeleteKeyA(entries, "Command");
    RegCloseKey(entries);
    selectAs(treeRows().front(), 2);
    SendMessageA(control(kEdit), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(""));
    SendMessageA(control(kCheck), BM_CLICK, 0, 0);
    EXPECT_EQ(apply(true), "Please Set the Command Prompt Menu Name");
    SendMessageA(control(kCheck), BM_CLICK, 0, 0);
    SendMessageA(control(kEdit), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("Here"));
    apply(false);
    char text[8] = "";
    LONG size = sizeof text;
    EXPECT_EQ(RegQueryValueA(HKEY_CLASSES_ROOT, "Directory\\shell\\Command", text, &size), ERROR_SUCCESS);
    EXPECT_STREQ(text, "Here");
    expectCloses();
}

INSTANTIATE_TEST_SUITE_P(Versions, CommandProcessorProgram, testing::Values("winxp", "win2k", "nt40", "win98", "win7"),
                         [](const auto& version) { return std::string(version.param); });

}  // namespace
}  // namespace korvane::program
