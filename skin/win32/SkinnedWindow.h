// A real window, subclassed so that the skin engine paints it. Everything else stays as Windows does it.
#pragma once

#include "platform/win32/PaintBuffer.h"
#include "skin/ElementPainter.h"

#include <memory>
#include <string>
#include <string_view>

#include <windows.h>

namespace korvane::skin {

class Win32SkinEngine;

class SkinnedWindow {
public:
    // Replaces the window procedure; the destructor restores it if the window still exists.
    SkinnedWindow(Win32SkinEngine& engine, HWND window, std::string element);
    SkinnedWindow(const SkinnedWindow&) = delete;
    SkinnedWindow& operator=(const SkinnedWindow&) = delete;
    virtual ~SkinnedWindow();

    HWND window() const { return window_; }
    const std::string& element() const { return element_; }
    // For when colours or fonts have changed.
    virtual void repaint();

protected:
    virtual LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) { return callOriginal(message, wParam, lParam); }
    LRESULT callOriginal(UINT message, WPARAM wParam, LPARAM lParam) const;
    // For messages at which a control paints itself outside WM_PAINT: keeps it from painting, and paints it afterwards.
    LRESULT callWithoutPainting(UINT message, WPARAM wParam, LPARAM lParam) const;

    // Handles WM_PAINT and WM_PRINTCLIENT: `draw` draws the whole client area into the buffer.
    LRESULT paintWhole(UINT message, WPARAM wParam);
    virtual void draw(PaintBuffer&) {}
    // Handles WM_ERASEBKGND: draws the skin's surface over the client area.
    LRESULT paintSurface(HDC dc) const;

    Win32SkinEngine& engine() const { return engine_; }
    const ElementLook& look() const;
    // The font that the element names, or else the control's own.
    HFONT font(bool bold = false) const;

private:
    static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    Win32SkinEngine& engine_;
    HWND window_;
    std::string element_;
    WNDPROC original_;
};

// By the element's name: "Main" is a top-level window, "SubMain" a page; "CheckBox", "Button", "Label" and "Splitter" are
// controls. Null for any other name.
std::unique_ptr<SkinnedWindow> makeSkinnedWindow(Win32SkinEngine& engine, HWND window, const std::string& element);

}  // namespace korvane::skin
