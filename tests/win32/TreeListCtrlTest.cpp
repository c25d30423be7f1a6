// The tree's control over a parent that counts what it is told.
#include "platform/win32/TreeListCtrl.h"
#include "platform/win32/Win32Dialog.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane {
namespace {

class TreeListCtrlTest : public ::testing::Test {
protected:
    TreeListCtrlTest() {
        const HINSTANCE instance = GetModuleHandleA(nullptr);
        registerTreeListClass(instance);
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = parentProc;
        windowClass.hInstance = instance;
        windowClass.lpszClassName = "Korvane.TreeListCtrlTest";
        RegisterClassA(&windowClass);
        parent = CreateWindowExA(0, windowClass.lpszClassName, "", WS_POPUP | WS_VISIBLE, 20, 20, 400, 400, nullptr,
                                 nullptr, instance, nullptr);
        SetWindowLongPtrA(parent, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        other = CreateWindowExA(0, "Edit", "", WS_CHILD | WS_VISIBLE, 350, 0, 50, 20, parent, nullptr, instance,
                                nullptr);
        SetFocus(other);
        window = CreateWindowExA(WS_EX_CLIENTEDGE, kTreeListClass, "Trellis", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0,
                                 300, 350, parent, nullptr, instance, nullptr);
        treeView = FindWindowExA(window, nullptr, WC_TREEVIEWA, nullptr);
        header = FindWindowExA(window, nullptr, WC_HEADERA, nullptr);
        control = std::make_unique<Win32TreeListCtrl>(window);
        build();
    }
    ~TreeListCtrlTest() override { DestroyWindow(parent); }

    static LRESULT CALLBACK parentProc(HWND parentWindow, UINT message, WPARAM wParam, LPARAM lParam) {
        auto* self = reinterpret_cast<TreeListCtrlTest*>(GetWindowLongPtrA(parentWindow, GWLP_USERDATA));
        if (message == kTreeSelectionChanged && self != nullptr) {
            ++self->told;
        }
        return DefWindowProcA(parentWindow, message, wParam, lParam);
    }

    void build() {
        control->SetStyle(0x306700E3);
        control->InsertColumn(" ", 0x504144, 0, -1, 0, 0);
        control->SetColumnModify(0, 1);
        control->SetColumnWidth(0, 500, 0, 0);
        control->DeleteAllItems();
        accessories = insert("Accessories", kRootItem, 0);
        processor = insert("Command Processor", accessories, 1);
        insert("Quick Edit", processor, 11);
        insert("Desktop", kRootItem, 78);
    }

    CTreeListItem insert(std::string_view text, CTreeListItem above, std::uint32_t data) {
        const CTreeListItem item = control->InsertItem(text, above, kInsertLast);
        control->SetItemData(item, data);
        return item;
    }

    void key(WPARAM code) const { SendMessageA(GetFocus(), WM_KEYDOWN, code, 0); }

    // The selected row's data; -1 for none.
    int selected() const {
        std::uint32_t data = 0xDEAD;
        if (!control->GetSelectedItemData(data)) {
            EXPECT_EQ(data, 0xDEADu);
            return -1;
        }
        return static_cast<int>(data);
    }

    HWND parent = nullptr;
    HWND other = nullptr;
    HWND window = nullptr;
    HWND treeView = nullptr;
    HWND header = nullptr;
    std::unique_ptr<Win32TreeListCtrl> control;
    CTreeListItem accessories = 0;
    CTreeListItem processor = 0;
    int told = 0;
};

TEST_F(TreeListCtrlTest, StaysUnselectedUntilTheUserSelects) {
    EXPECT_EQ(selected(), -1);
    SetFocus(window);
    EXPECT_EQ(GetFocus(), treeView);
    EXPECT_EQ(selected(), -1);
    EXPECT_EQ(told, 0);
    SendMessageA(treeView, WM_CHAR, 'd', 1);  // finds by name, and tells
    EXPECT_EQ(selected(), 78);
    EXPECT_EQ(told, 1);
}

TEST_F(TreeListCtrlTest, TheFirstMovingKeySelectsTheFirstRow) {
    for (const WPARAM code : {VK_DOWN, VK_UP, VK_RIGHT, VK_LEFT, VK_HOME, VK_END}) {
        SCOPED_TRACE(code);
        told = 0;
        SendMessageA(window, TVM_SELECTITEM, TVGN_CARET, 0);
        ASSERT_EQ(selected(), -1);
        SetFocus(other);
        SetFocus(window);
        told = 0;
        key(code);
        EXPECT_EQ(selected(), 0);
        EXPECT_EQ(told, 1);
    }
    key(VK_END);
    EXPECT_EQ(selected(), 78);
    key(VK_HOME);
    key(VK_RIGHT);
    key(VK_RIGHT);
    EXPECT_EQ(selected(), 1);
    EXPECT_EQ(told, 4);
}

TEST_F(TreeListCtrlTest, FocusKeepsWhatIsSelected) {
    SetFocus(window);
    key(VK_DOWN);
    key(VK_END);
    SetFocus(other);
    told = 0;
    SetFocus(window);
    EXPECT_EQ(selected(), 78);
    EXPECT_EQ(told, 0);
}

TEST_F(TreeListCtrlTest, BuildingAgainTellsNothingAndSelectsNothing) {
    SetFocus(window);
    key(VK_DOWN);
    ASSERT_EQ(told, 1);
    build();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(selected(), -1);
    EXPECT_EQ(SendMessageA(window, TVM_GETCOUNT, 0, 0), 4);
}

TEST_F(TreeListCtrlTest, CanBeUsedAsIfItWereTheTreeView) {
    EXPECT_EQ(SendMessageA(window, TVM_GETCOUNT, 0, 0), 4);
    const LRESULT second =
        SendMessageA(window, TVM_GETNEXTITEM, TVGN_NEXT, SendMessageA(window, TVM_GETNEXTITEM, TVGN_ROOT, 0));
    SendMessageA(window, TVM_SELECTITEM, TVGN_CARET, second);
    EXPECT_EQ(selected(), 78);
    EXPECT_EQ(told, 1);
    SendMessageA(window, WM_KEYDOWN, VK_HOME, 0);
    EXPECT_EQ(selected(), 0);
    SendMessageA(window, WM_KEYDOWN, VK_MULTIPLY, 0);  // everything below opens
    TVITEMA row{};
    row.mask = TVIF_HANDLE | TVIF_STATE;
    row.stateMask = TVIS_EXPANDED;
    row.hItem = reinterpret_cast<HTREEITEM>(processor);
    SendMessageA(window, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&row));
    EXPECT_TRUE(row.state & TVIS_EXPANDED);
}

TEST_F(TreeListCtrlTest, RowsKeepTextStateAndImages) {
    const HIMAGELIST images = ImageList_Create(16, 16, ILC_COLOR24 | ILC_MASK, 1, 1);
    control->offerImageList(images);
    EXPECT_EQ(SendMessageA(window, TVM_GETIMAGELIST, TVSIL_NORMAL, 0), 0);
    control->SetImageList();
    EXPECT_EQ(SendMessageA(window, TVM_GETIMAGELIST, TVSIL_NORMAL, 0), reinterpret_cast<LRESULT>(images));
    control->SetItemBold(processor, true);
    control->SetItemImage(processor, 7, 8, 9, 10);
    control->SetItemBold(accessories, true);
    control->SetItemBold(accessories, false);

    char text[50] = "";
    TVITEMA row{};
    row.mask = TVIF_HANDLE | TVIF_TEXT | TVIF_STATE | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    row.stateMask = TVIS_BOLD;
    row.hItem = reinterpret_cast<HTREEITEM>(processor);
    row.pszText = text;
    row.cchTextMax = sizeof text;
    SendMessageA(window, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&row));
    EXPECT_STREQ(text, "Command Processor");
    EXPECT_TRUE(row.state & TVIS_BOLD);
    EXPECT_EQ(row.iImage, 7);
    EXPECT_EQ(row.iSelectedImage, 8);
    row.hItem = reinterpret_cast<HTREEITEM>(accessories);
    SendMessageA(window, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&row));
    EXPECT_FALSE(row.state & TVIS_BOLD);
    SendMessageA(window, TVM_SETIMAGELIST, TVSIL_NORMAL, 0);
    ImageList_Destroy(images);
}

TEST_F(TreeListCtrlTest, HasOneColumnWhoseHeadingScrollsWithTheRows) {
    ASSERT_EQ(SendMessageA(header, HDM_GETITEMCOUNT, 0, 0), 1);
    HDITEMA column{};
    column.mask = HDI_WIDTH;
    SendMessageA(header, HDM_GETITEMA, 0, reinterpret_cast<LPARAM>(&column));
    EXPECT_EQ(column.cxy, 500);
    EXPECT_EQ(rectInParent(header).bottom, rectInParent(treeView).top);

    insert(std::string(90, 'm'), kRootItem, 5);  // wider than the window
    UpdateWindow(treeView);
    EXPECT_EQ(rectInParent(header).left, 0);
    SendMessageA(treeView, WM_HSCROLL, SB_PAGERIGHT, 0);
    UpdateWindow(treeView);
    SCROLLINFO scroll{};
    scroll.cbSize = sizeof scroll;
    scroll.fMask = SIF_POS;
    GetScrollInfo(treeView, SB_HORZ, &scroll);
    ASSERT_GT(scroll.nPos, 0);
    EXPECT_EQ(rectInParent(header).left, -scroll.nPos);
    // The user cannot drag the column's edge.
    NMHEADERA drag{};
    drag.hdr = {header, 0, HDN_BEGINTRACKA};
    EXPECT_TRUE(SendMessageA(window, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&drag)));
}

TEST_F(TreeListCtrlTest, PassesSizeFontAndStateOn) {
    const auto font = reinterpret_cast<WPARAM>(GetStockObject(ANSI_FIXED_FONT));
    SendMessageA(window, WM_SETFONT, font, FALSE);
    EXPECT_EQ(static_cast<WPARAM>(SendMessageA(treeView, WM_GETFONT, 0, 0)), font);
    EXPECT_EQ(static_cast<WPARAM>(SendMessageA(header, WM_GETFONT, 0, 0)), font);
    MoveWindow(window, 0, 0, 204, 104, FALSE);  // with a border of 2 pixels
    EXPECT_EQ(rectInParent(treeView).right, 200);
    EXPECT_EQ(rectInParent(treeView).bottom, 100);
    EXPECT_GE(rectInParent(header).right, 200);
    EnableWindow(window, FALSE);
    EXPECT_FALSE(IsWindowEnabled(treeView));
}

}  // namespace
}  // namespace korvane
