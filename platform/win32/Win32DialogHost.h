// A dialog made from a resource, whose decisions a handler takes: a page of the main window, or the About box.
#pragma once

#include "platform/win32/Win32Dialog.h"

#include <optional>

#include <windows.h>

namespace korvane {

// The window is not destroyed with the host and must not receive messages afterwards: a host goes when its window's
// parent does.
class Win32DialogHost {
public:
    // The handler is borrowed.
    explicit Win32DialogHost(DialogHandler& handler) : handler_(handler) {}
    Win32DialogHost(const Win32DialogHost&) = delete;
    Win32DialogHost& operator=(const Win32DialogHost&) = delete;

    // Makes a child dialog. Null on failure; the handler has then not been told anything.
    HWND create(HINSTANCE instance, int templateId, HWND parent);
    // Runs the dialog until the user closes it.
    void runModal(HINSTANCE instance, int templateId, HWND owner);

private:
    static INT_PTR CALLBACK dialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    INT_PTR onInitDialog(HWND window);
    INT_PTR onCommand(WPARAM wParam, LPARAM lParam);
    bool isPage() const;

    DialogHandler& handler_;
    std::optional<Win32Dialog> dialog_;
};

}  // namespace korvane
