// Where the parts of a skinned window's frame are: its inside, its icon and its buttons.
#pragma once

#include "skin/ElementPainter.h"

#include <string>
#include <vector>

namespace korvane::skin {

struct FrameButton {
    std::string name;  // "Help", "Minimize" or "Close"
    Rect place;
};

// In pixels of the window, from its upper left corner.
struct FrameLayout {
    static constexpr int kNoButton = -1;

    // `look` is that of "Main". Only a window that can be minimized has buttons other than "Close".
    FrameLayout(const ElementLook& look, const SkinPalette& palette, Rect window, bool canMinimize);

    // The index of the button, or kNoButton.
    int buttonAt(int x, int y) const;

    Rect window;
    int captionHeight;
    int borderWidth;
    Rect inside;  // never turned inside out, however small the window is
    Rect icon;
    std::vector<FrameButton> buttons;  // from the right edge, the rightmost first
};

bool contains(const Rect& rect, int x, int y);

}  // namespace korvane::skin
