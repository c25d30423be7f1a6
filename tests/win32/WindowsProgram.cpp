// Starting the program as WinMain does, and acting on its controls as a person
// would.
#include "tests/win32/WindowsProgram.h"

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

}  // namespace

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
    findRows();
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

void WindowsProgram::findRows() {
    LRESULT row = sendTree(TVM_GETNEXTITEM, TVGN_ROOT, 0);
    while (row != 0) {
        TVITEMA item{};
        item.mask = TVIF_PARAM;
        item.hItem = reinterpret_cast<HTREEITEM>(row);
        sendTree(TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
        rows_.emplace(static_cast<int>(item.lParam), row);
        // The first below it, or else the next beside it or beside what it is below.
        LRESULT next = sendTree(TVM_GETNEXTITEM, TVGN_CHILD, row);
        while (next == 0 && row != 0) {
            next = sendTree(TVM_GETNEXTITEM, TVGN_NEXT, row);
            row = sendTree(TVM_GETNEXTITEM, TVGN_PARENT, row);
        }
        row = next;
    }
    EXPECT_FALSE(rows_.empty());
}

void WindowsProgram::setRowData(LRESULT row, LPARAM data) const {
    TVITEMA item{};
    item.mask = TVIF_PARAM;
    item.hItem = reinterpret_cast<HTREEITEM>(row);
    item.lParam = data;
    sendTree(TVM_SETITEMA, 0, reinterpret_cast<LPARAM>(&item));
}

// The tree is silent about a row that is selected already, so nothing is selected in between. What has no row is shown
// by another's, which bears its number meanwhile.
void WindowsProgram::select(int id) {
    const auto own = rows_.find(id);
    const auto [number, row] = own != rows_.end() ? *own : *rows_.begin();
    setRowData(row, id);
    sendTree(TVM_SELECTITEM, TVGN_CARET, 0);
    sendTree(TVM_SELECTITEM, TVGN_CARET, row);
    setRowData(row, number);
    handleMessages(window_.window());
}

bool WindowsProgram::apply() {
    const HWND button = GetDlgItem(window_.window(), IDC_APPLY);
    if (!IsWindowVisible(button) || !IsWindowEnabled(button)) {
        return false;
    }
    SendMessageA(button, BM_CLICK, 0, 0);
    handleMessages(window_.window());
    return true;
}

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
    const HWND control = usable(list);
    const bool found = control != nullptr && isClass(control, WC_LISTVIEWA) && row >= 0 &&
                       row < SendMessageA(control, LVM_GETITEMCOUNT, 0, 0);
    return found ? control : nullptr;
}

bool WindowsProgram::click(int control) {
    const HWND button = usable(control);
    if (button == nullptr || !isClass(button, "Button")) {
        return false;
    }
    SendMessageA(button, BM_CLICK, 0, 0);
    handleMessages(window_.window());
    return true;
}

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
    if (window == nullptr ||
        !(SendMessageA(window, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0) & LVS_EX_CHECKBOXES)) {
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
