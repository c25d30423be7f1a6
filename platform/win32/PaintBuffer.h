// An off-screen picture that GDI draws into and whose pixels are accessible. It is copied to the screen in one piece, so
// that nothing flickers.
#pragma once

#include "platform/win32/Handles.h"

#include <cstddef>
#include <cstdint>
#include <optional>

#include <windows.h>

namespace korvane {

// The description of 32-bit pixels, 0x00RRGGBB, with the top row first.
BITMAPINFO topDownPixels(int width, int height);

class PaintBuffer {
public:
    // At least one pixel wide and high.
    PaintBuffer(int width, int height);
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;

    // False if memory is short; then nothing can be drawn.
    bool valid() const { return pixels_ != nullptr; }
    int width() const { return width_; }
    int height() const { return height_; }
    HDC dc() const { return dc_.get(); }

    // The top row first, without gaps. GDI may put off what it was told to draw; this waits for it, so whoever changes
    // between drawing with GDI and touching pixels asks for the pixels anew.
    std::uint32_t* pixels();

    // What lies outside the target's clipping stays as it is.
    void copyTo(HDC target, int x, int y) const;
    // Only the given part, to the same place.
    void copyPartTo(HDC target, const RECT& part) const;

private:
    int width_;
    int height_;
    MemoryDc dc_;
    Bitmap bitmap_;
    std::optional<SelectedObject> selected_;  // before the bitmap in destruction: a selected one cannot be deleted
    std::uint32_t* pixels_ = nullptr;
};

// Fills an area with one colour.
void fillArea(HDC dc, const RECT& area, COLORREF colour);

}  // namespace korvane
