// The system's colours are read for each row, so a change of scheme shows at once.
#include "platform/win32/ColourComboPainter.h"

#include "platform/win32/Handles.h"
#include "platform/win32/PaintBuffer.h"

#include <cstddef>
#include <string>

namespace korvane {
namespace {

constexpr int kSwatchWidth = 28;  // pixels, with the margin
constexpr int kSwatchMargin = 2;
constexpr int kNameGap = 3;
constexpr UINT kSpaceAroundLine = 2;

COLORREF inverse(COLORREF colour) { return ~colour & 0xFFFFFF; }

std::string rowText(HWND combo, UINT row) {
    const LRESULT length = SendMessageA(combo, CB_GETLBTEXTLEN, row, 0);
    if (length == CB_ERR) {
        return {};
    }
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    SendMessageA(combo, CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

COLORREF textColour(const DRAWITEMSTRUCT& draw) {
    if (draw.itemState & ODS_DISABLED) {
        return GetSysColor(COLOR_GRAYTEXT);
    }
    const COLORREF colour = GetSysColor(COLOR_WINDOWTEXT);
    return draw.itemState & ODS_SELECTED ? inverse(colour) : colour;
}

void drawSwatch(HDC dc, const RECT& row, COLORREF colour) {
    RECT swatch = row;
    swatch.right = swatch.left + kSwatchWidth;
    InflateRect(&swatch, -kSwatchMargin, -kSwatchMargin);
    fillArea(dc, swatch, colour);
    FrameRect(dc, &swatch, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
}

void drawName(const DRAWITEMSTRUCT& draw) {
    const std::string name = rowText(draw.hwndItem, draw.itemID);
    const int length = static_cast<int>(name.size());
    SIZE size{};
    GetTextExtentPoint32A(draw.hDC, name.c_str(), length, &size);
    const int left = draw.rcItem.left + kSwatchWidth + kNameGap;
    const int top = (draw.rcItem.top + draw.rcItem.bottom - size.cy) / 2;
    const COLORREF oldColour = SetTextColor(draw.hDC, textColour(draw));
    const int oldMode = SetBkMode(draw.hDC, TRANSPARENT);
    TabbedTextOutA(draw.hDC, left, top, name.c_str(), length, 0, nullptr, left);
    SetBkMode(draw.hDC, oldMode);
    SetTextColor(draw.hDC, oldColour);
}

}  // namespace

void measureColourRow(HWND dialog, MEASUREITEMSTRUCT& measure) {
    const WindowDc dc(dialog);
    const SelectedObject font(dc.get(), reinterpret_cast<HGDIOBJ>(SendMessageA(dialog, WM_GETFONT, 0, 0)));
    TEXTMETRICA metrics{};
    GetTextMetricsA(dc.get(), &metrics);
    measure.itemHeight = static_cast<UINT>(metrics.tmHeight) + kSpaceAroundLine;
}

void drawColourRow(const DRAWITEMSTRUCT& draw) {
    const bool selected = (draw.itemState & ODS_SELECTED) != 0;
    fillArea(draw.hDC, draw.rcItem, GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    // The field of a combo box without a selection is drawn as row -1.
    if (draw.itemID != static_cast<UINT>(-1)) {
        drawSwatch(draw.hDC, draw.rcItem, static_cast<COLORREF>(draw.itemData));
        drawName(draw);
    }
    if (draw.itemState & ODS_FOCUS) {
        DrawFocusRect(draw.hDC, &draw.rcItem);
    }
}

}  // namespace korvane
