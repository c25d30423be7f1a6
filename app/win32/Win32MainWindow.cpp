// The dialog procedure of the main window, and the calls of its owner.
#include "app/win32/Win32MainWindow.h"

#include "platform/win32/Splitter.h"
#include "platform/win32/Win32System.h"
#include "platform/win32/WindowFunctions.h"
#include "res/ControlIds.h"
#include "skin/SkinProperties.h"
#include "skin/win32/SkinEngine.h"

#include <string>

namespace korvane {
namespace {

constexpr UINT kShowHelp = WM_USER + 203;
// Windows uses the low four bits of a system command itself.
constexpr WPARAM kSystemCommandMask = 0xFFF0;

// RT_DLGINIT: what the resource script holds for the controls of the dialog with the same number.
constexpr int kDialogInitResource = 240;

std::span<const std::byte> dialogInitData(HINSTANCE instance, int dialog) {
    const HRSRC resource = FindResourceA(instance, MAKEINTRESOURCEA(dialog), MAKEINTRESOURCEA(kDialogInitResource));
    const HGLOBAL loaded = resource != nullptr ? LoadResource(instance, resource) : nullptr;
    const void* data = loaded != nullptr ? LockResource(loaded) : nullptr;
    return {static_cast<const std::byte*>(data), data != nullptr ? SizeofResource(instance, resource) : 0};
}

}  // namespace

Win32MainWindow::Win32MainWindow(HINSTANCE instance, Win32System& system) : instance_(instance), system_(system) {
    registerTreeListClass(instance);
    registerSplitterClass(instance);
    skin::registerSkinEngineClass(instance);
    skin::registerSplashClass(instance);
}

int Win32MainWindow::runModal(MainWindowHandler& handler) {
    handler_ = &handler;
    return static_cast<int>(DialogBoxParamA(instance_, MAKEINTRESOURCEA(IDD_MAIN), nullptr, dialogProc,
                                            reinterpret_cast<LPARAM>(this)));
}

HWND Win32MainWindow::create(MainWindowHandler& handler) {
    handler_ = &handler;
    return CreateDialogParamA(instance_, MAKEINTRESOURCEA(IDD_MAIN), nullptr, dialogProc,
                              reinterpret_cast<LPARAM>(this));
}

// ---- Messages

INT_PTR CALLBACK Win32MainWindow::dialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrA(window, DWLP_USER, lParam);
        reinterpret_cast<Win32MainWindow*>(lParam)->onInitDialog(window);
        return TRUE;  // Windows sets the focus, to the tree
    }
    auto* self = reinterpret_cast<Win32MainWindow*>(GetWindowLongPtrA(window, DWLP_USER));
    return self != nullptr ? self->handle(message, wParam, lParam) : FALSE;
}

void Win32MainWindow::onInitDialog(HWND window) {
    window_ = window;
    dialog_.emplace(window);
    tree_.emplace(GetDlgItem(window, IDC_TREE));
    splash_.emplace(GetDlgItem(window, IDC_SPLASH));
    system_.setMainWindow(window);
    // Without it the dialog would erase the background below its children, which would flicker.
    SetWindowLongA(window, GWL_STYLE, GetWindowLongA(window, GWL_STYLE) | WS_CLIPCHILDREN);
    moveToBottom(GetDlgItem(window, IDC_SPLASH));
    centreWindow(window);
    if (skin::Win32SkinEngine* engine = win32SkinEngine()) {
        const auto data = skin::controlData(dialogInitData(instance_, IDD_MAIN), IDC_SKIN);
        engine->setProperties(skin::readSkinProperties(data));
        engine->setFrameButtonHandler([this](const std::string& name) { handler_->OnFrameButton(name); });
    }
    handler_->OnInitDialog();
}

INT_PTR Win32MainWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SYSCOMMAND:
            if ((wParam & kSystemCommandMask) == IDM_ABOUT) {
                handler_->OnAbout();
                return TRUE;
            }
            return FALSE;
        case WM_COMMAND: return onCommand(wParam, lParam);
        case WM_NOTIFY: return onNotify(*reinterpret_cast<const NMHDR*>(lParam));
        case kTreeSelectionChanged:
            changeAtOnce([this] { handler_->OnSelectionChanged(); });
            return TRUE;
        case kShowHelp: handler_->OnHelp(); return TRUE;
        case WM_SHOWWINDOW:
            if (wParam != 0) {
                splash_->close();
            }
            return FALSE;
        case WM_HELP: handler_->OnHelp(); return TRUE;  // F1
        case WM_PAINT: return paintIcon();
        case WM_QUERYDRAGICON: return reinterpret_cast<INT_PTR>(icon_);
        case WM_CLOSE: EndDialog(window_, IDCANCEL); return TRUE;
        case WM_DESTROY: onDestroy(); return TRUE;
        default: return FALSE;
    }
}

INT_PTR Win32MainWindow::onCommand(WPARAM wParam, LPARAM lParam) {
    const auto control = reinterpret_cast<HWND>(lParam);
    if (LOWORD(wParam) == IDCANCEL) {
        EndDialog(window_, IDCANCEL);
        return TRUE;
    }
    if (HIWORD(wParam) != BN_CLICKED || control == nullptr) {
        return FALSE;
    }
    // Enter on a page's button arrives here, because this dialog's message loop runs; the page handles it.
    if (GetParent(control) != window_) {
        SendMessageA(GetParent(control), WM_COMMAND, wParam, lParam);
        return TRUE;
    }
    // Enter anywhere else presses the default button, even while it is hidden.
    if (LOWORD(wParam) == IDC_APPLY && IsWindowVisible(control)) {
        handler_->OnApplyChanges();
    }
    return TRUE;
}

INT_PTR Win32MainWindow::onNotify(const NMHDR& notification) {
    if (notification.idFrom != IDC_DIVIDER || notification.code != kSplitterMoved) {
        return FALSE;
    }
    const int distance = reinterpret_cast<const SplitterNotification&>(notification).distance;
    changeAtOnce([&] { handler_->OnDividerMoved(distance); });
    return TRUE;
}

// Shows a change of many controls in one piece: some controls draw themselves at once, and moving a window copies along
// whatever is on the screen there.
void Win32MainWindow::changeAtOnce(const std::function<void()>& change) {
    if (!IsWindowVisible(window_)) {
        change();
        return;
    }
    SendMessageA(window_, WM_SETREDRAW, FALSE, 0);
    change();
    SendMessageA(window_, WM_SETREDRAW, TRUE, 0);
    redrawAll();
}

// A minimized dialog has to draw its icon itself.
bool Win32MainWindow::paintIcon() {
    if (!IsIconic(window_)) {
        return false;
    }
    const PaintDc dc(window_);
    SendMessageA(window_, WM_ICONERASEBKGND, reinterpret_cast<WPARAM>(dc.get()), 0);
    const SIZE client = clientSize(window_);
    DrawIcon(dc.get(), (client.cx - GetSystemMetrics(SM_CXICON) + 1) / 2,
             (client.cy - GetSystemMetrics(SM_CYICON) + 1) / 2, icon_);
    return true;
}

void Win32MainWindow::onDestroy() {
    handler_->OnDestroy();
    system_.setMainWindow(nullptr);
    SetWindowLongPtrA(window_, DWLP_USER, 0);
}

// ---- Calls of the owner

void Win32MainWindow::appendSystemMenuSeparator() {
    AppendMenuA(GetSystemMenu(window_, FALSE), MF_SEPARATOR, 0, nullptr);
}

void Win32MainWindow::appendSystemMenu(int commandId, std::string_view text) {
    AppendMenuA(GetSystemMenu(window_, FALSE), MF_STRING, static_cast<UINT_PTR>(commandId), std::string(text).c_str());
}

void Win32MainWindow::setSystemMenuText(int commandId, std::string_view text) {
    const auto id = static_cast<UINT>(commandId);
    ModifyMenuA(GetSystemMenu(window_, FALSE), id, MF_BYCOMMAND | MF_STRING, id, std::string(text).c_str());
}

void Win32MainWindow::setIcons(int resourceId) {
    icon_ = LoadIconA(instance_, MAKEINTRESOURCEA(resourceId));
    const HANDLE small = LoadImageA(instance_, MAKEINTRESOURCEA(resourceId), IMAGE_ICON, GetSystemMetrics(SM_CXSMICON),
                                    GetSystemMetrics(SM_CYSMICON), LR_SHARED);
    SendMessageA(window_, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon_));
    SendMessageA(window_, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(small));
}

void Win32MainWindow::createImageList(int size, int initialImages, int growth) {
    images_.reset(ImageList_Create(size, size, ILC_COLOR24 | ILC_MASK, initialImages, growth));
    tree_->offerImageList(images_.get());
}

void Win32MainWindow::addImage(int bitmapResource, Colour mask) {
    const Bitmap bitmap(LoadBitmapA(instance_, MAKEINTRESOURCEA(bitmapResource)));
    ImageList_AddMasked(images_.get(), bitmap.get(), mask);
}

ISkinEngine* Win32MainWindow::skinEngine() { return win32SkinEngine(); }

skin::Win32SkinEngine* Win32MainWindow::win32SkinEngine() const {
    return skin::skinEngineOf(GetDlgItem(window_, IDC_SKIN));
}

void Win32MainWindow::createDivider(int controlId, int rangeLeft, int rangeRight) {
    const HWND placeholder = GetDlgItem(window_, controlId);
    const HWND splitter = createSplitter(instance_, window_, controlId, dialog_->controlRect(controlId),
                                         {.left = rangeLeft, .right = rangeRight});
    if (skin::Win32SkinEngine* engine = win32SkinEngine()) {
        engine->replaceWindow(placeholder, splitter);
    }
    // Above the pages in Z order, and before its placeholder, which has the same id.
    moveToTop(splitter);
}

void Win32MainWindow::createPage(int templateId, DialogHandler& handler) {
    auto page = std::make_unique<Win32DialogHost>(handler);
    const HWND made = page->create(instance_, templateId, window_);
    pages_.push_back(std::move(page));
    if (made != nullptr) {
        // Tree, splitter and button lie above the edges of the pages. The tab order is tree, page, button.
        moveToBottom(made);
        moveToBottom(GetDlgItem(window_, IDC_SPLASH));
    }
}

void Win32MainWindow::runAboutBox(DialogHandler& handler) {
    Win32DialogHost(handler).runModal(instance_, IDD_ABOUT, window_);
}

void Win32MainWindow::redrawAll() {
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

void Win32MainWindow::postClose() { PostMessageA(window_, WM_CLOSE, 0, 0); }

void Win32MainWindow::sendShowHelp() { SendMessageA(window_, kShowHelp, 0, 0); }

}  // namespace korvane
