// The control shows nothing but the dialog's background. The picture is a popup without an owner, which cannot be
// activated and is destroyed with the control at the latest.
#include "skin/win32/SplashControl.h"

#include "platform/win32/PaintBuffer.h"
#include "platform/win32/WindowFunctions.h"
#include "skin/SkinFolder.h"
#include "skin/SplashFile.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace korvane::skin {
namespace {

constexpr char kPictureClass[] = "Korvane.SplashPicture";
constexpr WPARAM kMethodFile = 22;
constexpr WPARAM kMethodMinimumTime = 19;
constexpr WPARAM kMethodShow = 15;

constexpr std::int32_t kLongestTime = 10000;  // milliseconds
constexpr DWORD kNap = 10;                    // while waiting
constexpr int kDesignedDpi = 96;

// Puts a colour behind transparent pixels: the popup is a plain rectangle.
void makeOpaque(Picture& picture, COLORREF behind) {
    const unsigned back[] = {GetBValue(behind), GetGValue(behind), GetRValue(behind)};
    for (Pixel& pixel : picture.pixels) {
        const unsigned alpha = pixel >> 24;
        Pixel opaque = 0xFF000000;
        for (int channel = 0; channel < 3; ++channel) {
            const unsigned own = pixel >> (8 * channel) & 0xFF;
            opaque |= ((own * alpha + back[channel] * (255 - alpha)) / 255) << (8 * channel);
        }
        pixel = opaque;
    }
}

std::optional<Picture> readSplashPicture(const std::string& path) {
    const SkinFolder folder(path);
    const std::optional<std::string> text = folder.read(folder.fileName());
    Picture picture;
    SkinProblem problem;
    if (!text || !readSplash(folder.fileName(), *text, folder.reader(), picture, problem) || picture.pixels.empty()) {
        return std::nullopt;
    }
    makeOpaque(picture, GetSysColor(COLOR_3DFACE));
    return picture;
}

void paintPicture(HDC dc, HWND window, const Picture& picture) {
    const BITMAPINFO form = topDownPixels(picture.width, picture.height);
    const SIZE area = clientSize(window);
    const int oldMode = SetStretchBltMode(dc, COLORONCOLOR);
    SetStretchBltMode(dc, HALFTONE);  // enlarges smoothly; fails on Windows 98, which has no such mode
    StretchDIBits(dc, 0, 0, area.cx, area.cy, 0, 0, picture.width, picture.height, picture.pixels.data(), &form,
                  DIB_RGB_COLORS, SRCCOPY);
    SetStretchBltMode(dc, oldMode);
}

LRESULT CALLBACK pictureProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto* picture = reinterpret_cast<const Picture*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    switch (message) {
        case WM_ERASEBKGND: return 1;
        case WM_CLOSE: return 0;  // only the control closes it
        case WM_PAINT: paintPicture(PaintDc(window).get(), window, *picture); return 0;
        case WM_PRINTCLIENT: paintPicture(reinterpret_cast<HDC>(wParam), window, *picture); return 0;
        default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

class SplashControl {
public:
    SplashControl(HWND control, HINSTANCE instance) : control_(control), instance_(instance) {}
    SplashControl(const SplashControl&) = delete;
    SplashControl& operator=(const SplashControl&) = delete;
    ~SplashControl() { close(); }

    BOOL call(WPARAM method, LPARAM argument) {
        switch (method) {
            case kMethodFile: file_ = reinterpret_cast<const char*>(argument); return TRUE;
            case kMethodMinimumTime:
                minimumTime_ = static_cast<DWORD>(std::clamp(static_cast<std::int32_t>(argument), 0, kLongestTime));
                return TRUE;
            case kMethodShow:
                show();
                if (argument != FALSE) {
                    waitUntilTimeIsOver();
                }
                return TRUE;
            default: return FALSE;
        }
    }

    // The main window has appeared above the picture.
    void mainWindowShown() {
        const DWORD remaining = remainingTime();
        if (remaining == 0) {
            close();
            return;
        }
        moveToTop(popup_);
        SetTimer(control_, kCloseTimer, remaining, nullptr);
    }

    void close() {
        if (popup_ != nullptr) {
            KillTimer(control_, kCloseTimer);
            DestroyWindow(popup_);
            popup_ = nullptr;
            picture_ = {};
        }
    }

private:
    static constexpr UINT_PTR kCloseTimer = 1;

    void show() {
        close();
        std::optional<Picture> picture = readSplashPicture(file_);
        if (!picture) {
            return;
        }
        picture_ = std::move(*picture);
        const SIZE dpi = screenDpi();
        const int width = MulDiv(picture_.width, dpi.cx, kDesignedDpi);
        const int height = MulDiv(picture_.height, dpi.cy, kDesignedDpi);
        popup_ = CreateWindowExA(WS_EX_TOOLWINDOW, kPictureClass, "", WS_POPUP | WS_DISABLED, 0, 0, width, height,
                                 nullptr, nullptr, instance_, nullptr);
        if (popup_ == nullptr) {
            return;
        }
        SetWindowLongPtrA(popup_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&picture_));
        centreWindow(popup_);
        ShowWindow(popup_, SW_SHOWNOACTIVATE);
        UpdateWindow(popup_);
        shownAt_ = GetTickCount();
    }

    // In milliseconds; 0 when no picture is shown.
    DWORD remainingTime() const {
        const DWORD shownFor = GetTickCount() - shownAt_;
        return popup_ != nullptr && shownFor < minimumTime_ ? minimumTime_ - shownFor : 0;
    }

    // Handles only the picture's messages: the rest of the program is not ready for any yet.
    void waitUntilTimeIsOver() {
        while (remainingTime() > 0) {
            MSG message{};
            while (PeekMessageA(&message, popup_, 0, 0, PM_REMOVE)) {
                DispatchMessageA(&message);
            }
            Sleep(std::min(remainingTime(), kNap));
        }
    }

    HWND control_;
    HINSTANCE instance_;
    std::string file_;
    DWORD minimumTime_ = 0;
    DWORD shownAt_ = 0;
    HWND popup_ = nullptr;
    Picture picture_;
};

// Paints the dialog's background.
void eraseAsParent(HWND control, HDC dc) {
    const SIZE size = clientSize(control);
    const RECT area{0, 0, size.cx, size.cy};
    const LRESULT brush = SendMessageA(GetParent(control), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                                       reinterpret_cast<LPARAM>(control));
    FillRect(dc, &area, brush != 0 ? reinterpret_cast<HBRUSH>(brush) : GetSysColorBrush(COLOR_3DFACE));
}

LRESULT CALLBACK controlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* control = reinterpret_cast<SplashControl*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (message == WM_NCCREATE) {
        const HINSTANCE instance = reinterpret_cast<const CREATESTRUCTA*>(lParam)->hInstance;
        auto made = std::make_unique<SplashControl>(window, instance);
        SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made.release()));
    } else if (control != nullptr) {
        switch (message) {
            case kSplashMethod: return control->call(wParam, lParam);
            case kSplashMainShown: control->mainWindowShown(); return 0;
            case kSplashHide:
            case WM_TIMER: control->close(); return 0;
            case WM_ERASEBKGND: eraseAsParent(window, reinterpret_cast<HDC>(wParam)); return 1;
            case WM_NCDESTROY:
                SetWindowLongPtrA(window, GWLP_USERDATA, 0);
                delete control;
                return 0;
            default: break;
        }
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

void registerClass(HINSTANCE instance, const char* name, WNDPROC procedure) {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.lpszClassName = name;
    RegisterClassA(&windowClass);
}

}  // namespace

void registerSplashClass(HINSTANCE instance) {
    registerClass(instance, kSplashClass, controlProc);
    registerClass(instance, kPictureClass, pictureProc);
}

void Win32Splash::setFile(const std::string& path) {
    SendMessageA(control_, kSplashMethod, kMethodFile, reinterpret_cast<LPARAM>(path.c_str()));
}

void Win32Splash::setMinimumTime(std::int32_t milliseconds) {
    SendMessageA(control_, kSplashMethod, kMethodMinimumTime, milliseconds);
}

void Win32Splash::showSplash(bool wait) { SendMessageA(control_, kSplashMethod, kMethodShow, wait); }

void Win32Splash::hide() { SendMessageA(control_, kSplashHide, 0, 0); }

void Win32Splash::close() { PostMessageA(control_, kSplashMainShown, 0, 0); }

}  // namespace korvane::skin
