// The real main window with its real pages, made once and lent to one program
// after the other: to make nine pages takes far longer than to run most tests.
// Each borrower finds the controls as the dialog templates describe them.
#pragma once

#include "platform/memory/MemoryMainWindow.h"
#include "platform/win32/Win32MainWindow.h"
#include "platform/win32/Win32System.h"

#include <map>

namespace korvane {

// The window is visible, but minimized, so that nothing is painted. Skin and splash are those in memory, as there are
// no files that they could be read from.
class SharedMainWindow final : public MainWindow, private MainWindowHandler {
public:
    static SharedMainWindow& instance();

    // Initialises the borrower, who is told what happens from now on, until the next one comes.
    void lendTo(MainWindowHandler& borrower);

    HWND window() { return static_cast<Win32Dialog&>(window_.controls()).window(); }
    // By template.
    const std::map<int, Win32Dialog*>& pages() const { return pages_; }

    DialogControls& controls() override { return window_.controls(); }
    CTreeListCtrl& tree() override { return window_.tree(); }
    SplashWindow& splash() override { return splash_; }
    ISkinEngine* skinEngine() override { return &skin_; }
    void appendSystemMenu(int commandId, std::string_view text) override;
    void setIcons(int resourceId) override;
    void createImageList(int size, int initialImages, int growth) override;
    void addImage(int bitmapResource, Colour mask) override;
    void createDivider(int controlId, int rangeLeft, int rangeRight) override;
    void createPage(int templateId, DialogHandler& handler) override;
    void runAboutBox(DialogHandler& handler) override { window_.runAboutBox(handler); }
    void redrawAll() override { window_.redrawAll(); }
    void postClose() override { window_.postClose(); }
    void sendShowHelp() override { window_.sendShowHelp(); }

private:
    // Passes on what a page hears to whoever has the window.
    struct Relay final : DialogHandler {
        DialogControls* controls = nullptr;
        DialogHandler* handler = nullptr;

        bool OnInitDialog(DialogControls& made) override;
        void OnClicked(int id) override { handler->OnClicked(id); }
    };

    SharedMainWindow() : window_(GetModuleHandleA(nullptr), system_) {}
    ~SharedMainWindow() override;

    bool OnInitDialog() override { return borrower_->OnInitDialog(); }
    void OnSelectionChanged() override { borrower_->OnSelectionChanged(); }
    void OnApplyChanges() override { borrower_->OnApplyChanges(); }
    void OnAbout() override { borrower_->OnAbout(); }
    void OnHelp() override { borrower_->OnHelp(); }
    void OnFrameButton(const std::string& name) override { borrower_->OnFrameButton(name); }
    void OnDividerMoved(int distance) override { borrower_->OnDividerMoved(distance); }
    void OnDestroy() override {}  // by then the borrowers have gone

    void makeAsNew();

    Win32System system_;
    Win32MainWindow window_;
    ScriptedSkinEngine skin_;
    MemorySplash splash_;
    MainWindowHandler* borrower_ = nullptr;
    bool made_ = false;
    std::map<int, Relay> relays_;  // by template
    std::map<int, Win32Dialog*> pages_;
};

}  // namespace korvane
