// A dialog whose controls are plain state that behaves like the real controls:
// check boxes clip, the colour list sorts, combo boxes remember what was typed. It
// also simulates the user: a user action returns false if nobody could do it with
// the control in its present state.
#pragma once

#include "platform/memory/DialogTemplates.h"
#include "platform/DialogControls.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

struct MemoryComboEntry {
    std::string text;
    std::uint32_t data = 0;
};

struct MemoryListColumn {
    std::string heading;
    int width = 0;
};

struct MemoryListRow {
    std::vector<std::string> cells;  // may have fewer cells than the list has columns
    bool checked = false;
    bool selected = false;

    // Empty for a cell that was never set.
    std::string_view cell(std::size_t column) const;
};

// One control; the fields of other kinds of control stay empty.
struct MemoryControl {
    int id = 0;
    ControlKind kind = ControlKind::Other;
    std::string text{};  // an editable combo box: the text of its edit box; the colour list: unused
    bool visible = false;
    bool enabled = true;
    bool redraws = true;
    Rect rect{};

    std::uint32_t check = 0;

    std::vector<MemoryComboEntry> entries{};
    std::size_t entrySpace = static_cast<std::size_t>(-1);  // more entries are refused
    int selection = kNoSelection;

    std::vector<MemoryListColumn> columns{};
    std::vector<MemoryListRow> rows{};
    std::uint32_t extendedStyle = 0;
    Colour background = 0;

    bool isCombo() const { return kind == ControlKind::Combo || kind == ControlKind::ColourCombo; }
    bool isList() const { return kind == ControlKind::List || kind == ControlKind::CheckedList; }
};

class MemoryDialog final : public DialogControls {
public:
    // Creates the controls of the template; the dialog itself is hidden.
    explicit MemoryDialog(const DialogTemplate& dialogTemplate);

    // Sets who is told of clicks; the handler must outlive the dialog.
    void setHandler(DialogHandler& handler) { handler_ = &handler; }

    int templateId() const { return templateId_; }
    bool visible() const { return visible_; }
    // The result given to endDialog; none until then.
    std::optional<int> result() const { return result_; }
    const std::vector<MemoryControl>& allControls() const { return controls_; }
    // The first control with that id in Z order; null if there is none.
    const MemoryControl* find(int id) const;
    // Whether a user could operate the control: dialog and control are visible, and the control is enabled.
    bool usable(int id) const;
    // From now on the combo box accepts at most so many entries.
    void limitComboSpace(int id, std::size_t entries);

    // User actions.
    bool clickCheckBox(int id);
    bool clickButton(int id);
    // Types over the whole text of an edit box or of an editable combo box.
    bool typeText(int id, std::string_view text);
    bool pickComboEntry(int id, int index);
    bool selectListRow(int id, int row);
    bool clickRowCheck(int id, int row);

    void show(bool visible) override;
    Rect rect() override { return rect_; }
    void move(const Rect& rect) override;
    std::string caption() override { return caption_; }
    void setCaption(std::string_view text) override;
    void endDialog(int result) override;

    std::vector<int> controlIds() override;
    void showControl(int id, bool visible) override;
    void enableControl(int id, bool enabled) override;
    std::string text(int id) override;
    void setText(int id, std::string_view text) override;
    Rect controlRect(int id) override;
    void moveControl(int id, const Rect& rect) override;
    void setRedraw(int id, bool on) override;

    void setCheck(int id, std::uint32_t state) override;
    std::uint32_t check(int id) override;

    void resetCombo(int id) override;
    void reserveCombo(int id, int entries, std::size_t bytes) override;
    int addComboEntry(int id, std::string_view text) override;
    void setComboData(int id, int index, std::uint32_t data) override;
    std::uint32_t comboData(int id, int index) override;
    int comboCount(int id) override;
    void selectComboEntry(int id, int index) override;
    int comboSelection(int id) override;

    void setListStyle(int id, std::uint32_t extendedStyle, Colour background) override;
    void deleteRows(int id) override;
    void deleteColumn(int id, int column) override;
    void insertColumn(int id, int column, std::string_view heading, int width) override;
    void insertRow(int id, int row, std::string_view text) override;
    void setCell(int id, int row, int column, std::string_view text) override;
    int rowCount(int id) override;
    std::string rowText(int id, int row) override;
    int selectedRow(int id) override;
    void setRowCheck(int id, int row, bool checked) override;
    bool rowCheck(int id, int row) override;

private:
    MemoryControl* control(int id);
    MemoryControl* combo(int id);
    MemoryControl* list(int id);
    MemoryControl* usableControl(int id);
    MemoryListRow* row(int id, int index);
    MemoryComboEntry* entry(int id, int index);
    void tellClicked(int id);

    int templateId_;
    std::string caption_;
    Rect rect_;
    bool visible_ = false;
    std::optional<int> result_;
    std::vector<MemoryControl> controls_;
    DialogHandler* handler_ = nullptr;
};

}  // namespace korvane
