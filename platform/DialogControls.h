// What code may do to one dialog and to its controls, by control id. Every function
// is one message or Win32 call, carried out by real windows or by plain state in
// memory. As in Windows, a control that does not exist is silently ignored.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

// 0x00BBGGRR, as COLORREF.
using Colour = std::uint32_t;

constexpr Colour rgb(unsigned red, unsigned green, unsigned blue) { return red | (green << 8) | (blue << 16); }

// Pixels; right and bottom are exclusive.
struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool operator==(const Rect&) const = default;
};

// What CB_GETCURSEL returns if no entry is selected.
constexpr int kNoSelection = -1;

class DialogControls {
public:
    virtual ~DialogControls() = default;

    // The dialog's own window. Its rectangle is in client coordinates of its parent.
    virtual void show(bool visible) = 0;
    virtual Rect rect() = 0;
    virtual void move(const Rect& rect) = 0;  // repaints
    virtual std::string caption() = 0;
    virtual void setCaption(std::string_view text) = 0;
    virtual void endDialog(int result) = 0;

    // Any control. Rectangles are in client coordinates of the dialog.
    virtual std::vector<int> controlIds() = 0;  // direct children in z-order
    virtual void showControl(int id, bool visible) = 0;
    virtual void enableControl(int id, bool enabled) = 0;
    virtual std::string text(int id) = 0;
    virtual void setText(int id, std::string_view text) = 0;
    virtual Rect controlRect(int id) = 0;
    virtual void moveControl(int id, const Rect& rect) = 0;  // repaints
    virtual void setRedraw(int id, bool on) = 0;

    // Check boxes: BM_SETCHECK and BM_GETCHECK with the raw state.
    virtual void setCheck(int id, std::uint32_t state) = 0;
    virtual std::uint32_t check(int id) = 0;

    // Combo boxes. Selecting an index beyond the last entry clears the selection.
    virtual void resetCombo(int id) = 0;
    virtual void reserveCombo(int id, int entries, std::size_t bytes) = 0;  // CB_INITSTORAGE
    virtual int addComboEntry(int id, std::string_view text) = 0;           // its index; negative: no space
    virtual void setComboData(int id, int index, std::uint32_t data) = 0;
    virtual std::uint32_t comboData(int id, int index) = 0;
    virtual int comboCount(int id) = 0;
    virtual void selectComboEntry(int id, int index) = 0;
    virtual int comboSelection(int id) = 0;  // kNoSelection: none

    // Report lists. Widths are in pixels.
    virtual void setListStyle(int id, std::uint32_t extendedStyle, Colour background) = 0;
    virtual void deleteRows(int id) = 0;
    virtual void deleteColumn(int id, int column) = 0;
    virtual void insertColumn(int id, int column, std::string_view heading, int width) = 0;
    virtual void insertRow(int id, int row, std::string_view text) = 0;
    virtual void setCell(int id, int row, int column, std::string_view text) = 0;
    virtual int rowCount(int id) = 0;
    virtual std::string rowText(int id, int row) = 0;  // of the first column
    virtual int selectedRow(int id) = 0;  // the first selected row; -1: none
    virtual void setRowCheck(int id, int row, bool checked) = 0;
    virtual bool rowCheck(int id, int row) = 0;
};

// Makes the decisions of a dialog: is told when the controls exist, and of clicks on buttons.
class DialogHandler {
public:
    virtual ~DialogHandler() = default;

    // The controls stay valid as long as the dialog. Returns false if the handler has ended the dialog.
    virtual bool OnInitDialog(DialogControls& controls) = 0;
    virtual void OnClicked(int id) = 0;
};

}  // namespace korvane
