// The behaviour of the Windows controls, as far as the program can see it.
#include "platform/memory/MemoryDialog.h"

#include "text/CaseFolding.h"

#include <algorithm>

namespace korvane {
namespace {

// A dialog in "MS Sans Serif" 8 at 96 dpi.
constexpr int kBaseUnitX = 6;
constexpr int kBaseUnitY = 13;
// The height of a closed combo box depends on font and borders only, whatever height it is given.
constexpr int kClosedComboHeight = 21;
constexpr int kNoSpace = -2;                            // CB_ERRSPACE
constexpr std::uint32_t kNoSuchEntry = 0xFFFFFFFF;      // CB_ERR

// MulDiv for lengths: rounds to the nearest pixel, halves away from zero.
constexpr int scaled(int units, int baseUnit, int divisor) { return (units * baseUnit + divisor / 2) / divisor; }

constexpr Rect pixels(int x, int y, int width, int height) {
    const int left = scaled(x, kBaseUnitX, 4);
    const int top = scaled(y, kBaseUnitY, 8);
    return {left, top, left + scaled(width, kBaseUnitX, 4), top + scaled(height, kBaseUnitY, 8)};
}

// A window has no negative size.
Rect windowRect(Rect rect) {
    rect.right = std::max(rect.left, rect.right);
    rect.bottom = std::max(rect.top, rect.bottom);
    return rect;
}

void place(MemoryControl& control, const Rect& rect) {
    control.rect = windowRect(rect);
    if (control.isCombo()) {
        control.rect.bottom = control.rect.top + kClosedComboHeight;
    }
}

// Texts of windows end at the first zero byte.
std::string platformText(std::string_view text) { return std::string(text.substr(0, text.find('\0'))); }

bool sortsBefore(std::string_view a, std::string_view b) {
    return std::ranges::lexicographical_compare(lowerCase(a), lowerCase(b));
}

template <class Items>
auto itemAt(Items& items, int index) -> decltype(items.data()) {
    return index >= 0 && static_cast<std::size_t>(index) < items.size() ? &items[static_cast<std::size_t>(index)]
                                                                       : nullptr;
}

void select(MemoryControl& combo, int index) {
    const MemoryComboEntry* chosen = itemAt(combo.entries, index);
    combo.selection = chosen != nullptr ? index : kNoSelection;
    combo.text = chosen != nullptr ? chosen->text : std::string();
}

}  // namespace

std::string_view MemoryListRow::cell(std::size_t column) const {
    return column < cells.size() ? std::string_view(cells[column]) : std::string_view();
}

MemoryDialog::MemoryDialog(const DialogTemplate& dialogTemplate)
    : templateId_(dialogTemplate.id),
      caption_(dialogTemplate.caption),
      rect_(pixels(dialogTemplate.x, dialogTemplate.y, dialogTemplate.width, dialogTemplate.height)) {
    controls_.reserve(dialogTemplate.controls.size());
    for (const ControlTemplate& row : dialogTemplate.controls) {
        MemoryControl& made = controls_.emplace_back();
        made.id = row.id;
        made.kind = row.kind;
        made.text = row.text;
        made.visible = row.visible;
        place(made, pixels(row.x, row.y, row.width, row.height));
    }
}

const MemoryControl* MemoryDialog::find(int id) const {
    const auto found = std::ranges::find(controls_, id, &MemoryControl::id);
    return found == controls_.end() ? nullptr : &*found;
}

MemoryControl* MemoryDialog::control(int id) { return const_cast<MemoryControl*>(find(id)); }

MemoryControl* MemoryDialog::combo(int id) {
    MemoryControl* found = control(id);
    return found != nullptr && found->isCombo() ? found : nullptr;
}

MemoryControl* MemoryDialog::list(int id) {
    MemoryControl* found = control(id);
    return found != nullptr && found->isList() ? found : nullptr;
}

MemoryListRow* MemoryDialog::row(int id, int index) {
    MemoryControl* found = list(id);
    return found != nullptr ? itemAt(found->rows, index) : nullptr;
}

MemoryComboEntry* MemoryDialog::entry(int id, int index) {
    MemoryControl* found = combo(id);
    return found != nullptr ? itemAt(found->entries, index) : nullptr;
}

// ---- The dialog and any control

void MemoryDialog::show(bool visible) { visible_ = visible; }

void MemoryDialog::move(const Rect& rect) { rect_ = windowRect(rect); }

void MemoryDialog::setCaption(std::string_view text) { caption_ = platformText(text); }

// A dialog that ends is hidden at once, even if it is not modal.
void MemoryDialog::endDialog(int result) {
    result_ = result;
    visible_ = false;
}

std::vector<int> MemoryDialog::controlIds() {
    std::vector<int> ids;
    ids.reserve(controls_.size());
    for (const MemoryControl& each : controls_) {
        ids.push_back(each.id);
    }
    return ids;
}

void MemoryDialog::showControl(int id, bool visible) {
    if (MemoryControl* found = control(id)) {
        found->visible = visible;
    }
}

void MemoryDialog::enableControl(int id, bool enabled) {
    if (MemoryControl* found = control(id)) {
        found->enabled = enabled;
    }
}

std::string MemoryDialog::text(int id) {
    const MemoryControl* found = find(id);
    return found != nullptr ? found->text : std::string();
}

// Setting the text of an editable combo box keeps its entries and its selection; a drop-down list takes no text.
void MemoryDialog::setText(int id, std::string_view text) {
    MemoryControl* found = control(id);
    if (found != nullptr && found->kind != ControlKind::ColourCombo) {
        found->text = platformText(text);
    }
}

Rect MemoryDialog::controlRect(int id) {
    const MemoryControl* found = find(id);
    return found != nullptr ? found->rect : Rect{};
}

void MemoryDialog::moveControl(int id, const Rect& rect) {
    if (MemoryControl* found = control(id)) {
        place(*found, rect);
    }
}

void MemoryDialog::setRedraw(int id, bool on) {
    if (MemoryControl* found = control(id)) {
        found->redraws = on;
    }
}

// ---- Check boxes

// A two-state check box shows every state except 0 as 1; other controls have no check state.
void MemoryDialog::setCheck(int id, std::uint32_t state) {
    MemoryControl* found = control(id);
    if (found != nullptr && found->kind == ControlKind::CheckBox) {
        found->check = std::min<std::uint32_t>(state, 1);
    }
}

std::uint32_t MemoryDialog::check(int id) {
    const MemoryControl* found = find(id);
    return found != nullptr ? found->check : 0;
}

// ---- Combo boxes

void MemoryDialog::resetCombo(int id) {
    if (MemoryControl* found = combo(id)) {
        found->entries.clear();
        select(*found, kNoSelection);
    }
}

void MemoryDialog::reserveCombo(int, int, std::size_t) {}  // the vector grows by itself

// The colour list sorts without regard to letter case. The selected entry stays selected when an insertion moves it.
int MemoryDialog::addComboEntry(int id, std::string_view text) {
    MemoryControl* found = combo(id);
    if (found == nullptr || found->entries.size() >= found->entrySpace) {
        return kNoSpace;
    }
    std::string name = platformText(text);
    auto before = found->entries.end();
    if (found->kind == ControlKind::ColourCombo) {
        before = std::ranges::upper_bound(found->entries, name, sortsBefore, &MemoryComboEntry::text);
    }
    const int index = static_cast<int>(before - found->entries.begin());
    found->entries.insert(before, {.text = std::move(name)});
    if (found->selection >= index) {
        ++found->selection;
    }
    return index;
}

void MemoryDialog::setComboData(int id, int index, std::uint32_t data) {
    if (MemoryComboEntry* found = entry(id, index)) {
        found->data = data;
    }
}

std::uint32_t MemoryDialog::comboData(int id, int index) {
    const MemoryComboEntry* found = entry(id, index);
    return found != nullptr ? found->data : kNoSuchEntry;
}

int MemoryDialog::comboCount(int id) {
    const MemoryControl* found = combo(id);
    return found != nullptr ? static_cast<int>(found->entries.size()) : 0;
}

void MemoryDialog::selectComboEntry(int id, int index) {
    if (MemoryControl* found = combo(id)) {
        select(*found, index);
    }
}

int MemoryDialog::comboSelection(int id) {
    const MemoryControl* found = combo(id);
    return found != nullptr ? found->selection : kNoSelection;
}

void MemoryDialog::limitComboSpace(int id, std::size_t entries) {
    if (MemoryControl* found = combo(id)) {
        found->entrySpace = entries;
    }
}

// ---- Report lists

void MemoryDialog::setListStyle(int id, std::uint32_t extendedStyle, Colour background) {
    if (MemoryControl* found = list(id)) {
        found->extendedStyle = extendedStyle;
        found->background = background;
    }
}

void MemoryDialog::deleteRows(int id) {
    if (MemoryControl* found = list(id)) {
        found->rows.clear();
    }
}

// The first cell of a row is the row's own text, which stays when the first column is deleted; the other cells move
// with their columns.
void MemoryDialog::deleteColumn(int id, int column) {
    MemoryControl* found = list(id);
    if (found == nullptr || itemAt(found->columns, column) == nullptr) {
        return;
    }
    found->columns.erase(found->columns.begin() + column);
    for (MemoryListRow& each : found->rows) {
        if (column > 0 && itemAt(each.cells, column) != nullptr) {
            each.cells.erase(each.cells.begin() + column);
        }
    }
}

void MemoryDialog::insertColumn(int id, int column, std::string_view heading, int width) {
    MemoryControl* found = list(id);
    if (found == nullptr || column < 0) {
        return;
    }
    const int index = std::min(column, static_cast<int>(found->columns.size()));
    found->columns.insert(found->columns.begin() + index, {.heading = platformText(heading), .width = width});
    for (MemoryListRow& each : found->rows) {
        if (index > 0 && itemAt(each.cells, index) != nullptr) {
            each.cells.insert(each.cells.begin() + index, std::string());
        }
    }
}

void MemoryDialog::insertRow(int id, int row, std::string_view text) {
    MemoryControl* found = list(id);
    if (found != nullptr && row >= 0) {
        const int index = std::min(row, static_cast<int>(found->rows.size()));
        found->rows.insert(found->rows.begin() + index, {.cells = {platformText(text)}});
    }
}

void MemoryDialog::setCell(int id, int row, int column, std::string_view text) {
    const MemoryControl* found = list(id);
    MemoryListRow* target = this->row(id, row);
    if (target == nullptr || column < 0 || (column > 0 && itemAt(found->columns, column) == nullptr)) {
        return;
    }
    const auto index = static_cast<std::size_t>(column);
    target->cells.resize(std::max(target->cells.size(), index + 1));
    target->cells[index] = platformText(text);
}

int MemoryDialog::rowCount(int id) {
    const MemoryControl* found = list(id);
    return found != nullptr ? static_cast<int>(found->rows.size()) : 0;
}

std::string MemoryDialog::rowText(int id, int row) {
    const MemoryControl* found = list(id);
    const bool there = found != nullptr && row >= 0 && static_cast<std::size_t>(row) < found->rows.size();
    return there ? found->rows[static_cast<std::size_t>(row)].cells.front() : std::string();
}

int MemoryDialog::selectedRow(int id) {
    const MemoryControl* found = list(id);
    if (found == nullptr) {
        return -1;
    }
    const auto selected = std::ranges::find(found->rows, true, &MemoryListRow::selected);
    return selected == found->rows.end() ? -1 : static_cast<int>(selected - found->rows.begin());
}

void MemoryDialog::setRowCheck(int id, int row, bool checked) {
    if (MemoryListRow* target = this->row(id, row)) {
        target->checked = checked;
    }
}

bool MemoryDialog::rowCheck(int id, int row) {
    const MemoryListRow* target = this->row(id, row);
    return target != nullptr && target->checked;
}

}  // namespace korvane
