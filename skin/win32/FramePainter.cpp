// The caption is drawn in a buffer, because text and icons come from GDI; the border is plain colour.
#include "skin/win32/FramePainter.h"

#include "platform/win32/WindowFunctions.h"
#include "skin/win32/GdiCanvas.h"

#include <algorithm>

namespace korvane::skin {
namespace {

constexpr int kGap = 5;  // pixels at 96 DPI, around the title

Font captionFont() {
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return Font(CreateFontIndirectA(&metrics.lfCaptionFont));
}

}  // namespace

void FramePainter::draw(HDC dc, HWND window) const {
    ExcludeClipRect(dc, layout_.inside.left, layout_.inside.top, layout_.inside.right, layout_.inside.bottom);
    PaintBuffer caption(layout_.window.width(), layout_.captionHeight);
    if (caption.valid()) {
        drawCaption(caption, window);
        caption.copyTo(dc, 0, 0);
    }
    drawBorder(dc);
}

void FramePainter::drawCaption(PaintBuffer& buffer, HWND window) const {
    const SkinPalette& palette = engine_.palette();
    Canvas canvas = canvasOn(buffer);
    ElementPainter painter(canvas, palette);
    // The lower edge of the box, with its round corners and its border, falls below the caption.
    const int edge = std::max(palette.pixels(look_.radius), palette.pixels(look_.borderWidth)) + 1;
    const int below = look_.picture == nullptr ? edge : 0;
    painter.background({0, 0, layout_.window.width(), layout_.captionHeight + below}, look_, controlState());
    drawButtons(painter);

    Rect title{layout_.icon.left, 0, layout_.window.width(), layout_.captionHeight};
    if (!layout_.buttons.empty()) {
        title.right = layout_.buttons.back().place.left;
    }
    if (const auto icon = reinterpret_cast<HICON>(SendMessageA(window, WM_GETICON, ICON_SMALL, 0))) {
        const Rect& place = layout_.icon;
        DrawIconEx(buffer.dc(), place.left, place.top, icon, place.width(), place.height(), 0, nullptr, DI_NORMAL);
        title.left = place.right;
    }
    title.left += palette.pixels(kGap);
    title.right -= palette.pixels(kGap);
    drawTitle(buffer.dc(), title, window);
}

void FramePainter::drawButtons(ElementPainter& painter) const {
    for (std::size_t i = 0; i < layout_.buttons.size(); ++i) {
        const int index = static_cast<int>(i);
        ControlState state = controlState();
        if (index == state_.hotButton) {
            state = index == state_.pressedButton ? ControlState::Pressed : ControlState::Hot;
        }
        painter.frameButton(layout_.buttons[i].place, engine_.frameButtonLook(), state, layout_.buttons[i].name);
    }
}

void FramePainter::drawTitle(HDC dc, const Rect& place, HWND window) const {
    const Font systemFont = captionFont();
    const SelectedObject font(dc, engine_.font(look_.font, systemFont.get()));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, colourOf(engine_.palette().of(look_.of(controlState()).text)));
    RECT area{place.left, place.top, place.right, place.bottom};
    DrawTextA(dc, windowText(window).c_str(), -1, &area,
              DT_LEFT | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void FramePainter::drawBorder(HDC dc) const {
    const SkinPalette& palette = engine_.palette();
    const StateLook& colours = look_.of(controlState());
    const SkinColour panel{ColourSource::Panel, 0};
    const COLORREF fill = colourOf(palette.of(colours.fill ? colours.fill->bottom : panel));
    const Rect& inside = layout_.inside;
    const int width = layout_.window.width();
    const int height = layout_.window.height();
    fillArea(dc, {0, inside.top, inside.left, height}, fill);
    fillArea(dc, {inside.right, inside.top, width, height}, fill);
    fillArea(dc, {0, inside.bottom, width, height}, fill);
    if (colours.border) {
        const COLORREF line = colourOf(palette.of(*colours.border));
        fillArea(dc, {0, inside.top, 1, height}, line);
        fillArea(dc, {width - 1, inside.top, width, height}, line);
        fillArea(dc, {0, height - 1, width, height}, line);
    }
}

}  // namespace korvane::skin
