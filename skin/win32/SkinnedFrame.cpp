// The messages of the non-client area: size, shape, mouse, and when the frame is painted.
#include "skin/win32/SkinnedFrame.h"

#include "platform/win32/WindowFunctions.h"

#include <utility>

namespace korvane::skin {
namespace {

// Undocumented messages at which the themes of Windows XP draw a caption outside WM_NCPAINT.
constexpr UINT kDrawThemedCaption = 0x00AE;
constexpr UINT kDrawThemedFrame = 0x00AF;

POINT pointOf(LPARAM lParam) { return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))}; }

Rect screenRect(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return {rect.left, rect.top, rect.right, rect.bottom};
}

}  // namespace

SkinnedFrame::SkinnedFrame(Win32SkinEngine& engine, HWND window, std::string element)
    : SkinnedWindow(engine, window, std::move(element)), mouse_(window, HotTracking::Area::Frame) {
    state_.active = GetActiveWindow() == window;
    fitAround(clientSize(window));
    shape();
}

SkinnedFrame::~SkinnedFrame() {
    if (IsWindow(window())) {
        SetWindowRgn(window(), nullptr, TRUE);
    }
}

void SkinnedFrame::repaint() {
    SkinnedWindow::repaint();
    paintFrame(nullptr);
}

// ---- Size and shape

FrameLayout SkinnedFrame::layout() const {
    const Rect rect = screenRect(window());
    return layoutFor({0, 0, rect.width(), rect.height()});
}

FrameLayout SkinnedFrame::layoutFor(Rect whole) const {
    return {look(), engine().palette(), whole, (GetWindowLongA(window(), GWL_STYLE) & WS_MINIMIZEBOX) != 0};
}

void SkinnedFrame::fitAround(SIZE client) {
    const Rect rect = screenRect(window());
    const FrameLayout frame = layout();
    const int width = client.cx + 2 * frame.borderWidth;
    const int height = client.cy + frame.captionHeight + frame.borderWidth;
    SetWindowPos(window(), nullptr, (rect.left + rect.right - width) / 2, (rect.top + rect.bottom - height) / 2, width,
                 height, SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

// Rounds the upper corners. Even without round corners the window gets a region of its own: it keeps newer versions of
// Windows, and window managers under Wine, from drawing another frame around it.
void SkinnedFrame::shape() {
    if (IsIconic(window())) {
        SetWindowRgn(window(), nullptr, TRUE);
        return;
    }
    const Rect whole = layout().window;
    const int corner = 2 * engine().palette().pixels(look().radius);
    Region region(corner > 0
                      ? CreateRoundRectRgn(0, 0, whole.width() + 1, whole.height() + corner, corner, corner)
                      : CreateRectRgn(0, 0, whole.width(), whole.height()));
    const Region all(CreateRectRgn(0, 0, whole.width(), whole.height()));
    CombineRgn(region.get(), region.get(), all.get(), RGN_AND);
    SetWindowRgn(window(), region.release(), TRUE);  // Windows owns it from now on
}

// ---- The mouse

int SkinnedFrame::buttonAt(POINT screen) const {
    const Rect rect = screenRect(window());
    return layout().buttonAt(screen.x - rect.left, screen.y - rect.top);
}

LRESULT SkinnedFrame::hitTest(POINT screen) const {
    const Rect rect = screenRect(window());
    const int x = screen.x - rect.left;
    const int y = screen.y - rect.top;
    const FrameLayout frame = layout();
    if (contains(frame.inside, x, y)) {
        return HTCLIENT;
    }
    const int button = frame.buttonAt(x, y);
    if (button != kNoButton) {
        const std::string& name = frame.buttons[static_cast<std::size_t>(button)].name;
        return name == "Close" ? HTCLOSE : name == "Minimize" ? HTMINBUTTON : HTHELP;
    }
    if (contains(frame.icon, x, y)) {
        return HTSYSMENU;
    }
    return y < frame.inside.top ? HTCAPTION : HTBORDER;
}

void SkinnedFrame::track(int hot, int pressed) {
    if (hot != kNoButton && !mouse_.start()) {
        hot = kNoButton;
    }
    const FrameState old = std::exchange(state_, {state_.active, hot, pressed});
    if (state_ != old) {
        paintFrame(nullptr);
    }
}

// The button counts only if the mouse is released over it.
void SkinnedFrame::release(POINT screen) {
    const int pressed = std::exchange(state_.pressedButton, kNoButton);
    ReleaseCapture();  // sends WM_CAPTURECHANGED, by when no button may count as pressed any more
    const bool onButton = buttonAt(screen) == pressed;
    track(onButton ? pressed : kNoButton, kNoButton);
    paintFrame(nullptr);
    if (onButton) {
        press(layout().buttons[static_cast<std::size_t>(pressed)].name);
    }
}

void SkinnedFrame::press(const std::string& name) {
    if (name == "Close") {
        SendMessageA(window(), WM_SYSCOMMAND, SC_CLOSE, 0);
    } else if (name == "Minimize") {
        SendMessageA(window(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
    } else {
        engine().pressFrameButton(name);
    }
}

// ---- Messages

LRESULT SkinnedFrame::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE: shape(); return callOriginal(message, wParam, lParam);
        case WM_SYSCOLORCHANGE:
        case WM_SETTINGCHANGE: {
            const LRESULT result = callOriginal(message, wParam, lParam);
            engine().useSettings(readSystemSettings());
            return result;
        }
        case WM_ERASEBKGND:
            return engine().skinsClientArea() && !IsIconic(window()) ? paintSurface(reinterpret_cast<HDC>(wParam))
                                                                     : callOriginal(message, wParam, lParam);
        default: break;
    }
    // A minimized window has no skinned frame.
    return IsIconic(window()) ? callOriginal(message, wParam, lParam) : handleFrame(message, wParam, lParam);
}

LRESULT SkinnedFrame::handleFrame(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCALCSIZE: {
            // Both forms of the message begin with the window's rectangle.
            RECT& rect = *reinterpret_cast<RECT*>(lParam);
            const Rect inside = layoutFor({0, 0, rect.right - rect.left, rect.bottom - rect.top}).inside;
            rect = {rect.left + inside.left, rect.top + inside.top, rect.left + inside.right, rect.top + inside.bottom};
            return 0;
        }
        case WM_NCPAINT: paintFrame(wParam > 1 ? reinterpret_cast<HRGN>(wParam) : nullptr); return 0;
        case kDrawThemedCaption:
        case kDrawThemedFrame: paintFrame(nullptr); return 0;
        case WM_PRINT: return print(wParam, lParam);
        case WM_NCACTIVATE:
            state_.active = wParam != 0;
            paintFrame(nullptr);
            return TRUE;
        case WM_SETTEXT:
        case WM_SETICON: return callWithoutFrame(message, wParam, lParam);
        case WM_NCHITTEST: return hitTest(pointOf(lParam));
        default: break;
    }
    if (mouse_.hasLeft(message, wParam) && state_.pressedButton == kNoButton) {
        track(kNoButton, kNoButton);
    }
    return handleMouse(message, lParam) ? 0 : callOriginal(message, wParam, lParam);
}

bool SkinnedFrame::handleMouse(UINT message, LPARAM lParam) {
    const bool pressing = state_.pressedButton != kNoButton;
    POINT point = pointOf(lParam);
    switch (message) {
        case WM_NCMOUSEMOVE: track(buttonAt(point), state_.pressedButton); return false;
        case WM_NCLBUTTONDBLCLK:
        case WM_NCLBUTTONDOWN: {
            const int button = buttonAt(point);
            if (button != kNoButton) {
                SetCapture(window());
                track(button, button);
            }
            return button != kNoButton;
        }
        // While a button is pressed the mouse is captured, and its messages are those of the client area.
        case WM_MOUSEMOVE:
            if (pressing) {
                ClientToScreen(window(), &point);
                track(buttonAt(point) == state_.pressedButton ? state_.pressedButton : kNoButton, state_.pressedButton);
            }
            return pressing;
        case WM_LBUTTONUP:
            if (pressing) {
                ClientToScreen(window(), &point);
                release(point);
            }
            return pressing;
        case WM_CAPTURECHANGED:
            if (pressing) {
                track(kNoButton, kNoButton);
            }
            return false;
        default: return false;
    }
}

// Windows draws a caption of its own when the title or the icon changes, unless the window counts as hidden.
LRESULT SkinnedFrame::callWithoutFrame(UINT message, WPARAM wParam, LPARAM lParam) {
    const LONG style = GetWindowLongA(window(), GWL_STYLE);
    if (!(style & WS_VISIBLE)) {
        return callOriginal(message, wParam, lParam);
    }
    SetWindowLongA(window(), GWL_STYLE, style & ~WS_VISIBLE);
    const LRESULT result = callOriginal(message, wParam, lParam);
    SetWindowLongA(window(), GWL_STYLE, GetWindowLongA(window(), GWL_STYLE) | WS_VISIBLE);
    paintFrame(nullptr);
    return result;
}

// ---- Painting

void SkinnedFrame::paintFrame(HRGN update) const {
    if (!IsWindowVisible(window()) || IsIconic(window())) {
        return;
    }
    const WindowDc dc(window(), WindowDc::Area::Whole);
    if (update != nullptr) {
        const Rect rect = screenRect(window());
        const Region inWindow(CreateRectRgn(0, 0, 0, 0));
        CombineRgn(inWindow.get(), update, nullptr, RGN_COPY);
        OffsetRgn(inWindow.get(), -rect.left, -rect.top);
        SelectClipRgn(dc.get(), inWindow.get());
    }
    drawFrame(dc.get());
}

void SkinnedFrame::drawFrame(HDC dc) const {
    const FrameLayout frame = layout();
    FramePainter(engine(), look(), frame, state_).draw(dc, window());
}

// WM_PRINT, for programs that take pictures of windows.
LRESULT SkinnedFrame::print(WPARAM wParam, LPARAM lParam) const {
    if (!(lParam & PRF_NONCLIENT)) {
        return callOriginal(WM_PRINT, wParam, lParam);
    }
    const auto dc = reinterpret_cast<HDC>(wParam);
    const int unclipped = SaveDC(dc);
    drawFrame(dc);
    RestoreDC(dc, unclipped);
    const int unmoved = SaveDC(dc);
    const FrameLayout frame = layout();
    SetViewportOrgEx(dc, frame.borderWidth, frame.captionHeight, nullptr);
    const LRESULT result = callOriginal(WM_PRINT, wParam, lParam & ~LPARAM{PRF_NONCLIENT});
    RestoreDC(dc, unmoved);
    return result;
}

}  // namespace korvane::skin
