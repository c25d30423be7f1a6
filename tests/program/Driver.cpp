// Finding windows, and talking to controls across processes.
#include "tests/program/Driver.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <commctrl.h>

namespace korvane::program {
namespace {

constexpr int kTree = 1004;
constexpr int kApply = 1016;
constexpr int kMessageText = 0xFFFF;
constexpr DWORD kPatience = 20000;  // milliseconds
constexpr std::size_t kRemoteSize = 4096;
constexpr std::size_t kRemoteText = 1024;  // where texts stand in the program's memory, behind the structure

std::string programPath() {
    const char* path = std::getenv("KORVANE_MANAGER");
    return path == nullptr ? std::string() : path;
}

std::string windowText(HWND window) {
    const auto length = static_cast<std::size_t>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0));
    std::string text(length + 1, '\0');
    const auto got =
        static_cast<std::size_t>(SendMessageA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())));
    text.resize(got);
    return text;
}

// Wine looks up the version of Windows that a program sees under the program's own name first.
void setWindowsVersion(const std::string& version) {
    HKEY key = nullptr;
    RegCreateKeyA(HKEY_CURRENT_USER, "Software\\Wine\\AppDefaults\\KorvaneManager.exe", &key);
    RegSetValueExA(key, "Version", 0, REG_SZ, reinterpret_cast<const BYTE*>(version.c_str()),
                   static_cast<DWORD>(version.size() + 1));
    RegCloseKey(key);
}

DWORD WINAPI pressApply(void* window) {
    const auto main = static_cast<HWND>(window);
    SendMessageA(main, WM_COMMAND, MAKEWPARAM(kApply, BN_CLICKED), reinterpret_cast<LPARAM>(GetDlgItem(main, kApply)));
    return 0;
}

struct Search {
    DWORD process;
    const char* caption;
    HWND found;
};

BOOL CALLBACK matchWindow(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == search.process && IsWindowVisible(window) && windowText(window) == search.caption) {
        search.found = window;
        return FALSE;
    }
    return TRUE;
}

}  // namespace

Driver::Driver(const std::string& windowsVersion) {
    setWindowsVersion(windowsVersion);
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    std::string command = '"' + programPath() + '"';
    if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process_)) {
        ADD_FAILURE() << "KORVANE_MANAGER does not name a program: " << command;
        return;
    }
    for (DWORD waited = 0; waited < kPatience && main_ == nullptr; waited += 50) {
        Sleep(50);
        main_ = findWindow("Korvane Manager");
    }
    if (main_ == nullptr) {
        ADD_FAILURE() << "the window did not come up";
        return;
    }
    SendMessageA(main_, WM_NULL, 0, 0);  // initialised when it answers
    remote_ = static_cast<char*>(VirtualAllocEx(process_.hProcess, nullptr, kRemoteSize, MEM_COMMIT, PAGE_READWRITE));
}

Driver::~Driver() {
    if (process_.hProcess != nullptr) {
        if (main_ != nullptr) {
            close();
        }
        TerminateProcess(process_.hProcess, 1);
        CloseHandle(process_.hThread);
        CloseHandle(process_.hProcess);
    }
}

bool Driver::close() {
    PostMessageA(main_, WM_CLOSE, 0, 0);
    main_ = nullptr;
    DWORD status = 1;
    return WaitForSingleObject(process_.hProcess, kPatience) == WAIT_OBJECT_0 &&
           GetExitCodeProcess(process_.hProcess, &status) && status == 0;
}

HWND Driver::findWindow(const char* caption) {
    Search search{process_.dwProcessId, caption, nullptr};
    EnumWindows(matchWindow, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND Driver::tree() { return FindWindowExA(GetDlgItem(main_, kTree), nullptr, WC_TREEVIEWA, nullptr); }

std::string Driver::readRemote(const void* from, std::size_t size) {
    std::string data(size, '\0');
    SIZE_T done = 0;
    ReadProcessMemory(process_.hProcess, from, data.data(), size, &done);
    return data;
}

void Driver::writeRemote(const void* data, std::size_t size) {
    SIZE_T done = 0;
    WriteProcessMemory(process_.hProcess, remote_, data, size, &done);
}

std::vector<TreeRow> Driver::treeRows() {
    std::vector<TreeRow> rows;
    const HWND view = tree();
    int depth = 0;
    LRESULT item = SendMessageA(view, TVM_GETNEXTITEM, TVGN_ROOT, 0);
    while (item != 0) {
        TVITEMA request{};
        request.mask = TVIF_TEXT | TVIF_PARAM | TVIF_STATE | TVIF_IMAGE;
        request.hItem = reinterpret_cast<HTREEITEM>(item);
        request.stateMask = TVIS_BOLD;
        request.pszText = remote_ + kRemoteText;
        request.cchTextMax = 260;
        writeRemote(&request, sizeof request);
        SendMessageA(view, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(remote_));
        const std::string answer = readRemote(remote_, sizeof request);
        std::memcpy(&request, answer.data(), sizeof request);
        rows.push_back({view, item, readRemote(request.pszText, 260).c_str(), static_cast<unsigned>(request.lParam),
                        (request.state & TVIS_BOLD) != 0, request.iImage, depth});
        LRESULT next = SendMessageA(view, TVM_GETNEXTITEM, TVGN_CHILD, item);
        depth += next != 0 ? 1 : 0;
        while (next == 0 && item != 0) {
            next = SendMessageA(view, TVM_GETNEXTITEM, TVGN_NEXT, item);
            if (next == 0) {
                item = SendMessageA(view, TVM_GETNEXTITEM, TVGN_PARENT, item);
                --depth;
            }
        }
        item = next;
    }
    return rows;
}

bool Driver::anyRowSelected() { return SendMessageA(tree(), TVM_GETNEXTITEM, TVGN_CARET, 0) != 0; }

void Driver::select(const TreeRow& row) { SendMessageA(row.tree, TVM_SELECTITEM, TVGN_CARET, row.handle); }

void Driver::selectItem(unsigned id) {
    const HWND view = tree();
    const LRESULT first = SendMessageA(view, TVM_GETNEXTITEM, TVGN_ROOT, 0);
    const LRESULT second = SendMessageA(view, TVM_GETNEXTITEM, TVGN_NEXT, first);
    SendMessageA(view, TVM_SELECTITEM, TVGN_CARET, second);
    TVITEMA request{};
    request.mask = TVIF_PARAM;
    request.hItem = reinterpret_cast<HTREEITEM>(first);
    request.lParam = static_cast<LPARAM>(id);
    writeRemote(&request, sizeof request);
    SendMessageA(view, TVM_SETITEMA, 0, reinterpret_cast<LPARAM>(remote_));
    SendMessageA(view, TVM_SELECTITEM, TVGN_CARET, first);
}

int Driver::visiblePages() {
    int count = 0;
    for (HWND page = nullptr; (page = FindWindowExA(main_, page, "#32770", nullptr)) != nullptr;) {
        count += IsWindowVisible(page) ? 1 : 0;
    }
    return count;
}

HWND Driver::visiblePage() {
    if (visiblePages() != 1) {
        return nullptr;
    }
    HWND page = nullptr;
    do {
        page = FindWindowExA(main_, page, "#32770", nullptr);
    } while (page != nullptr && !IsWindowVisible(page));
    return page;
}

bool Driver::applyVisible() { return IsWindowVisible(GetDlgItem(main_, kApply)) != FALSE; }

// The press returns only when the routine has ended, so it waits in a thread of its own while this one closes alerts.
ApplyResult Driver::apply() {
    ApplyResult result;
    const HANDLE press = CreateThread(nullptr, 0, pressApply, main_, 0, nullptr);
    for (DWORD waited = 0; waited < kPatience && !result.finished; waited += 10) {
        result.finished = WaitForSingleObject(press, 10) == WAIT_OBJECT_0;
        if (const HWND box = result.finished ? nullptr : findWindow("A L E R T")) {
            result.alerts.push_back(windowText(GetDlgItem(box, kMessageText)));
            SendMessageA(box, WM_COMMAND, IDOK, 0);
        }
    }
    CloseHandle(press);
    return result;
}

HWND Driver::control(int id) { return GetDlgItem(visiblePage(), id); }
std::string Driver::text(int id) { return windowText(control(id)); }
void Driver::setText(int id, const std::string& text) {
    SendMessageA(control(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}
LRESULT Driver::send(int id, UINT message, WPARAM wParam, LPARAM lParam) {
    return SendMessageA(control(id), message, wParam, lParam);
}

std::string Driver::cell(int list, int row, int column) {
    LVITEMA request{};
    request.iSubItem = column;
    request.pszText = remote_ + kRemoteText;
    request.cchTextMax = 260;
    writeRemote(&request, sizeof request);
    SendMessageA(control(list), LVM_GETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(remote_));
    return readRemote(remote_ + kRemoteText, 260).c_str();
}

void Driver::selectListRow(int list, int row) {
    LVITEMA request{};
    request.state = LVIS_SELECTED;
    request.stateMask = LVIS_SELECTED;
    writeRemote(&request, sizeof request);
    SendMessageA(control(list), LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(remote_));
}

std::string programFolder() {
    const std::string path = programPath();
    return path.substr(0, path.find_last_of("\\/"));
}

std::optional<std::string> readFile(const std::string& path) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) {
        return std::nullopt;
    }
    std::string text;
    char part[4096];
    for (std::size_t got; (got = std::fread(part, 1, sizeof part, file)) > 0;) {
        text.append(part, got);
    }
    std::fclose(file);
    return text;
}

void writeFile(const std::string& path, const std::string& text) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    ASSERT_NE(file, nullptr) << path;
    EXPECT_EQ(std::fwrite(text.data(), 1, text.size(), file), text.size());
    std::fclose(file);
}

std::string today() {
    SYSTEMTIME now{};
    GetSystemTime(&now);
    return std::to_string(now.wMonth) + "/" + std::to_string(now.wDay) + "/" + std::to_string(now.wYear);
}

}  // namespace korvane::program
