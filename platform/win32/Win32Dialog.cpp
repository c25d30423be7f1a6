// Each verb is one message or call, but for a few that need two.
#include "platform/win32/Win32Dialog.h"

#include "platform/win32/WindowFunctions.h"

#include <commctrl.h>

namespace korvane {
namespace {

// A row's check box is its state image: the first is the empty box, the second the checked one.
constexpr UINT kEmptyBox = 1;
constexpr UINT kCheckedBox = 2;

void place(HWND window, const Rect& rect, int height) {
    MoveWindow(window, rect.left, rect.top, rect.width(), height, TRUE);
}

LPARAM pointerParameter(const void* pointer) { return reinterpret_cast<LPARAM>(pointer); }

}  // namespace

HWND Win32Dialog::control(int id) const {
    if (id != lastId_ || !IsWindow(lastControl_)) {
        lastId_ = id;
        lastControl_ = GetDlgItem(dialog_, id);
    }
    return lastControl_;
}

LRESULT Win32Dialog::send(int id, UINT message, WPARAM wParam, LPARAM lParam, LRESULT missing) const {
    const HWND window = control(id);
    return window == nullptr ? missing : SendMessageA(window, message, wParam, lParam);
}

// ---- The dialog's own window

void Win32Dialog::show(bool visible) { ShowWindow(dialog_, visible ? SW_SHOW : SW_HIDE); }

Rect Win32Dialog::rect() { return rectInParent(dialog_); }

void Win32Dialog::move(const Rect& rect) { place(dialog_, rect, rect.height()); }

std::string Win32Dialog::caption() { return windowText(dialog_); }

void Win32Dialog::setCaption(std::string_view text) { SetWindowTextA(dialog_, std::string(text).c_str()); }

void Win32Dialog::endDialog(int result) { EndDialog(dialog_, result); }

// ---- Any control

std::vector<int> Win32Dialog::controlIds() {
    std::vector<int> ids;
    for (HWND child = GetWindow(dialog_, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        // A dialog template keeps 16 bits of an id: the -1 of a static comes back as 65535.
        ids.push_back(static_cast<short>(GetDlgCtrlID(child)));
    }
    return ids;
}

void Win32Dialog::showControl(int id, bool visible) { ShowWindow(control(id), visible ? SW_SHOW : SW_HIDE); }

void Win32Dialog::enableControl(int id, bool enabled) { EnableWindow(control(id), enabled); }

std::string Win32Dialog::text(int id) { return windowText(control(id)); }

void Win32Dialog::setText(int id, std::string_view text) {
    SetDlgItemTextA(dialog_, id, std::string(text).c_str());
}

Rect Win32Dialog::controlRect(int id) { return rectInParent(control(id)); }

// A combo box takes a new height for that of its drop-down list and keeps that of its field, so it is given the height
// that the list has already.
void Win32Dialog::moveControl(int id, const Rect& rect) {
    const HWND window = control(id);
    int height = rect.height();
    RECT open{};
    if (isOfClass(window, "ComboBox") && SendMessageA(window, CB_GETDROPPEDCONTROLRECT, 0, pointerParameter(&open)) != 0) {
        height = open.bottom - open.top;
    }
    place(window, rect, height);
}

void Win32Dialog::setRedraw(int id, bool on) {
    send(id, WM_SETREDRAW, on, 0);
    if (on) {
        InvalidateRect(control(id), nullptr, TRUE);
    }
}

// ---- Check boxes

void Win32Dialog::setCheck(int id, std::uint32_t state) { send(id, BM_SETCHECK, state, 0); }

std::uint32_t Win32Dialog::check(int id) { return static_cast<std::uint32_t>(send(id, BM_GETCHECK, 0, 0)); }

// ---- Combo boxes

void Win32Dialog::resetCombo(int id) { send(id, CB_RESETCONTENT, 0, 0); }

void Win32Dialog::reserveCombo(int id, int entries, std::size_t bytes) {
    send(id, CB_INITSTORAGE, static_cast<WPARAM>(entries), static_cast<LPARAM>(bytes));
}

int Win32Dialog::addComboEntry(int id, std::string_view text) {
    const std::string entry(text);
    return static_cast<int>(send(id, CB_ADDSTRING, 0, pointerParameter(entry.c_str()), CB_ERRSPACE));
}

void Win32Dialog::setComboData(int id, int index, std::uint32_t data) {
    send(id, CB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data));
}

std::uint32_t Win32Dialog::comboData(int id, int index) {
    return static_cast<std::uint32_t>(send(id, CB_GETITEMDATA, static_cast<WPARAM>(index), 0, CB_ERR));
}

int Win32Dialog::comboCount(int id) { return static_cast<int>(send(id, CB_GETCOUNT, 0, 0)); }

// Not every Windows clears the selection when the index is beyond the last entry.
void Win32Dialog::selectComboEntry(int id, int index) {
    if (send(id, CB_SETCURSEL, static_cast<WPARAM>(index), 0) == CB_ERR) {
        send(id, CB_SETCURSEL, static_cast<WPARAM>(kNoSelection), 0);
    }
}

int Win32Dialog::comboSelection(int id) { return static_cast<int>(send(id, CB_GETCURSEL, 0, 0, kNoSelection)); }

// ---- Report lists

void Win32Dialog::setListStyle(int id, std::uint32_t extendedStyle, Colour background) {
    send(id, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(extendedStyle));
    send(id, LVM_SETBKCOLOR, 0, static_cast<LPARAM>(background));
    // The texts do not follow the background of the list.
    send(id, LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(background));
}

void Win32Dialog::deleteRows(int id) { send(id, LVM_DELETEALLITEMS, 0, 0); }

void Win32Dialog::deleteColumn(int id, int column) { send(id, LVM_DELETECOLUMN, static_cast<WPARAM>(column), 0); }

void Win32Dialog::insertColumn(int id, int column, std::string_view heading, int width) {
    const std::string text(heading);
    LVCOLUMNA description{};
    description.mask = LVCF_FMT | LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    description.fmt = LVCFMT_LEFT;
    description.pszText = inputText(text);
    description.cx = width;
    description.iSubItem = column;
    send(id, LVM_INSERTCOLUMNA, static_cast<WPARAM>(column), pointerParameter(&description));
}

void Win32Dialog::insertRow(int id, int row, std::string_view text) {
    const std::string cell(text);
    LVITEMA item{};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.pszText = inputText(cell);
    send(id, LVM_INSERTITEMA, 0, pointerParameter(&item));
}

void Win32Dialog::setCell(int id, int row, int column, std::string_view text) {
    const std::string cell(text);
    LVITEMA item{};
    item.iSubItem = column;
    item.pszText = inputText(cell);
    send(id, LVM_SETITEMTEXTA, static_cast<WPARAM>(row), pointerParameter(&item));
}

int Win32Dialog::rowCount(int id) { return static_cast<int>(send(id, LVM_GETITEMCOUNT, 0, 0)); }

std::string Win32Dialog::rowText(int id, int row) {
    char text[1024] = "";
    LVITEMA item{};
    item.pszText = text;
    item.cchTextMax = sizeof text;
    send(id, LVM_GETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return item.pszText;
}

int Win32Dialog::selectedRow(int id) {
    const auto fromTheStart = static_cast<WPARAM>(-1);
    return static_cast<int>(send(id, LVM_GETNEXTITEM, fromTheStart, LVNI_SELECTED, -1));
}

void Win32Dialog::setRowCheck(int id, int row, bool checked) {
    LVITEMA item{};
    item.stateMask = LVIS_STATEIMAGEMASK;
    item.state = INDEXTOSTATEIMAGEMASK(checked ? kCheckedBox : kEmptyBox);
    // To the list, row -1 means every row.
    if (row >= 0) {
        send(id, LVM_SETITEMSTATE, static_cast<WPARAM>(row), pointerParameter(&item));
    }
}

bool Win32Dialog::rowCheck(int id, int row) {
    const LRESULT state = send(id, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK);
    return state == INDEXTOSTATEIMAGEMASK(kCheckedBox);
}

}  // namespace korvane
