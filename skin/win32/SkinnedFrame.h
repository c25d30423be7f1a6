// A top-level window with a skinned frame: the element "Main". The skin paints caption and border; moving, the system
// menu and closing stay those of Windows.
#pragma once

#include "platform/win32/HotTracking.h"
#include "skin/win32/FramePainter.h"
#include "skin/win32/SkinnedWindow.h"

#include <string>

namespace korvane::skin {

class SkinnedFrame final : public SkinnedWindow {
public:
    // The client area keeps its size, and the window its middle.
    SkinnedFrame(Win32SkinEngine& engine, HWND window, std::string element);
    ~SkinnedFrame() override;

    void repaint() override;

private:
    static constexpr int kNoButton = FrameLayout::kNoButton;

    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT handleFrame(UINT message, WPARAM wParam, LPARAM lParam);
    // False for a message that goes on to the window's own procedure.
    bool handleMouse(UINT message, LPARAM lParam);

    FrameLayout layout() const;
    FrameLayout layoutFor(Rect window) const;
    void fitAround(SIZE client);
    void shape();

    int buttonAt(POINT screen) const;
    LRESULT hitTest(POINT screen) const;
    void track(int hot, int pressed);
    void release(POINT screen);
    void press(const std::string& name);

    LRESULT callWithoutFrame(UINT message, WPARAM wParam, LPARAM lParam);
    // `update` is in screen coordinates; null for the whole frame.
    void paintFrame(HRGN update) const;
    void drawFrame(HDC dc) const;
    LRESULT print(WPARAM wParam, LPARAM lParam) const;

    FrameState state_;
    HotTracking mouse_;
};

}  // namespace korvane::skin
