// Draws the frame of a skinned window: caption with icon, title and buttons, and the border.
#pragma once

#include "skin/FrameLayout.h"
#include "skin/win32/SkinEngine.h"

#include <windows.h>

namespace korvane::skin {

// What the frame shows besides the window's own text and icon. Buttons are indexes into FrameLayout::buttons.
struct FrameState {
    bool active = false;
    int hotButton = FrameLayout::kNoButton;
    int pressedButton = FrameLayout::kNoButton;  // looks pressed only while it is hot as well

    bool operator==(const FrameState&) const = default;
};

class FramePainter {
public:
    // All are borrowed.
    FramePainter(Win32SkinEngine& engine, const ElementLook& look, const FrameLayout& layout, const FrameState& state)
        : engine_(engine), look_(look), layout_(layout), state_(state) {}

    // Into a device context of the whole window; clips out the window's inside.
    void draw(HDC dc, HWND window) const;

private:
    void drawCaption(PaintBuffer& buffer, HWND window) const;
    void drawButtons(ElementPainter& painter) const;
    void drawTitle(HDC dc, const Rect& place, HWND window) const;
    void drawBorder(HDC dc) const;
    ControlState controlState() const { return state_.active ? ControlState::Normal : ControlState::Inactive; }

    Win32SkinEngine& engine_;
    const ElementLook& look_;
    const FrameLayout& layout_;
    const FrameState& state_;
};

}  // namespace korvane::skin
