// Each operation is a message to the window, which forwards it to its tree view or its header.
#include "platform/win32/TreeListCtrl.h"

#include "platform/win32/PictureLoader.h"
#include "platform/win32/WindowFunctions.h"

#include <utility>

namespace korvane {
namespace {

HTREEITEM parentHandle(CTreeListItem item) {
    return item == kRootItem ? TVI_ROOT : reinterpret_cast<HTREEITEM>(item);
}

HTREEITEM siblingHandle(CTreeListItem item) {
    return item == kInsertLast ? TVI_LAST : reinterpret_cast<HTREEITEM>(item);
}

TVITEMA itemToChange(CTreeListItem item, UINT mask) {
    TVITEMA change{};
    change.mask = TVIF_HANDLE | mask;
    change.hItem = reinterpret_cast<HTREEITEM>(item);
    return change;
}

}  // namespace

void Win32TreeListCtrl::Background::load(const std::string& path, int& width, int& height) {
    Bitmap loaded = loadPictureFile(path, width, height);
    SendMessageA(window_, kTreeSetPicture, reinterpret_cast<WPARAM>(loaded.get()), 0);
    bitmap_ = std::move(loaded);
}

LRESULT Win32TreeListCtrl::send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendMessageA(window_, message, wParam, lParam);
}

void Win32TreeListCtrl::changeItem(TVITEMA& item) const { send(TVM_SETITEMA, 0, reinterpret_cast<LPARAM>(&item)); }

void Win32TreeListCtrl::SetImageList() { send(TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images_)); }

void Win32TreeListCtrl::InsertColumn(const TreeColumn& wanted) {
    const std::string text(wanted.heading);
    HDITEMA column{};
    column.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
    column.fmt = HDF_LEFT | HDF_STRING;
    column.cxy = wanted.width;
    column.pszText = inputText(text);
    send(HDM_INSERTITEMA, static_cast<WPARAM>(wanted.order), reinterpret_cast<LPARAM>(&column));
}

void Win32TreeListCtrl::SetColumnWidth(int column, int width, int, int) {
    HDITEMA change{};
    change.mask = HDI_WIDTH;
    change.cxy = width;
    send(HDM_SETITEMA, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&change));
}

void Win32TreeListCtrl::DeleteAllItems() { send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT)); }

CTreeListItem Win32TreeListCtrl::InsertItem(std::string_view text, CTreeListItem parent, CTreeListItem after) {
    const std::string rowText(text);
    TVINSERTSTRUCTA row{};
    row.hParent = parentHandle(parent);
    row.hInsertAfter = siblingHandle(after);
    row.item.mask = TVIF_TEXT;
    row.item.pszText = inputText(rowText);
    return static_cast<CTreeListItem>(send(TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&row)));
}

void Win32TreeListCtrl::SetItemData(CTreeListItem item, std::uint32_t data) {
    TVITEMA change = itemToChange(item, TVIF_PARAM);
    change.lParam = static_cast<LPARAM>(data);
    changeItem(change);
}

void Win32TreeListCtrl::SetItemBold(CTreeListItem item, bool bold) {
    TVITEMA change = itemToChange(item, TVIF_STATE);
    change.stateMask = TVIS_BOLD;
    change.state = bold ? TVIS_BOLD : 0;
    changeItem(change);
}

void Win32TreeListCtrl::SetItemImage(CTreeListItem item, int normal, int selected, int, int) {
    TVITEMA change = itemToChange(item, TVIF_IMAGE | TVIF_SELECTEDIMAGE);
    change.iImage = normal;
    change.iSelectedImage = selected;
    changeItem(change);
}

bool Win32TreeListCtrl::GetSelectedItemData(std::uint32_t& data) {
    const LRESULT selected = send(TVM_GETNEXTITEM, TVGN_CARET, 0);
    if (selected == 0) {
        return false;
    }
    TVITEMA row = itemToChange(static_cast<CTreeListItem>(selected), TVIF_PARAM);
    send(TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&row));
    data = static_cast<std::uint32_t>(row.lParam);
    return true;
}

}  // namespace korvane
