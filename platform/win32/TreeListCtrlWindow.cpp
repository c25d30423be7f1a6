// The window itself: a header, below it a tree view, and the few things in which that differs from a plain one.
#include "platform/win32/PaintBuffer.h"
#include "platform/win32/TreeBackground.h"
#include "platform/win32/TreeListCtrl.h"
#include "platform/win32/WindowFunctions.h"

#include <memory>

namespace korvane {
namespace {

constexpr UINT kMessagesOfOneControl = 0x100;
constexpr COLORREF kSystemColour = 0xFFFFFFFF;  // what a tree view without a background colour of its own returns

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

// Messages at which a tree view may scroll the pixels of its window.
bool movesRows(UINT message) {
    constexpr UINT kHorizontalWheel = 0x020E;  // of Windows Vista
    switch (message) {
        case WM_VSCROLL:
        case WM_HSCROLL:
        case WM_MOUSEWHEEL:
        case kHorizontalWheel:
        case WM_KEYDOWN:
        case WM_CHAR:
        case WM_LBUTTONDBLCLK:
        case TVM_EXPAND:
        case TVM_ENSUREVISIBLE:
        case TVM_SELECTITEM: return true;
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
    LRESULT handleOverPicture(UINT message, WPARAM wParam, LPARAM lParam);

    LRESULT callTreeView(UINT message, WPARAM wParam, LPARAM lParam) {
        return CallWindowProcA(treeView_, tree_, message, wParam, lParam);
    }

    bool hasSelection() const { return SendMessageA(tree_, TVM_GETNEXTITEM, TVGN_CARET, 0) != 0; }
    void selectFirstRow();
    void setFont(WPARAM font, LPARAM redraw);
    void layOut();
    void alignHeader();

    void setPicture(HBITMAP bitmap);
    LRESULT onPress(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT moveRows(UINT message, WPARAM wParam, LPARAM lParam);
    void resumeDrawing();

    void paintTree();
    void paintPlain(HDC screen, const RECT& part);
    bool paintOverPicture(HDC target, const RECT& part);

    HWND window_;
    HWND header_ = nullptr;
    HWND tree_ = nullptr;
    WNDPROC treeView_ = nullptr;
    bool gettingFocus_ = false;
    bool changingRows_ = false;
    bool drawingPaused_ = false;
    TreeBackground background_;
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

// Messages of a tree view or a header are forwarded, so the window is used as if it were the tree. The wheel is not
// forwarded: a tree view sends to its parent what it does not use itself, which would go round for ever.
LRESULT TreeListWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (isOf(message, TV_FIRST) || isOf(message, CCM_FIRST)) {
        return SendMessageA(tree_, message, wParam, lParam);
    }
    if (isOf(message, HDM_FIRST)) {
        return SendMessageA(header_, message, wParam, lParam);
    }
    switch (message) {
        case kTreeSetPicture: setPicture(reinterpret_cast<HBITMAP>(wParam)); return 0;
        case WM_NOTIFY: return onNotify(*reinterpret_cast<const NMHDR*>(lParam));
        case WM_SETFOCUS: SetFocus(tree_); return 0;
        case WM_ENABLE: EnableWindow(tree_, wParam != 0); return 0;
        case WM_SIZE: layOut(); return 0;
        case WM_SETFONT: setFont(wParam, lParam); return 0;
        case WM_ERASEBKGND: return 1;  // header and tree cover everything
        case WM_GETFONT:
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_CHAR: return SendMessageA(tree_, message, wParam, lParam);
        default: return DefWindowProcA(window_, message, wParam, lParam);
    }
}

LRESULT TreeListWindow::onNotify(const NMHDR& notification) {
    switch (notification.code) {
        // A tree view selects its first row when it gets the focus; here the user selects first.
        case TVN_SELCHANGINGA:
        case TVN_SELCHANGINGW: return gettingFocus_ && !hasSelection();
        case TVN_SELCHANGEDA:
        case TVN_SELCHANGEDW:
            if (!changingRows_) {
                resumeDrawing();  // the parent may take long, or show a message box
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
    return background_.isShown() ? handleOverPicture(message, wParam, lParam) : callTreeView(message, wParam, lParam);
}

LRESULT TreeListWindow::handleOverPicture(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: return onPress(message, wParam, lParam);
        case WM_SIZE: {  // the picture stays in the corner
            const LRESULT result = callTreeView(message, wParam, lParam);
            InvalidateRect(tree_, nullptr, FALSE);
            return result;
        }
        case WM_PAINT:  // into a given device context
        case WM_PRINTCLIENT: {
            const SIZE client = clientSize(tree_);
            return paintOverPicture(reinterpret_cast<HDC>(wParam), {0, 0, client.cx, client.cy})
                       ? 0
                       : callTreeView(message, wParam, lParam);
        }
        default:
            return movesRows(message) ? moveRows(message, wParam, lParam) : callTreeView(message, wParam, lParam);
    }
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

// The header scrolls sideways with the tree.
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

void TreeListWindow::setPicture(HBITMAP bitmap) {
    background_.setPicture(bitmap);
    InvalidateRect(tree_, nullptr, FALSE);
}

LRESULT TreeListWindow::onPress(UINT message, WPARAM wParam, LPARAM lParam) {
    TVHITTESTINFO hit{};
    hit.pt = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    SendMessageA(tree_, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    if (hit.hItem != nullptr && (hit.flags & TVHT_ONITEMBUTTON) != 0) {
        SetFocus(tree_);
        SendMessageA(tree_, TVM_EXPAND, TVE_TOGGLE, reinterpret_cast<LPARAM>(hit.hItem));
        return 0;
    }
    if (message == WM_LBUTTONDBLCLK) {
        return moveRows(message, wParam, lParam);
    }
    // A tree view waits here for a drag to begin, so drawing must not be off meanwhile.
    const LRESULT result = callTreeView(message, wParam, lParam);
    InvalidateRect(tree_, nullptr, FALSE);
    return result;
}

// A tree view scrolls the pixels of its window and would take the picture along. DefWindowProc answers WM_SETREDRAW by
// taking WS_VISIBLE away, so no pixels are scrolled, and everything is painted once afterwards; the tree view's own
// answer would only put off its drawing. A tree that is hidden must not become visible by this.
LRESULT TreeListWindow::moveRows(UINT message, WPARAM wParam, LPARAM lParam) {
    if (drawingPaused_ || (GetWindowLongA(tree_, GWL_STYLE) & WS_VISIBLE) == 0) {
        return callTreeView(message, wParam, lParam);
    }
    drawingPaused_ = true;
    DefWindowProcA(tree_, WM_SETREDRAW, FALSE, 0);
    const LRESULT result = callTreeView(message, wParam, lParam);
    resumeDrawing();
    return result;
}

void TreeListWindow::resumeDrawing() {
    if (drawingPaused_) {
        drawingPaused_ = false;
        DefWindowProcA(tree_, WM_SETREDRAW, TRUE, 0);
        RedrawWindow(tree_, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_NOERASE);
    }
}

// Whatever scrolled the rows, they are painted afterwards: so this is where the header follows.
void TreeListWindow::paintTree() {
    {
        const PaintDc screen(tree_);
        if (background_.isShown() && paintOverPicture(screen.get(), screen.updateArea())) {
            ValidateRect(tree_, nullptr);  // changing the background colour has invalidated the tree
        } else {
            paintPlain(screen.get(), screen.updateArea());
        }
    }
    alignHeader();
}

void TreeListWindow::paintPlain(HDC screen, const RECT& part) {
    const SIZE client = clientSize(tree_);
    const PaintBuffer buffer(client.cx, client.cy);
    const HDC target = buffer.valid() ? buffer.dc() : screen;  // without memory it flickers
    fillArea(target, {0, 0, client.cx, client.cy}, GetSysColor(COLOR_WINDOW));
    callTreeView(WM_PAINT, reinterpret_cast<WPARAM>(target), 0);
    if (buffer.valid()) {
        buffer.copyPartTo(screen, part);
    }
}

bool TreeListWindow::paintOverPicture(HDC target, const RECT& part) {
    const auto own = static_cast<COLORREF>(callTreeView(TVM_GETBKCOLOR, 0, 0));
    const bool isPainted = background_.paint(
        target, clientSize(tree_), part, own == kSystemColour ? GetSysColor(COLOR_WINDOW) : own,
        [this](HDC dc, COLORREF background) {
            callTreeView(TVM_SETBKCOLOR, 0, static_cast<LPARAM>(background));
            callTreeView(WM_PAINT, reinterpret_cast<WPARAM>(dc), 0);
        });
    callTreeView(TVM_SETBKCOLOR, 0, static_cast<LPARAM>(own));
    return isPainted;
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
