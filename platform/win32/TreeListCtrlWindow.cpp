// The window itself: heading and tree view, one below the other, and the few
// things in which it differs from the platform's tree view.
#include "platform/win32/TreeListCtrl.h"

#include <memory>

namespace korvane {
namespace {

constexpr UINT kMessagesOfOneControl = 0x100;

bool isOf(UINT message, UINT first) { return message >= first && message < first + kMessagesOfOneControl; }

bool movesSelection(WPARAM key) {
    switch (key) {
        case VK_UP:
        case VK_DOWN:
        case VK_LEFT:
        case VK_RIGHT:
        case VK_HOME:
        case VK_END:
        case VK_PRIOR:
        case VK_NEXT: return true;
        default: return false;
    }
}

class TreeListWindow {
public:
    TreeListWindow(HWND window, HINSTANCE instance) : window_(window) {
        header_ = createChild(WC_HEADERA, HDS_HORZ, instance);
        tree_ = createChild(WC_TREEVIEWA, TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_SHOWSELALWAYS,
                            instance);
        SetWindowLongPtrA(tree_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        treeView_ = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(tree_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&TreeListWindow::treeProc)));
    }
    TreeListWindow(const TreeListWindow&) = delete;
    TreeListWindow& operator=(const TreeListWindow&) = delete;

    static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

private:
    static LRESULT CALLBACK treeProc(HWND tree, UINT message, WPARAM wParam, LPARAM lParam);

    HWND createChild(const char* windowClass, DWORD style, HINSTANCE instance) {
        return CreateWindowExA(0, windowClass, "", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | style, 0, 0, 0, 0, window_,
                               nullptr, instance, nullptr);
    }

    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT onNotify(const NMHDR& notification);
    LRESULT handleTree(UINT message, WPARAM wParam, LPARAM lParam);

    LRESULT callTreeView(UINT message, WPARAM wParam, LPARAM lParam) {
        return CallWindowProcA(treeView_, tree_, message, wParam, lParam);
    }

    bool hasSelection() const { return SendMessageA(tree_, TVM_GETNEXTITEM, TVGN_CARET, 0) != 0; }
    void selectFirstRow();
    void setFont(WPARAM font, LPARAM redraw);
    void layOut();
    void alignHeader();
    void paintTree();

    HWND window_;
    HWND header_ = nullptr;
    HWND tree_ = nullptr;
    WNDPROC treeView_ = nullptr;
    bool gettingFocus_ = false;
    bool changingRows_ = false;
    int scrolledBy_ = 0;  // pixels to the left
};

LRESULT CALLBACK TreeListWindow::windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<TreeListWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (message == WM_CREATE) {
        const HINSTANCE instance = reinterpret_cast<const CREATESTRUCTA*>(lParam)->hInstance;
        auto made = std::make_unique<TreeListWindow>(window, instance);
        SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made.release()));
        return 0;
    }
    if (self == nullptr) {
        return DefWindowProcA(window, message, wParam, lParam);
    }
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrA(window, GWLP_USERDATA, 0);
        delete self;
        return 0;
    }
    return self->handle(message, wParam, lParam);
}

// What comes for the tree or for the heading is passed on, so that the window can be used as if it were the tree. (The
// wheel is not: a tree view passes on to its parent what it does not need itself.)
LRESULT TreeListWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (isOf(message, TV_FIRST) || isOf(message, CCM_FIRST)) {
        return SendMessageA(tree_, message, wParam, lParam);
    }
    if (isOf(message, HDM_FIRST)) {
        return SendMessageA(header_, message, wParam, lParam);
    }
    switch (message) {
        case WM_NOTIFY: return onNotify(*reinterpret_cast<const NMHDR*>(lParam));
        case WM_SETFOCUS: SetFocus(tree_); return 0;
        case WM_ENABLE: EnableWindow(tree_, wParam != 0); return 0;
        case WM_SIZE: layOut(); return 0;
        case WM_SETFONT: setFont(wParam, lParam); return 0;
        case WM_ERASEBKGND: return 1;  // heading and tree cover everything
        case WM_GETFONT:
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_CHAR: return SendMessageA(tree_, message, wParam, lParam);
        default: return DefWindowProcA(window_, message, wParam, lParam);
    }
}

LRESULT TreeListWindow::onNotify(const NMHDR& notification) {
    switch (notification.code) {
        // A tree view selects its first row when it gets the focus; here nothing is selected until the user does.
        case TVN_SELCHANGINGA:
        case TVN_SELCHANGINGW: return gettingFocus_ && !hasSelection();
        case TVN_SELCHANGEDA:
        case TVN_SELCHANGEDW:
            if (!changingRows_) {
                SendMessageA(GetParent(window_), kTreeSelectionChanged, 0, 0);
            }
            return 0;
        case HDN_BEGINTRACKA:
        case HDN_BEGINTRACKW: return TRUE;
        default: return 0;
    }
}

LRESULT CALLBACK TreeListWindow::treeProc(HWND tree, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<TreeListWindow*>(GetWindowLongPtrA(tree, GWLP_USERDATA));
    return self->handleTree(message, wParam, lParam);
}

LRESULT TreeListWindow::handleTree(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFOCUS: {
            gettingFocus_ = true;
            const LRESULT result = callTreeView(message, wParam, lParam);
            gettingFocus_ = false;
            return result;
        }
        case WM_KEYDOWN:
            if (movesSelection(wParam) && !hasSelection()) {
                selectFirstRow();
                return 0;
            }
            break;
        case TVM_INSERTITEMA:
        case TVM_INSERTITEMW:
        case TVM_DELETEITEM: {
            changingRows_ = true;
            const LRESULT result = callTreeView(message, wParam, lParam);
            changingRows_ = false;
            return result;
        }
        case WM_ERASEBKGND: return 1;
        case WM_PAINT:
            if (wParam == 0) {
                paintTree();
                return 0;
            }
            break;
        default: break;
    }
    return callTreeView(message, wParam, lParam);
}

void TreeListWindow::selectFirstRow() {
    const LRESULT first = SendMessageA(tree_, TVM_GETNEXTITEM, TVGN_ROOT, 0);
    SendMessageA(tree_, TVM_SELECTITEM, TVGN_CARET, first);
}

void TreeListWindow::setFont(WPARAM font, LPARAM redraw) {
    SendMessageA(header_, WM_SETFONT, font, redraw);
    SendMessageA(tree_, WM_SETFONT, font, redraw);
    layOut();
}

void TreeListWindow::layOut() {
    RECT area{};
    GetClientRect(window_, &area);
    WINDOWPOS place{};
    HDLAYOUT layout{&area, &place};
    SendMessageA(header_, HDM_LAYOUT, 0, reinterpret_cast<LPARAM>(&layout));
    MoveWindow(header_, -scrolledBy_, 0, area.right + scrolledBy_, place.cy, TRUE);
    MoveWindow(tree_, 0, place.cy, area.right, area.bottom - place.cy, TRUE);
}

// Keeps the heading above what is scrolled sideways.
void TreeListWindow::alignHeader() {
    SCROLLINFO scroll{};
    scroll.cbSize = sizeof scroll;
    scroll.fMask = SIF_POS;
    GetScrollInfo(tree_, SB_HORZ, &scroll);
    if (scroll.nPos != scrolledBy_) {
        scrolledBy_ = scroll.nPos;
        layOut();
    }
}

// The tree view draws into a picture in memory, which then comes to the screen at once: nothing flickers. Whatever has
// scrolled the rows, they are painted afterwards, which makes this the place to look where the heading belongs.
void TreeListWindow::paintTree() {
    PAINTSTRUCT paint{};
    const HDC screen = BeginPaint(tree_, &paint);
    RECT client{};
    GetClientRect(tree_, &client);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP picture = CreateCompatibleBitmap(screen, client.right, client.bottom);
    const HGDIOBJ oldPicture = SelectObject(memory, picture);
    FillRect(memory, &client, GetSysColorBrush(COLOR_WINDOW));
    callTreeView(WM_PAINT, reinterpret_cast<WPARAM>(memory), 0);
    const RECT& part = paint.rcPaint;
    BitBlt(screen, part.left, part.top, part.right - part.left, part.bottom - part.top, memory, part.left, part.top,
           SRCCOPY);
    SelectObject(memory, oldPicture);
    DeleteObject(picture);
    DeleteDC(memory);
    EndPaint(tree_, &paint);
    alignHeader();
}

}  // namespace

void registerTreeListClass(HINSTANCE instance) {
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_TREEVIEW_CLASSES | ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&controls);
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = TreeListWindow::windowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.lpszClassName = kTreeListClass;
    RegisterClassA(&windowClass);
}

}  // namespace korvane
