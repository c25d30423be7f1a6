// The program with its real windows, over real registry keys of its own: the
// second kind of program that the suites of the catalogue run over. Version,
// clock, files and message boxes are those in memory, since neither the windows
// nor the registry depend on them.
#pragma once

#include "app/win32/Win32MainWindow.h"
#include "platform/win32/Win32System.h"
#include "tests/support/AppFixture.h"
#include "tests/win32/ScratchRegistry.h"

#include <map>

namespace korvane {

// The real main window with its real pages, made once and lent to one program
// after the other: to make nine pages takes far longer than to run most tests.
// Each borrower finds the controls as the dialog templates describe them.
//
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
    // What is there already is not made again.
    void appendSystemMenuSeparator() override { maker().appendSystemMenuSeparator(); }
    void appendSystemMenu(int id, std::string_view text) override { maker().appendSystemMenu(id, text); }
    void setSystemMenuText(int id, std::string_view text) override { maker().setSystemMenuText(id, text); }
    void setIcons(int resourceId) override { maker().setIcons(resourceId); }
    void createImageList(int size, int count, int growth) override { maker().createImageList(size, count, growth); }
    void addImage(int bitmapResource, Colour mask) override { maker().addImage(bitmapResource, mask); }
    void createDivider(int id, int left, int right) override { maker().createDivider(id, left, right); }
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
    MainWindow& maker() { return made_ ? static_cast<MainWindow&>(ignored_) : window_; }

    Win32System system_;
    Win32MainWindow window_;
    MemoryMainWindow ignored_;
    CallLog log_;
    ScriptedSkinEngine skin_{log_};
    MemorySplash splash_{log_};
    MainWindowHandler* borrower_ = nullptr;
    bool made_ = false;
    std::map<int, Relay> relays_;  // by template
    std::map<int, Win32Dialog*> pages_;
};

// Only one at a time can have the window and the keys.
class WindowsProgram final : public Program {
public:
    explicit WindowsProgram(const Situation& situation);
    WindowsProgram(const WindowsProgram&) = delete;
    WindowsProgram& operator=(const WindowsProgram&) = delete;
    ~WindowsProgram() override;

    std::string registryText() override { return registry_->text(); }
    bool deny(Root root) override;
    void setToday(const UtcDate& today) override { system_.fixedClock.date = today; }
    std::string dateFile() override;
    const std::vector<MessageBoxRequest>& messages() override { return system_.messages.shown; }
    void select(int id) override;
    bool apply() override;
    std::size_t openHandles() override { return registry_->openHandles(); }
    std::vector<int> visiblePages() override;
    DialogControls& page(int templateId) override { return *window_.pages().at(templateId); }
    bool shows(int templateId, int control) override;
    bool enabled(int templateId, int control) override;
    bool click(int control) override;
    bool type(int control, std::string_view text) override;
    bool pick(int combo, int entry) override;
    bool selectRow(int list, int row) override;
    bool clickRow(int list, int row) override;

private:
    LRESULT sendTree(UINT message, WPARAM wParam, LPARAM lParam) const;
    void setRowData(LRESULT row, LPARAM data) const;
    HWND controlOf(int templateId, int control) const;
    bool press(HWND button);
    // The control on the shown page; null when nobody could use it.
    HWND usable(int control);
    // The same for a list that has that row.
    HWND usableList(int list, int row);

    MemorySystem system_;
    std::optional<ScratchRegistry> registry_;
    std::optional<Platform> platform_;
    std::optional<CKorvaneApp> app_;
    SharedMainWindow& window_ = SharedMainWindow::instance();
    std::optional<CMainDlg> main_;
};

std::unique_ptr<Program> startOnWindows(const Situation& situation);

}  // namespace korvane
