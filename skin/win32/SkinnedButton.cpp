// The state comes from the button itself at every painting; only whether the mouse is over it is kept here.
#include "skin/win32/SkinnedButton.h"

#include "platform/win32/WindowFunctions.h"
#include "skin/win32/GdiCanvas.h"
#include "skin/win32/SkinEngine.h"

#include <algorithm>
#include <utility>

namespace korvane::skin {
namespace {

// Newer than the oldest Windows, where the query returns 0: nothing is hidden.
constexpr UINT kQueryUiState = 0x0129;   // WM_QUERYUISTATE
constexpr UINT kUpdateUiState = 0x0128;  // WM_UPDATEUISTATE
constexpr LRESULT kHideFocus = 1;
constexpr LRESULT kHideAccelerators = 2;
constexpr UINT kHidePrefix = 0x00100000;  // DT_HIDEPREFIX

constexpr int kCheckSize = 13;  // this and what follows: pixels at 96 DPI
constexpr int kCheckGap = 5;
constexpr int kFocusInset = 3;
constexpr int kFocusMargin = 1;  // pixels

void drawFocus(HDC dc, const RECT& area) {
    SetTextColor(dc, RGB(0, 0, 0));
    DrawFocusRect(dc, &area);
}

}  // namespace

SkinnedButton::SkinnedButton(Win32SkinEngine& engine, HWND window, std::string element)
    : SkinnedWindow(engine, window, std::move(element)), mouse_(window, HotTracking::Area::Client) {}

LRESULT SkinnedButton::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (mouse_.hasLeft(message, wParam)) {
        setHot(false);
    }
    switch (message) {
        case WM_ERASEBKGND: return 1;
        case WM_PAINT:
        case WM_PRINTCLIENT: return paintWhole(message, wParam);
        case BM_SETCHECK:
        case BM_SETSTATE:
        case BM_SETSTYLE:
        case WM_SETTEXT:
        case WM_ENABLE:
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case kUpdateUiState: return callWithoutPainting(message, wParam, lParam);
        case WM_MOUSEMOVE: setHot(mouse_.start()); break;
        default: break;
    }
    return callOriginal(message, wParam, lParam);
}

void SkinnedButton::setHot(bool hot) {
    if (std::exchange(hot_, hot) != hot) {
        InvalidateRect(window(), nullptr, FALSE);
    }
}

LONG SkinnedButton::type() const { return GetWindowLongA(window(), GWL_STYLE) & BS_TYPEMASK; }

bool SkinnedButton::isCheckBox() const { return type() == BS_AUTOCHECKBOX || type() == BS_CHECKBOX; }

bool SkinnedButton::showsFocus() const {
    return GetFocus() == window() && !(SendMessageA(window(), kQueryUiState, 0, 0) & kHideFocus);
}

ControlState SkinnedButton::state() const {
    if (!IsWindowEnabled(window())) {
        return ControlState::Disabled;
    }
    if (SendMessageA(window(), BM_GETSTATE, 0, 0) & BST_PUSHED) {
        return ControlState::Pressed;
    }
    if (hot_) {
        return ControlState::Hot;
    }
    return type() == BS_DEFPUSHBUTTON || GetFocus() == window() ? ControlState::Focused : ControlState::Normal;
}

void SkinnedButton::draw(PaintBuffer& buffer) {
    engine().drawSurface(window(), buffer);
    const SelectedObject selected(buffer.dc(), font());
    SetBkMode(buffer.dc(), TRANSPARENT);
    SetTextColor(buffer.dc(), colourOf(engine().palette().of(look().of(state()).text)));
    if (isCheckBox()) {
        drawCheckBox(buffer);
    } else {
        drawPushButton(buffer);
    }
}

UINT SkinnedButton::textFormat() const {
    const bool hidden = (SendMessageA(window(), kQueryUiState, 0, 0) & kHideAccelerators) != 0;
    return DT_SINGLELINE | (hidden ? kHidePrefix : 0u);
}

void SkinnedButton::drawCheckBox(PaintBuffer& buffer) {
    const SkinPalette& palette = engine().palette();
    const int side = std::min(palette.pixels(kCheckSize), buffer.height());
    const int top = (buffer.height() - side) / 2;
    const bool checked = SendMessageA(window(), BM_GETCHECK, 0, 0) == BST_CHECKED;
    Canvas canvas = canvasOn(buffer);
    ElementPainter(canvas, palette).checkSquare({0, top, side, top + side}, look(), state(), checked);

    const std::string label = windowText(window());
    RECT extent{};
    DrawTextA(buffer.dc(), label.c_str(), -1, &extent, DT_CALCRECT | textFormat());
    RECT area{side + palette.pixels(kCheckGap), (buffer.height() - extent.bottom) / 2, buffer.width(), 0};
    area.bottom = area.top + extent.bottom;
    DrawTextA(buffer.dc(), label.c_str(), -1, &area, textFormat());
    if (showsFocus() && !label.empty()) {
        const RECT around{area.left - kFocusMargin - 1, area.top - kFocusMargin,
                          area.left + extent.right + kFocusMargin, area.bottom + kFocusMargin};
        const RECT whole{0, 0, buffer.width(), buffer.height()};
        RECT visible{};
        IntersectRect(&visible, &around, &whole);
        drawFocus(buffer.dc(), visible);
    }
}

void SkinnedButton::drawPushButton(PaintBuffer& buffer) {
    const SkinPalette& palette = engine().palette();
    Canvas canvas = canvasOn(buffer);
    ElementPainter(canvas, palette).background({0, 0, buffer.width(), buffer.height()}, look(), state());
    RECT area{0, 0, buffer.width(), buffer.height()};
    DrawTextA(buffer.dc(), windowText(window()).c_str(), -1, &area, DT_CENTER | DT_VCENTER | textFormat());
    if (showsFocus()) {
        InflateRect(&area, -palette.pixels(kFocusInset), -palette.pixels(kFocusInset));
        drawFocus(buffer.dc(), area);
    }
}

}  // namespace korvane::skin
