// The program's one top-level window: dialog 102 with the tree, the divider
// and the page area. It owns the windows; CMainDlg decides what they show.
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
    // The engine that control 1057 offers; null when it offers none.
    virtual ISkinEngine* skinEngine() = 0;

    // Appends a separator and an item to the system menu.
    virtual void appendSystemMenu(int commandId, std::string_view text) = 0;
    virtual void setIcons(int resourceId) = 0;  // the big and the small icon
    // The tree's image list: empty, `size` pixels square, 24-bit colour; then one bitmap resource after the other.
    virtual void createImageList(int size, int initialImages, int growth) = 0;
    virtual void addImage(int bitmapResource, Colour mask) = 0;
    // Makes the divider over the control of that id, with that id; it may be dragged so many pixels left and right of
    // where its centre is now.
    virtual void createDivider(int controlId, int rangeLeft, int rangeRight) = 0;
    // Makes a child dialog from a template and hands it to the handler, which outlives it.
    virtual void createPage(int templateId, DialogHandler& handler) = 0;
    // Runs dialog 100 modally; the handler is told when it is initialised.
    virtual void runAboutBox(DialogHandler& handler) = 0;
    virtual void redrawAll() = 0;  // invalidates with erasing and updates at once
    virtual void postClose() = 0;
    virtual void sendShowHelp() = 0;  // WM_USER+203, which is answered by OnHelp
};

// What the main window tells its owner.
class MainWindowHandler {
public:
    virtual ~MainWindowHandler() = default;
    virtual bool OnInitDialog() = 0;  // false: the window is ending
    virtual void OnSelectionChanged() = 0;
    virtual void OnApplyChanges() = 0;
    virtual void OnAbout() = 0;
    virtual void OnHelp() = 0;
    // A button of the skin's frame was pressed, other than minimize and close.
    virtual void OnFrameButton(const std::string& name) = 0;
    virtual void OnDividerMoved(int distance) = 0;  // pixels, positive to the right
    virtual void OnDestroy() = 0;
};

}  // namespace korvane
