// The tree's window class: a container with a header above the tree view of Windows, which brings keyboard, wheel and
// accessibility along. It sends kTreeSelectionChanged to its parent when the selection changes.
#pragma once

#include "platform/TreeListCtrl.h"
#include "platform/win32/Handles.h"

#include <windows.h>
#include <commctrl.h>

namespace korvane {

constexpr char kTreeListClass[] = "Trellis.TreeListCtrl";
constexpr UINT kTreeSelectionChanged = WM_USER + 202;
// To the window: wParam is the bitmap to draw behind the rows, which it borrows, or null for none.
constexpr UINT kTreeSetPicture = WM_USER + 210;

// Call before a dialog with such a control is made.
void registerTreeListClass(HINSTANCE instance);

// The operations on one such window. It has one style (lines, buttons, the selection always shown), one kind of column
// (left-aligned, not resizable by the user), and two images for every row, like any tree view: the two for expanded rows
// are ignored.
class Win32TreeListCtrl final : public CTreeListCtrl {
public:
    // The window is borrowed. From SetImageList on, the window uses the image list, which is borrowed too.
    explicit Win32TreeListCtrl(HWND window) : window_(window), background_(window) {}
    void offerImageList(HIMAGELIST images) { images_ = images; }

    void SetStyle(std::uint32_t) override {}
    void SetImageList() override;
    void InsertColumn(const TreeColumn& column) override;
    void SetColumnModify(int, int) override {}
    void SetColumnWidth(int column, int width, int minimum, int maximum) override;
    BackgroundImage& GetBGImage() override { return background_; }

    void DeleteAllItems() override;
    CTreeListItem InsertItem(std::string_view text, CTreeListItem parent, CTreeListItem after) override;
    void SetItemData(CTreeListItem item, std::uint32_t data) override;
    void SetItemBold(CTreeListItem item, bool bold) override;
    void SetItemImage(CTreeListItem item, int normal, int selected, int expanded, int expandedSelected) override;

    bool GetSelectedItemData(std::uint32_t& data) override;

private:
    class Background final : public BackgroundImage {
    public:
        explicit Background(HWND window) : window_(window) {}
        void load(const std::string& path, int& width, int& height) override;

    private:
        HWND window_;
        Bitmap bitmap_;
    };

    LRESULT send(UINT message, WPARAM wParam, LPARAM lParam) const;
    void changeItem(TVITEMA& item) const;

    HWND window_;
    HIMAGELIST images_ = nullptr;
    Background background_;
};

}  // namespace korvane
