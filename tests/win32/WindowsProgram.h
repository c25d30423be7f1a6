// The program with its real windows, over real registry keys of its own: the
// second kind of program that the suites of the catalogue run over. Version,
// clock, files and message boxes are those in memory, since neither the windows
// nor the registry depend on them.
#pragma once

#include "tests/support/AppFixture.h"
#include "tests/win32/ScratchRegistry.h"
#include "tests/win32/SharedMainWindow.h"

#include <map>

namespace korvane {

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
    void findRows();
    LRESULT sendTree(UINT message, WPARAM wParam, LPARAM lParam) const;
    void setRowData(LRESULT row, LPARAM data) const;
    HWND controlOf(int templateId, int control) const;
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
    std::map<int, LRESULT> rows_;  // of the tree, by what they are a row of
};

std::unique_ptr<Program> startOnWindows(const Situation& situation);

}  // namespace korvane
