// Each function is a call or two of user32.
#include "platform/win32/WindowFunctions.h"

#include "platform/win32/Handles.h"

#include <cstddef>

namespace korvane {
namespace {

void changeOrder(HWND window, HWND after) {
    SetWindowPos(window, after, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace

std::string windowText(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)), '\0');
    const int length = GetWindowTextA(window, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

bool isOfClass(HWND window, const char* className) {
    char name[32] = "";
    return GetClassNameA(window, name, sizeof name) != 0 && lstrcmpiA(name, className) == 0;
}

SIZE clientSize(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

Rect rectInParent(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    if (GetWindowLongA(window, GWL_STYLE) & WS_CHILD) {
        MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
    }
    return {rect.left, rect.top, rect.right, rect.bottom};
}

void centreWindow(HWND window) {
    RECT area{};
    const HWND owner = GetWindow(window, GW_OWNER);
    if (owner != nullptr) {
        GetWindowRect(owner, &area);
    } else {
        SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
    }
    RECT rect{};
    GetWindowRect(window, &rect);
    const int left = (area.left + area.right - (rect.right - rect.left)) / 2;
    const int top = (area.top + area.bottom - (rect.bottom - rect.top)) / 2;
    SetWindowPos(window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void moveToTop(HWND window) { changeOrder(window, HWND_TOP); }

void moveToBottom(HWND window) { changeOrder(window, HWND_BOTTOM); }

bool isHighContrastOn() {
    HIGHCONTRASTA setting{};
    setting.cbSize = sizeof setting;
    return SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) &&
           (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

SIZE screenDpi() {
    const WindowDc screen(nullptr);
    return {GetDeviceCaps(screen.get(), LOGPIXELSX), GetDeviceCaps(screen.get(), LOGPIXELSY)};
}

}  // namespace korvane
