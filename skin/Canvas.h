// Draws into pixels in memory, with smooth edges on every Windows: boxes with round corners and gradients, lines,
// pictures.
#pragma once

#include "platform/DialogControls.h"
#include "skin/Picture.h"
#include "skin/SkinFile.h"

#include <span>

namespace korvane::skin {

// `weight`/256 of `over`, the rest of `under`; keeps the alpha of `under`.
Pixel mix(Pixel under, Pixel over, unsigned weight);
// The colour turned by so many degrees on the colour circle; alpha, saturation and lightness stay.
Pixel turnHue(Pixel colour, int degrees);

struct BoxPaint {
    bool filled = false;
    Pixel top = 0;  // of the gradient
    Pixel bottom = 0;
    int borderWidth = 0;  // pixels; 0: no border
    Pixel border = 0;
    int radius = 0;  // pixels, of the outer edge of the corners
};

// Some rows of a picture, to be stretched over an area.
struct PicturePaint {
    const Picture& picture;
    int firstRow = 0;
    int rows = 0;
    SkinMargins margins{};  // pixels of the picture: not stretched, but scaled to the resolution
    int dpi = 96;
    int hue = 0;  // degrees by which every colour is turned
};

struct CanvasPoint {
    float x;  // pixels; .5 is the middle of a pixel
    float y;
};

class Canvas {
public:
    // The pixels are borrowed: the top row first, without gaps. Whatever is drawn is opaque.
    Canvas(Pixel* pixels, int width, int height) : pixels_(pixels), width_(width), height_(height) {}

    int width() const { return width_; }
    int height() const { return height_; }

    // All coordinates are pixels of this canvas; drawing is clipped to it.
    // The part of a vertical gradient over `whole` that lies in the area.
    void gradient(const Rect& area, const Rect& whole, Pixel top, Pixel bottom);
    void box(const Rect& area, const BoxPaint& paint);
    // A polyline with round ends.
    void stroke(std::span<const CanvasPoint> points, float thickness, Pixel colour);
    void picture(const Rect& area, const PicturePaint& paint);

private:
    Rect inside(const Rect& area) const;
    void blend(int x, int y, Pixel colour, float coverage);

    Pixel* pixels_;
    int width_;
    int height_;
};

}  // namespace korvane::skin
