// What a person does to the controls: only what is visible and enabled can be used.
#include "platform/memory/MemoryDialog.h"

namespace korvane {
namespace {

constexpr std::uint32_t kCheckBoxesStyle = 0x00000004;  // LVS_EX_CHECKBOXES
constexpr std::size_t kLongestTyping = 32766;           // the limit of a new edit box

}  // namespace

bool MemoryDialog::usable(int id) const {
    const MemoryControl* found = find(id);
    return visible_ && found != nullptr && found->visible && found->enabled;
}

MemoryControl* MemoryDialog::usableControl(int id) { return usable(id) ? control(id) : nullptr; }

void MemoryDialog::tellClicked(int id) {
    if (handler_ != nullptr) {
        handler_->OnClicked(id);
    }
}

bool MemoryDialog::clickCheckBox(int id) {
    MemoryControl* found = usableControl(id);
    if (found == nullptr || found->kind != ControlKind::CheckBox) {
        return false;
    }
    found->check = found->check == 0 ? 1 : 0;
    tellClicked(id);
    return true;
}

bool MemoryDialog::clickButton(int id) {
    const MemoryControl* found = usableControl(id);
    if (found == nullptr || found->kind != ControlKind::Button) {
        return false;
    }
    tellClicked(id);
    return true;
}

// Typing into an editable combo box clears its selection; setting its text does not.
bool MemoryDialog::typeText(int id, std::string_view text) {
    MemoryControl* found = usableControl(id);
    if (found == nullptr || (found->kind != ControlKind::Edit && found->kind != ControlKind::Combo) ||
        text.size() > kLongestTyping || text.find_first_of(std::string_view("\0\r\n", 3)) != std::string_view::npos) {
        return false;
    }
    found->text = text;
    found->selection = kNoSelection;
    return true;
}

bool MemoryDialog::pickComboEntry(int id, int index) {
    MemoryControl* found = usableControl(id);
    if (found == nullptr || entry(id, index) == nullptr) {
        return false;
    }
    selectComboEntry(id, index);
    return true;
}

bool MemoryDialog::selectListRow(int id, int row) {
    MemoryControl* found = usableControl(id);
    MemoryListRow* target = this->row(id, row);
    if (found == nullptr || target == nullptr) {
        return false;
    }
    for (MemoryListRow& each : found->rows) {
        each.selected = &each == target;
    }
    return true;
}

bool MemoryDialog::clickRowCheck(int id, int row) {
    const MemoryControl* found = usableControl(id);
    MemoryListRow* target = this->row(id, row);
    if (found == nullptr || target == nullptr || (found->extendedStyle & kCheckBoxesStyle) == 0) {
        return false;
    }
    target->checked = !target->checked;
    return true;
}

}  // namespace korvane
