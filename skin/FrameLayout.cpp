// Icon and buttons stand in the middle of the caption's height.
#include "skin/FrameLayout.h"

#include <algorithm>

namespace korvane::skin {
namespace {

constexpr int kIconSize = 16;  // this and what follows: pixels at 96 DPI
constexpr int kIconGap = 5;
constexpr int kButtonInset = 4;  // above and below the buttons
constexpr int kButtonGap = 2;

}  // namespace

FrameLayout::FrameLayout(const ElementLook& look, const SkinPalette& palette, Rect whole, bool canMinimize)
    : window(whole),
      captionHeight(palette.pixels(look.captionHeight)),
      borderWidth(palette.pixels(look.margins.left)),
      inside{borderWidth, captionHeight, std::max(borderWidth, whole.right - borderWidth),
             std::max(captionHeight, whole.bottom - borderWidth)} {
    const int iconSize = palette.pixels(kIconSize);
    const int iconLeft = borderWidth + palette.pixels(kIconGap) / 2;
    const int iconTop = (captionHeight - iconSize) / 2;
    icon = {iconLeft, iconTop, iconLeft + iconSize, iconTop + iconSize};

    const int inset = palette.pixels(kButtonInset);
    const int side = captionHeight - 2 * inset;
    int right = whole.right - std::max(borderWidth, inset);
    for (auto name = look.buttons.rbegin(); name != look.buttons.rend(); ++name) {
        if (canMinimize || *name == "Close") {
            buttons.push_back({*name, {right - side, inset, right, inset + side}});
            right -= side + palette.pixels(kButtonGap);
        }
    }
}

int FrameLayout::buttonAt(int x, int y) const {
    const auto found = std::ranges::find_if(buttons, [&](const FrameButton& b) { return contains(b.place, x, y); });
    return found != buttons.end() ? static_cast<int>(found - buttons.begin()) : kNoButton;
}

bool contains(const Rect& rect, int x, int y) {
    return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
}

}  // namespace korvane::skin
