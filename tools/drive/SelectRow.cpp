// Selects the n-th row (from 0) of the tree in a running Korvane Manager, with
// all of its rows expanded, and prints the ItemId. For the picture tour.
#include <cstdio>
#include <cstdlib>

#include <windows.h>

#include <commctrl.h>

namespace {

constexpr int kTree = 1004;

LRESULT next(HWND tree, WPARAM relation, LRESULT item) { return SendMessageA(tree, TVM_GETNEXTITEM, relation, item); }

// The row behind the given one, in the order of the screen.
LRESULT following(HWND tree, LRESULT item) {
    if (const LRESULT child = next(tree, TVGN_CHILD, item)) {
        return child;
    }
    for (; item != 0; item = next(tree, TVGN_PARENT, item)) {
        if (const LRESULT sibling = next(tree, TVGN_NEXT, item)) {
            return sibling;
        }
    }
    return 0;
}

// The control keeps a row's number in the memory of its own process.
unsigned itemIdOf(HWND tree, LRESULT item) {
    DWORD processId = 0;
    GetWindowThreadProcessId(tree, &processId);
    const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, processId);
    TVITEMA request{};
    request.mask = TVIF_PARAM;
    request.hItem = reinterpret_cast<HTREEITEM>(item);
    void* remote = VirtualAllocEx(process, nullptr, sizeof request, MEM_COMMIT, PAGE_READWRITE);
    SIZE_T done = 0;
    WriteProcessMemory(process, remote, &request, sizeof request, &done);
    SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(remote));
    ReadProcessMemory(process, remote, &request, sizeof request, &done);
    VirtualFreeEx(process, remote, 0, MEM_RELEASE);
    CloseHandle(process);
    return static_cast<unsigned>(request.lParam);
}

}  // namespace

int main(int count, char** arguments) {
    const HWND window = FindWindowA(nullptr, "Korvane Manager");
    const HWND tree = FindWindowExA(GetDlgItem(window, kTree), nullptr, WC_TREEVIEWA, nullptr);
    if (count != 2 || tree == nullptr) {
        std::fputs("usage: select_row N, while Korvane Manager is running\n", stderr);
        return 2;
    }
    LRESULT item = next(tree, TVGN_ROOT, 0);
    for (int row = std::atoi(arguments[1]); row > 0 && item != 0; --row) {
        item = following(tree, item);
    }
    if (item == 0) {
        return 1;
    }
    SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, item);
    SendMessageA(window, WM_NCACTIVATE, TRUE, 0);
    UpdateWindow(window);
    std::printf("%u\n", itemIdOf(tree, item));
    return 0;
}
