// What a window draws, and how many drawing objects the process has, for the tests of painting.
#pragma once

#include <algorithm>
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
        form.bmiHeader = {sizeof form.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
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
    // The whole of a window, on green.
    explicit PictureOfWindow(HWND window)
        : PictureOfWindow(clientSize(window).cx, clientSize(window).cy, RGB(0, 255, 0)) {
        print(window);
    }
    PictureOfWindow(const PictureOfWindow&) = delete;
    PictureOfWindow& operator=(const PictureOfWindow&) = delete;
    ~PictureOfWindow() {
        SelectObject(dc_, old_);
        DeleteDC(dc_);
        DeleteObject(bitmap_);
    }

    void print(HWND window) const {
        SendMessageA(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc_), PRF_CLIENT);
        GdiFlush();
    }

    static SIZE clientSize(HWND window) {
        RECT area{};
        GetClientRect(window, &area);
        return {area.right, area.bottom};
    }

    HDC dc() const { return dc_; }
    COLORREF at(int x, int y) const {
        const std::uint32_t pixel = pixels_[static_cast<std::ptrdiff_t>(y) * width_ + x];
        return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
    }
    int count(COLORREF colour) const {
        return countIf([colour](COLORREF here, COLORREF) { return here == colour; }, *this);
    }
    // How many pixels differ from the other picture's by more than that in some channel.
    int differencesFrom(const PictureOfWindow& other, int tolerance) const {
        const auto differ = [tolerance](COLORREF a, COLORREF b) {
            return std::max({std::abs(GetRValue(a) - GetRValue(b)), std::abs(GetGValue(a) - GetGValue(b)),
                             std::abs(GetBValue(a) - GetBValue(b))}) > tolerance;
        };
        return countIf(differ, other);
    }

private:
    template <class Test>
    int countIf(Test test, const PictureOfWindow& other) const {
        int found = 0;
        for (int i = 0; i < width_ * height_; ++i) {
            found += test(at(i % width_, i / width_), other.at(i % width_, i / width_));
        }
        return found;
    }

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
