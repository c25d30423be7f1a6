// The tree over a picture: what it draws is compared with what the platform's
// tree view draws by itself on a plain background of the same colour.
#include "platform/win32/PictureLoader.h"
#include "platform/win32/TreeBackground.h"
#include "platform/win32/TreeListCtrl.h"
#include "tests/cli/TestFolder.h"
#include "tests/skin/BitmapBytes.h"
#include "tests/win32/PictureOfWindow.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <functional>
#include <string>

#include <ole2.h>

namespace korvane {
namespace {

constexpr int kWidth = 240;
constexpr int kHeight = 180;
constexpr COLORREF kPale = RGB(236, 214, 250);
constexpr char kPicture[] = "data/Skin/BG.jpg";

HBITMAP plainBitmap(int width, int height, COLORREF colour) {
    const HDC screen = GetDC(nullptr);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    const HDC dc = CreateCompatibleDC(screen);
    const HGDIOBJ old = SelectObject(dc, bitmap);
    const HBRUSH brush = CreateSolidBrush(colour);
    const RECT all{0, 0, width, height};
    FillRect(dc, &all, brush);
    DeleteObject(brush);
    SelectObject(dc, old);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

class TreeBackgroundTest : public ::testing::Test {
protected:
    TreeBackgroundTest() {
        OleInitialize(nullptr);
        const HINSTANCE instance = GetModuleHandleA(nullptr);
        registerTreeListClass(instance);
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = parentProc;
        windowClass.hInstance = instance;
        windowClass.lpszClassName = "Korvane.TreeBackgroundTest";
        RegisterClassA(&windowClass);
        parent = CreateWindowExA(0, windowClass.lpszClassName, "", WS_POPUP | WS_VISIBLE, 20, 20, 400, 400, nullptr,
                                 nullptr, instance, nullptr);
        SetWindowLongPtrA(parent, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        other = CreateWindowExA(0, "Edit", "", WS_CHILD | WS_VISIBLE, 350, 0, 50, 20, parent, nullptr, instance,
                                nullptr);
        window = CreateWindowExA(0, kTreeListClass, "", WS_CHILD | WS_VISIBLE, 0, 0, kWidth, kHeight, parent, nullptr,
                                 instance, nullptr);
        tree = FindWindowExA(window, nullptr, WC_TREEVIEWA, nullptr);
        control = std::make_unique<Win32TreeListCtrl>(window);
        SetFocus(other);
        fill();
    }
    ~TreeBackgroundTest() override {
        SendMessageA(tree, TVM_SETIMAGELIST, TVSIL_NORMAL, 0);
        DestroyWindow(parent);
        ImageList_Destroy(images);
        OleUninitialize();
    }

    static LRESULT CALLBACK parentProc(HWND parentWindow, UINT message, WPARAM wParam, LPARAM lParam) {
        auto* self = reinterpret_cast<TreeBackgroundTest*>(GetWindowLongPtrA(parentWindow, GWLP_USERDATA));
        if (message == kTreeSelectionChanged && self != nullptr) {
            ++self->told;
            self->seenWhenTold = IsWindowVisible(self->tree) != FALSE;
        }
        return DefWindowProcA(parentWindow, message, wParam, lParam);
    }

    // Twelve rows with four below each; every third is bold and has the second image.
    void fill() {
        images = ImageList_Create(16, 16, ILC_COLOR24 | ILC_MASK, 2, 1);
        for (const COLORREF colour : {RGB(40, 90, 160), RGB(230, 160, 60)}) {
            const HBITMAP image = plainBitmap(16, 16, colour);
            ImageList_AddMasked(images, image, RGB(255, 0, 0));
            DeleteObject(image);
        }
        control->offerImageList(images);
        control->SetImageList();
        for (int i = 0; i < 12; ++i) {
            rows[static_cast<std::size_t>(i)] =
                insert("Row number " + std::to_string(i), kRootItem, i % 3 == 0);
            for (int k = 0; k < 4; ++k) {
                insert("Below it and much wider than the window is, so that it scrolls " + std::to_string(k),
                       rows[static_cast<std::size_t>(i)], k == 2);
            }
        }
    }
    CTreeListItem insert(const std::string& text, CTreeListItem above, bool bold) {
        const CTreeListItem item = control->InsertItem(text, above, kInsertLast);
        control->SetItemBold(item, bold);
        control->SetItemImage(item, bold, bold, bold, bold);
        return item;
    }

    HTREEITEM row(std::size_t index) const { return reinterpret_cast<HTREEITEM>(rows[index]); }
    void select(std::size_t index) const {
        SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(row(index)));
    }
    void expand(std::size_t index) const {
        SendMessageA(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(row(index)));
    }
    bool isExpanded(std::size_t index) const {
        TVITEMA item{};
        item.mask = TVIF_HANDLE | TVIF_STATE;
        item.hItem = row(index);
        item.stateMask = TVIS_EXPANDED;
        SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
        return (item.state & TVIS_EXPANDED) != 0;
    }
    RECT textOf(std::size_t index) const {
        RECT rect{};
        const HTREEITEM item = row(index);
        std::memcpy(&rect, &item, sizeof item);  // as the message wants it
        SendMessageA(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&rect));
        return rect;
    }
    SIZE client() const {
        RECT area{};
        GetClientRect(tree, &area);
        return {area.right, area.bottom};
    }
    void setPicture(HBITMAP bitmap) const {
        SendMessageA(window, kTreeSetPicture, reinterpret_cast<WPARAM>(bitmap), 0);
    }

    // Differences between the tree over a picture of one colour, and the platform's drawing on that colour.
    int differences(COLORREF colour, int tolerance) const {
        const SIZE size = client();
        setPicture(nullptr);
        SendMessageA(tree, TVM_SETBKCOLOR, 0, static_cast<LPARAM>(colour));
        PictureOfWindow expected(size.cx, size.cy, colour);
        expected.print(tree);
        SendMessageA(tree, TVM_SETBKCOLOR, 0, -1);
        const HBITMAP bitmap = plainBitmap(size.cx, size.cy, colour);
        setPicture(bitmap);
        PictureOfWindow drawn(size.cx, size.cy, RGB(1, 1, 1));
        drawn.print(tree);
        setPicture(nullptr);
        DeleteObject(bitmap);
        EXPECT_GT(drawn.count(colour), size.cx * size.cy / 4);
        EXPECT_LT(drawn.count(colour), size.cx * size.cy);
        return drawn.differencesFrom(expected, tolerance);
    }

    HWND parent = nullptr;
    HWND other = nullptr;
    HWND window = nullptr;
    HWND tree = nullptr;
    HIMAGELIST images = nullptr;
    std::unique_ptr<Win32TreeListCtrl> control;
    std::array<CTreeListItem, 12> rows{};
    int told = 0;
    bool seenWhenTold = false;
};

TEST_F(TreeBackgroundTest, RowsLookAsTheyDoOnAPlainBackground) {
    const auto compare = [&](const char* state) {
        SCOPED_TRACE(state);
        EXPECT_EQ(differences(GetSysColor(COLOR_WINDOW), 0), 0);
        EXPECT_EQ(differences(kPale, 1), 0);
    };
    compare("closed");
    expand(1);
    compare("open");
    select(1);
    compare("selected");
    SetFocus(tree);
    compare("selected, with the focus");
    SendMessageA(tree, WM_HSCROLL, SB_PAGERIGHT, 0);
    SendMessageA(tree, WM_VSCROLL, SB_LINEDOWN, 0);
    compare("scrolled");
    SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(ANSI_FIXED_FONT)), FALSE);
    compare("another font");
    EnableWindow(window, FALSE);
    compare("disabled");
}

TEST_F(TreeBackgroundTest, ThePictureLiesAtTheLowerRightCornerAndTakesTheWindowsColour) {
    const HBITMAP bitmap = plainBitmap(30, 20, kPale);
    setPicture(bitmap);
    const auto look = [&](COLORREF inside, COLORREF outside) {
        const SIZE size = client();
        PictureOfWindow drawn(size.cx, size.cy, RGB(1, 1, 1));
        drawn.print(tree);
        EXPECT_EQ(drawn.at(size.cx - 1, size.cy - 1), inside);
        EXPECT_EQ(drawn.at(size.cx - 30, size.cy - 20), inside);
        EXPECT_EQ(drawn.at(size.cx - 31, size.cy - 1), outside);
        EXPECT_EQ(drawn.at(size.cx - 1, size.cy - 21), outside);
    };
    look(kPale, RGB(255, 255, 255));
    EXPECT_EQ(static_cast<COLORREF>(SendMessageA(tree, TVM_GETBKCOLOR, 0, 0)), CLR_NONE);  // the system's, as before
    UpdateWindow(tree);
    MoveWindow(window, 0, 0, 200, 120, FALSE);
    RECT stale{};
    GetUpdateRect(tree, &stale, FALSE);
    EXPECT_TRUE(stale.left == 0 && stale.top == 0 && stale.right == client().cx && stale.bottom == client().cy);
    look(kPale, RGB(255, 255, 255));
    // Behind light text on a dark window, a light picture would make it unreadable.
    SendMessageA(tree, TVM_SETBKCOLOR, 0, RGB(0, 0, 0));
    look(RGB(0, 0, 0), RGB(0, 0, 0));
    SendMessageA(tree, TVM_SETBKCOLOR, 0, RGB(100, 150, 200));
    look(RGB(236 * 100 / 255, 214 * 150 / 255, 250 * 200 / 255), RGB(100, 150, 200));
    EXPECT_EQ(SendMessageA(tree, TVM_GETBKCOLOR, 0, 0), RGB(100, 150, 200));
    setPicture(nullptr);
    DeleteObject(bitmap);
}

TEST_F(TreeBackgroundTest, TheSelectedRowHasTheSystemsColoursOverAPicture) {
    const HBITMAP bitmap = plainBitmap(client().cx, client().cy, RGB(250, 220, 90));
    setPicture(bitmap);
    SetFocus(tree);
    select(2);
    PictureOfWindow drawn(client().cx, client().cy, RGB(1, 1, 1));
    drawn.print(tree);
    const RECT text = textOf(2);
    int highlighted = 0;
    for (LONG x = text.left + 1; x < text.right - 1; ++x) {
        highlighted += drawn.at(x, text.top + 1) == GetSysColor(COLOR_HIGHLIGHT);
    }
    EXPECT_GT(highlighted, (text.right - text.left) / 2);
    EXPECT_EQ(drawn.at(text.right + 3, text.top + 1), RGB(250, 220, 90));
    setPicture(nullptr);
    DeleteObject(bitmap);
}

// A row that moves must not take the picture along: the whole tree is painted anew, and nothing else.
TEST_F(TreeBackgroundTest, WhateverMovesRowsHasTheWholeTreePaintedAnew) {
    const HBITMAP bitmap = plainBitmap(50, 50, kPale);
    setPicture(bitmap);
    expand(0);
    SetFocus(tree);
    const auto toggle = [&](UINT message) {
        const RECT text = textOf(0);
        const int indent = static_cast<int>(SendMessageA(tree, TVM_GETINDENT, 0, 0));
        const LPARAM at = MAKELPARAM(text.left - 18 - indent / 2, (text.top + text.bottom) / 2);
        SendMessageA(tree, message, MK_LBUTTON, at);
    };
    const std::function<void()> steps[] = {
        [&] { SendMessageA(tree, WM_VSCROLL, SB_LINEDOWN, 0); },
        [&] { SendMessageA(tree, WM_HSCROLL, SB_LINERIGHT, 0); },
        [&] { SendMessageA(tree, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0); },
        [&] { SendMessageA(tree, WM_KEYDOWN, VK_END, 0); },
        [&] { SendMessageA(tree, WM_KEYDOWN, VK_HOME, 0); },
        [&] { select(9); },
        [&] { SendMessageA(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(row(0))); },
        [&] { expand(3); },
        [&] { toggle(WM_LBUTTONDOWN); },
        [&] { toggle(WM_LBUTTONDBLCLK); },
    };
    for (std::size_t i = 0; i < std::size(steps); ++i) {
        SCOPED_TRACE(i);
        UpdateWindow(tree);
        ASSERT_FALSE(GetUpdateRect(tree, nullptr, FALSE));
        steps[i]();
        RECT stale{};
        GetUpdateRect(tree, &stale, FALSE);
        EXPECT_TRUE(stale.left == 0 && stale.top == 0 && stale.right == client().cx && stale.bottom == client().cy);
        EXPECT_TRUE(IsWindowVisible(tree));
    }
    EXPECT_TRUE(isExpanded(0));  // closed by the one press on its button, opened by the other
    EXPECT_TRUE(isExpanded(3));
    setPicture(nullptr);
    DeleteObject(bitmap);
}

TEST_F(TreeBackgroundTest, TheParentIsToldWhileTheTreeCanBeSeenAndAHiddenTreeStaysHidden) {
    const HBITMAP bitmap = plainBitmap(50, 50, kPale);
    setPicture(bitmap);
    select(5);
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(seenWhenTold);
    ShowWindow(tree, SW_HIDE);
    select(11);
    expand(11);
    EXPECT_EQ(told, 2);
    EXPECT_FALSE(IsWindowVisible(tree));
    setPicture(nullptr);
    DeleteObject(bitmap);
}

TEST_F(TreeBackgroundTest, PaintingLeavesNoDrawingObjectsBehind) {
    int width = 0;
    int height = 0;
    control->GetBGImage().load(kPicture, width, height);
    const auto repaint = [&](int times) {
        for (int i = 0; i < times; ++i) {
            InvalidateRect(tree, nullptr, FALSE);
            UpdateWindow(tree);
        }
    };
    repaint(3);  // the platform keeps some for itself
    const int before = drawingObjectMark();
    repaint(500);
    EXPECT_LT(drawingObjectMark(), before + 20);
}

TEST_F(TreeBackgroundTest, HighContrastHidesThePicture) {
    const HBITMAP bitmap = plainBitmap(5, 5, kPale);
    for (const bool wanted : {false, true}) {
        TreeBackground background(wanted ? [] { return true; } : [] { return false; });
        EXPECT_FALSE(background.isShown());
        background.setPicture(bitmap);
        EXPECT_EQ(background.isShown(), !wanted);
    }
    DeleteObject(bitmap);
}

class PictureLoaderTest : public TreeBackgroundTest {
protected:
    // Of the picture that the tree has been given from the file; 0 when its background has stayed plain.
    int loadedWidth(const std::string& path) const {
        int width = -1;
        int height = -1;
        control->GetBGImage().load(path, width, height);
        const SIZE size = client();
        PictureOfWindow drawn(size.cx, size.cy, RGB(255, 255, 255));
        PictureOfWindow plain(size.cx, size.cy, RGB(255, 255, 255));
        drawn.print(tree);
        setPicture(nullptr);
        plain.print(tree);
        const bool isPlain = drawn.differencesFrom(plain, 0) == 0;
        EXPECT_EQ(width == 0, isPlain) << path;
        EXPECT_EQ(width == 0, height == 0) << path;
        return width;
    }

    TestFolder folder;
};

TEST_F(PictureLoaderTest, LoadsPicturesOfTheKindsThatThePlatformKnows) {
    EXPECT_EQ(loadedWidth(kPicture), 320);
    writeFile(folder.file("bitmap.jpg"), greyBitmap(70, 30));
    EXPECT_EQ(loadedWidth(folder.file("bitmap.jpg")), 70);
    EXPECT_EQ(loadedWidth(folder.file("none.jpg")), 0);  // and the one before it is gone
}

TEST_F(PictureLoaderTest, WhatIsNoPictureLeavesTheBackgroundPlain) {
    const std::string whole = readFile(kPicture);
    ASSERT_GT(whole.size(), 2000u);
    for (const int length : {0, 1, 2, 20, 160}) {
        writeFile(folder.file("cut.jpg"), whole.substr(0, static_cast<std::size_t>(length)));
        EXPECT_EQ(loadedWidth(folder.file("cut.jpg")), 0) << length;
    }
    writeFile(folder.file("text.jpg"), std::string(3000, 'x'));
    EXPECT_EQ(loadedWidth(folder.file("text.jpg")), 0);
    writeFile(folder.file("icon.jpg"), readFile("res/korvane.ico"));  // a picture, but no bitmap
    EXPECT_EQ(loadedWidth(folder.file("icon.jpg")), 0);
    writeFile(folder.file("large.jpg"), whole + std::string(kLargestPictureFile, '\0'));
    EXPECT_EQ(loadedWidth(folder.file("large.jpg")), 0);
    EXPECT_EQ(loadedWidth(folder.path()), 0);
    EXPECT_EQ(loadedWidth(""), 0);
}

TEST_F(PictureLoaderTest, AFileThatSomebodyHasOpenIsNotLoaded) {
    const std::string path = folder.file("open.jpg");
    writeFile(path, readFile(kPicture));
    const HANDLE open = CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(open, INVALID_HANDLE_VALUE);
    EXPECT_EQ(loadedWidth(path), 0);
    CloseHandle(open);
    EXPECT_EQ(loadedWidth(path), 320);
    writeFile(path, "");  // the loader has closed it
    EXPECT_EQ(readFile(path), "");
}

}  // namespace
}  // namespace korvane
