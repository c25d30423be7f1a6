// Dragging the divider by mouse messages, as the mouse sends them.
#include "platform/win32/Splitter.h"
#include "platform/win32/WindowFunctions.h"
#include "tests/win32/ParentWindow.h"

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
        splitter = createSplitter(instance, parent.window(), kId, {kLeft, 50, kLeft + 2, 396}, {.left = 50, .right = 10});
    }

    void onMessage(UINT message, LPARAM lParam) {
        if (message == WM_NOTIFY) {
            const auto& moved = *reinterpret_cast<const SplitterNotification*>(lParam);
            EXPECT_EQ(moved.header.code, kSplitterMoved);
            EXPECT_EQ(GetCapture(), nullptr);  // the drag is over by then
            distances.push_back(moved.distance);
        }
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

    std::vector<int> distances;
    ParentWindow parent{[this](UINT message, LPARAM lParam) { onMessage(message, lParam); }};
    HWND splitter = nullptr;
};

TEST_F(SplitterTest, MovesInTheRangeAroundItsFirstPlaceAndTellsTheDistance) {
    drag(400);
    EXPECT_EQ(rectInParent(splitter), (Rect{kLeft + 10, 50, kLeft + 12, 396}));
    drag(5);  // no further, and no news
    drag(-40);
    EXPECT_EQ(left(), kLeft - 30);
    drag(-400);
    EXPECT_EQ(left(), kLeft - 50);
    EXPECT_EQ(distances, (std::vector<int>{10, -40, -20}));
}

TEST_F(SplitterTest, EscapeCallsTheDragOff) {
    mouse(WM_LBUTTONDOWN, 1);
    mouse(WM_MOUSEMOVE, -19);
    // The dialog must not take the key for itself, which would close the window.
    EXPECT_EQ(GetFocus(), splitter);
    EXPECT_TRUE(SendMessageA(splitter, WM_GETDLGCODE, VK_ESCAPE, 0) & DLGC_WANTALLKEYS);
    SendMessageA(splitter, WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(GetFocus(), parent.field());
    mouse(WM_LBUTTONUP, -19);
    EXPECT_EQ(left(), kLeft);
    EXPECT_TRUE(distances.empty());
}

}  // namespace
}  // namespace korvane
