// The vertical divider between tree and pages: a narrow window that can be
// dragged sideways. It moves itself and tells its parent how far, which moves
// everything else.
#pragma once

#include "platform/DialogControls.h"

#include <windows.h>

namespace korvane {

// WM_NOTIFY to the parent after a drag that moved the divider.
constexpr UINT kSplitterMoved = 1;

struct SplitterNotification {
    NMHDR header;
    int distance;  // pixels, positive to the right
};

void registerSplitterClass(HINSTANCE instance);

// The divider's centre stays between so many pixels left and right of where it is at first. Null if there is no memory.
HWND createSplitter(HINSTANCE instance, HWND parent, int id, const Rect& rect, int rangeLeft, int rangeRight);

}  // namespace korvane
