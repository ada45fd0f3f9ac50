// Message boxes that fit the device's screen; the desktop's may be wider than a small screen is.
#include <windows.h>

#include <algorithm>
#include <vector>

#include "pocketpc/common/shell_windows.h"

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

RECT RectIn(HWND box, HWND control) {
    RECT rect;
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, box, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

int TextHeight(HWND control, int width) {
    const int length = GetWindowTextLengthW(control);
    std::vector<wchar_t> text(length + 1);
    GetWindowTextW(control, text.data(), length + 1);
    const HDC dc = GetDC(control);
    const HGDIOBJ old =
        SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    RECT rect = {0, 0, width, 0};
    DrawTextW(dc, text.data(), length, &rect,
              DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX);
    SelectObject(dc, old);
    ReleaseDC(control, dc);
    return rect.bottom;
}

// Takes from the text what the box is too wide; the buttons stay a centred group below it.
void FitToScreen(HWND box) {
    const RECT area = shell::WorkArea();
    const int margin = shell::Scale(4);
    const int boxWidth = area.right - 2 * margin;
    RECT window;
    GetWindowRect(box, &window);
    const int excess = window.right - window.left - boxWidth;
    Parts parts;
    EnumChildWindows(box, AddPart, reinterpret_cast<LPARAM>(&parts));
    if (excess <= 0 || !parts.text) return;

    const RECT text = RectIn(box, parts.text);
    const int width = text.right - text.left - excess;
    const int height = TextHeight(parts.text, width);
    const int growth = std::max<int>(0, height - (text.bottom - text.top));
    MoveWindow(parts.text, text.left, text.top, width, height, FALSE);
    for (const HWND button : parts.buttons) {
        const RECT rect = RectIn(box, button);
        MoveWindow(button, rect.left - excess / 2, rect.top + growth, rect.right - rect.left,
                   rect.bottom - rect.top, FALSE);
    }
    const int boxHeight = window.bottom - window.top + growth;
    const int centred = (area.top + area.bottom - boxHeight) / 2;
    MoveWindow(box, margin, std::max<int>(area.top, centred), boxWidth, boxHeight, FALSE);
}

// The desktop lays the box out while it initialises its dialog; it has activated it before.
LRESULT CALLBACK AfterMessage(int code, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CallNextHookEx(nullptr, code, wParam, lParam);
    const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code == HC_ACTION && message.message == WM_INITDIALOG && hook) {
        UnhookWindowsHookEx(hook);
        hook = nullptr;
        FitToScreen(message.hwnd);
    }
    return result;
}

}  // namespace

extern "C" int WINAPI Pocket_MessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type) {
    hook = SetWindowsHookExW(WH_CALLWNDPROCRET, AfterMessage, nullptr, GetCurrentThreadId());
    const int answer = MessageBoxW(owner, text, caption, type);
    if (hook) UnhookWindowsHookEx(hook);
    hook = nullptr;
    return answer;
}
