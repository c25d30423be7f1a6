// Real dialogs behave as those in memory do; beyond that, what only real ones
// have: open lists, painted rows, the keyboard.
#include "tests/platform/DialogBehaviour.h"
#include "tests/win32/PictureOfWindow.h"
#include "tests/win32/Win32DialogEnvironment.h"

#include "platform/win32/ColourComboPainter.h"

namespace korvane {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(Win32, DialogBehaviour, Win32DialogEnvironment);

class Win32DialogTest : public ::testing::Test {
protected:
    Win32DialogEnvironment environment;
};

int openListHeight(HWND combo) {
    RECT open{};
    SendMessageA(combo, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&open));
    return open.bottom - open.top;
}

TEST_F(Win32DialogTest, MovingAComboKeepsTheHeightOfItsOpenList) {
    for (const auto& [page, id] : {std::pair{IDD_COMBOS, IDC_COMBO1}, {IDD_CHECK_COMBOS, IDC_COLOUR_COMBO}}) {
        DialogControls& dialog = environment.open(page);
        const HWND combo = environment.control(page, id);
        const int height = openListHeight(combo);
        ASSERT_GT(height, 100);
        Rect rect = dialog.controlRect(id);
        rect.left += 7;
        dialog.moveControl(id, rect);
        EXPECT_EQ(dialog.controlRect(id), rect);
        EXPECT_EQ(openListHeight(combo), height);
    }
}

// Redrawing is switched by a message that also shows ordinary windows.
TEST_F(Win32DialogTest, FillingAHiddenComboDoesNotShowIt) {
    DialogControls& dialog = environment.open(IDD_CHECK_COMBO);
    dialog.setRedraw(IDC_COMBO1, false);
    dialog.addComboEntry(IDC_COMBO1, "0");
    dialog.setRedraw(IDC_COMBO1, true);
    EXPECT_EQ(GetWindowLongA(environment.control(IDD_CHECK_COMBO, IDC_COMBO1), GWL_STYLE) & WS_VISIBLE, 0);
}

// ---- The colour list

class ColourListTest : public Win32DialogTest {
protected:
    ColourListTest() : dialog(environment.open(IDD_CHECK_COMBOS)) {
        for (const std::string_view name : {"Red", "Beige", "Black"}) {
            dialog.addComboEntry(IDC_COLOUR_COMBO, name);
        }
        combo = environment.control(IDD_CHECK_COMBOS, IDC_COLOUR_COMBO);
    }

    void draw(UINT row, UINT state) {
        const RECT area{0, 0, 120, 15};
        picture.emplace(area.right, area.bottom, RGB(1, 1, 1));
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_COMBOBOX;
        item.itemID = row;
        item.itemState = state;
        item.hwndItem = combo;
        item.hDC = picture->dc();
        item.rcItem = area;
        item.itemData = kSwatch;
        drawColourRow(item);
        GdiFlush();
    }

    static constexpr Colour kSwatch = rgb(245, 245, 220);
    DialogControls& dialog;
    HWND combo = nullptr;
    std::optional<PictureOfWindow> picture;
};

TEST_F(ColourListTest, TypingFindsNames) {
    SendMessageA(combo, WM_CHAR, 'r', 0);
    EXPECT_EQ(dialog.text(IDC_COLOUR_COMBO), "Red");
    SendMessageA(combo, WM_KEYDOWN, VK_HOME, 0);
    EXPECT_EQ(dialog.text(IDC_COLOUR_COMBO), "Beige");
}

TEST_F(ColourListTest, ARowShowsItsColourInABlackFrameAndItsNameByItsState) {
    draw(0, 0);
    EXPECT_EQ(picture->at(1, 1), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(picture->at(2, 2), RGB(0, 0, 0));
    EXPECT_EQ(picture->at(3, 3), kSwatch);
    EXPECT_EQ(picture->at(12, 7), kSwatch);
    EXPECT_EQ(picture->at(12, 12), RGB(0, 0, 0));
    EXPECT_EQ(picture->at(12, 13), GetSysColor(COLOR_WINDOW));
    draw(0, ODS_SELECTED);
    EXPECT_EQ(picture->at(1, 1), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(picture->at(12, 7), kSwatch);
    EXPECT_GT(picture->count(~GetSysColor(COLOR_WINDOWTEXT) & 0xFFFFFF), 0);
    draw(0, ODS_DISABLED);
    EXPECT_GT(picture->count(GetSysColor(COLOR_GRAYTEXT)), 0);
}

}  // namespace
}  // namespace korvane
