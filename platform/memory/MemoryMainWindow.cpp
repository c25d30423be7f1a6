// The tree's order, the life of the window from start to end, and what a
// person can do with it.
#include "platform/memory/MemoryMainWindow.h"

#include "res/ControlIds.h"

#include <algorithm>
#include <utility>

namespace korvane {
namespace {

constexpr Hresult kRefused = static_cast<Hresult>(0x80004005);  // E_FAIL
constexpr int kCancelled = 2;                                   // IDCANCEL, how WM_CLOSE ends a dialog
constexpr int kConfirmed = 1;                                   // IDOK

}  // namespace

void MemoryBackgroundImage::load(const std::string& file, int& pictureWidth, int& pictureHeight) {
    path = file;
    pictureWidth = width;
    pictureHeight = height;
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

void MemoryTree::InsertColumn(std::string_view heading, std::uint32_t, int width, int, int, int) {
    columns_.push_back({.heading = std::string(heading), .width = width});
}

void MemoryTree::SetColumnWidth(int column, int width, int, int) {
    if (column >= 0 && static_cast<std::size_t>(column) < columns_.size()) {
        columns_[static_cast<std::size_t>(column)].width = width;
    }
}

void MemoryTree::DeleteAllItems() {
    rows_.clear();
    selectedData_.reset();
}

// The new row stands behind its sibling `after` and all below that; behind the last child when `after` names none.
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
        row->normalImage = normal;
        row->selectedImage = selected;
        row->expandedImage = expanded;
        row->expandedSelectedImage = expandedSelected;
    }
}

bool MemoryTree::GetSelectedItemData(std::uint32_t& data) {
    data = selectedData_.value_or(data);
    return selectedData_.has_value();
}

// ---- Skin and splash

Hresult ScriptedSkinEngine::record(SkinCall call) {
    calls_.push_back(std::move(call));
    return calls_.size() == refused_ ? kRefused : 0;
}

Hresult ScriptedSkinEngine::LoadSkin(const std::string& path) {
    return record({.verb = SkinCall::Verb::LoadSkin, .path = path});
}

Hresult ScriptedSkinEngine::ApplySkin(DialogControls& mainWindow) {
    return record({.verb = SkinCall::Verb::ApplySkin, .dialog = &mainWindow});
}

Hresult ScriptedSkinEngine::ApplySkinElement(DialogControls& dialog, int controlId, std::string_view element) {
    return record({.verb = SkinCall::Verb::ApplySkinElement,
                   .dialog = &dialog,
                   .controlId = controlId,
                   .element = std::string(element)});
}

void MemorySplash::showSplash(bool wait) {
    ++timesShown;
    waited = wait;
}

// ---- The window's life

MemoryMainWindow::MemoryMainWindow() : dialog_(*findDialogTemplate(IDD_MAIN)) { dialog_.setHandler(clicks_); }

bool MemoryMainWindow::run(MainWindowHandler& handler) {
    handler_ = &handler;
    running_ = true;
    dialog_.show(true);
    if (!handler.OnInitDialog() && !dialog_.result()) {
        closePosted_ = true;
    }
    settle();
    return running_;
}

// What the message loop does between two messages: carries out a posted close, and notices that the dialog has ended.
void MemoryMainWindow::settle() {
    if (running_ && std::exchange(closePosted_, false)) {
        dialog_.endDialog(kCancelled);
    }
    if (running_ && dialog_.result()) {
        running_ = false;
        handler_->OnDestroy();
    }
}

void MemoryMainWindow::appendSystemMenu(int commandId, std::string_view text) {
    systemMenu_.push_back({.commandId = commandId, .text = std::string(text)});
}

void MemoryMainWindow::createImageList(int size, int, int) {
    imageSize_ = size;
    images_.clear();
}

void MemoryMainWindow::addImage(int bitmapResource, Colour mask) {
    images_.push_back({.bitmapResource = bitmapResource, .mask = mask});
}

void MemoryMainWindow::createDivider(int controlId, int rangeLeft, int rangeRight) {
    dividerRect_ = dialog_.controlRect(controlId);
    roomLeft_ = rangeLeft;
    roomRight_ = rangeRight;
}

void MemoryMainWindow::createPage(int templateId, DialogHandler& handler) {
    if (const DialogTemplate* found = findDialogTemplate(templateId)) {
        MemoryDialog& made = *pages_.emplace_back(std::make_unique<MemoryDialog>(*found));
        made.setHandler(handler);
        handler.OnInitDialog(made);
    }
}

// The person at the machine presses OK.
void MemoryMainWindow::runAboutBox(DialogHandler& handler) {
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

// The low four bits of a system command are the platform's own.
bool MemoryMainWindow::chooseSystemMenu(int commandId) {
    const bool offered = std::ranges::find(systemMenu_, commandId, &SystemMenuItem::commandId) != systemMenu_.end();
    if (!running_ || !offered) {
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
