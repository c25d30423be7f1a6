// Between the canvas and GDI: both draw into the same buffer, but write colours differently.
#pragma once

#include "platform/win32/PaintBuffer.h"
#include "skin/Canvas.h"

namespace korvane::skin {

// Ask for it anew after drawing with GDI (PaintBuffer::pixels).
inline Canvas canvasOn(PaintBuffer& buffer) { return {buffer.pixels(), buffer.width(), buffer.height()}; }

constexpr Pixel pixelOf(COLORREF colour) {
    return 0xFF000000 | (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}
constexpr COLORREF colourOf(Pixel pixel) { return (pixel >> 16 & 0xFF) | (pixel & 0xFF00) | (pixel & 0xFF) << 16; }

}  // namespace korvane::skin
