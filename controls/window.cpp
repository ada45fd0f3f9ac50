#include "controls/window.h"

bool Window::Create(const wchar_t* className, const wchar_t* title, DWORD style, const RECT& rect,
                    HWND parent, HINSTANCE instance, UINT classStyle) {
    WNDCLASSW windowClass = {};
    windowClass.style = classStyle;
    windowClass.lpfnWndProc = WindowProcedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    windowClass.lpszClassName = className;
    RegisterClassW(&windowClass);  // Fails when it is there already, which is as good.
    return CreateWindowExW(0, className, title, style, rect.left, rect.top, rect.right - rect.left,
                           rect.bottom - rect.top, parent, nullptr, instance, this) != nullptr;
}

LRESULT CALLBACK Window::WindowProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* const window =
            static_cast<Window*>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
        window->hwnd_ = hwnd;
        SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(window));
    }
    auto* const window = reinterpret_cast<Window*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (window) {
        try {
            const std::optional<LRESULT> result = window->OnMessage(message, wParam, lParam);
            if (message == WM_NCDESTROY) {
                SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
                window->hwnd_ = nullptr;
            }
            if (result) return *result;
        } catch (...) {  // Out of memory: the message is left to the system.
        }
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}
