// A visible window with a field, for tests of controls that tell their parent
// something.
#pragma once

#include <functional>
#include <utility>

#include <windows.h>

namespace korvane {

class ParentWindow {
public:
    // The messages go on to the platform afterwards.
    explicit ParentWindow(std::function<void(UINT, LPARAM)> onMessage) : onMessage_(std::move(onMessage)) {
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = procedure;
        windowClass.lpszClassName = "Korvane.TestParent";
        RegisterClassA(&windowClass);
        window_ = CreateWindowExA(0, windowClass.lpszClassName, "", WS_POPUP | WS_VISIBLE, 20, 20, 750, 408, nullptr,
                                  nullptr, nullptr, nullptr);
        SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        field_ = CreateWindowExA(0, "Edit", "", WS_CHILD | WS_VISIBLE, 700, 0, 50, 20, window_, nullptr, nullptr,
                                 nullptr);
        SetFocus(field_);
    }
    ParentWindow(const ParentWindow&) = delete;
    ParentWindow& operator=(const ParentWindow&) = delete;
    ~ParentWindow() { DestroyWindow(window_); }

    HWND window() const { return window_; }
    HWND field() const { return field_; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (const auto* self = reinterpret_cast<ParentWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA))) {
            self->onMessage_(message, lParam);
        }
        return DefWindowProcA(window, message, wParam, lParam);
    }

    std::function<void(UINT, LPARAM)> onMessage_;
    HWND window_ = nullptr;
    HWND field_ = nullptr;
};

}  // namespace korvane
