#pragma once

#include <windows.h>

#include <commctrl.h>

#include <utility>

// Owns a handle and gives it to `Release` when it goes out of scope. Movable, not copyable.
template <typename Handle, typename Release>
class OwnedHandle {
  public:
    OwnedHandle() = default;
    explicit OwnedHandle(Handle handle) : handle_(handle) {}
    OwnedHandle(OwnedHandle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    OwnedHandle& operator=(OwnedHandle&& other) noexcept {
        if (this != &other) Reset(std::exchange(other.handle_, nullptr));
        return *this;
    }
    ~OwnedHandle() { Reset(); }

    Handle get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }
    void Reset(Handle handle = nullptr) {
        if (handle_) Release()(handle_);
        handle_ = handle;
    }

  private:
    Handle handle_ = nullptr;
};

// How each kind of handle is released.
struct HandleRelease {
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
    void operator()(HDC dc) const { DeleteDC(dc); }
    void operator()(HICON icon) const { DestroyIcon(icon); }
    void operator()(HIMAGELIST images) const { ImageList_Destroy(images); }
    void operator()(HKEY key) const { RegCloseKey(key); }
    void operator()(HMODULE library) const { FreeLibrary(library); }
    void operator()(HMENU menu) const { DestroyMenu(menu); }
};
struct FileRelease {
    void operator()(HANDLE file) const { CloseHandle(file); }
};

using OwnedFont = OwnedHandle<HFONT, HandleRelease>;
using OwnedBrush = OwnedHandle<HBRUSH, HandleRelease>;
using OwnedPen = OwnedHandle<HPEN, HandleRelease>;
using OwnedBitmap = OwnedHandle<HBITMAP, HandleRelease>;
using OwnedDc = OwnedHandle<HDC, HandleRelease>;
using OwnedIcon = OwnedHandle<HICON, HandleRelease>;
using OwnedKey = OwnedHandle<HKEY, HandleRelease>;
using OwnedImageList = OwnedHandle<HIMAGELIST, HandleRelease>;
using OwnedLibrary = OwnedHandle<HMODULE, HandleRelease>;
using OwnedMenu = OwnedHandle<HMENU, HandleRelease>;

// Owns an open file. CreateFileW says INVALID_HANDLE_VALUE, not null, when it fails.
class OwnedFile {
  public:
    explicit OwnedFile(HANDLE handle)
        : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
    HANDLE get() const { return handle_.get(); }
    explicit operator bool() const { return static_cast<bool>(handle_); }

  private:
    OwnedHandle<HANDLE, FileRelease> handle_;
};

// The context of a window's client area, or of the whole screen.
class WindowDc {
  public:
    explicit WindowDc(HWND window = nullptr) : window_(window), dc_(GetDC(window)) {}
    ~WindowDc() { ReleaseDC(window_, dc_); }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;

    HDC get() const { return dc_; }

  private:
    HWND window_;
    HDC dc_;
};

// Selects an object into a device context for the length of a scope.
class SelectedObject {
  public:
    SelectedObject(HDC dc, HGDIOBJ object) : dc_(dc), previous_(SelectObject(dc, object)) {}
    ~SelectedObject() { SelectObject(dc_, previous_); }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

  private:
    HDC dc_;
    HGDIOBJ previous_;
};
