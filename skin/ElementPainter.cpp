// Boxes, check marks and the signs of the frame's buttons, scaled to the resolution of the screen.
#include "skin/ElementPainter.h"

#include "text/CaseFolding.h"

#include <algorithm>

namespace korvane::skin {
namespace {

constexpr int kUsualDpi = 96;

SkinColour own(Pixel colour) { return {ColourSource::Own, colour}; }

void setState(ElementLook& look, ControlState state, std::optional<Pixel> fill, std::optional<Pixel> border,
              Pixel text) {
    StateLook& entry = look.states[static_cast<std::size_t>(state)];
    entry.fill = fill ? std::optional<SkinFill>({own(*fill), own(*fill)}) : std::nullopt;
    entry.border = border ? std::optional<SkinColour>(own(*border)) : std::nullopt;
    entry.text = own(text);
    entry.mark = own(text);
}

void setEveryState(ElementLook& look, std::optional<Pixel> fill, std::optional<Pixel> border, Pixel text,
                   Pixel disabledText) {
    for (std::size_t state = 0; state < kControlStates; ++state) {
        setState(look, static_cast<ControlState>(state), fill, border, text);
    }
    setState(look, ControlState::Disabled, fill, border, disabledText);
}

float middle(int first, int last) { return static_cast<float>(first + last) / 2; }

}  // namespace

int scaled(int length, int dpi) {
    const int pixels = (length * dpi + kUsualDpi / 2) / kUsualDpi;
    return length > 0 ? std::max(pixels, 1) : pixels;
}

ElementLook highContrastLook(std::string_view element, const ElementLook& skin, const SystemColours& system) {
    ElementLook look = skin;
    look.picture = nullptr;
    look.radius = 0;
    if (equalIgnoringCase(element, "Main")) {
        setEveryState(look, system.activeCaption, system.windowFrame, system.captionText, system.grayText);
        setState(look, ControlState::Inactive, system.inactiveCaption, system.windowFrame, system.inactiveCaptionText);
    } else if (equalIgnoringCase(element, "SubMain")) {
        setEveryState(look, system.window, std::nullopt, system.windowText, system.grayText);
    } else if (equalIgnoringCase(element, "Splitter")) {
        setEveryState(look, system.windowText, std::nullopt, system.windowText, system.grayText);
    } else if (equalIgnoringCase(element, "CheckBox") || equalIgnoringCase(element, "Label")) {
        setEveryState(look, system.window, system.windowText, system.windowText, system.grayText);
    } else {
        setEveryState(look, system.buttonFace, system.buttonText, system.buttonText, system.grayText);
        setState(look, ControlState::Hot, system.highlight, system.highlightText, system.highlightText);
        setState(look, ControlState::Pressed, system.highlight, system.highlightText, system.highlightText);
    }
    return look;
}

Pixel SkinPalette::of(const SkinColour& colour) const {
    const Pixel pixel =
        colour.source == ColourSource::Own ? colour.own : colours[static_cast<std::size_t>(colour.source)];
    return turnHue(pixel | 0xFF000000, hue);
}

SkinPalette makePalette(const SkinFile& skin, const SkinProperties& properties, int dpi) {
    SkinPalette palette;
    palette.hue = properties.hue;
    palette.dpi = dpi;
    const auto set = [&](ColourSource source, Pixel property) {
        palette.colours[static_cast<std::size_t>(source)] = properties.applyColours ? property : skin.colour(source);
    };
    set(ColourSource::Back, properties.back);
    set(ColourSource::Fore, properties.fore);
    set(ColourSource::Panel, properties.panel);
    set(ColourSource::PanelText, properties.panelText);
    return palette;
}

BoxPaint ElementPainter::boxPaint(const ElementLook& look, ControlState state) const {
    const StateLook& entry = look.of(state);
    BoxPaint paint;
    if (entry.fill) {
        paint.filled = true;
        paint.top = palette_.of(entry.fill->top);
        paint.bottom = palette_.of(entry.fill->bottom);
    }
    if (entry.border) {
        paint.border = palette_.of(*entry.border);
        paint.borderWidth = palette_.pixels(look.borderWidth);
    }
    paint.radius = palette_.pixels(look.radius);
    return paint;
}

void ElementPainter::background(const Rect& area, const ElementLook& look, ControlState state) {
    if (look.picture == nullptr) {
        canvas_.box(area, boxPaint(look, state));
        return;
    }
    const int rows = look.picture->height / look.pictureStates;
    const int wanted = static_cast<int>(state);
    const int shown = wanted < look.pictureStates ? wanted : 0;
    canvas_.picture(area, {.picture = *look.picture,
                           .firstRow = shown * rows,
                           .rows = rows,
                           .margins = look.margins,
                           .dpi = palette_.dpi,
                           .hue = palette_.hue});
}

void ElementPainter::surface(const Rect& area, const Rect& whole, const ElementLook& look, ControlState state) {
    const StateLook& entry = look.of(state);
    const SkinColour back{ColourSource::Back, 0};
    const SkinFill fill = entry.fill.value_or(SkinFill{back, back});
    canvas_.gradient(area, whole, palette_.of(fill.top), palette_.of(fill.bottom));
}

void ElementPainter::checkSquare(const Rect& square, const ElementLook& look, ControlState state, bool checked) {
    background(square, look, state);
    if (!checked) {
        return;
    }
    const auto size = static_cast<float>(square.width());
    const auto at = [&](float x, float y) {
        return CanvasPoint{static_cast<float>(square.left) + x * size, static_cast<float>(square.top) + y * size};
    };
    const CanvasPoint mark[] = {at(0.25F, 0.51F), at(0.43F, 0.69F), at(0.76F, 0.31F)};
    canvas_.stroke(mark, size * 0.14F, palette_.of(look.of(state).mark));
}

void ElementPainter::frameButton(const Rect& area, const ElementLook& look, ControlState state,
                                 std::string_view name) {
    background(area, look, state);
    const Pixel colour = palette_.of(look.of(state).mark);
    const auto size = static_cast<float>(std::min(area.width(), area.height()));
    const float x = middle(area.left, area.right);
    const float y = middle(area.top, area.bottom);
    const float reach = size * 0.19F;
    const float thickness = size * 0.095F;
    if (name == "Close") {
        const CanvasPoint falling[] = {{x - reach, y - reach}, {x + reach, y + reach}};
        const CanvasPoint rising[] = {{x - reach, y + reach}, {x + reach, y - reach}};
        canvas_.stroke(falling, thickness, colour);
        canvas_.stroke(rising, thickness, colour);
    } else if (name == "Minimize") {
        const CanvasPoint line[] = {{x - reach, y + reach}, {x + reach, y + reach}};
        canvas_.stroke(line, thickness, colour);
    } else {
        const float hook = size * 0.15F;
        const CanvasPoint sign[] = {{x - hook, y - hook},          {x - hook * 0.8F, y - hook * 1.5F},
                                    {x, y - hook * 1.8F},          {x + hook * 0.8F, y - hook * 1.5F},
                                    {x + hook, y - hook * 0.8F},   {x + hook * 0.7F, y - hook * 0.1F},
                                    {x + hook * 0.1F, y + hook * 0.3F}, {x, y + hook * 0.7F}};
        const CanvasPoint dot[] = {{x, y + hook * 1.75F}, {x, y + hook * 1.78F}};
        canvas_.stroke(sign, thickness, colour);
        canvas_.stroke(dot, thickness * 1.15F, colour);
    }
}

}  // namespace korvane::skin
