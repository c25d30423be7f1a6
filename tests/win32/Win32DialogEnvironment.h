// Real page dialogs for tests: children of a hidden window as large as the
// main window's inside.
#pragma once

#include "platform/memory/DialogTemplates.h"
#include "platform/win32/TreeListCtrl.h"
#include "platform/win32/Win32DialogHost.h"

#include <memory>
#include <string>
#include <vector>

#include <windows.h>
#include <commctrl.h>

namespace korvane {

// Writes down the buttons that were clicked.
class ClickRecorder final : public DialogHandler {
public:
    DialogControls* controls = nullptr;
    std::vector<int> clicked;

    bool OnInitDialog(DialogControls& made) override {
        controls = &made;
        return true;
    }
    void OnClicked(int id) override { clicked.push_back(id); }
};

class Win32DialogEnvironment {
public:
    Win32DialogEnvironment() {
        registerTreeListClass(GetModuleHandleA(nullptr));  // initialises the common controls as well
        parent_ = CreateWindowExA(0, "Static", "", WS_POPUP | WS_CLIPCHILDREN, 0, 0, 750, 408, nullptr, nullptr,
                                  nullptr, nullptr);
    }
    Win32DialogEnvironment(const Win32DialogEnvironment&) = delete;
    Win32DialogEnvironment& operator=(const Win32DialogEnvironment&) = delete;
    ~Win32DialogEnvironment() { DestroyWindow(parent_); }

    DialogControls& open(int templateId) {
        Page& page = *pages_.emplace_back(std::make_unique<Page>());
        page.templateId = templateId;
        page.window = page.host.create(GetModuleHandleA(nullptr), templateId, parent_);
        return *page.handler.controls;
    }

    HWND parent() const { return parent_; }
    HWND page(int templateId) const { return find(templateId).window; }
    HWND control(int templateId, int id) const { return GetDlgItem(page(templateId), id); }
    const std::vector<int>& clicked(int templateId) const { return find(templateId).handler.clicked; }

    std::string cell(int templateId, int id, int row, int column) const {
        char text[200] = "";
        LVITEMA item{};
        item.iSubItem = column;
        item.pszText = text;
        item.cchTextMax = sizeof text;
        SendMessageA(control(templateId, id), LVM_GETITEMTEXTA, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&item));
        return text;
    }

    void selectRow(int templateId, int id, int row) const {
        LVITEMA item{};
        item.stateMask = item.state = LVIS_SELECTED | LVIS_FOCUSED;
        SendMessageA(control(templateId, id), LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&item));
    }

private:
    struct Page {
        int templateId = 0;
        ClickRecorder handler;
        Win32DialogHost host{handler};
        HWND window = nullptr;
    };

    // The one made last.
    const Page& find(int templateId) const {
        const Page* found = nullptr;
        for (const auto& page : pages_) {
            found = page->templateId == templateId ? page.get() : found;
        }
        return *found;
    }

    HWND parent_ = nullptr;
    std::vector<std::unique_ptr<Page>> pages_;
};

}  // namespace korvane
