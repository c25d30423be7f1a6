// A picture in memory that both the canvas and the system draw into, and that
// then comes to the screen at once.
#pragma once

#include "skin/Canvas.h"

#include <windows.h>

namespace korvane {

class PaintBuffer {
public:
    PaintBuffer(int width, int height);
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;
    ~PaintBuffer();

    // False when memory is short: nothing can be drawn then.
    bool valid() const { return pixels_ != nullptr; }
    HDC dc() const { return dc_; }
    // The system may draw later than it says: whoever changes between the two drawing with the system and with the
    // canvas asks for the canvas anew.
    Canvas canvas();
    // To the place, within what the target lets be painted.
    void copyTo(HDC target, int x, int y) const;

private:
    int width_;
    int height_;
    HDC dc_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ oldBitmap_ = nullptr;
    Pixel* pixels_ = nullptr;
};

constexpr Pixel pixelOf(COLORREF colour) {
    return 0xFF000000 | (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}
constexpr COLORREF colourOf(Pixel pixel) { return (pixel >> 16 & 0xFF) | (pixel & 0xFF00) | (pixel & 0xFF) << 16; }

}  // namespace korvane
