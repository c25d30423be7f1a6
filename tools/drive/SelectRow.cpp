// Selects the n-th row (from 0, all of them counted) of the tree in a running
// Korvane Manager and prints its ItemId. With a second number the row stands for
// that item, which may be one without a row. For pictures.
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

// The control keeps a row's number in the memory of its own process, where its messages have to point as well.
class RemoteItem {
public:
    RemoteItem(HWND tree, LRESULT item) : tree_(tree) {
        DWORD processId = 0;
        GetWindowThreadProcessId(tree, &processId);
        process_ = OpenProcess(PROCESS_ALL_ACCESS, FALSE, processId);
        remote_ = VirtualAllocEx(process_, nullptr, sizeof local_, MEM_COMMIT, PAGE_READWRITE);
        local_.mask = TVIF_PARAM;
        local_.hItem = reinterpret_cast<HTREEITEM>(item);
    }
    RemoteItem(const RemoteItem&) = delete;
    RemoteItem& operator=(const RemoteItem&) = delete;
    ~RemoteItem() {
        VirtualFreeEx(process_, remote_, 0, MEM_RELEASE);
        CloseHandle(process_);
    }

    LPARAM number() {
        send(TVM_GETITEMA);
        return local_.lParam;
    }
    void setNumber(LPARAM number) {
        local_.lParam = number;
        send(TVM_SETITEMA);
    }

private:
    void send(UINT message) {
        SIZE_T done = 0;
        WriteProcessMemory(process_, remote_, &local_, sizeof local_, &done);
        SendMessageA(tree_, message, 0, reinterpret_cast<LPARAM>(remote_));
        ReadProcessMemory(process_, remote_, &local_, sizeof local_, &done);
    }

    HWND tree_;
    HANDLE process_;
    void* remote_;
    TVITEMA local_{};
};

}  // namespace

int main(int count, char** arguments) {
    const HWND window = FindWindowA(nullptr, "Korvane Manager");
    const HWND tree = FindWindowExA(GetDlgItem(window, kTree), nullptr, WC_TREEVIEWA, nullptr);
    if (count < 2 || count > 3 || tree == nullptr) {
        std::fputs("usage: select_row ROW [ITEMID], while Korvane Manager is running\n", stderr);
        return 2;
    }
    LRESULT item = next(tree, TVGN_ROOT, 0);
    for (int row = std::atoi(arguments[1]); row > 0 && item != 0; --row) {
        item = following(tree, item);
    }
    if (item == 0) {
        return 1;
    }
    RemoteItem row(tree, item);
    const LPARAM own = row.number();
    row.setNumber(count == 3 ? std::atoi(arguments[2]) : own);
    SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, 0);  // the tree is silent about a row that is selected already
    SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, item);
    row.setNumber(own);
    SendMessageA(window, WM_NCACTIVATE, TRUE, 0);
    UpdateWindow(window);
    std::printf("%ld\n", static_cast<long>(own));
    return 0;
}
