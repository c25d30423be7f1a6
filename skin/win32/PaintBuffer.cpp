// A device-independent bitmap, whose pixels are in reach.
#include "skin/win32/PaintBuffer.h"

#include <algorithm>

namespace korvane {

PaintBuffer::PaintBuffer(int width, int height) : width_(std::max(width, 1)), height_(std::max(height, 1)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width_;
    info.bmiHeader.biHeight = -height_;  // the top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    dc_ = CreateCompatibleDC(nullptr);
    void* pixels = nullptr;
    bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    if (bitmap_ != nullptr) {
        oldBitmap_ = SelectObject(dc_, bitmap_);
        pixels_ = static_cast<Pixel*>(pixels);
    }
}

PaintBuffer::~PaintBuffer() {
    if (bitmap_ != nullptr) {
        SelectObject(dc_, oldBitmap_);
        DeleteObject(bitmap_);
    }
    DeleteDC(dc_);
}

Canvas PaintBuffer::canvas() {
    // Reading back makes the system finish what it was told to draw, on every Windows.
    GetPixel(dc_, 0, 0);
    return {pixels_, width_, height_};
}

void PaintBuffer::copyTo(HDC target, int x, int y) const { BitBlt(target, x, y, width_, height_, dc_, 0, 0, SRCCOPY); }

}  // namespace korvane
