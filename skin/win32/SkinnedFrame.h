// A window with a frame of its own: "Main". The engine draws caption and
// border; moving, the system menu and closing stay the system's.
#pragma once

#include "skin/win32/SkinnedWindow.h"

#include <string>
#include <vector>

namespace korvane {

class SkinnedFrame final : public SkinnedWindow {
public:
    // The window keeps the size of its inside and its middle.
    SkinnedFrame(Win32SkinEngine& engine, HWND window, std::string element);
    ~SkinnedFrame() override;

    void repaint() override;

private:
    struct Button {
        std::string name;
        Rect place;  // in the window
    };

    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT handleFrame(UINT message, WPARAM wParam, LPARAM lParam);
    int captionHeight() const;
    int borderWidth() const;
    void fitAround(SIZE client);
    void shape();
    void insideOf(RECT& window) const;
    SIZE size() const;

    Rect iconPlace() const;
    std::vector<Button> buttons() const;
    int buttonAt(POINT screen) const;
    LRESULT hitTest(POINT screen) const;
    void track(int hot, int pressed);
    void release(bool onButton);
    void press(const std::string& name);

    LRESULT callWithoutFrame(UINT message, WPARAM wParam, LPARAM lParam);
    void paintFrame(HRGN update) const;
    void drawFrame(HDC dc) const;
    LRESULT print(WPARAM wParam, LPARAM lParam) const;
    void drawCaption(PaintBuffer& buffer) const;
    void drawTitle(PaintBuffer& buffer, const Rect& place) const;
    ControlState state() const { return active_ ? ControlState::Normal : ControlState::Inactive; }
    LRESULT paintInside(HDC dc) const;

    bool active_ = false;
    int hot_ = kNoButton;
    int pressed_ = kNoButton;
    bool overPressed_ = false;

    static constexpr int kNoButton = -1;
};

}  // namespace korvane
