// Draws a skin's elements into a canvas: the parts that all kinds of controls share.
#pragma once

#include "skin/Canvas.h"
#include "skin/SkinFile.h"
#include "skin/SkinProperties.h"

#include <string_view>

namespace korvane::skin {

// The system's colours, which replace every colour of a skin under high contrast.
struct SystemColours {
    Pixel window = 0xFFFFFFFF;
    Pixel windowText = 0xFF000000;
    Pixel windowFrame = 0xFF000000;
    Pixel buttonFace = 0xFFC0C0C0;
    Pixel buttonText = 0xFF000000;
    Pixel grayText = 0xFF808080;
    Pixel highlight = 0xFF000080;
    Pixel highlightText = 0xFFFFFFFF;
    Pixel activeCaption = 0xFF000080;
    Pixel captionText = 0xFFFFFFFF;
    Pixel inactiveCaption = 0xFF808080;
    Pixel inactiveCaptionText = 0xFFC0C0C0;
};

// The look of an element in the system's colours: the sizes of the skin without its pictures and round corners.
ElementLook highContrastLook(std::string_view element, const ElementLook& skin, const SystemColours& system);

// A length at 96 DPI in pixels at `dpi`; at least 1 unless it is 0.
int scaled(int length, int dpi);

// What turns the colours and lengths of a look into pixels.
struct SkinPalette {
    std::array<Pixel, 5> colours{};  // by ColourSource
    int hue = 0;                     // degrees
    int dpi = 96;

    // The opaque colour, turned by the hue.
    Pixel of(const SkinColour& colour) const;
    int pixels(int length) const { return scaled(length, dpi); }
};

// The four colours are those of the properties if they apply, else those of the skin.
SkinPalette makePalette(const SkinFile& skin, const SkinProperties& properties, int dpi);

class ElementPainter {
public:
    ElementPainter(Canvas& canvas, const SkinPalette& palette) : canvas_(canvas), palette_(palette) {}

    // The element's picture, or else its fill and border, over what has been drawn.
    void background(const Rect& area, const ElementLook& look, ControlState state);
    // The part at `area` of a fill that covers `whole`.
    void surface(const Rect& area, const Rect& whole, const ElementLook& look, ControlState state);
    // The square of a check box, with a mark if it is checked.
    void checkSquare(const Rect& square, const ElementLook& look, ControlState state, bool checked);
    // Draws a frame button with its symbol: "Help", "Minimize" or "Close".
    void frameButton(const Rect& area, const ElementLook& look, ControlState state, std::string_view name);

private:
    BoxPaint boxPaint(const ElementLook& look, ControlState state) const;

    Canvas& canvas_;
    const SkinPalette& palette_;
};

}  // namespace korvane::skin
