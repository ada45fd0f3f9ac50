// Message boxes: the desktop makes them wider than the device's screen.
#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "pocketpc/shell_windows.h"

namespace {

HHOOK hook = nullptr;

struct Parts {
    HWND text = nullptr;
    std::vector<HWND> buttons;
};

BOOL CALLBACK AddPart(HWND control, LPARAM parameter) {
    auto& parts = *reinterpret_cast<Parts*>(parameter);
    wchar_t className[16] = {};
    GetClassNameW(control, className, 16);
    const LONG style = GetWindowLongW(control, GWL_STYLE);
    if (_wcsicmp(className, L"Static") == 0 && (style & SS_TYPEMASK) != SS_ICON) {
        parts.text = control;
    } else if (_wcsicmp(className, L"Button") == 0 && style & WS_VISIBLE) {
        parts.buttons.push_back(control);
    }
    return TRUE;
}

RECT RectIn(HWND parent, HWND control) {
    RECT rect;
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

// How much higher the text gets when its control loses `excess` pixels of width.
int NarrowText(HWND box, HWND control, int excess) {
    const RECT rect = RectIn(box, control);
    std::wstring text(GetWindowTextLengthW(control) + 1, L'\0');
    text.resize(GetWindowTextW(control, text.data(), static_cast<int>(text.size())));
    RECT needed = {0, 0, rect.right - rect.left - excess, 0};
    const HDC dc = GetDC(control);
    const HGDIOBJ oldFont =
        SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    DrawTextW(dc, text.c_str(), -1, &needed,
              DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX);
    SelectObject(dc, oldFont);
    ReleaseDC(control, dc);
    const int growth = std::max<int>(0, needed.bottom - (rect.bottom - rect.top));
    MoveWindow(control, rect.left, rect.top, rect.right - rect.left - excess,
               rect.bottom - rect.top + growth, FALSE);
    return growth;
}

void FitScreen(HWND box) {
    const int margin = shell::Scale(4);
    RECT window;
    GetWindowRect(box, &window);
    const int width = GetSystemMetrics(SM_CXSCREEN) - 2 * margin;
    const int excess = window.right - window.left - width;
    Parts parts;
    EnumChildWindows(box, AddPart, reinterpret_cast<LPARAM>(&parts));
    if (excess <= 0 || !parts.text) return;
    const int growth = NarrowText(box, parts.text, excess);
    for (const HWND button : parts.buttons) {
        // They stay a centred group.
        const RECT rect = RectIn(box, button);
        SetWindowPos(button, nullptr, rect.left - excess / 2, rect.top + growth, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    const RECT area = shell::WorkArea();
    const int height = window.bottom - window.top + growth;
    SetWindowPos(box, nullptr, margin,
                 std::max<int>(area.top, (area.top + area.bottom - height) / 2), width, height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

// The box is laid out and not yet shown when it is activated.
LRESULT CALLBACK OnBox(int code, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CallNextHookEx(nullptr, code, wParam, lParam);
    if (code == HCBT_ACTIVATE && hook) {
        UnhookWindowsHookEx(hook);
        hook = nullptr;
        FitScreen(reinterpret_cast<HWND>(wParam));
    }
    return result;
}

}  // namespace

extern "C" int WINAPI Pocket_MessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type) {
    hook = SetWindowsHookExW(WH_CBT, OnBox, nullptr, GetCurrentThreadId());
    const int result = MessageBoxW(owner, text, caption, type);
    if (hook) UnhookWindowsHookEx(hook);
    hook = nullptr;
    return result;
}
