// How a skin's elements are drawn into a canvas: what is the same for every
// kind of control.
#pragma once

#include "skin/Canvas.h"
#include "skin/SkinFile.h"
#include "skin/SkinProperties.h"

#include <string_view>

namespace korvane {

// The system's own colours, which replace every colour of a skin while the user wants high contrast.
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

// The look of an element in the system's colours: without pictures and round corners, in the sizes of the skin.
ElementLook highContrastLook(std::string_view element, const ElementLook& skin, const SystemColours& system);

// Pixels for a length at 96 DPI; a length that is not 0 stays visible.
int scaled(int length, int dpi);

// What is needed to draw a look, wherever it is drawn.
struct SkinPalette {
    std::array<Pixel, 5> colours{};  // by ColourSource
    int hue = 0;                     // degrees
    int dpi = 96;

    // Opaque, and turned by the hue.
    Pixel of(const SkinColour& colour) const;
    int pixels(int length) const { return scaled(length, dpi); }
};

// The four colours are the properties' when they apply, else the skin's.
SkinPalette makePalette(const SkinFile& skin, const SkinProperties& properties, int dpi);

class ElementPainter {
public:
    ElementPainter(Canvas& canvas, const SkinPalette& palette) : canvas_(canvas), palette_(palette) {}

    // The element's picture, or its fill and border, over what is there.
    void background(const Rect& area, const ElementLook& look, ControlState state);
    // As much of the fill as a window shows that lies at `area` of a surface that is `whole`.
    void surface(const Rect& area, const Rect& whole, const ElementLook& look, ControlState state);
    // The square of a check box, with its mark if it is ticked.
    void checkSquare(const Rect& square, const ElementLook& look, ControlState state, bool ticked);
    // A button of the frame with its sign: "Help", "Minimize" or "Close".
    void frameButton(const Rect& area, const ElementLook& look, ControlState state, std::string_view name);

private:
    BoxPaint boxPaint(const ElementLook& look, ControlState state) const;

    Canvas& canvas_;
    const SkinPalette& palette_;
};

}  // namespace korvane
