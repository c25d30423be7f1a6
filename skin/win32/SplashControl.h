// The splash screen: a control of the main dialog whose three methods name a splash
// file and show its picture in a window of its own while the program starts.
#pragma once

#include "platform/SkinEngine.h"

#include <windows.h>

namespace korvane::skin {

constexpr char kSplashClass[] = "Korvane.Splash";

// Calls a method: wParam is its dispatch id, lParam its argument. Returns FALSE for any other id.
//   22  the path of the splash file, a const char*
//   19  the least time for which the picture is shown, in milliseconds, clamped to 0 to 10,000
//   15  shows the picture; with TRUE it returns only when that time is over
// A missing or broken file shows nothing.
constexpr UINT kSplashMethod = WM_USER + 101;
// The main window is on the screen: the picture goes as soon as its time is over.
constexpr UINT kSplashMainShown = WM_USER + 102;
// The picture goes at once, whatever its least time.
constexpr UINT kSplashHide = WM_USER + 103;

// Call before a dialog with such a control is made.
void registerSplashClass(HINSTANCE instance);

// The methods of one such control. The window is borrowed.
class Win32Splash final : public SplashWindow {
public:
    explicit Win32Splash(HWND control) : control_(control) {}

    void setFile(const std::string& path) override;
    void setMinimumTime(std::int32_t milliseconds) override;
    void showSplash(bool wait) override;
    void hide() override;

    // For when the main window is about to be shown. The picture stays until the window is on the screen, so that nothing
    // flickers in between.
    void close();

private:
    HWND control_;
};

}  // namespace korvane::skin
