#pragma once

#include <windows.h>

#include <optional>

// A window of a class of our own and the object behind it, found through the window's user data.
// The object outlives the window.
class Window {
  public:
    virtual ~Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    HWND hwnd() const { return hwnd_; }

  protected:
    Window() = default;

    // Registers the class when needed and creates the window; false when that fails.
    bool Create(const wchar_t* className, const wchar_t* title, DWORD style, const RECT& rect,
                HWND parent, HINSTANCE instance, UINT classStyle = 0);
    // No value leaves the message to the system.
    virtual std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

  private:
    static LRESULT CALLBACK WindowProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    HWND hwnd_ = nullptr;
};
