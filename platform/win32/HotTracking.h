// Tells a window that the mouse has left it, for controls that look different while the mouse is over them.
#pragma once

#include <windows.h>

namespace korvane {

// Uses TrackMouseEvent. Where Windows has none (95), or does not watch frames (NT 4), a timer looks where the mouse is.
class HotTracking {
public:
    enum class Area { Client, Frame };

    // The window is borrowed.
    HotTracking(HWND window, Area area) : window_(window), area_(area) {}
    HotTracking(const HotTracking&) = delete;
    HotTracking& operator=(const HotTracking&) = delete;
    ~HotTracking() { stop(); }

    // For every mouse message from the area. False when the mouse has left since: no message will follow then.
    bool start();
    void stop();
    // Whether this message, which the window has received, says that the mouse has left the area.
    bool hasLeft(UINT message, WPARAM wParam);

private:
    bool isMouseOver() const;

    HWND window_;
    Area area_;
    bool polling_ = false;
};

}  // namespace korvane
