// The real main window: dialog 102, run modally, with its tree, splitter, pages and image list.
#pragma once

#include "platform/MainWindow.h"
#include "platform/win32/Handles.h"
#include "platform/win32/TreeListCtrl.h"
#include "platform/win32/Win32Dialog.h"
#include "platform/win32/Win32DialogHost.h"
#include "skin/win32/SplashControl.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <windows.h>
#include <commctrl.h>

namespace korvane {

class Win32System;
namespace skin {
class Win32SkinEngine;
}

class Win32MainWindow final : public MainWindow {
public:
    // While the window exists, it owns the message boxes and pickers of the system.
    Win32MainWindow(HINSTANCE instance, Win32System& system);
    Win32MainWindow(const Win32MainWindow&) = delete;
    Win32MainWindow& operator=(const Win32MainWindow&) = delete;

    // Returns when the window has closed: the result of EndDialog, or -1 if the window could not be made.
    int runModal(MainWindowHandler& handler);
    // Makes the window and returns at once. The caller runs a message loop and destroys the window before this object.
    // Null if it could not be made.
    HWND create(MainWindowHandler& handler);

    DialogControls& controls() override { return *dialog_; }
    CTreeListCtrl& tree() override { return *tree_; }
    SplashWindow& splash() override { return *splash_; }
    ISkinEngine* skinEngine() override;

    void appendSystemMenuSeparator() override;
    void appendSystemMenu(int commandId, std::string_view text) override;
    void setSystemMenuText(int commandId, std::string_view text) override;
    void setIcons(int resourceId) override;
    void createImageList(int size, int initialImages, int growth) override;
    void addImage(int bitmapResource, Colour mask) override;
    void createDivider(int controlId, int rangeLeft, int rangeRight) override;
    void createPage(int templateId, DialogHandler& handler) override;
    void runAboutBox(DialogHandler& handler) override;
    void redrawAll() override;
    void postClose() override;
    void sendShowHelp() override;

private:
    static INT_PTR CALLBACK dialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    INT_PTR handle(UINT message, WPARAM wParam, LPARAM lParam);
    void onInitDialog(HWND window);
    INT_PTR onCommand(WPARAM wParam, LPARAM lParam);
    INT_PTR onNotify(const NMHDR& notification);
    void changeAtOnce(const std::function<void()>& change);
    bool paintIcon();
    void onDestroy();
    // Null when the dialog has no engine control.
    skin::Win32SkinEngine* win32SkinEngine() const;

    HINSTANCE instance_;
    Win32System& system_;
    MainWindowHandler* handler_ = nullptr;
    HWND window_ = nullptr;
    HICON icon_ = nullptr;
    ImageList images_;
    std::optional<Win32Dialog> dialog_;
    std::optional<Win32TreeListCtrl> tree_;
    std::vector<std::unique_ptr<Win32DialogHost>> pages_;
    std::optional<skin::Win32Splash> splash_;
};

}  // namespace korvane
