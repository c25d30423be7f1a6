// TrackMouseEvent sends one message and is then done; the timer is made to behave alike.
#include "platform/win32/HotTracking.h"

#include "platform/win32/RunTimeFunction.h"

namespace korvane {
namespace {

constexpr DWORD kTrackFrame = 0x10;  // TME_NONCLIENT of Windows 98 and 2000
constexpr UINT kLeftFrame = 0x02A2;  // WM_NCMOUSELEAVE
constexpr UINT kLeftClient = 0x02A3;  // WM_MOUSELEAVE

constexpr UINT_PTR kPollingTimer = 0x4B53;
constexpr UINT kPollingInterval = 60;  // milliseconds

bool trackLeave(HWND window, DWORD flags) {
    using Track = BOOL(WINAPI*)(TRACKMOUSEEVENT*);
    static const auto track = findExport<Track>(GetModuleHandleA("user32.dll"), "TrackMouseEvent");
    TRACKMOUSEEVENT request{sizeof request, TME_LEAVE | flags, window, 0};
    return track != nullptr && track(&request);
}

}  // namespace

// A mouse message may be handled late, or come from outside while the mouse is captured. Wine then tracks nothing and
// posts no message, so the position of the mouse is checked after the call.
bool HotTracking::start() {
    if (!polling_ && !trackLeave(window_, area_ == Area::Frame ? kTrackFrame : 0)) {
        polling_ = SetTimer(window_, kPollingTimer, kPollingInterval, nullptr) != 0;
    }
    return isMouseOver();
}

void HotTracking::stop() {
    if (polling_) {
        polling_ = false;
        KillTimer(window_, kPollingTimer);
    }
}

bool HotTracking::hasLeft(UINT message, WPARAM wParam) {
    if (message == (area_ == Area::Frame ? kLeftFrame : kLeftClient)) {
        return true;
    }
    const bool left = polling_ && message == WM_TIMER && wParam == kPollingTimer && !isMouseOver();
    if (left) {
        stop();
    }
    return left;
}

bool HotTracking::isMouseOver() const {
    POINT point{};
    GetCursorPos(&point);
    RECT whole{};
    GetWindowRect(window_, &whole);
    if (!IsWindowVisible(window_) || !PtInRect(&whole, point)) {
        return false;
    }
    RECT client{};
    GetClientRect(window_, &client);
    MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&client), 2);
    return (PtInRect(&client, point) != 0) == (area_ == Area::Client);
}

}  // namespace korvane
