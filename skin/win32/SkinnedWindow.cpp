// Subclassing, and painting without flicker.
#include "skin/win32/SkinnedWindow.h"

#include "platform/win32/WindowFunctions.h"
#include "skin/win32/SkinEngine.h"

namespace korvane::skin {
namespace {

constexpr char kProperty[] = "Korvane.Skin";

}  // namespace

SkinnedWindow::SkinnedWindow(Win32SkinEngine& engine, HWND window, std::string element)
    : engine_(engine), window_(window), element_(std::move(element)) {
    SetPropA(window, kProperty, this);
    original_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&SkinnedWindow::windowProc)));
}

SkinnedWindow::~SkinnedWindow() {
    if (IsWindow(window_)) {
        RemovePropA(window_, kProperty);
        SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original_));
    }
}

LRESULT CALLBACK SkinnedWindow::windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = static_cast<SkinnedWindow*>(GetPropA(window, kProperty));
    if (self == nullptr) {
        return DefWindowProcA(window, message, wParam, lParam);
    }
    if (message == WM_NCDESTROY) {
        const WNDPROC original = self->original_;
        self->engine_.forget(window);  // deletes self, which restores the procedure
        return CallWindowProcA(original, window, message, wParam, lParam);
    }
    return self->handle(message, wParam, lParam);
}

LRESULT SkinnedWindow::callOriginal(UINT message, WPARAM wParam, LPARAM lParam) const {
    return CallWindowProcA(original_, window_, message, wParam, lParam);
}

// DefWindowProc answers WM_SETREDRAW with taking WS_VISIBLE away and giving it back, and a hidden window does not paint
// itself. One that is really hidden must not become visible by this.
LRESULT SkinnedWindow::callWithoutPainting(UINT message, WPARAM wParam, LPARAM lParam) const {
    if (!(GetWindowLongA(window_, GWL_STYLE) & WS_VISIBLE)) {
        return callOriginal(message, wParam, lParam);
    }
    DefWindowProcA(window_, WM_SETREDRAW, FALSE, 0);
    const LRESULT result = callOriginal(message, wParam, lParam);
    DefWindowProcA(window_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window_, nullptr, FALSE);
    return result;
}

LRESULT SkinnedWindow::paintWhole(UINT message, WPARAM wParam) {
    if (message == WM_PAINT && wParam == 0) {
        const PaintDc screen(window_);
        return paintWhole(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(screen.get()));
    }
    const SIZE size = clientSize(window_);
    PaintBuffer buffer(size.cx, size.cy);
    if (buffer.valid()) {
        draw(buffer);
        buffer.copyTo(reinterpret_cast<HDC>(wParam), 0, 0);
    }
    return 0;
}

LRESULT SkinnedWindow::paintSurface(HDC dc) const {
    const SIZE size = clientSize(window_);
    PaintBuffer buffer(size.cx, size.cy);
    if (buffer.valid()) {
        engine_.drawSurface(window_, buffer);
        buffer.copyTo(dc, 0, 0);
    }
    return TRUE;
}

void SkinnedWindow::repaint() { InvalidateRect(window_, nullptr, TRUE); }

const ElementLook& SkinnedWindow::look() const { return engine_.look(element_); }

HFONT SkinnedWindow::font(bool bold) const {
    return engine_.font(look().font, reinterpret_cast<HFONT>(SendMessageA(window_, WM_GETFONT, 0, 0)), bold);
}

}  // namespace korvane::skin
