// A real window whose painting the skin engine has taken over. Everything else
// about it stays the platform's.
#pragma once

#include "skin/ElementPainter.h"
#include "skin/win32/PaintBuffer.h"

#include <memory>
#include <string>
#include <string_view>

#include <windows.h>

namespace korvane {

class Win32SkinEngine;

class SkinnedWindow {
public:
    // Takes the window procedure over; the destructor gives it back if the window still lives.
    SkinnedWindow(Win32SkinEngine& engine, HWND window, std::string element);
    SkinnedWindow(const SkinnedWindow&) = delete;
    SkinnedWindow& operator=(const SkinnedWindow&) = delete;
    virtual ~SkinnedWindow();

    HWND window() const { return window_; }
    const std::string& element() const { return element_; }
    // Colours or fonts have changed.
    virtual void repaint();

protected:
    virtual LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) { return callOriginal(message, wParam, lParam); }
    LRESULT callOriginal(UINT message, WPARAM wParam, LPARAM lParam) const;
    // For messages at which the platform's window would paint itself past WM_PAINT: it is not let, and painted later.
    LRESULT callWithoutPainting(UINT message, WPARAM wParam, LPARAM lParam) const;

    // Answers WM_PAINT and WM_PRINTCLIENT with a picture that `draw` has drawn of the whole client area.
    LRESULT paintWhole(UINT message, WPARAM wParam);
    virtual void draw(PaintBuffer&) {}

    Win32SkinEngine& engine() const { return engine_; }
    const ElementLook& look() const;
    std::string text() const;
    SIZE clientSize() const;

private:
    static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    Win32SkinEngine& engine_;
    HWND window_;
    std::string element_;
    WNDPROC original_;
};

// By the element's name: "Main" a window with a frame, "SubMain" a page, "CheckBox", "Button", "Label" and "Splitter"
// controls. Null for a name that stands for no kind of window.
std::unique_ptr<SkinnedWindow> makeSkinnedWindow(Win32SkinEngine& engine, HWND window, const std::string& element);

}  // namespace korvane
