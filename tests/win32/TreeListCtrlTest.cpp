// The tree's control: what it selects and tells, and what it draws over a picture,
// compared with what the platform's tree view draws by itself on a plain
// background of the same colour.
#include "platform/win32/PictureLoader.h"
#include "platform/win32/TreeListCtrl.h"
#include "tests/cli/TestFolder.h"
#include "tests/skin/BitmapBytes.h"
#include "tests/win32/ParentWindow.h"
#include "tests/win32/PictureOfWindow.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

#include <ole2.h>

namespace korvane {
namespace {

constexpr int kWidth = 240;
constexpr int kHeight = 180;
constexpr COLORREF kPale = RGB(236, 214, 250);
constexpr char kPicture[] = "data/Skin/BG.jpg";

HBITMAP plainBitmap(int width, int height, COLORREF colour) {
    const COLORREF inBitmap = RGB(GetBValue(colour), GetGValue(colour), GetRValue(colour));
    const std::vector<COLORREF> pixels(static_cast<std::size_t>(width * height), inBitmap);
    return CreateBitmap(width, height, 1, 32, pixels.data());
}

class TreeListCtrlTest : public ::testing::Test {
protected:
    TreeListCtrlTest() {
        const HINSTANCE instance = GetModuleHandleA(nullptr);
        registerTreeListClass(instance);
        window = CreateWindowExA(0, kTreeListClass, "", WS_CHILD | WS_VISIBLE, 0, 0, kWidth, kHeight, parent.window(),
                                 nullptr, instance, nullptr);
        tree = FindWindowExA(window, nullptr, WC_TREEVIEWA, nullptr);
        control = std::make_unique<Win32TreeListCtrl>(window);
    }

    int told = 0;
    ParentWindow parent{[this](UINT message, LPARAM) { told += message == kTreeSelectionChanged; }};
    HWND window = nullptr;
    HWND tree = nullptr;
    std::unique_ptr<Win32TreeListCtrl> control;
};

// ---- Selecting

class TreeSelectionTest : public TreeListCtrlTest {
protected:
    TreeSelectionTest() { build(); }

    void build() {
        control->DeleteAllItems();
        insert("Command Processor", insert("Accessories", kRootItem, 0), 1);
        insert("Desktop", kRootItem, 78);
    }

    CTreeListItem insert(std::string_view text, CTreeListItem above, std::uint32_t data) {
        const CTreeListItem item = control->InsertItem(text, above, kInsertLast);
        control->SetItemData(item, data);
        return item;
    }

    void key(WPARAM code) const { SendMessageA(GetFocus(), WM_KEYDOWN, code, 0); }

    // The selected row's data; -1 for none.
    int selected() const {
        std::uint32_t data = 0xDEAD;
        if (!control->GetSelectedItemData(data)) {
            EXPECT_EQ(data, 0xDEADu);
            return -1;
        }
        return static_cast<int>(data);
    }
};

TEST_F(TreeSelectionTest, StaysUnselectedUntilTheUserSelects) {
    EXPECT_EQ(selected(), -1);
    SetFocus(window);
    EXPECT_EQ(GetFocus(), tree);
    EXPECT_EQ(selected(), -1);
    EXPECT_EQ(told, 0);
    SendMessageA(tree, WM_CHAR, 'd', 1);  // finds by name, and tells
    EXPECT_EQ(selected(), 78);
    EXPECT_EQ(told, 1);
}

TEST_F(TreeSelectionTest, TheFirstMovingKeySelectsTheFirstRow) {
    for (const WPARAM code : {VK_DOWN, VK_UP, VK_RIGHT, VK_LEFT, VK_HOME, VK_END}) {
        SCOPED_TRACE(code);
        told = 0;
        SendMessageA(window, TVM_SELECTITEM, TVGN_CARET, 0);
        ASSERT_EQ(selected(), -1);
        SetFocus(parent.field());
        SetFocus(window);
        told = 0;
        key(code);
        EXPECT_EQ(selected(), 0);
        EXPECT_EQ(told, 1);
    }
    key(VK_END);
    // Focus keeps what is selected; building again tells nothing and selects nothing.
    SetFocus(parent.field());
    SetFocus(window);
    EXPECT_EQ(selected(), 78);
    EXPECT_EQ(told, 2);
    build();
    EXPECT_EQ(told, 2);
    EXPECT_EQ(selected(), -1);
}

// ---- The picture

class TreeBackgroundTest : public TreeListCtrlTest {
protected:
    TreeBackgroundTest() {
        OleInitialize(nullptr);
        fill();
    }
    ~TreeBackgroundTest() override {
        setPicture(nullptr);
        DeleteObject(bitmap);
        SendMessageA(tree, TVM_SETIMAGELIST, TVSIL_NORMAL, 0);
        ImageList_Destroy(images);
        OleUninitialize();
    }

    // Twelve rows with four below each; every third is bold.
    void fill() {
        images = ImageList_Create(16, 16, ILC_COLOR24 | ILC_MASK, 1, 1);
        const HBITMAP image = plainBitmap(16, 16, RGB(40, 90, 160));
        ImageList_AddMasked(images, image, RGB(255, 0, 0));
        DeleteObject(image);
        control->offerImageList(images);
        control->SetImageList();
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rows[i] = control->InsertItem("Row number " + std::to_string(i), kRootItem, kInsertLast);
            control->SetItemBold(rows[i], i % 3 == 0);
            for (int k = 0; k < 4; ++k) {
                control->InsertItem("Below it and wider than the window, so that it scrolls", rows[i], kInsertLast);
            }
        }
    }

    LPARAM row(std::size_t index) const { return static_cast<LPARAM>(rows[index]); }
    void select(std::size_t index) const { SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, row(index)); }
    void expand(std::size_t index) const { SendMessageA(tree, TVM_EXPAND, TVE_EXPAND, row(index)); }
    SIZE client() const { return PictureOfWindow::clientSize(tree); }
    void setPicture(HBITMAP picture) const {
        SendMessageA(window, kTreeSetPicture, reinterpret_cast<WPARAM>(picture), 0);
    }
    void setPlainPicture(int width, int height) {
        bitmap = plainBitmap(width, height, kPale);
        setPicture(bitmap);
    }
    void expectAllStale() const {
        RECT stale{};
        GetUpdateRect(tree, &stale, FALSE);
        EXPECT_TRUE(stale.left == 0 && stale.top == 0 && stale.right == client().cx && stale.bottom == client().cy);
    }

    // Differences between the tree over a picture of one colour, and the platform's drawing on that colour.
    int differences(COLORREF colour, int tolerance) const {
        const SIZE size = client();
        setPicture(nullptr);
        SendMessageA(tree, TVM_SETBKCOLOR, 0, static_cast<LPARAM>(colour));
        PictureOfWindow expected(size.cx, size.cy, colour);
        expected.print(tree);
        SendMessageA(tree, TVM_SETBKCOLOR, 0, -1);
        const HBITMAP plain = plainBitmap(size.cx, size.cy, colour);
        setPicture(plain);
        const PictureOfWindow drawn(tree);
        setPicture(nullptr);
        DeleteObject(plain);
        EXPECT_GT(drawn.count(colour), size.cx * size.cy / 4);
        return drawn.differencesFrom(expected, tolerance);
    }

    HIMAGELIST images = nullptr;
    HBITMAP bitmap = nullptr;
    std::array<CTreeListItem, 12> rows{};
};

TEST_F(TreeBackgroundTest, RowsLookAsTheyDoOnAPlainBackground) {
    const auto compare = [&](const char* state) {
        SCOPED_TRACE(state);
        EXPECT_EQ(differences(GetSysColor(COLOR_WINDOW), 0), 0);
        EXPECT_EQ(differences(kPale, 1), 0);
    };
    expand(1);
    compare("open");
    select(1);
    SetFocus(tree);
    compare("selected, with the focus");
    SendMessageA(tree, WM_HSCROLL, SB_PAGERIGHT, 0);
    SendMessageA(tree, WM_VSCROLL, SB_LINEDOWN, 0);
    compare("scrolled");
    EnableWindow(window, FALSE);
    compare("disabled");
}

TEST_F(TreeBackgroundTest, ThePictureLiesAtTheLowerRightCornerAndTakesTheWindowsColour) {
    setPlainPicture(30, 20);
    const auto look = [&](COLORREF inside, COLORREF outside) {
        const SIZE size = client();
        const PictureOfWindow drawn(tree);
        EXPECT_EQ(drawn.at(size.cx - 1, size.cy - 1), inside);
        EXPECT_EQ(drawn.at(size.cx - 30, size.cy - 20), inside);
        EXPECT_EQ(drawn.at(size.cx - 31, size.cy - 1), outside);
        EXPECT_EQ(drawn.at(size.cx - 1, size.cy - 21), outside);
    };
    look(kPale, RGB(255, 255, 255));
    EXPECT_EQ(static_cast<COLORREF>(SendMessageA(tree, TVM_GETBKCOLOR, 0, 0)), CLR_NONE);  // the system's, as before
    UpdateWindow(tree);
    MoveWindow(window, 0, 0, 200, 120, FALSE);
    expectAllStale();
    look(kPale, RGB(255, 255, 255));
    // Behind light text on a dark window, a light picture would make it unreadable.
    SendMessageA(tree, TVM_SETBKCOLOR, 0, RGB(100, 150, 200));
    look(RGB(236 * 100 / 255, 214 * 150 / 255, 250 * 200 / 255), RGB(100, 150, 200));
}

// A row that moves must not take the picture along: the whole tree is painted anew, and nothing else.
TEST_F(TreeBackgroundTest, WhateverMovesRowsHasTheWholeTreePaintedAnew) {
    setPlainPicture(50, 50);
    expand(0);
    SetFocus(tree);
    const std::function<void()> steps[] = {
        [&] { SendMessageA(tree, WM_VSCROLL, SB_LINEDOWN, 0); },
        [&] { SendMessageA(tree, WM_HSCROLL, SB_LINERIGHT, 0); },
        [&] { select(9); },
        [&] { SendMessageA(tree, TVM_ENSUREVISIBLE, 0, row(0)); },
        [&] { expand(3); },
    };
    for (std::size_t i = 0; i < std::size(steps); ++i) {
        SCOPED_TRACE(i);
        UpdateWindow(tree);
        ASSERT_FALSE(GetUpdateRect(tree, nullptr, FALSE));
        steps[i]();
        expectAllStale();
        EXPECT_TRUE(IsWindowVisible(tree));
    }
}

TEST_F(TreeBackgroundTest, WhatIsNoPictureLeavesTheBackgroundPlain) {
    const TestFolder folder;
    // The width of the picture that the tree has been given from the file; 0 when its background has stayed plain.
    const auto loadedWidth = [&](const std::string& path) {
        int width = -1;
        int height = -1;
        control->GetBGImage().load(path, width, height);
        const PictureOfWindow drawn(tree);
        setPicture(nullptr);
        EXPECT_EQ(width == 0, drawn.differencesFrom(PictureOfWindow(tree), 0) == 0) << path;
        return width;
    };
    EXPECT_EQ(loadedWidth(kPicture), 320);
    EXPECT_EQ(loadedWidth(folder.file("none.jpg")), 0);  // and the one before it is gone
    const std::string whole = readFile(kPicture);
    const std::string contents[] = {"", whole.substr(0, 160), std::string(3000, 'x'),
                                    readFile("res/korvane.ico"),  // a picture, but no bitmap
                                    whole + std::string(kLargestPictureFile, '\0')};
    for (const std::string& content : contents) {
        writeFile(folder.file("bad.jpg"), content);
        EXPECT_EQ(loadedWidth(folder.file("bad.jpg")), 0) << content.size();
    }
    writeFile(folder.file("bitmap.jpg"), skin::greyBitmap(70, 30));
    EXPECT_EQ(loadedWidth(folder.file("bitmap.jpg")), 70);
}

}  // namespace
}  // namespace korvane
