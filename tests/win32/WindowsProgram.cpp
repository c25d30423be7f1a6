// Starting the program as WinMain does, and acting on its controls as a person
// would.
#include "tests/win32/WindowsProgram.h"

#include "platform/memory/DialogTemplates.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

bool isClass(HWND window, const char* name) {
    char found[32] = "";
    GetClassNameA(window, found, sizeof found);
    return lstrcmpiA(found, name) == 0;
}

void handleMessages(HWND dialog) {
    MSG message{};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (!IsDialogMessageA(dialog, &message)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }
}

// What a control's parent hears when a person has changed it.
void tellParent(HWND control, WORD notification) {
    SendMessageA(GetParent(control), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), notification),
                 reinterpret_cast<LPARAM>(control));
}

void setRowState(HWND list, int row, UINT mask, UINT state) {
    LVITEMA item{};
    item.stateMask = mask;
    item.state = state;
    SendMessageA(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void empty(Win32Dialog& page, const ControlTemplate& control) {
    switch (control.kind) {
        case ControlKind::CheckBox: page.setCheck(control.id, 0); break;
        case ControlKind::Combo:
        case ControlKind::ColourCombo: page.resetCombo(control.id); break;
        case ControlKind::List:
        case ControlKind::CheckedList:
            page.deleteRows(control.id);
            while (SendDlgItemMessageA(page.window(), control.id, LVM_DELETECOLUMN, 0, 0)) {
            }
            break;
        default: break;
    }
}

void putBack(Win32Dialog& page, const DialogTemplate& asMade) {
    page.show(false);
    for (const ControlTemplate& control : asMade.controls) {
        empty(page, control);
        page.setText(control.id, control.text);
        page.enableControl(control.id, true);
        page.showControl(control.id, control.visible);
    }
}

}  // namespace

// ---- The window: lending it, and putting its controls back

SharedMainWindow& SharedMainWindow::instance() {
    static SharedMainWindow window;
    return window;
}

SharedMainWindow::~SharedMainWindow() {
    if (made_) {
        DestroyWindow(window());
    }
}

void SharedMainWindow::lendTo(MainWindowHandler& borrower) {
    borrower_ = &borrower;
    // As when the program starts, the window is filled before it is shown: otherwise each row of the tree is painted.
    if (made_) {
        ShowWindow(window(), SW_HIDE);
        makeAsNew();
        borrower.OnInitDialog();
    } else {
        window_.create(*this);
        made_ = true;
    }
    ShowWindow(window(), SW_SHOWMINNOACTIVE);
}

void SharedMainWindow::makeAsNew() {
    tree().DeleteAllItems();
    SendDlgItemMessageA(window(), IDC_TREE, HDM_DELETEITEM, 0, 0);
    controls().showControl(IDC_APPLY, false);
    for (const auto& [id, page] : pages_) {
        putBack(*page, *findDialogTemplate(id));
    }
}

bool SharedMainWindow::Relay::OnInitDialog(DialogControls& made) {
    controls = &made;
    return handler->OnInitDialog(made);
}

void SharedMainWindow::createPage(int templateId, DialogHandler& handler) {
    Relay& relay = relays_[templateId];
    relay.handler = &handler;
    if (made_) {
        handler.OnInitDialog(*relay.controls);
        return;
    }
    window_.createPage(templateId, relay);
    if (relay.controls != nullptr) {
        pages_.emplace(templateId, static_cast<Win32Dialog*>(relay.controls));
    }
}

// ---- The program

WindowsProgram::WindowsProgram(const Situation& situation) {
    system_.version.record = versionNamed(situation.windows).value();
    MemoryRegistry content;
    loadRegistry(content, situation.registry);
    registry_.emplace(content);
    platform_.emplace(system_.platform(*registry_));
    app_.emplace(*platform_, "C:\\Korvane\\KorvaneManager.exe");
    main_.emplace(*app_, window_);
    window_.lendTo(*main_);
    handleMessages(window_.window());
}

WindowsProgram::~WindowsProgram() {
    main_->OnDestroy();
    EXPECT_EQ(registry_->openHandles(), 0u);
}

bool WindowsProgram::deny(Root root) {
    registry_->deny(root);
    return true;
}

std::string WindowsProgram::dateFile() {
    const MemoryFile* file = system_.memoryFiles.find(kDateFile);
    return file == nullptr ? std::string() : file->text;
}

// ---- The tree and the button

LRESULT WindowsProgram::sendTree(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendMessageA(GetDlgItem(window_.window(), IDC_TREE), message, wParam, lParam);
}

void WindowsProgram::setRowData(LRESULT row, LPARAM data) const {
    TVITEMA item{};
    item.mask = TVIF_PARAM;
    item.hItem = reinterpret_cast<HTREEITEM>(row);
    item.lParam = data;
    sendTree(TVM_SETITEMA, 0, reinterpret_cast<LPARAM>(&item));
}

// Every item is shown by the first row, which bears its number meanwhile. The tree is silent about a row that is
// selected already, so nothing is selected in between.
void WindowsProgram::select(int id) {
    const LRESULT row = sendTree(TVM_GETNEXTITEM, TVGN_ROOT, 0);
    setRowData(row, id);
    sendTree(TVM_SELECTITEM, TVGN_CARET, 0);
    sendTree(TVM_SELECTITEM, TVGN_CARET, row);
    setRowData(row, 0);
    handleMessages(window_.window());
}

bool WindowsProgram::press(HWND button) {
    if (!isClass(button, "Button") || !IsWindowVisible(button) || !IsWindowEnabled(button)) {
        return false;
    }
    SendMessageA(button, BM_CLICK, 0, 0);
    handleMessages(window_.window());
    return true;
}

bool WindowsProgram::apply() { return press(GetDlgItem(window_.window(), IDC_APPLY)); }

// ---- The pages

std::vector<int> WindowsProgram::visiblePages() {
    std::vector<int> visible;
    for (const auto& [id, page] : window_.pages()) {
        if (IsWindowVisible(page->window())) {
            visible.push_back(id);
        }
    }
    return visible;
}

HWND WindowsProgram::controlOf(int templateId, int control) const {
    return GetDlgItem(window_.pages().at(templateId)->window(), control);
}

bool WindowsProgram::shows(int templateId, int control) {
    return IsWindowVisible(controlOf(templateId, control)) != FALSE;
}

bool WindowsProgram::enabled(int templateId, int control) {
    return IsWindowEnabled(controlOf(templateId, control)) != FALSE;
}

HWND WindowsProgram::usable(int control) {
    const std::vector<int> pages = visiblePages();
    const HWND found = pages.empty() ? nullptr : controlOf(pages.front(), control);
    return IsWindowVisible(found) && IsWindowEnabled(found) ? found : nullptr;
}

HWND WindowsProgram::usableList(int list, int row) {
    const HWND found = usable(list);
    const LRESULT rows = isClass(found, WC_LISTVIEWA) ? SendMessageA(found, LVM_GETITEMCOUNT, 0, 0) : 0;
    return row >= 0 && row < rows ? found : nullptr;
}

bool WindowsProgram::click(int control) { return press(usable(control)); }

// Everything that is there is selected and deleted, then key after key comes.
bool WindowsProgram::type(int control, std::string_view text) {
    const HWND window = usable(control);
    const HWND field = window == nullptr || isClass(window, "Edit") ? window
                                                                    : FindWindowExA(window, nullptr, "Edit", nullptr);
    if (field == nullptr) {
        return false;
    }
    SendMessageA(field, EM_SETSEL, 0, -1);
    SendMessageA(field, WM_CLEAR, 0, 0);
    for (const char key : text) {
        SendMessageA(field, WM_CHAR, static_cast<unsigned char>(key), 1);
    }
    handleMessages(window_.window());
    return true;
}

bool WindowsProgram::pick(int combo, int entry) {
    const HWND window = usable(combo);
    if (window == nullptr || !isClass(window, "ComboBox") || entry < 0 ||
        entry >= SendMessageA(window, CB_GETCOUNT, 0, 0)) {
        return false;
    }
    SendMessageA(window, CB_SETCURSEL, static_cast<WPARAM>(entry), 0);
    tellParent(window, CBN_SELENDOK);
    tellParent(window, CBN_SELCHANGE);
    handleMessages(window_.window());
    return true;
}

bool WindowsProgram::selectRow(int list, int row) {
    const HWND window = usableList(list, row);
    if (window == nullptr) {
        return false;
    }
    constexpr int kEveryRow = -1;
    setRowState(window, kEveryRow, LVIS_SELECTED, 0);
    setRowState(window, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    handleMessages(window_.window());
    return true;
}

bool WindowsProgram::clickRow(int list, int row) {
    constexpr UINT kEmptyBox = 1;
    constexpr UINT kTickedBox = 2;
    const HWND window = usableList(list, row);
    if (!(SendMessageA(window, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0) & LVS_EX_CHECKBOXES)) {
        return false;
    }
    const LRESULT state =
        SendMessageA(window, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK);
    const bool ticked = state == INDEXTOSTATEIMAGEMASK(kTickedBox);
    setRowState(window, row, LVIS_STATEIMAGEMASK, INDEXTOSTATEIMAGEMASK(ticked ? kEmptyBox : kTickedBox));
    handleMessages(window_.window());
    return true;
}

std::unique_ptr<Program> startOnWindows(const Situation& situation) {
    return std::make_unique<WindowsProgram>(situation);
}

}  // namespace korvane
