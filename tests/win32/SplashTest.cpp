// The splash: the control and its picture's window, and the main window that
// makes it go.
#include "skin/win32/SplashControl.h"

#include "platform/win32/Win32MainWindow.h"
#include "platform/win32/Win32System.h"
#include "tests/cli/TestFolder.h"
#include "tests/skin/BitmapBytes.h"
#include "tests/win32/PictureOfWindow.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace korvane {
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
        parent = CreateWindowExA(0, "Static", "", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr, instance,
                                 nullptr);
        edit = CreateWindowExA(0, "Edit", "", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, parent, nullptr, instance, nullptr);
        control = CreateWindowExA(0, kSplashClass, "", WS_CHILD | WS_VISIBLE, 50, 50, 20, 20, parent, nullptr,
                                  instance, nullptr);
        SetFocus(edit);
        writeFile(folder.file("Six.bmp"), sixPixels());
        writeFile(folder.file("Splash.spl"), "[Splash]\nFormat=1\nPicture=Six.bmp\n");
        EXPECT_EQ(shownSplash(), nullptr);
    }
    ~SplashTest() override {
        DestroyWindow(parent);
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
    HWND parent = nullptr;
    HWND edit = nullptr;
    HWND control = nullptr;
};

TEST_F(SplashTest, ShowsThePictureInTheMiddleAndTakesNoFocus) {
    show(0, false);
    const HWND splash = shownSplash();
    ASSERT_NE(splash, nullptr);
    EXPECT_EQ(GetFocus(), edit);
    EXPECT_EQ(GetActiveWindow(), parent);
    EXPECT_EQ(GetWindow(splash, GW_OWNER), nullptr);
    EXPECT_FALSE(IsWindowEnabled(splash));
    EXPECT_FALSE(GetUpdateRect(splash, nullptr, FALSE));  // painted already
    RECT rect{};
    RECT desktop{};
    GetWindowRect(splash, &rect);
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &desktop, 0);
    EXPECT_EQ(rect.right - rect.left, 3);
    EXPECT_EQ(rect.bottom - rect.top, 2);
    EXPECT_EQ(rect.left, (desktop.right + desktop.left - 3) / 2);
    EXPECT_EQ(rect.top, (desktop.bottom + desktop.top - 2) / 2);

    PictureOfWindow drawn(3, 2, RGB(9, 9, 9));
    drawn.print(splash);
    EXPECT_EQ(drawn.at(0, 0), RGB(255, 0, 0));
    EXPECT_EQ(drawn.at(1, 0), RGB(0, 255, 0));
    EXPECT_EQ(drawn.at(2, 0), RGB(0, 0, 255));
    EXPECT_EQ(drawn.at(0, 1), GetSysColor(COLOR_3DFACE));  // transparent
    EXPECT_EQ(drawn.at(1, 1), RGB(0, 0, 0));
    EXPECT_EQ(drawn.at(2, 1), RGB(255, 255, 255));
}

TEST_F(SplashTest, WhatIsMissingOrBrokenShowsNothing) {
    writeFile(folder.file("Other.spl"), "[Splash]\nFormat=1\nPicture=Missing.bmp\n");
    writeFile(folder.file("Text.bmp"), "no bitmap");
    writeFile(folder.file("Text.spl"), "[Splash]\nFormat=1\nPicture=Text.bmp\n");
    writeFile(folder.file("Empty.spl"), "");
    for (const char* file : {"None.spl", "Other.spl", "Text.spl", "Empty.spl", "Six.bmp"}) {
        EXPECT_LT(show(3000, true, file), 1000u) << file;
        EXPECT_EQ(shownSplash(), nullptr) << file;
    }
    show(0, false);
    ASSERT_NE(shownSplash(), nullptr);
    show(0, false, "None.spl");
    EXPECT_EQ(shownSplash(), nullptr);  // and not the one before
    EXPECT_TRUE(SendMessageA(control, kSplashMethod, 19, 0));
    EXPECT_FALSE(SendMessageA(control, kSplashMethod, 16, 0));
}

TEST_F(SplashTest, WaitsOnlyWhenAskedTo) {
    EXPECT_LT(show(5000, false), 1000u);
    ASSERT_NE(shownSplash(), nullptr);
    const DWORD waited = show(300, true);
    EXPECT_GE(waited, 300u);
    EXPECT_LT(waited, 2500u);
    EXPECT_NE(shownSplash(), nullptr);  // until there is a main window
    EXPECT_LT(show(-1, true), 1000u);
}

// What a wait paints is the picture's window alone: nothing else of the program is ready.
TEST_F(SplashTest, WaitsWithoutHandlingOtherMessages) {
    PostMessageA(edit, WM_CHAR, 'x', 1);
    show(50, true);
    EXPECT_EQ(GetWindowTextLengthA(edit), 0);
    handleMessages();
    EXPECT_EQ(GetWindowTextLengthA(edit), 1);
}

TEST_F(SplashTest, GoesWhenTheMainWindowIsThereButNotBeforeItsTime) {
    show(0, false);
    Win32Splash splash(control);
    splash.close();
    EXPECT_NE(shownSplash(), nullptr);
    handleMessages();
    EXPECT_EQ(shownSplash(), nullptr);
    splash.close();  // once more
    handleMessages();

    show(600, false);
    const DWORD start = GetTickCount();
    splash.close();
    handleMessages();
    ASSERT_NE(shownSplash(), nullptr);
    while (shownSplash() != nullptr && GetTickCount() - start < 5000) {
        handleMessages();
        Sleep(5);
    }
    EXPECT_EQ(shownSplash(), nullptr);
    EXPECT_GE(GetTickCount() - start, 550u);
}

// As the program starts: the splash first, then the window with all that is in it.
class SplashOwner final : public MainWindowHandler {
public:
    std::function<void()> onInit;

    bool OnInitDialog() override {
        onInit();
        return true;
    }
    void OnSelectionChanged() override {}
    void OnApplyChanges() override {}
    void OnAbout() override {}
    void OnHelp() override {}
    void OnFrameButton(const std::string&) override {}
    void OnDividerMoved(int) override {}
    void OnDestroy() override {}
};

TEST_F(SplashTest, TheMainWindowMakesItGoByComing) {
    Win32System system;
    Win32MainWindow window(GetModuleHandleA(nullptr), system);
    SplashOwner owner;
    const auto showFile = [&] {
        window.splash().setFile(folder.file("Splash.spl"));
        window.splash().setMinimumTime(0);
        window.splash().showSplash(false);
        handleMessages();
        EXPECT_NE(shownSplash(), nullptr);
    };
    owner.onInit = showFile;
    const HWND dialog = window.create(owner);
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(IsWindowVisible(dialog));
    handleMessages();
    EXPECT_EQ(shownSplash(), nullptr);
    DestroyWindow(dialog);

    // A window that ends before it is shown takes it along.
    owner.onInit = [&] {
        showFile();
        window.controls().endDialog(0);
    };
    window.runModal(owner);
    EXPECT_EQ(shownSplash(), nullptr);
}

}  // namespace
}  // namespace korvane
