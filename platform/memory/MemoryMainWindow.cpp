// The order of the tree, the life of the window from start to end, and the actions
// of the user.
#include "platform/memory/MemoryMainWindow.h"

#include "res/ControlIds.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace korvane {
namespace {

constexpr Hresult kRefused = static_cast<Hresult>(0x80004005);  // E_FAIL
constexpr int kCancelled = 2;                                   // IDCANCEL, how WM_CLOSE ends a dialog
constexpr int kConfirmed = 1;                                   // IDOK

std::string word(std::string_view text) { return std::string(text); }
std::string word(int number) { return std::to_string(number); }

// As the platform's headers and tools write such words.
std::string hexadecimal(std::uint32_t number) {
    char text[8];
    return {text, std::to_chars(text, text + sizeof text, number, 16).ptr};
}

template <class... Parts>
void note(CallLog& log, std::string_view verb, const Parts&... parts) {
    std::string line(verb);
    ((line += ' ' + word(parts)), ...);
    log.push_back(std::move(line));
}

}  // namespace

// It has no size.
void MemoryBackgroundImage::load(const std::string& path, int& width, int& height) {
    note(log_, "tree background", path);
    width = 0;
    height = 0;
}

// ---- The tree

const MemoryTreeRow* MemoryTree::findData(std::uint32_t data) const {
    const auto found = std::ranges::find(rows_, data, &MemoryTreeRow::data);
    return found == rows_.end() ? nullptr : &*found;
}

MemoryTreeRow* MemoryTree::find(CTreeListItem item) {
    const auto found = std::ranges::find(rows_, item, &MemoryTreeRow::item);
    return found == rows_.end() ? nullptr : &*found;
}

std::size_t MemoryTree::endOfSubtree(std::size_t index) const {
    std::size_t end = index + 1;
    while (end < rows_.size() && rows_[end].depth > rows_[index].depth) {
        ++end;
    }
    return end;
}

void MemoryTree::SetStyle(std::uint32_t style) { note(log_, "tree style", hexadecimal(style)); }

void MemoryTree::SetImageList() { note(log_, "tree image list"); }

void MemoryTree::InsertColumn(const TreeColumn& column) {
    note(log_, "tree column", '[' + std::string(column.heading) + ']', hexadecimal(column.format), column.width,
         column.image, column.subItem, column.order);
}

void MemoryTree::SetColumnModify(int column, int modify) { note(log_, "tree column modify", column, modify); }

void MemoryTree::SetColumnWidth(int column, int width, int minimum, int maximum) {
    note(log_, "tree column width", column, width, minimum, maximum);
}

void MemoryTree::DeleteAllItems() {
    note(log_, "tree cleared");
    rows_.clear();
    selectedData_.reset();
}

// The new row follows its sibling `after` and everything below that; it is the last child if there is no such sibling.
CTreeListItem MemoryTree::InsertItem(std::string_view text, CTreeListItem parent, CTreeListItem after) {
    const MemoryTreeRow* above = find(parent);
    if (parent != kRootItem && above == nullptr) {
        return kRootItem;
    }
    const MemoryTreeRow* sibling = find(after);
    std::size_t place = rows_.size();
    if (sibling != nullptr && sibling->parent == parent) {
        place = endOfSubtree(static_cast<std::size_t>(sibling - rows_.data()));
    } else if (above != nullptr) {
        place = endOfSubtree(static_cast<std::size_t>(above - rows_.data()));
    }
    const int depth = above != nullptr ? above->depth + 1 : 0;
    rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(place),
                 {.item = ++lastItem_, .parent = parent, .depth = depth, .text = std::string(text)});
    return lastItem_;
}

void MemoryTree::SetItemData(CTreeListItem item, std::uint32_t data) {
    if (MemoryTreeRow* row = find(item)) {
        row->data = data;
    }
}

void MemoryTree::SetItemBold(CTreeListItem item, bool bold) {
    if (MemoryTreeRow* row = find(item)) {
        row->bold = bold;
    }
}

void MemoryTree::SetItemImage(CTreeListItem item, int normal, int selected, int expanded, int expandedSelected) {
    if (MemoryTreeRow* row = find(item)) {
        row->images = {normal, selected, expanded, expandedSelected};
    }
}

bool MemoryTree::GetSelectedItemData(std::uint32_t& data) {
    data = selectedData_.value_or(data);
    return selectedData_.has_value();
}

// ---- Skin and splash

Hresult ScriptedSkinEngine::answer(std::string call) {
    log_.push_back(std::move(call));
    return ++callCount_ == refused_ ? kRefused : 0;
}

Hresult ScriptedSkinEngine::LoadSkin(const std::string& path) { return answer("skin " + path); }

Hresult ScriptedSkinEngine::ApplySkin(DialogControls&) { return answer("skin applied"); }

Hresult ScriptedSkinEngine::ApplySkinElement(DialogControls&, int controlId, std::string_view element) {
    return answer("element " + word(controlId) + ' ' + word(element));
}

void MemorySplash::setFile(const std::string& path) { note(log_, "splash", path); }

void MemorySplash::setMinimumTime(std::int32_t milliseconds) { note(log_, "splash minimum time", milliseconds); }

void MemorySplash::showSplash(bool wait) { note(log_, wait ? "splash shown, waiting" : "splash shown"); }

void MemorySplash::hide() { note(log_, "splash hidden"); }

// ---- The window's life

MemoryMainWindow::MemoryMainWindow() : dialog_(*findDialogTemplate(IDD_MAIN)) { dialog_.setHandler(clicks_); }

bool MemoryMainWindow::run(MainWindowHandler& handler) {
    handler_ = &handler;
    running_ = true;
    dialog_.show(true);
    handler.OnInitDialog();
    settle();
    return running_;
}

// What the message loop does between two messages: handles a posted close, and notices that the dialog has ended.
void MemoryMainWindow::settle() {
    if (running_ && std::exchange(closePosted_, false)) {
        dialog_.endDialog(kCancelled);
    }
    if (running_ && dialog_.result()) {
        running_ = false;
        handler_->OnDestroy();
    }
}

void MemoryMainWindow::appendSystemMenuSeparator() {
    note(log_, "menu separator");
    systemMenu_.emplace_back();
}

void MemoryMainWindow::appendSystemMenu(int commandId, std::string_view text) {
    note(log_, "menu", commandId, text);
    systemMenu_.push_back({.commandId = commandId, .text = std::string(text)});
}

void MemoryMainWindow::setSystemMenuText(int commandId, std::string_view text) {
    note(log_, "menu text", commandId, text);
    const auto found = std::ranges::find(systemMenu_, commandId, &SystemMenuItem::commandId);
    if (found != systemMenu_.end()) {
        found->text = text;
    }
}

void MemoryMainWindow::setIcons(int resourceId) { note(log_, "icons", resourceId); }

void MemoryMainWindow::createImageList(int size, int initialImages, int growth) {
    note(log_, "image list", size, initialImages, growth);
}

void MemoryMainWindow::addImage(int bitmapResource, Colour mask) {
    note(log_, "image", bitmapResource, hexadecimal(mask));
}

void MemoryMainWindow::redrawAll() { note(log_, "redrawn"); }

void MemoryMainWindow::createDivider(int controlId, int rangeLeft, int rangeRight) {
    note(log_, "divider", controlId, rangeLeft, rangeRight);
    dividerRect_ = dialog_.controlRect(controlId);
    roomLeft_ = rangeLeft;
    roomRight_ = rangeRight;
}

void MemoryMainWindow::createPage(int templateId, DialogHandler& handler) {
    note(log_, "page", templateId);
    if (const DialogTemplate* found = findDialogTemplate(templateId)) {
        MemoryDialog& made = *pages_.emplace_back(std::make_unique<MemoryDialog>(*found));
        made.setHandler(handler);
        handler.OnInitDialog(made);
    }
}

// The user presses OK.
void MemoryMainWindow::runAboutBox(DialogHandler& handler) {
    note(log_, "about box");
    aboutBox_ = std::make_unique<MemoryDialog>(*findDialogTemplate(IDD_ABOUT));
    aboutBox_->setHandler(handler);
    aboutBox_->show(true);
    if (handler.OnInitDialog(*aboutBox_) && !aboutBox_->result()) {
        aboutBox_->endDialog(kConfirmed);
    }
}

MemoryDialog* MemoryMainWindow::page(int templateId) {
    const auto found = std::ranges::find(pages_, templateId, [](const auto& each) { return each->templateId(); });
    return found == pages_.end() ? nullptr : found->get();
}

// ---- User actions

void MemoryMainWindow::Clicks::OnClicked(int id) {
    if (id == IDC_APPLY) {
        window_.handler_->OnApplyChanges();
        window_.settle();
    }
}

bool MemoryMainWindow::selectRow(std::size_t index) {
    return index < tree_.rows().size() && selectData(tree_.rows()[index].data);
}

bool MemoryMainWindow::selectData(std::uint32_t data) {
    if (!running_) {
        return false;
    }
    tree_.select(data);
    handler_->OnSelectionChanged();
    settle();
    return true;
}

bool MemoryMainWindow::clickApply() { return dialog_.clickButton(IDC_APPLY); }

// Windows uses the low four bits of a system command itself.
bool MemoryMainWindow::chooseSystemMenu(int commandId) {
    const bool offered = std::ranges::find(systemMenu_, commandId, &SystemMenuItem::commandId) != systemMenu_.end();
    if (!running_ || !offered || commandId == 0) {
        return false;
    }
    if ((commandId & 0xFFF0) == IDM_ABOUT) {
        handler_->OnAbout();
        settle();
    }
    return true;
}

bool MemoryMainWindow::pressFrameButton(const std::string& name) {
    if (!running_) {
        return false;
    }
    handler_->OnFrameButton(name);
    settle();
    return true;
}

bool MemoryMainWindow::dragDivider(int distance) {
    const int moved = std::clamp(distance, -roomLeft_, roomRight_);
    if (!running_ || moved == 0) {
        return false;
    }
    roomLeft_ += moved;
    roomRight_ -= moved;
    dividerRect_.left += moved;
    dividerRect_.right += moved;
    handler_->OnDividerMoved(moved);
    settle();
    return true;
}

bool MemoryMainWindow::close() {
    if (!running_) {
        return false;
    }
    closePosted_ = true;
    settle();
    return true;
}

}  // namespace korvane
