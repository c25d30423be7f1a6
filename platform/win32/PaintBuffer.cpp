// A device-independent bitmap, selected into a device context of its own.
#include "platform/win32/PaintBuffer.h"

#include <algorithm>

namespace korvane {

BITMAPINFO topDownPixels(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;  // negative: the top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

PaintBuffer::PaintBuffer(int width, int height)
    : width_(std::max(width, 1)), height_(std::max(height, 1)), dc_(CreateCompatibleDC(nullptr)) {
    const BITMAPINFO info = topDownPixels(width_, height_);
    void* pixels = nullptr;
    bitmap_.reset(CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    if (dc_ && bitmap_) {
        selected_.emplace(dc_.get(), bitmap_.get());
        pixels_ = static_cast<std::uint32_t*>(pixels);
    }
}

std::uint32_t* PaintBuffer::pixels() {
    GdiFlush();
    return pixels_;
}

void PaintBuffer::copyTo(HDC target, int x, int y) const {
    BitBlt(target, x, y, width_, height_, dc_.get(), 0, 0, SRCCOPY);
}

void PaintBuffer::copyPartTo(HDC target, const RECT& part) const {
    BitBlt(target, part.left, part.top, part.right - part.left, part.bottom - part.top, dc_.get(), part.left, part.top,
           SRCCOPY);
}

void fillArea(HDC dc, const RECT& area, COLORREF colour) {
    const Brush brush(CreateSolidBrush(colour));
    FillRect(dc, &area, brush.get());
}

}  // namespace korvane
