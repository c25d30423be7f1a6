// The main window: dialog 102 with the tree, the splitter and the page area. It
// owns the windows; CMainDlg decides what they show.
#pragma once

#include "platform/DialogControls.h"
#include "platform/SkinEngine.h"
#include "platform/TreeListCtrl.h"

#include <string>
#include <string_view>

namespace korvane {

class MainWindow {
public:
    virtual ~MainWindow() = default;

    virtual DialogControls& controls() = 0;
    virtual CTreeListCtrl& tree() = 0;
    virtual SplashWindow& splash() = 0;
    // The engine of control 1057; null if there is none.
    virtual ISkinEngine* skinEngine() = 0;

    // The end of the system menu; and the text of an item that was appended before.
    virtual void appendSystemMenuSeparator() = 0;
    virtual void appendSystemMenu(int commandId, std::string_view text) = 0;
    virtual void setSystemMenuText(int commandId, std::string_view text) = 0;
    virtual void setIcons(int resourceId) = 0;  // the big and the small icon
    // Creates the tree's empty image list (images of `size` by `size` pixels, 24-bit colour); then adds one bitmap
    // resource to it.
    virtual void createImageList(int size, int initialImages, int growth) = 0;
    virtual void addImage(int bitmapResource, Colour mask) = 0;
    // Creates the splitter in place of the control of that id, with that id; it can be dragged so many pixels to the
    // left and right of its present centre.
    virtual void createDivider(int controlId, int rangeLeft, int rangeRight) = 0;
    // Creates a child dialog from a template; the handler must outlive it.
    virtual void createPage(int templateId, DialogHandler& handler) = 0;
    // Runs dialog 100 modally; the handler initialises it.
    virtual void runAboutBox(DialogHandler& handler) = 0;
    virtual void redrawAll() = 0;  // RedrawWindow: invalidates with erasing and updates at once
    virtual void postClose() = 0;
    virtual void sendShowHelp() = 0;  // WM_USER+203; OnHelp handles it
};

// What the main window reports.
class MainWindowHandler {
public:
    virtual ~MainWindowHandler() = default;
    virtual bool OnInitDialog() = 0;  // false: the window is ending
    virtual void OnSelectionChanged() = 0;
    virtual void OnApplyChanges() = 0;
    virtual void OnAbout() = 0;
    virtual void OnHelp() = 0;
    // A frame button other than minimize and close was pressed.
    virtual void OnFrameButton(const std::string& name) = 0;
    virtual void OnDividerMoved(int distance) = 0;  // pixels, positive to the right
    virtual void OnDestroy() = 0;
};

}  // namespace korvane
