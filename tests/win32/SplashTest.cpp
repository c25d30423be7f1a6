// The splash: the control and its picture's window.
#include "skin/win32/SplashControl.h"

#include "tests/cli/TestFolder.h"
#include "tests/skin/BitmapBytes.h"
#include "tests/win32/ParentWindow.h"
#include "tests/win32/PictureOfWindow.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane::skin {
namespace {

HWND shownSplash() {
    const HWND splash = FindWindowA("Korvane.SplashPicture", nullptr);
    return splash != nullptr && IsWindowVisible(splash) ? splash : nullptr;
}

void handleMessages() {
    MSG message{};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        DispatchMessageA(&message);
    }
}

// Red, green and blue above transparent, black and white.
std::string sixPixels() {
    const std::string below("\xFF\x00\xFF\x00\x00\x00\xFF\xFF\xFF\x00\x00\x00", 12);
    const std::string above("\x00\x00\xFF\x00\xFF\x00\xFF\x00\x00\x00\x00\x00", 12);
    return BitmapBytes{.width = 3, .height = 2, .rows = below + above}.str();
}

class SplashTest : public ::testing::Test {
protected:
    SplashTest() {
        const HINSTANCE instance = GetModuleHandleA(nullptr);
        registerSplashClass(instance);
        control = CreateWindowExA(0, kSplashClass, "", WS_CHILD | WS_VISIBLE, 50, 50, 20, 20, parent.window(), nullptr,
                                  instance, nullptr);
        writeFile(folder.file("Six.bmp"), sixPixels());
        writeFile(folder.file("Splash.spl"), "[Splash]\nFormat=1\nPicture=Six.bmp\n");
        EXPECT_EQ(shownSplash(), nullptr);
    }
    ~SplashTest() override {
        DestroyWindow(control);
        EXPECT_EQ(shownSplash(), nullptr);
    }

    // In the program's order; the milliseconds that the last call took.
    DWORD show(std::int32_t minimumTime, bool wait, const std::string& file = "Splash.spl") {
        Win32Splash splash(control);
        splash.setFile(folder.file(file));
        splash.setMinimumTime(minimumTime);
        const DWORD start = GetTickCount();
        splash.showSplash(wait);
        return GetTickCount() - start;
    }

    TestFolder folder;
    ParentWindow parent{[](UINT, LPARAM) {}};
    HWND control = nullptr;
};

TEST_F(SplashTest, ShowsThePictureInTheMiddleAndTakesNoFocus) {
    show(0, false);
    const HWND splash = shownSplash();
    ASSERT_NE(splash, nullptr);
    EXPECT_EQ(GetFocus(), parent.field());
    EXPECT_FALSE(GetUpdateRect(splash, nullptr, FALSE));  // painted already
    RECT rect{};
    RECT desktop{};
    GetWindowRect(splash, &rect);
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &desktop, 0);
    const int left = (desktop.right + desktop.left - 3) / 2;
    const int top = (desktop.bottom + desktop.top - 2) / 2;
    const RECT expected{left, top, left + 3, top + 2};
    EXPECT_TRUE(EqualRect(&rect, &expected));
    const PictureOfWindow drawn(splash);
    EXPECT_EQ(drawn.at(0, 0), RGB(255, 0, 0));
    EXPECT_EQ(drawn.at(0, 1), GetSysColor(COLOR_3DFACE));  // transparent
}

TEST_F(SplashTest, WaitsOnlyWhenAskedToAndWithoutHandlingOtherMessages) {
    EXPECT_LT(show(5000, false), 1000u);
    ASSERT_NE(shownSplash(), nullptr);
    PostMessageA(parent.field(), WM_CHAR, 'x', 1);
    const DWORD waited = show(300, true);
    EXPECT_GE(waited, 300u);
    EXPECT_NE(shownSplash(), nullptr);  // until there is a main window
    EXPECT_EQ(GetWindowTextLengthA(parent.field()), 0);
    handleMessages();
    EXPECT_EQ(GetWindowTextLengthA(parent.field()), 1);
}

TEST_F(SplashTest, GoesWhenTheMainWindowIsThereButNotBeforeItsTime) {
    show(0, false);
    Win32Splash splash(control);
    splash.close();
    EXPECT_NE(shownSplash(), nullptr);
    handleMessages();
    EXPECT_EQ(shownSplash(), nullptr);
    show(0, false);
    show(0, false, "None.spl");
    EXPECT_EQ(shownSplash(), nullptr);  // and not the one before
    show(600, false);
    splash.hide();
    EXPECT_EQ(shownSplash(), nullptr);  // at once
    show(600, false);
    const DWORD start = GetTickCount();
    splash.close();
    handleMessages();
    ASSERT_NE(shownSplash(), nullptr);
    while (shownSplash() != nullptr && GetTickCount() - start < 5000) {
        handleMessages();
    }
    EXPECT_EQ(shownSplash(), nullptr);
    EXPECT_GE(GetTickCount() - start, 550u);
}

}  // namespace
}  // namespace korvane::skin
