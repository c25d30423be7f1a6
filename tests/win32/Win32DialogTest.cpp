// Real dialogs behave as those in memory do; beyond that, what only real ones
// have: open lists, painted rows, the keyboard, clicks.
#include "tests/platform/DialogBehaviour.h"
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
        for (int step = 0; step < 3; ++step) {
            Rect rect = dialog.controlRect(id);
            rect.left += 7;
            dialog.moveControl(id, rect);
            EXPECT_EQ(dialog.controlRect(id), rect);
        }
        EXPECT_EQ(openListHeight(combo), height);
    }
}

// Redrawing is switched by a message that also shows ordinary windows.
TEST_F(Win32DialogTest, FillingAHiddenComboDoesNotShowIt) {
    DialogControls& dialog = environment.open(IDD_CHECK_COMBO);
    const HWND combo = environment.control(IDD_CHECK_COMBO, IDC_COMBO1);
    dialog.setRedraw(IDC_COMBO1, false);
    dialog.addComboEntry(IDC_COMBO1, "0");
    dialog.setRedraw(IDC_COMBO1, true);
    EXPECT_EQ(GetWindowLongA(combo, GWL_STYLE) & WS_VISIBLE, 0);
    dialog.showControl(IDC_COMBO1, true);
    EXPECT_NE(GetWindowLongA(combo, GWL_STYLE) & WS_VISIBLE, 0);
}

TEST_F(Win32DialogTest, OnlyClicksReachTheHandler) {
    DialogControls& dialog = environment.open(IDD_CHECK_FIELDS);
    dialog.setText(IDC_EDIT1, "changed");
    dialog.setCheck(IDC_CHECK2, 1);
    EXPECT_TRUE(environment.clicked(IDD_CHECK_FIELDS).empty());
    SendMessageA(environment.control(IDD_CHECK_FIELDS, IDC_CHECK1), BM_CLICK, 0, 0);
    SendMessageA(environment.control(IDD_CHECK_FIELDS, IDC_BROWSE2), BM_CLICK, 0, 0);
    EXPECT_EQ(environment.clicked(IDD_CHECK_FIELDS), (std::vector<int>{IDC_CHECK1, IDC_BROWSE2}));
    EXPECT_EQ(dialog.check(IDC_CHECK1), 1U);
}

TEST_F(Win32DialogTest, AListsCellsHaveTheBackgroundOfTheList) {
    DialogControls& dialog = environment.open(IDD_CHECK_LIST);
    dialog.setListStyle(IDC_CHECK_LIST, 0x624, rgb(249, 250, 251));
    const HWND list = environment.control(IDD_CHECK_LIST, IDC_CHECK_LIST);
    EXPECT_EQ(static_cast<Colour>(SendMessageA(list, LVM_GETBKCOLOR, 0, 0)), rgb(249, 250, 251));
    EXPECT_EQ(static_cast<Colour>(SendMessageA(list, LVM_GETTEXTBKCOLOR, 0, 0)), rgb(249, 250, 251));
    EXPECT_EQ(SendMessageA(list, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0), 0x624);
    dialog.setListStyle(IDC_CHECK_LIST, 0x620, rgb(249, 250, 251));  // styles left out are taken away
    EXPECT_EQ(SendMessageA(list, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0), 0x620);
}

TEST_F(Win32DialogTest, EndingAPageHidesItForGood) {
    DialogControls& dialog = environment.open(IDD_CHECKS);
    ShowWindow(environment.parent(), SW_SHOWNOACTIVATE);
    dialog.show(true);
    EXPECT_TRUE(IsWindowVisible(environment.page(IDD_CHECKS)));
    dialog.endDialog(0);
    EXPECT_FALSE(IsWindowVisible(environment.page(IDD_CHECKS)));
    EXPECT_EQ(dialog.text(IDC_CHECK1), "Check1");  // its controls stay valid
}

// ---- The colour list

class ColourListTest : public Win32DialogTest {
protected:
    ColourListTest() : dialog(environment.open(IDD_CHECK_COMBOS)) {
        for (const std::string_view name : {"Red", "Beige", "Black", "Blue"}) {
            add(name, rgb(1, 2, 3));
        }
        combo = environment.control(IDD_CHECK_COMBOS, IDC_COLOUR_COMBO);
    }

    void add(std::string_view name, Colour colour) {
        dialog.setComboData(IDC_COLOUR_COMBO, dialog.addComboEntry(IDC_COLOUR_COMBO, name), colour);
    }

    DialogControls& dialog;
    HWND combo = nullptr;
};

TEST_F(ColourListTest, TypingFindsNames) {
    SendMessageA(combo, WM_CHAR, 'r', 0);
    EXPECT_EQ(dialog.text(IDC_COLOUR_COMBO), "Red");
    SendMessageA(combo, WM_KEYDOWN, VK_HOME, 0);
    EXPECT_EQ(dialog.text(IDC_COLOUR_COMBO), "Beige");
    SendMessageA(combo, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(dialog.text(IDC_COLOUR_COMBO), "Black");
}

TEST_F(ColourListTest, IsAsHighAsTheOtherCombosAndItsRowsAsALineOfText) {
    EXPECT_EQ(dialog.controlRect(IDC_COLOUR_COMBO).height(), dialog.controlRect(IDC_COMBO1).height());
    EXPECT_EQ(SendMessageA(combo, CB_GETITEMHEIGHT, 0, 0), 15);
}

// A row drawn into a picture of its own.
class PaintedRow {
public:
    static constexpr RECT kArea{0, 0, 120, 15};

    PaintedRow(HWND combo, UINT row, Colour colour, UINT state) : dc_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), kArea.right, kArea.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        picture_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        old_ = SelectObject(dc_, picture_);
        DRAWITEMSTRUCT draw{};
        draw.CtlType = ODT_COMBOBOX;
        draw.itemID = row;
        draw.itemState = state;
        draw.hwndItem = combo;
        draw.hDC = dc_;
        draw.rcItem = kArea;
        draw.itemData = colour;
        drawColourRow(draw);
    }
    PaintedRow(const PaintedRow&) = delete;
    PaintedRow& operator=(const PaintedRow&) = delete;
    ~PaintedRow() {
        SelectObject(dc_, old_);
        DeleteObject(picture_);
        DeleteDC(dc_);
    }

    Colour at(int x, int y) const { return GetPixel(dc_, x, y); }
    // Whether anything behind the swatch has that colour.
    bool hasText(Colour colour) const {
        for (int x = 30; x < kArea.right - 2; ++x) {
            for (int y = 2; y < kArea.bottom - 2; ++y) {
                if (at(x, y) == colour) {
                    return true;
                }
            }
        }
        return false;
    }

private:
    HDC dc_;
    HBITMAP picture_ = nullptr;
    HGDIOBJ old_ = nullptr;
};

TEST_F(ColourListTest, ARowShowsItsColourInABlackFrameAndItsName) {
    const PaintedRow row(combo, 0, rgb(245, 245, 220), 0);
    EXPECT_EQ(row.at(1, 1), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(row.at(2, 2), rgb(0, 0, 0));
    EXPECT_EQ(row.at(3, 3), rgb(245, 245, 220));
    EXPECT_EQ(row.at(12, 7), rgb(245, 245, 220));
    EXPECT_EQ(row.at(12, 12), rgb(0, 0, 0));
    EXPECT_EQ(row.at(12, 13), GetSysColor(COLOR_WINDOW));
    EXPECT_TRUE(row.hasText(GetSysColor(COLOR_WINDOWTEXT)));
}

TEST_F(ColourListTest, TheStateOfARowColoursItsTextAndBackground) {
    const PaintedRow selected(combo, 0, rgb(1, 2, 3), ODS_SELECTED);
    EXPECT_EQ(selected.at(1, 1), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(selected.at(12, 7), rgb(1, 2, 3));
    EXPECT_TRUE(selected.hasText(~GetSysColor(COLOR_WINDOWTEXT) & 0xFFFFFF));

    const PaintedRow disabled(combo, 0, rgb(1, 2, 3), ODS_DISABLED);
    EXPECT_TRUE(disabled.hasText(GetSysColor(COLOR_GRAYTEXT)));
    EXPECT_FALSE(disabled.hasText(GetSysColor(COLOR_WINDOWTEXT)));

    const PaintedRow focused(combo, 0, rgb(1, 2, 3), ODS_FOCUS);
    EXPECT_NE(focused.at(110, 0) == focused.at(111, 0), true);  // dotted

    const PaintedRow none(combo, static_cast<UINT>(-1), rgb(1, 2, 3), 0);
    EXPECT_EQ(none.at(12, 7), GetSysColor(COLOR_WINDOW));
}

}  // namespace
}  // namespace korvane
