// The controls of one real dialog, through the messages that Windows has for them.
#pragma once

#include "platform/DialogControls.h"

#include <windows.h>

namespace korvane {

class Win32Dialog final : public DialogControls {
public:
    // The window is borrowed; once it is destroyed, every function does nothing.
    explicit Win32Dialog(HWND dialog) : dialog_(dialog) {}

    HWND window() const { return dialog_; }

    void show(bool visible) override;
    Rect rect() override;
    void move(const Rect& rect) override;
    std::string caption() override;
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
    HWND control(int id) const;
    // `missing` is returned for a control that does not exist.
    LRESULT send(int id, UINT message, WPARAM wParam, LPARAM lParam, LRESULT missing = 0) const;

    HWND dialog_;
    // The control used last: filling a combo box with ten thousand numbers must not search the dialog each time.
    mutable int lastId_ = 0;
    mutable HWND lastControl_ = nullptr;
};

}  // namespace korvane
