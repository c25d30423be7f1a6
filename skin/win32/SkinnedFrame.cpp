// What the system does at its caption, done at ours.
#include "skin/win32/SkinnedFrame.h"

#include "skin/win32/SkinEngine.h"

#include <algorithm>

namespace korvane {
namespace {

// The system's themes use them to draw captions past WM_NCPAINT.
constexpr UINT kDrawThemedCaption = 0x00AE;
constexpr UINT kDrawThemedFrame = 0x00AF;

constexpr UINT_PTR kHotTimer = 0x4B53;
constexpr UINT kHotInterval = 60;  // milliseconds

constexpr int kIconSize = 16;  // this and what follows: pixels at 96 DPI
constexpr int kGap = 5;
constexpr int kButtonInset = 4;  // above and below the buttons
constexpr int kButtonGap = 2;

POINT pointOf(LPARAM lParam) { return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))}; }

bool contains(const Rect& rect, POINT point) {
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
}

HFONT captionFont() {
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return CreateFontIndirectA(&metrics.lfCaptionFont);
}

}  // namespace

SkinnedFrame::SkinnedFrame(Win32SkinEngine& engine, HWND window, std::string element)
    : SkinnedWindow(engine, window, std::move(element)), active_(GetActiveWindow() == window) {
    fitAround(clientSize());
    shape();
}

SkinnedFrame::~SkinnedFrame() {
    if (IsWindow(window())) {
        KillTimer(window(), kHotTimer);
        SetWindowRgn(window(), nullptr, TRUE);
    }
}

void SkinnedFrame::repaint() {
    SkinnedWindow::repaint();
    paintFrame(nullptr);
}

// ---- Sizes

int SkinnedFrame::captionHeight() const { return engine().palette().pixels(look().captionHeight); }

int SkinnedFrame::borderWidth() const { return engine().palette().pixels(look().margins.left); }

SIZE SkinnedFrame::size() const {
    RECT rect{};
    GetWindowRect(window(), &rect);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

void SkinnedFrame::fitAround(SIZE client) {
    RECT rect{};
    GetWindowRect(window(), &rect);
    const int width = client.cx + 2 * borderWidth();
    const int height = client.cy + captionHeight() + borderWidth();
    SetWindowPos(window(), nullptr, (rect.left + rect.right - width) / 2, (rect.top + rect.bottom - height) / 2, width,
                 height, SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

// Round corners above. A window that has a shape of its own also keeps newer systems, and window managers under Wine,
// from putting another frame around it.
void SkinnedFrame::shape() {
    if (IsIconic(window())) {
        SetWindowRgn(window(), nullptr, TRUE);
        return;
    }
    const SIZE whole = size();
    const int corner = 2 * engine().palette().pixels(look().radius);
    const HRGN region = corner > 0 ? CreateRoundRectRgn(0, 0, whole.cx + 1, whole.cy + corner, corner, corner)
                             : CreateRectRgn(0, 0, whole.cx, whole.cy);
    const HRGN all = CreateRectRgn(0, 0, whole.cx, whole.cy);
    CombineRgn(region, region, all, RGN_AND);
    DeleteObject(all);
    SetWindowRgn(window(), region, TRUE);  // the system owns it from now on
}

void SkinnedFrame::insideOf(RECT& rect) const {
    rect.left += borderWidth();
    rect.top += captionHeight();
    rect.right = std::max(rect.left, rect.right - borderWidth());
    rect.bottom = std::max(rect.top, rect.bottom - borderWidth());
}

Rect SkinnedFrame::iconPlace() const {
    const SkinPalette& palette = engine().palette();
    const int icon = palette.pixels(kIconSize);
    const int left = borderWidth() + palette.pixels(kGap) / 2;
    const int top = (captionHeight() - icon) / 2;
    return {left, top, left + icon, top + icon};
}

// From the right edge, the last one first.
std::vector<SkinnedFrame::Button> SkinnedFrame::buttons() const {
    const SkinPalette& palette = engine().palette();
    const LONG style = GetWindowLongA(window(), GWL_STYLE);
    const int inset = palette.pixels(kButtonInset);
    const int side = captionHeight() - 2 * inset;
    int right = size().cx - std::max(borderWidth(), inset);
    std::vector<Button> places;
    const std::vector<std::string>& names = look().buttons;
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        // Only a window that can be minimized is; the help belongs to the program's main window as well.
        if (!(style & WS_MINIMIZEBOX) && *name != "Close") {
            continue;
        }
        places.push_back({*name, {right - side, inset, right, inset + side}});
        right -= side + palette.pixels(kButtonGap);
    }
    return places;
}

// ---- The mouse

int SkinnedFrame::buttonAt(POINT screen) const {
    RECT rect{};
    GetWindowRect(window(), &rect);
    const POINT inWindow{screen.x - rect.left, screen.y - rect.top};
    const std::vector<Button> all = buttons();
    const auto found = std::ranges::find_if(all, [&](const Button& b) { return contains(b.place, inWindow); });
    return found != all.end() ? static_cast<int>(found - all.begin()) : kNoButton;
}

LRESULT SkinnedFrame::hitTest(POINT screen) const {
    RECT rect{};
    GetWindowRect(window(), &rect);
    RECT inside = rect;
    insideOf(inside);
    if (PtInRect(&inside, screen)) {
        return HTCLIENT;
    }
    const int button = buttonAt(screen);
    if (button != kNoButton) {
        const std::string name = buttons()[static_cast<std::size_t>(button)].name;
        return name == "Close" ? HTCLOSE : name == "Minimize" ? HTMINBUTTON : HTHELP;
    }
    if (contains(iconPlace(), {screen.x - rect.left, screen.y - rect.top})) {
        return HTSYSMENU;
    }
    return screen.y < inside.top ? HTCAPTION : HTBORDER;
}

void SkinnedFrame::track(int hot, int pressed) {
    if (hot != hot_ || pressed != pressed_) {
        if (hot != kNoButton && hot_ == kNoButton) {
            SetTimer(window(), kHotTimer, kHotInterval, nullptr);
        }
        hot_ = hot;
        pressed_ = pressed;
        paintFrame(nullptr);
    }
}

void SkinnedFrame::release(bool onButton) {
    const int pressed = pressed_;
    track(hot_, kNoButton);
    const std::vector<Button> all = buttons();
    if (onButton && pressed >= 0 && static_cast<std::size_t>(pressed) < all.size()) {
        press(all[static_cast<std::size_t>(pressed)].name);
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
        case WM_SIZE:
            shape();
            return callOriginal(message, wParam, lParam);
        case WM_SYSCOLORCHANGE:
        case WM_SETTINGCHANGE: {
            const LRESULT result = callOriginal(message, wParam, lParam);
            engine().useSettings(readSystemSettings());
            return result;
        }
        case WM_ERASEBKGND:
            return engine().skinsClientArea() && !IsIconic(window()) ? paintInside(reinterpret_cast<HDC>(wParam))
                                                                     : callOriginal(message, wParam, lParam);
        default: break;
    }
    return IsIconic(window()) ? callOriginal(message, wParam, lParam) : handleFrame(message, wParam, lParam);
}

LRESULT SkinnedFrame::handleFrame(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCALCSIZE:
            // The window's rectangle comes first in both forms of the message.
            insideOf(*reinterpret_cast<RECT*>(lParam));
            return 0;
        case WM_NCPAINT: paintFrame(wParam > 1 ? reinterpret_cast<HRGN>(wParam) : nullptr); return 0;
        case kDrawThemedCaption:
        case kDrawThemedFrame: paintFrame(nullptr); return 0;
        case WM_PRINT: return print(wParam, lParam);
        case WM_NCACTIVATE:
            active_ = wParam != 0;
            paintFrame(nullptr);
            return TRUE;
        case WM_SETTEXT:
        case WM_SETICON: return callWithoutFrame(message, wParam, lParam);
        case WM_NCHITTEST: return hitTest(pointOf(lParam));
        case WM_NCMOUSEMOVE: track(buttonAt(pointOf(lParam)), pressed_); break;
        case WM_NCLBUTTONDBLCLK:
        case WM_NCLBUTTONDOWN:
            if (const int button = buttonAt(pointOf(lParam)); button != kNoButton) {
                SetCapture(window());
                track(button, button);
                return 0;
            }
            break;
        case WM_MOUSEMOVE:
            if (pressed_ != kNoButton) {
                POINT point = pointOf(lParam);
                ClientToScreen(window(), &point);
                track(buttonAt(point) == pressed_ ? pressed_ : kNoButton, pressed_);
                return 0;
            }
            break;
        case WM_LBUTTONUP:
            if (pressed_ != kNoButton) {
                POINT point = pointOf(lParam);
                ClientToScreen(window(), &point);
                const bool onButton = buttonAt(point) == pressed_;
                const int pressed = pressed_;
                pressed_ = kNoButton;  // losing the capture is then nothing of ours
                ReleaseCapture();
                pressed_ = pressed;
                release(onButton);
                return 0;
            }
            break;
        case WM_CAPTURECHANGED:
            if (pressed_ != kNoButton) {
                track(kNoButton, kNoButton);
            }
            break;
        case WM_TIMER:
            if (wParam == kHotTimer) {
                POINT point{};
                GetCursorPos(&point);
                if (pressed_ == kNoButton && buttonAt(point) == kNoButton) {
                    KillTimer(window(), kHotTimer);
                    track(kNoButton, kNoButton);
                }
                return 0;
            }
            break;
        default: break;
    }
    return callOriginal(message, wParam, lParam);
}

// The system draws its caption when its text or icon changes: not while the window is not visible.
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

// `update` is in screen coordinates; null: everything.
void SkinnedFrame::paintFrame(HRGN update) const {
    if (!IsWindowVisible(window()) || IsIconic(window())) {
        return;
    }
    const HDC dc = GetWindowDC(window());
    if (update != nullptr) {
        RECT rect{};
        GetWindowRect(window(), &rect);
        const HRGN inWindow = CreateRectRgn(0, 0, 0, 0);
        CombineRgn(inWindow, update, nullptr, RGN_COPY);
        OffsetRgn(inWindow, -rect.left, -rect.top);
        SelectClipRgn(dc, inWindow);
        DeleteObject(inWindow);
    }
    drawFrame(dc);
    ReleaseDC(window(), dc);
}

void SkinnedFrame::drawFrame(HDC dc) const {
    const SkinPalette& palette = engine().palette();
    const SIZE whole = size();
    RECT inside{0, 0, whole.cx, whole.cy};
    insideOf(inside);
    ExcludeClipRect(dc, inside.left, inside.top, inside.right, inside.bottom);
    PaintBuffer caption(whole.cx, captionHeight());
    if (caption.valid()) {
        drawCaption(caption);
        caption.copyTo(dc, 0, 0);
    }
    const StateLook& colours = look().of(state());
    const SkinColour panel{ColourSource::Panel, 0};
    const HBRUSH fill = CreateSolidBrush(colourOf(palette.of(colours.fill ? colours.fill->bottom : panel)));
    const RECT sides[] = {{0, inside.top, inside.left, whole.cy},
                          {inside.right, inside.top, whole.cx, whole.cy},
                          {0, inside.bottom, whole.cx, whole.cy}};
    for (const RECT& side : sides) {
        FillRect(dc, &side, fill);
    }
    DeleteObject(fill);
    if (colours.border) {
        const HBRUSH line = CreateSolidBrush(colourOf(palette.of(*colours.border)));
        const RECT edges[] = {{0, inside.top, 1, whole.cy},
                              {whole.cx - 1, inside.top, whole.cx, whole.cy},
                              {0, whole.cy - 1, whole.cx, whole.cy}};
        for (const RECT& edge : edges) {
            FillRect(dc, &edge, line);
        }
        DeleteObject(line);
    }
}

// For programs that take pictures of windows.
LRESULT SkinnedFrame::print(WPARAM wParam, LPARAM lParam) const {
    if (!(lParam & PRF_NONCLIENT)) {
        return callOriginal(WM_PRINT, wParam, lParam);
    }
    const auto dc = reinterpret_cast<HDC>(wParam);
    int saved = SaveDC(dc);
    drawFrame(dc);
    RestoreDC(dc, saved);
    saved = SaveDC(dc);
    SetViewportOrgEx(dc, borderWidth(), captionHeight(), nullptr);
    const LRESULT result = callOriginal(WM_PRINT, wParam, lParam & ~LPARAM{PRF_NONCLIENT});
    RestoreDC(dc, saved);
    return result;
}

void SkinnedFrame::drawCaption(PaintBuffer& buffer) const {
    const SkinPalette& palette = engine().palette();
    const Rect caption{0, 0, size().cx, captionHeight()};
    // The lower edge of the box, with its round corners and its border, lies below the caption.
    Rect beyond = caption;
    const int hidden = std::max(palette.pixels(look().radius), palette.pixels(look().borderWidth)) + 1;
    beyond.bottom += look().picture == nullptr ? hidden : 0;
    Canvas canvas = buffer.canvas();
    ElementPainter painter(canvas, palette);
    painter.background(beyond, look(), state());
    const std::vector<Button> all = buttons();
    for (std::size_t i = 0; i < all.size(); ++i) {
        const bool hot = hot_ == static_cast<int>(i);
        const bool pressed = pressed_ == static_cast<int>(i) && hot;
        painter.frameButton(all[i].place, engine().frameButtonLook(),
                            pressed ? ControlState::Pressed : hot ? ControlState::Hot : state(), all[i].name);
    }
    Rect place{iconPlace().left, 0, all.empty() ? caption.right : all.back().place.left, caption.bottom};
    auto icon = reinterpret_cast<HICON>(SendMessageA(window(), WM_GETICON, ICON_SMALL, 0));
    if (icon != nullptr) {
        const Rect at = iconPlace();
        DrawIconEx(buffer.dc(), at.left, at.top, icon, at.width(), at.height(), 0, nullptr, DI_NORMAL);
        place.left = at.right;
    }
    place.left += palette.pixels(kGap);
    place.right -= palette.pixels(kGap);
    drawTitle(buffer, place);
}

void SkinnedFrame::drawTitle(PaintBuffer& buffer, const Rect& place) const {
    const HFONT systemFont = captionFont();
    const HGDIOBJ oldFont = SelectObject(buffer.dc(), engine().font(look().font, systemFont));
    SetBkMode(buffer.dc(), TRANSPARENT);
    SetTextColor(buffer.dc(), colourOf(engine().palette().of(look().of(state()).text)));
    RECT area{place.left, place.top, place.right, place.bottom};
    DrawTextA(buffer.dc(), text().c_str(), -1, &area,
              DT_LEFT | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(buffer.dc(), oldFont);
    DeleteObject(systemFont);
}

LRESULT SkinnedFrame::paintInside(HDC dc) const {
    const SIZE client = clientSize();
    PaintBuffer buffer(client.cx, client.cy);
    if (buffer.valid()) {
        engine().drawSurface(window(), buffer);
        buffer.copyTo(dc, 0, 0);
    }
    return TRUE;
}

}  // namespace korvane
