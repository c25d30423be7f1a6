// Owners of the handles that GDI, the kernel and COM hand out: each is released exactly once, on every way out of a
// function. What is only borrowed stays a plain HWND, HDC or HFONT.
#pragma once

#include <cstdint>
#include <utility>

#include <windows.h>
#include <commctrl.h>

namespace korvane {

// Move-only. `close` is the call that releases the handle; a null handle is none.
template <class Handle, void (*close)(Handle)>
class UniqueHandle {
public:
    UniqueHandle() = default;
    explicit UniqueHandle(Handle handle) : handle_(handle) {}
    UniqueHandle(UniqueHandle&& other) noexcept : handle_(other.release()) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept {
        reset(other.release());
        return *this;
    }
    UniqueHandle(const UniqueHandle&) = delete;
    UniqueHandle& operator=(const UniqueHandle&) = delete;
    ~UniqueHandle() { reset(); }

    Handle get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }

    // Gives the handle up without releasing it.
    [[nodiscard]] Handle release() { return std::exchange(handle_, nullptr); }
    void reset(Handle handle = nullptr) {
        if (const Handle old = std::exchange(handle_, handle); old != nullptr && old != handle) {
            close(old);
        }
    }
    // For calls that return a handle through a pointer. What was held before is released.
    Handle* receive() {
        reset();
        return &handle_;
    }

private:
    Handle handle_ = nullptr;
};

template <class Handle>
void deleteGdiObject(Handle object) {
    DeleteObject(object);
}
inline void deleteDc(HDC dc) { DeleteDC(dc); }
inline void closeKernelHandle(HANDLE handle) { CloseHandle(handle); }
inline void closeKey(HKEY key) { RegCloseKey(key); }
inline void freeGlobal(HGLOBAL block) { GlobalFree(block); }
inline void destroyImageList(HIMAGELIST images) { ImageList_Destroy(images); }

using Bitmap = UniqueHandle<HBITMAP, deleteGdiObject<HBITMAP>>;
using Brush = UniqueHandle<HBRUSH, deleteGdiObject<HBRUSH>>;
using Font = UniqueHandle<HFONT, deleteGdiObject<HFONT>>;
using Region = UniqueHandle<HRGN, deleteGdiObject<HRGN>>;
using MemoryDc = UniqueHandle<HDC, deleteDc>;
using KernelHandle = UniqueHandle<HANDLE, closeKernelHandle>;
using UniqueHkey = UniqueHandle<HKEY, closeKey>;
using GlobalBlock = UniqueHandle<HGLOBAL, freeGlobal>;
using ImageList = UniqueHandle<HIMAGELIST, destroyImageList>;

// CreateFile alone reports failure with a handle of its own instead of null.
inline KernelHandle fileHandle(HANDLE file) { return KernelHandle(file == INVALID_HANDLE_VALUE ? nullptr : file); }

// An object selected into a device context for the length of a block. Without an object nothing is selected.
class SelectedObject {
public:
    SelectedObject(HDC dc, HGDIOBJ object) : dc_(dc), old_(object != nullptr ? SelectObject(dc, object) : nullptr) {}
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;
    ~SelectedObject() {
        if (old_ != nullptr) {
            SelectObject(dc_, old_);
        }
    }

private:
    HDC dc_;
    HGDIOBJ old_;
};

// The device context of a window's client area or of the whole window with its frame; without a window the screen's.
class WindowDc {
public:
    enum class Area { Client, Whole };

    explicit WindowDc(HWND window, Area area = Area::Client)
        : window_(window), dc_(area == Area::Client ? GetDC(window) : GetWindowDC(window)) {}
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    ~WindowDc() { ReleaseDC(window_, dc_); }

    HDC get() const { return dc_; }

private:
    HWND window_;
    HDC dc_;
};

// BeginPaint and EndPaint, for handling WM_PAINT.
class PaintDc {
public:
    explicit PaintDc(HWND window) : window_(window) { BeginPaint(window, &paint_); }
    PaintDc(const PaintDc&) = delete;
    PaintDc& operator=(const PaintDc&) = delete;
    ~PaintDc() { EndPaint(window_, &paint_); }

    HDC get() const { return paint_.hdc; }
    const RECT& updateArea() const { return paint_.rcPaint; }

private:
    HWND window_;
    PAINTSTRUCT paint_{};
};

// A reference to a COM object.
template <class Interface>
class ComPointer {
public:
    ComPointer() = default;
    explicit ComPointer(Interface* object) : object_(object) {}
    ComPointer(ComPointer&& other) noexcept : object_(other.detach()) {}
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;
    ~ComPointer() {
        if (object_ != nullptr) {
            object_->Release();
        }
    }

    Interface* get() const { return object_; }
    Interface* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

    // Gives the reference up without releasing it.
    [[nodiscard]] Interface* detach() { return std::exchange(object_, nullptr); }
    // For calls that return an object through a pointer; only while this holds none.
    Interface** receive() { return &object_; }

private:
    Interface* object_ = nullptr;
};

}  // namespace korvane
