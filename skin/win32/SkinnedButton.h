// Check boxes and push buttons: the elements "CheckBox" and "Button".
#pragma once

#include "platform/win32/HotTracking.h"
#include "skin/win32/SkinnedWindow.h"

#include <string>

namespace korvane::skin {

class SkinnedButton final : public SkinnedWindow {
public:
    SkinnedButton(Win32SkinEngine& engine, HWND window, std::string element);

private:
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    void setHot(bool hot);

    LONG type() const;
    bool isCheckBox() const;
    bool showsFocus() const;
    ControlState state() const;

    void draw(PaintBuffer& buffer) override;
    void drawCheckBox(PaintBuffer& buffer);
    void drawPushButton(PaintBuffer& buffer);
    UINT textFormat() const;

    bool hot_ = false;
    HotTracking mouse_;
};

}  // namespace korvane::skin
