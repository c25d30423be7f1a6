// How much of a pixel a shape covers follows from the distance of the pixel to the edge of the shape.
#include "skin/Canvas.h"

#include <algorithm>
#include <cmath>

namespace korvane::skin {
namespace {

constexpr unsigned kWhole = 256;
constexpr int kFullCircle = 360;

unsigned channel(Pixel pixel, int shift) { return (pixel >> shift) & 0xFF; }

Pixel mixChannel(Pixel under, Pixel over, unsigned weight, int shift) {
    const unsigned sum = channel(under, shift) * (kWhole - weight) + channel(over, shift) * weight;
    return (sum + kWhole / 2) / kWhole << shift;
}

float clampCoverage(float coverage) { return std::clamp(coverage, 0.0F, 1.0F); }

// The distance of a point from the edge of a box with round corners; negative inside.
float distanceToBox(float x, float y, const Rect& box, float radius) {
    const float halfWidth = static_cast<float>(box.width()) / 2;
    const float halfHeight = static_cast<float>(box.height()) / 2;
    const float beyondX = std::abs(x - static_cast<float>(box.left) - halfWidth) - (halfWidth - radius);
    const float beyondY = std::abs(y - static_cast<float>(box.top) - halfHeight) - (halfHeight - radius);
    const float outside = std::hypot(std::max(beyondX, 0.0F), std::max(beyondY, 0.0F));
    return outside + std::min(std::max(beyondX, beyondY), 0.0F) - radius;
}

float distanceToSegment(CanvasPoint point, CanvasPoint from, CanvasPoint to) {
    const float alongX = to.x - from.x;
    const float alongY = to.y - from.y;
    const float length = alongX * alongX + alongY * alongY;
    const float part =
        length == 0 ? 0 : clampCoverage(((point.x - from.x) * alongX + (point.y - from.y) * alongY) / length);
    return std::hypot(point.x - from.x - part * alongX, point.y - from.y - part * alongY);
}

Pixel rowColour(int y, int top, int height, Pixel first, Pixel last) {
    if (height <= 1 || first == last) {
        return first;
    }
    const int row = std::clamp(y - top, 0, height - 1);
    return mix(first, last, static_cast<unsigned>(row) * kWhole / static_cast<unsigned>(height - 1));
}

// Maps a pixel of the area to one of the picture, along one axis: both ends keep their size, the rest is stretched.
class FixedEnds {
public:
    FixedEnds(int target, int source, int sourceFirst, int sourceLast, int dpi)
        : source_(source), sourceFirst_(sourceFirst), sourceLast_(sourceLast) {
        const int wantedFirst = sourceFirst * dpi / 96;
        const int wantedLast = sourceLast * dpi / 96;
        // An area smaller than both ends shows a part of each.
        const int wanted = wantedFirst + wantedLast;
        first_ = wanted <= target ? wantedFirst : target * wantedFirst / wanted;
        last_ = wanted <= target ? wantedLast : target - first_;
        target_ = target;
    }

    int sourceOf(int place) const {
        int found = 0;
        if (place < first_) {
            found = place * sourceFirst_ / first_;
        } else if (place >= target_ - last_) {
            found = source_ - sourceLast_ + (place - (target_ - last_)) * sourceLast_ / last_;
        } else {
            const int room = target_ - first_ - last_;
            found = sourceFirst_ + (place - first_) * (source_ - sourceFirst_ - sourceLast_) / room;
        }
        return std::clamp(found, 0, source_ - 1);
    }

private:
    int source_;
    int sourceFirst_;
    int sourceLast_;
    int target_;
    int first_;
    int last_;
};

}  // namespace

Pixel mix(Pixel under, Pixel over, unsigned weight) {
    return (under & 0xFF000000) | mixChannel(under, over, weight, 16) | mixChannel(under, over, weight, 8) |
           mixChannel(under, over, weight, 0);
}

Pixel turnHue(Pixel colour, int degrees) {
    const int turn = (degrees % kFullCircle + kFullCircle) % kFullCircle;
    if (turn == 0) {
        return colour;
    }
    const auto red = static_cast<float>(channel(colour, 16));
    const auto green = static_cast<float>(channel(colour, 8));
    const auto blue = static_cast<float>(channel(colour, 0));
    const float most = std::max({red, green, blue});
    const float least = std::min({red, green, blue});
    const float range = most - least;
    if (range == 0) {
        return colour;
    }
    float sixth = 0;  // of the circle
    if (most == red) {
        sixth = (green - blue) / range;
    } else if (most == green) {
        sixth = (blue - red) / range + 2;
    } else {
        sixth = (red - green) / range + 4;
    }
    sixth = std::fmod(sixth + 6 + static_cast<float>(turn) / 60, 6.0F);
    const auto part = [&](float offset) {
        const float place = std::fmod(sixth + offset, 6.0F);
        const float share = clampCoverage(std::abs(place - 3) - 1);
        return static_cast<Pixel>(std::lround(least + range * share));
    };
    return (colour & 0xFF000000) | part(0) << 16 | part(4) << 8 | part(2);
}

Rect Canvas::inside(const Rect& area) const {
    return {std::max(area.left, 0), std::max(area.top, 0), std::min(area.right, width_), std::min(area.bottom, height_)};
}

void Canvas::blend(int x, int y, Pixel colour, float coverage) {
    const float opaque = coverage * static_cast<float>(channel(colour, 24)) / 255;
    if (opaque <= 0) {
        return;
    }
    Pixel& pixel = pixels_[static_cast<std::ptrdiff_t>(y) * width_ + x];
    pixel = 0xFF000000 | mix(pixel, colour, static_cast<unsigned>(std::lround(opaque * kWhole)));
}

void Canvas::gradient(const Rect& area, const Rect& whole, Pixel top, Pixel bottom) {
    const Rect part = inside(area);
    for (int y = part.top; y < part.bottom; ++y) {
        const Pixel colour = 0xFF000000 | rowColour(y, whole.top, whole.height(), top, bottom);
        Pixel* row = pixels_ + static_cast<std::ptrdiff_t>(y) * width_;
        std::fill(row + part.left, row + std::max(part.left, part.right), colour);
    }
}

void Canvas::box(const Rect& area, const BoxPaint& paint) {
    const float radius = static_cast<float>(std::min({paint.radius, area.width() / 2, area.height() / 2}));
    const auto border = static_cast<float>(paint.borderWidth);
    const Rect part = inside(area);
    for (int y = part.top; y < part.bottom; ++y) {
        const Pixel fillColour = rowColour(y, area.top, area.height(), paint.top, paint.bottom);
        for (int x = part.left; x < part.right; ++x) {
            const float distance =
                distanceToBox(static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F, area, radius);
            const float covered = clampCoverage(0.5F - distance);
            const float inner = paint.borderWidth > 0 ? clampCoverage(0.5F - distance - border) : covered;
            if (paint.filled) {
                blend(x, y, paint.border, paint.borderWidth > 0 ? covered : 0);
                blend(x, y, fillColour, inner);
            } else {
                blend(x, y, paint.border, covered - inner);
            }
        }
    }
}

void Canvas::stroke(std::span<const CanvasPoint> points, float thickness, Pixel colour) {
    if (points.size() < 2) {
        return;
    }
    const auto [left, right] = std::ranges::minmax(points, {}, &CanvasPoint::x);
    const auto [top, bottom] = std::ranges::minmax(points, {}, &CanvasPoint::y);
    const float reach = thickness / 2 + 1;
    const Rect part = inside({static_cast<int>(std::floor(left.x - reach)), static_cast<int>(std::floor(top.y - reach)),
                              static_cast<int>(std::ceil(right.x + reach)),
                              static_cast<int>(std::ceil(bottom.y + reach))});
    for (int y = part.top; y < part.bottom; ++y) {
        for (int x = part.left; x < part.right; ++x) {
            const CanvasPoint middle{static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F};
            float distance = thickness + 2;
            for (std::size_t i = 1; i < points.size(); ++i) {
                distance = std::min(distance, distanceToSegment(middle, points[i - 1], points[i]));
            }
            blend(x, y, colour, clampCoverage(thickness / 2 + 0.5F - distance));
        }
    }
}

void Canvas::picture(const Rect& area, const PicturePaint& paint) {
    const Picture& picture = paint.picture;
    const FixedEnds across(area.width(), picture.width, paint.margins.left, paint.margins.right, paint.dpi);
    const FixedEnds down(area.height(), paint.rows, paint.margins.top, paint.margins.bottom, paint.dpi);
    const Rect part = inside(area);
    for (int y = part.top; y < part.bottom; ++y) {
        const std::ptrdiff_t row = paint.firstRow + down.sourceOf(y - area.top);
        for (int x = part.left; x < part.right; ++x) {
            const std::ptrdiff_t column = across.sourceOf(x - area.left);
            const Pixel pixel = picture.pixels[static_cast<std::size_t>(row * picture.width + column)];
            blend(x, y, turnHue(pixel, paint.hue), 1);
        }
    }
}

}  // namespace korvane::skin
