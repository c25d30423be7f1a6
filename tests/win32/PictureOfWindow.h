// What a window draws, and how many drawing objects the process has, for the tests of painting.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include <windows.h>

namespace korvane {

// A bitmap in memory, filled with one colour, on which a window's client area is then drawn by message.
class PictureOfWindow {
public:
    PictureOfWindow(int width, int height, COLORREF ground) : width_(width), height_(height) {
        BITMAPINFO form{};
        form.bmiHeader = {.biSize = sizeof form.bmiHeader, .biWidth = width, .biHeight = -height, .biPlanes = 1,
                          .biBitCount = 32, .biCompression = BI_RGB, .biSizeImage = 0, .biXPelsPerMeter = 0,
                          .biYPelsPerMeter = 0, .biClrUsed = 0, .biClrImportant = 0};
        void* pixels = nullptr;
        bitmap_ = CreateDIBSection(nullptr, &form, DIB_RGB_COLORS, &pixels, nullptr, 0);
        pixels_ = static_cast<const std::uint32_t*>(pixels);
        dc_ = CreateCompatibleDC(nullptr);
        old_ = SelectObject(dc_, bitmap_);
        const HBRUSH brush = CreateSolidBrush(ground);
        const RECT all{0, 0, width, height};
        FillRect(dc_, &all, brush);
        DeleteObject(brush);
    }
    PictureOfWindow(const PictureOfWindow&) = delete;
    PictureOfWindow& operator=(const PictureOfWindow&) = delete;
    ~PictureOfWindow() {
        SelectObject(dc_, old_);
        DeleteDC(dc_);
        DeleteObject(bitmap_);
    }

    PictureOfWindow& print(HWND window) {
        SendMessageA(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc_), PRF_CLIENT);
        GdiFlush();
        return *this;
    }

    HDC dc() const { return dc_; }
    COLORREF at(int x, int y) const {
        const std::uint32_t pixel = pixels_[static_cast<std::ptrdiff_t>(y) * width_ + x];
        return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
    }
    int count(COLORREF colour) const {
        int found = 0;
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                found += at(x, y) == colour;
            }
        }
        return found;
    }
    // How many pixels differ from the other picture's by more than that in some channel.
    int differencesFrom(const PictureOfWindow& other, int tolerance) const {
        int found = 0;
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                const COLORREF a = at(x, y);
                const COLORREF b = other.at(x, y);
                found += std::abs(GetRValue(a) - GetRValue(b)) > tolerance ||
                         std::abs(GetGValue(a) - GetGValue(b)) > tolerance ||
                         std::abs(GetBValue(a) - GetBValue(b)) > tolerance;
            }
        }
        return found;
    }

private:
    int width_;
    int height_;
    HBITMAP bitmap_;
    const std::uint32_t* pixels_;
    HDC dc_;
    HGDIOBJ old_;
};

// The place in the system's table of drawing objects up to which it is used: objects that are left over push it up.
inline int drawingObjectMark() {
    HBRUSH brushes[16];
    int highest = 0;
    for (HBRUSH& brush : brushes) {
        brush = CreateSolidBrush(RGB(1, 2, 3));
        const int place = static_cast<int>(reinterpret_cast<std::uintptr_t>(brush) & 0xFFFF);
        highest = place > highest ? place : highest;
    }
    for (const HBRUSH brush : brushes) {
        DeleteObject(brush);
    }
    return highest;
}

}  // namespace korvane
