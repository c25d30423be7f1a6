// Two drawings of the rows and one of the picture, put together pixel by
// pixel.
#include "platform/win32/TreeBackground.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace korvane {
namespace {

constexpr std::uint32_t kColourBits = 0xFFFFFF;  // the fourth byte is not in use
constexpr std::uint32_t kWhite = 0xFFFFFF;

// A picture in memory with direct access to its pixels, 0x00RRGGBB.
class Canvas {
public:
    Canvas(HDC like, SIZE size) : dc_(CreateCompatibleDC(like)), width_(size.cx) {
        BITMAPINFO form{};
        form.bmiHeader.biSize = sizeof form.bmiHeader;
        form.bmiHeader.biWidth = size.cx;
        form.bmiHeader.biHeight = -size.cy;  // the top row comes first
        form.bmiHeader.biPlanes = 1;
        form.bmiHeader.biBitCount = 32;
        void* pixels = nullptr;
        bitmap_ = CreateDIBSection(like, &form, DIB_RGB_COLORS, &pixels, nullptr, 0);
        pixels_ = static_cast<std::uint32_t*>(pixels);
        if (isReady()) {
            oldBitmap_ = SelectObject(dc_, bitmap_);
        }
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas() {
        if (isReady()) {
            SelectObject(dc_, oldBitmap_);
        }
        if (bitmap_ != nullptr) {
            DeleteObject(bitmap_);
        }
        if (dc_ != nullptr) {
            DeleteDC(dc_);
        }
    }

    bool isReady() const { return dc_ != nullptr && bitmap_ != nullptr; }
    HDC dc() const { return dc_; }
    std::uint32_t* row(LONG y) const { return pixels_ + static_cast<std::ptrdiff_t>(y) * width_; }

private:
    HDC dc_;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ oldBitmap_ = nullptr;
    std::uint32_t* pixels_ = nullptr;
    LONG width_;
};

void fill(HDC dc, SIZE size, COLORREF colour) {
    const RECT area{0, 0, size.cx, size.cy};
    const HBRUSH brush = CreateSolidBrush(colour);
    FillRect(dc, &area, brush);
    DeleteObject(brush);
}

// One as far from the given one as there is, in each channel.
COLORREF contrastTo(COLORREF colour) {
    const auto opposite = [](int channel) { return channel < 128 ? 255 : 0; };
    return RGB(opposite(GetRValue(colour)), opposite(GetGValue(colour)), opposite(GetBValue(colour)));
}

int channelOf(std::uint32_t pixel, int channel) { return static_cast<int>(pixel >> (8 * channel) & 0xFF); }

// Exchanges the window colour behind the rows for the tinted picture.
class Blend {
public:
    Blend(COLORREF window, COLORREF contrast) {
        const int windowChannels[] = {GetBValue(window), GetGValue(window), GetRValue(window)};
        const int contrastChannels[] = {GetBValue(contrast), GetGValue(contrast), GetRValue(contrast)};
        std::copy_n(windowChannels, kChannels, window_);
        std::copy_n(contrastChannels, kChannels, contrast_);
    }

    std::uint32_t operator()(std::uint32_t onWindow, std::uint32_t onContrast, std::uint32_t picture) const {
        std::uint32_t blended = 0;
        for (int i = 0; i < kChannels; ++i) {
            const int own = channelOf(onWindow, i);
            const int tinted = channelOf(picture, i) * window_[i] / 255;
            // How much of the background shows: all of it when the two drawings differ as the two colours do.
            const int whole = window_[i] - contrast_[i];
            const int shown = whole > 0 ? std::clamp(own - channelOf(onContrast, i), 0, whole)
                                        : std::clamp(own - channelOf(onContrast, i), whole, 0);
            const int exchanged = own + (tinted - window_[i]) * shown / whole;
            blended |= static_cast<std::uint32_t>(std::clamp(exchanged, 0, 255)) << (8 * i);
        }
        return blended;
    }

private:
    static constexpr int kChannels = 3;
    int window_[kChannels];
    int contrast_[kChannels];
};

void blendRow(const Blend& blend, std::uint32_t* onWindow, const std::uint32_t* onContrast,
              const std::uint32_t* picture, LONG left, LONG right) {
    for (LONG x = left; x < right; ++x) {
        // White is the window colour; most of the picture is.
        if ((picture[x] & kColourBits) != kWhite) {
            onWindow[x] = blend(onWindow[x], onContrast[x], picture[x]);
        }
    }
}

}  // namespace

bool isHighContrastOn() {
    HIGHCONTRASTA setting{};
    setting.cbSize = sizeof setting;
    return SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) &&
           (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

void TreeBackground::drawPicture(HDC dc, SIZE client) const {
    fill(dc, client, RGB(255, 255, 255));
    BITMAP record{};
    GetObjectA(bitmap_, sizeof record, &record);
    const HDC source = CreateCompatibleDC(dc);
    const HGDIOBJ old = SelectObject(source, bitmap_);
    BitBlt(dc, client.cx - record.bmWidth, client.cy - record.bmHeight, record.bmWidth, record.bmHeight, source, 0, 0,
           SRCCOPY);
    SelectObject(source, old);
    DeleteDC(source);
}

bool TreeBackground::paint(HDC target, SIZE client, const RECT& part, COLORREF windowColour,
                           const DrawRows& drawRows) const {
    const Canvas rows(target, client);
    const Canvas contrasting(target, client);
    const Canvas picture(target, client);
    if (!rows.isReady() || !contrasting.isReady() || !picture.isReady()) {
        return false;
    }
    const COLORREF contrast = contrastTo(windowColour);
    const auto drawOn = [&](const Canvas& canvas, COLORREF colour) {
        fill(canvas.dc(), client, colour);
        drawRows(canvas.dc(), colour);
    };
    drawOn(contrasting, contrast);
    drawOn(rows, windowColour);
    drawPicture(picture.dc(), client);
    GdiFlush();  // before the pixels are touched
    const Blend blend(windowColour, contrast);
    const RECT clipped{std::max(part.left, 0L), std::max(part.top, 0L), std::min(part.right, client.cx),
                       std::min(part.bottom, client.cy)};
    for (LONG y = clipped.top; y < clipped.bottom; ++y) {
        blendRow(blend, rows.row(y), contrasting.row(y), picture.row(y), clipped.left, clipped.right);
    }
    BitBlt(target, clipped.left, clipped.top, clipped.right - clipped.left, clipped.bottom - clipped.top, rows.dc(),
           clipped.left, clipped.top, SRCCOPY);
    return true;
}

}  // namespace korvane
