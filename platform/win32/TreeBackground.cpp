// Two drawings of the rows and one of the picture, merged pixel by pixel.
#include "platform/win32/TreeBackground.h"

#include "platform/win32/PaintBuffer.h"
#include "platform/win32/WindowFunctions.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace korvane {
namespace {

constexpr std::uint32_t kColourBits = 0xFFFFFF;  // the fourth byte is not in use
constexpr std::uint32_t kWhite = 0xFFFFFF;

// As far from the colour as each channel allows.
COLORREF contrastTo(COLORREF colour) {
    const auto opposite = [](int channel) { return channel < 128 ? 255 : 0; };
    return RGB(opposite(GetRValue(colour)), opposite(GetGValue(colour)), opposite(GetBValue(colour)));
}

int channelOf(std::uint32_t pixel, int channel) { return static_cast<int>(pixel >> (8 * channel) & 0xFF); }

// Replaces the window colour behind the rows by the tinted picture.
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
            // The share of the background: all of it where the two drawings differ as much as the two colours.
            const int whole = window_[i] - contrast_[i];
            const int shown = whole > 0 ? std::clamp(own - channelOf(onContrast, i), 0, whole)
                                        : std::clamp(own - channelOf(onContrast, i), whole, 0);
            const int replaced = own + (tinted - window_[i]) * shown / whole;
            blended |= static_cast<std::uint32_t>(std::clamp(replaced, 0, 255)) << (8 * i);
        }
        return blended;
    }

private:
    static constexpr int kChannels = 3;
    int window_[kChannels];
    int contrast_[kChannels];
};

}  // namespace

bool TreeBackground::isShown() const { return bitmap_ != nullptr && !isHighContrastOn(); }

void TreeBackground::drawPicture(HDC dc, SIZE client) const {
    fillArea(dc, {0, 0, client.cx, client.cy}, RGB(255, 255, 255));
    BITMAP record{};
    GetObjectA(bitmap_, sizeof record, &record);
    const MemoryDc source(CreateCompatibleDC(dc));
    const SelectedObject picture(source.get(), bitmap_);
    BitBlt(dc, client.cx - record.bmWidth, client.cy - record.bmHeight, record.bmWidth, record.bmHeight, source.get(), 0,
           0, SRCCOPY);
}

bool TreeBackground::paint(HDC target, SIZE client, const RECT& part, COLORREF windowColour,
                           const DrawRows& drawRows) const {
    PaintBuffer rows(client.cx, client.cy);
    PaintBuffer contrasting(client.cx, client.cy);
    PaintBuffer picture(client.cx, client.cy);
    if (!rows.valid() || !contrasting.valid() || !picture.valid()) {
        return false;
    }
    const COLORREF contrast = contrastTo(windowColour);
    const auto drawOn = [&](const PaintBuffer& buffer, COLORREF colour) {
        fillArea(buffer.dc(), {0, 0, client.cx, client.cy}, colour);
        drawRows(buffer.dc(), colour);
    };
    drawOn(contrasting, contrast);
    drawOn(rows, windowColour);
    drawPicture(picture.dc(), client);
    const Blend blend(windowColour, contrast);
    const RECT clipped{std::max(part.left, 0L), std::max(part.top, 0L), std::min(part.right, client.cx),
                       std::min(part.bottom, client.cy)};
    std::uint32_t* const onWindow = rows.pixels();
    const std::uint32_t* const onContrast = contrasting.pixels();
    const std::uint32_t* const behind = picture.pixels();
    for (LONG y = clipped.top; y < clipped.bottom; ++y) {
        const std::ptrdiff_t row = static_cast<std::ptrdiff_t>(y) * rows.width();
        for (std::ptrdiff_t at = row + clipped.left; at < row + clipped.right; ++at) {
            // White is the window colour; most of the picture is white.
            if ((behind[at] & kColourBits) != kWhite) {
                onWindow[at] = blend(onWindow[at], onContrast[at], behind[at]);
            }
        }
    }
    rows.copyPartTo(target, clipped);
    return true;
}

}  // namespace korvane
