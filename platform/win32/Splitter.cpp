// A drag lasts from the press, which captures the mouse, to the release. Escape or the loss of the capture cancel it.
#include "platform/win32/Splitter.h"

#include "platform/win32/WindowFunctions.h"

#include <algorithm>
#include <memory>

namespace korvane {
namespace {

constexpr char kClassName[] = "Korvane.Splitter";

class Splitter {
public:
    Splitter(HWND window, SplitterRange range)
        : window_(window),
          leftmost_(rectInParent(window).left - range.left),
          rightmost_(rectInParent(window).left + range.right) {}
    Splitter(const Splitter&) = delete;
    Splitter& operator=(const Splitter&) = delete;

    // False for a message that the splitter does not handle.
    bool handle(UINT message, WPARAM wParam, int mouseX) {
        switch (message) {
            case WM_LBUTTONDOWN: begin(mouseX); return true;
            case WM_MOUSEMOVE: follow(mouseX); return true;
            case WM_LBUTTONUP: finish(mouseX); return true;
            case WM_CAPTURECHANGED: end(); return true;
            case WM_KEYDOWN:
                if (wParam == VK_ESCAPE) {
                    end();
                }
                return true;
            default: return false;
        }
    }

private:
    // The splitter itself stays until the release; a line above all other windows shows where it would go. It takes the
    // focus, so that Escape cancels the drag and does not close the program.
    void begin(int mouseX) {
        end();
        start_ = rectInParent(window_);
        pressedAt_ = mouseX;
        line_ = CreateWindowExA(0, "Static", "", WS_CHILD | WS_CLIPSIBLINGS | WS_DISABLED | SS_BLACKRECT, start_.left,
                                start_.top, start_.width(), start_.height(), GetParent(window_), nullptr, nullptr,
                                nullptr);
        moveToTop(line_);
        ShowWindow(line_, SW_SHOWNA);
        oldFocus_ = SetFocus(window_);
        SetCapture(window_);
        dragging_ = true;
    }

    int leftFor(int mouseX) const {
        return std::clamp(start_.left + mouseX - pressedAt_, leftmost_, rightmost_);
    }

    void follow(int mouseX) {
        if (dragging_) {
            moveTo(line_, leftFor(mouseX));
        }
    }

    void finish(int mouseX) {
        if (!dragging_) {
            return;
        }
        end();
        const int distance = leftFor(mouseX) - start_.left;
        if (distance != 0) {
            moveTo(window_, start_.left + distance);
            notifyParent(distance);
        }
    }

    // ReleaseCapture sends WM_CAPTURECHANGED, which comes back here: the drag has to be over by then.
    void end() {
        if (!dragging_) {
            return;
        }
        dragging_ = false;
        DestroyWindow(line_);
        if (GetCapture() == window_) {
            ReleaseCapture();
        }
        if (GetFocus() == window_) {
            SetFocus(oldFocus_);
        }
    }

    void notifyParent(int distance) {
        SplitterNotification notification{};
        notification.header.hwndFrom = window_;
        notification.header.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(window_));
        notification.header.code = kSplitterMoved;
        notification.distance = distance;
        SendMessageA(GetParent(window_), WM_NOTIFY, notification.header.idFrom,
                     reinterpret_cast<LPARAM>(&notification));
    }

    void moveTo(HWND window, int left) const {
        SetWindowPos(window, nullptr, left, start_.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    HWND window_;
    int leftmost_;  // of the left edge
    int rightmost_;
    bool dragging_ = false;
    Rect start_{};
    int pressedAt_ = 0;
    HWND line_ = nullptr;
    HWND oldFocus_ = nullptr;
};

LRESULT CALLBACK splitterProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* splitter = reinterpret_cast<Splitter*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    switch (message) {
        case WM_CREATE: {
            const auto& create = *reinterpret_cast<const CREATESTRUCTA*>(lParam);
            auto made = std::make_unique<Splitter>(window, *static_cast<const SplitterRange*>(create.lpCreateParams));
            SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made.release()));
            return 0;
        }
        case WM_NCDESTROY:
            SetWindowLongPtrA(window, GWLP_USERDATA, 0);
            delete splitter;
            return 0;
        case WM_GETDLGCODE: return DLGC_WANTALLKEYS;  // it has the focus only while it is dragged
        default:
            return splitter != nullptr && splitter->handle(message, wParam, static_cast<short>(LOWORD(lParam)))
                       ? 0
                       : DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace

void registerSplitterClass(HINSTANCE instance) {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = splitterProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorA(nullptr, IDC_SIZEWE);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_3DSHADOW + 1);
    windowClass.lpszClassName = kClassName;
    RegisterClassA(&windowClass);
}

HWND createSplitter(HINSTANCE instance, HWND parent, int id, const Rect& rect, SplitterRange range) {
    return CreateWindowExA(0, kClassName, "", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, rect.left, rect.top,
                           rect.width(), rect.height(), parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, &range);
}

}  // namespace korvane
