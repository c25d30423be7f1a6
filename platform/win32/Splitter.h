// The splitter between tree and pages: a narrow window that is dragged sideways. It moves itself and tells its parent
// how far; the parent moves everything else.
#pragma once

#include "platform/DialogControls.h"

#include <windows.h>

namespace korvane {

// WM_NOTIFY to the parent after a drag that moved the splitter.
constexpr UINT kSplitterMoved = 1;

struct SplitterNotification {
    NMHDR header;
    int distance;  // pixels, positive to the right
};

void registerSplitterClass(HINSTANCE instance);

// How far the splitter can be dragged from where it is made, in pixels.
struct SplitterRange {
    int left;
    int right;
};

// Null if the window could not be made.
HWND createSplitter(HINSTANCE instance, HWND parent, int id, const Rect& rect, SplitterRange range);

}  // namespace korvane
