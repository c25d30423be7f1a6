// Dragging the divider by mouse messages, as the mouse sends them.
#include "platform/win32/Splitter.h"
#include "platform/win32/Win32Dialog.h"

#include <gtest/gtest.h>

#include <vector>

namespace korvane {
namespace {

constexpr int kId = 1053;
constexpr int kLeft = 332;

class SplitterTest : public ::testing::Test {
protected:
    SplitterTest() {
        const HINSTANCE instance = GetModuleHandleA(nullptr);
        registerSplitterClass(instance);
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = parentProc;
        windowClass.hInstance = instance;
        windowClass.lpszClassName = "Korvane.SplitterTest";
        RegisterClassA(&windowClass);
        parent = CreateWindowExA(0, windowClass.lpszClassName, "", WS_POPUP | WS_VISIBLE, 20, 20, 750, 408, nullptr,
                                 nullptr, instance, nullptr);
        SetWindowLongPtrA(parent, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        field = CreateWindowExA(0, "Edit", "", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, parent, nullptr, instance,
                                nullptr);
        splitter = createSplitter(instance, parent, kId, {kLeft, 50, kLeft + 2, 396}, 50, 10);
        SetFocus(field);
    }
    ~SplitterTest() override { DestroyWindow(parent); }

    static LRESULT CALLBACK parentProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        auto* self = reinterpret_cast<SplitterTest*>(GetWindowLongPtrA(window, GWLP_USERDATA));
        if (message == WM_NOTIFY && self != nullptr) {
            const auto& moved = *reinterpret_cast<const SplitterNotification*>(lParam);
            EXPECT_EQ(wParam, WPARAM{kId});
            EXPECT_EQ(moved.header.code, kSplitterMoved);
            EXPECT_EQ(GetCapture(), nullptr);  // the drag is over by then
            self->distances.push_back(moved.distance);
        }
        return DefWindowProcA(window, message, wParam, lParam);
    }

    void mouse(UINT message, int x) const {
        SendMessageA(splitter, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(x, 10));
    }

    void drag(int distance) const {
        mouse(WM_LBUTTONDOWN, 1);
        mouse(WM_MOUSEMOVE, 1 + distance / 2);
        mouse(WM_MOUSEMOVE, 1 + distance);
        mouse(WM_LBUTTONUP, 1 + distance);
    }

    int left() const { return rectInParent(splitter).left; }

    HWND parent = nullptr;
    HWND field = nullptr;
    HWND splitter = nullptr;
    std::vector<int> distances;
};

TEST_F(SplitterTest, MovesAndTellsTheDistance) {
    drag(-30);
    EXPECT_EQ(left(), kLeft - 30);
    drag(25);
    EXPECT_EQ(rectInParent(splitter), (Rect{kLeft - 5, 50, kLeft - 3, 396}));
    EXPECT_EQ(distances, (std::vector<int>{-30, 25}));
}

TEST_F(SplitterTest, StaysInTheRangeAroundItsFirstPlace) {
    drag(400);
    EXPECT_EQ(left(), kLeft + 10);
    drag(5);  // no further, and no news
    drag(-40);
    EXPECT_EQ(left(), kLeft - 30);
    drag(-400);
    EXPECT_EQ(left(), kLeft - 50);
    EXPECT_EQ(distances, (std::vector<int>{10, -40, -20}));
}

TEST_F(SplitterTest, DragsOnlyBetweenPressAndRelease) {
    mouse(WM_MOUSEMOVE, 9);
    mouse(WM_LBUTTONUP, 9);
    EXPECT_TRUE(distances.empty());
    mouse(WM_LBUTTONDOWN, 1);
    EXPECT_EQ(GetCapture(), splitter);
    mouse(WM_LBUTTONUP, 1);  // where it was pressed
    EXPECT_EQ(GetCapture(), nullptr);
    mouse(WM_MOUSEMOVE, 9);
    EXPECT_TRUE(distances.empty());
    EXPECT_EQ(left(), kLeft);
}

TEST_F(SplitterTest, EscapeCallsTheDragOff) {
    mouse(WM_LBUTTONDOWN, 1);
    mouse(WM_MOUSEMOVE, -19);
    // The dialog must not take the key for itself, which would close the window.
    EXPECT_EQ(GetFocus(), splitter);
    EXPECT_TRUE(SendMessageA(splitter, WM_GETDLGCODE, VK_ESCAPE, 0) & DLGC_WANTALLKEYS);
    SendMessageA(splitter, WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(GetFocus(), field);
    mouse(WM_LBUTTONUP, -19);
    EXPECT_EQ(left(), kLeft);
    EXPECT_TRUE(distances.empty());
    drag(-20);  // as ever
    EXPECT_EQ(distances, (std::vector<int>{-20}));
    EXPECT_EQ(GetFocus(), field);
}

TEST_F(SplitterTest, LosingTheMouseCallsTheDragOff) {
    mouse(WM_LBUTTONDOWN, 1);
    mouse(WM_MOUSEMOVE, -19);
    SetCapture(parent);
    mouse(WM_LBUTTONUP, -19);
    EXPECT_EQ(GetCapture(), parent);
    ReleaseCapture();
    EXPECT_EQ(left(), kLeft);
    EXPECT_TRUE(distances.empty());
    // Nothing of the drag is left on the window.
    EXPECT_EQ(GetWindow(GetWindow(parent, GW_CHILD), GW_HWNDNEXT), splitter);
    EXPECT_EQ(GetWindow(splitter, GW_HWNDNEXT), nullptr);
}

}  // namespace
}  // namespace korvane
