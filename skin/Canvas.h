// Drawing into pixels in memory, with smooth edges whatever the system can
// draw itself: boxes with round corners and gradients, lines, pictures.
#pragma once

#include "platform/DialogControls.h"
#include "skin/Picture.h"
#include "skin/SkinFile.h"

#include <span>

namespace korvane {

// `weight` of 256 parts of `over`, the rest of `under`; the alpha of `under` is kept.
Pixel mix(Pixel under, Pixel over, unsigned weight);
// The colour turned by so many degrees on the colour circle; its alpha, saturation and lightness stay.
Pixel turnHue(Pixel colour, int degrees);

struct BoxPaint {
    bool filled = false;
    Pixel top = 0;  // of the gradient
    Pixel bottom = 0;
    int borderWidth = 0;  // pixels; 0: no border
    Pixel border = 0;
    int radius = 0;  // pixels, of the outer edge of the corners
};

struct CanvasPoint {
    float x;  // pixels; .5 is the middle of a pixel
    float y;
};

class Canvas {
public:
    // The pixels are borrowed: the top row first, without gaps. They become opaque wherever something is drawn.
    Canvas(Pixel* pixels, int width, int height) : pixels_(pixels), width_(width), height_(height) {}

    int width() const { return width_; }
    int height() const { return height_; }

    // All coordinates are pixels of this canvas; what lies outside it is cut off.
    void fill(const Rect& area, Pixel colour);
    // Rows of the area from `top` to `bottom`, as if the area were `whole`.
    void gradient(const Rect& area, const Rect& whole, Pixel top, Pixel bottom);
    void box(const Rect& area, const BoxPaint& paint);
    // A line through the points, with round ends.
    void stroke(std::span<const CanvasPoint> points, float thickness, Pixel colour);
    // The rows of the picture from `firstRow` on, `rows` of them, over the area: the margins, in pixels of the picture,
    // keep their size times scale/96, what is between them is stretched. Every colour is turned by `hue` degrees.
    void picture(const Rect& area, const Picture& picture, int firstRow, int rows, const SkinMargins& margins, int scale,
                 int hue);

private:
    Rect inside(const Rect& area) const;
    void blend(int x, int y, Pixel colour, float coverage);

    Pixel* pixels_;
    int width_;
    int height_;
};

}  // namespace korvane
