// Taking a window procedure over, and painting without flicker.
#include "skin/win32/SkinnedWindow.h"

#include "skin/win32/SkinEngine.h"

namespace korvane {
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
        self->engine_.forget(window);  // deletes it, which gives the procedure back
        return CallWindowProcA(original, window, message, wParam, lParam);
    }
    return self->handle(message, wParam, lParam);
}

LRESULT SkinnedWindow::callOriginal(UINT message, WPARAM wParam, LPARAM lParam) const {
    return CallWindowProcA(original_, window_, message, wParam, lParam);
}

// A window that is not visible does not paint itself, so for a moment it is not. That must not show a hidden one.
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
    const SIZE size = clientSize();
    PAINTSTRUCT paint{};
    const bool given = message != WM_PAINT || wParam != 0;
    const HDC target = given ? reinterpret_cast<HDC>(wParam) : BeginPaint(window_, &paint);
    PaintBuffer buffer(size.cx, size.cy);
    if (buffer.valid()) {
        draw(buffer);
        buffer.copyTo(target, 0, 0);
    }
    if (!given) {
        EndPaint(window_, &paint);
    }
    return 0;
}

void SkinnedWindow::repaint() { InvalidateRect(window_, nullptr, TRUE); }

const ElementLook& SkinnedWindow::look() const { return engine_.look(element_); }

std::string SkinnedWindow::text() const {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window_)), '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window_, text.data(), static_cast<int>(text.size()) + 1)));
    return text;
}

SIZE SkinnedWindow::clientSize() const {
    RECT client{};
    GetClientRect(window_, &client);
    return {client.right, client.bottom};
}

}  // namespace korvane
