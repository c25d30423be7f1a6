// Lending the window, and putting its controls back.
#include "tests/win32/SharedMainWindow.h"

#include "pages/PageTemplates.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

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

// ---- What the borrower asks for; what is there already is not made again

void SharedMainWindow::appendSystemMenu(int commandId, std::string_view text) {
    if (!made_) {
        window_.appendSystemMenu(commandId, text);
    }
}

void SharedMainWindow::setIcons(int resourceId) {
    if (!made_) {
        window_.setIcons(resourceId);
    }
}

void SharedMainWindow::createImageList(int size, int initialImages, int growth) {
    if (!made_) {
        window_.createImageList(size, initialImages, growth);
    }
}

void SharedMainWindow::addImage(int bitmapResource, Colour mask) {
    if (!made_) {
        window_.addImage(bitmapResource, mask);
    }
}

void SharedMainWindow::createDivider(int controlId, int rangeLeft, int rangeRight) {
    if (!made_) {
        window_.createDivider(controlId, rangeLeft, rangeRight);
    }
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

}  // namespace korvane
