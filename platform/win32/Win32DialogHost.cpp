// The dialog procedure of all hosted dialogs.
#include "platform/win32/Win32DialogHost.h"

#include "platform/win32/ColourComboPainter.h"
#include "platform/win32/WindowFunctions.h"

namespace korvane {

HWND Win32DialogHost::create(HINSTANCE instance, int templateId, HWND parent) {
    return CreateDialogParamA(instance, MAKEINTRESOURCEA(templateId), parent, dialogProc,
                              reinterpret_cast<LPARAM>(this));
}

void Win32DialogHost::runModal(HINSTANCE instance, int templateId, HWND owner) {
    DialogBoxParamA(instance, MAKEINTRESOURCEA(templateId), owner, dialogProc, reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK Win32DialogHost::dialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            SetWindowLongPtrA(window, DWLP_USER, lParam);
            return reinterpret_cast<Win32DialogHost*>(lParam)->onInitDialog(window);
        case WM_MEASUREITEM:  // comes before WM_INITDIALOG
            measureColourRow(window, *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
            return TRUE;
        case WM_DRAWITEM: drawColourRow(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return TRUE;
        case WM_COMMAND: {
            auto* self = reinterpret_cast<Win32DialogHost*>(GetWindowLongPtrA(window, DWLP_USER));
            return self != nullptr ? self->onCommand(wParam, lParam) : FALSE;
        }
        default: return FALSE;
    }
}

INT_PTR Win32DialogHost::onInitDialog(HWND window) {
    dialog_.emplace(window);
    // Without it the dialog would erase the background below its controls, which would flicker.
    SetWindowLongA(window, GWL_STYLE, GetWindowLongA(window, GWL_STYLE) | WS_CLIPCHILDREN);
    if (!isPage()) {
        centreWindow(window);
    }
    handler_.OnInitDialog(*dialog_);
    return !isPage();  // TRUE lets Windows set the focus; a new page must not take it
}

INT_PTR Win32DialogHost::onCommand(WPARAM wParam, LPARAM lParam) {
    const int id = LOWORD(wParam);
    if (!isPage() && (id == IDOK || id == IDCANCEL)) {
        dialog_->endDialog(id);
        return TRUE;
    }
    if (HIWORD(wParam) != BN_CLICKED || lParam == 0) {
        return FALSE;
    }
    handler_.OnClicked(id);
    return TRUE;
}

bool Win32DialogHost::isPage() const { return (GetWindowLongA(dialog_->window(), GWL_STYLE) & WS_CHILD) != 0; }

}  // namespace korvane
