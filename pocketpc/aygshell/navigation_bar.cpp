#include "pocketpc/aygshell/navigation_bar.h"

#include <windows.h>

#include "pocketpc/shell_windows.h"

namespace {

HWND bar = nullptr;
HHOOK hook = nullptr;
// Kept beside GetActiveWindow, which says nothing while a menu or another program has the focus.
HWND shownWindow = nullptr;

RECT OkButton() {
    const int height = shell::BarHeight();
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int margin = height / 8;
    return {width - height - margin, margin, width - margin, height - margin};
}

void PaintMark(HDC dc, int height) {
    constexpr COLORREF kPetals[] = {RGB(0xF2, 0x8C, 0x28), RGB(0x6F, 0xB5, 0x3C),
                                    RGB(0x4A, 0x90, 0xD9), RGB(0xF2, 0xC4, 0x2E)};
    const int size = height / 4;
    const int left = height / 4;
    for (int i = 0; i < 4; ++i) {
        const int x = left + (i % 2) * (size + 1);
        const int y = height / 2 - size + (i / 2) * (size + 1);
        const RECT petal = {x, y, x + size, y + size};
        const HBRUSH brush = CreateSolidBrush(kPetals[i]);
        FillRect(dc, &petal, brush);
        DeleteObject(brush);
    }
}

void PaintOkButton(HDC dc) {
    RECT button = OkButton();
    const HPEN pen = CreatePen(PS_SOLID, 1, shell::kBarTextColor);
    const HGDIOBJ oldPen = SelectObject(dc, pen);
    const HGDIOBJ oldBrush = SelectObject(dc, GetStockObject(NULL_BRUSH));
    Ellipse(dc, button.left, button.top, button.right, button.bottom);
    SelectObject(dc, oldBrush);
    SelectObject(dc, oldPen);
    DeleteObject(pen);
    DrawTextW(dc, L"ok", -1, &button, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
}

void Paint(HWND hwnd) {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(hwnd, &paint);
    RECT area;
    GetClientRect(hwnd, &area);
    const HBRUSH background = CreateSolidBrush(shell::kBarColor);
    FillRect(dc, &area, background);
    DeleteObject(background);
    PaintMark(dc, area.bottom);
    const HFONT font = shell::CreateBarFont(FW_BOLD);
    const HGDIOBJ oldFont = SelectObject(dc, font);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, shell::kBarTextColor);
    wchar_t title[256] = {};
    if (IsWindow(shownWindow)) GetWindowTextW(shownWindow, title, 256);
    RECT text = {area.bottom, 0, OkButton().left - area.bottom / 4, area.bottom};
    DrawTextW(dc, title, -1, &text, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    if (IsWindow(shownWindow) && GetPropW(shownWindow, shell::kDoneButton)) PaintOkButton(dc);
    SelectObject(dc, oldFont);
    DeleteObject(font);
    EndPaint(hwnd, &paint);
}

void Press(LPARAM position) {
    const RECT button = OkButton();
    const POINT point = {static_cast<short>(LOWORD(position)),
                         static_cast<short>(HIWORD(position))};
    if (!PtInRect(&button, point) || !IsWindow(shownWindow)) return;
    if (!GetPropW(shownWindow, shell::kDoneButton) || !IsWindowEnabled(shownWindow)) return;
    PostMessageW(shownWindow, WM_COMMAND, IDOK, 0);
}

LRESULT CALLBACK BarProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT: Paint(hwnd); return 0;
        case WM_LBUTTONUP: Press(lParam); return 0;
        case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

// Sees what the thread's windows have just been told.
LRESULT CALLBACK AfterMessage(int code, WPARAM wParam, LPARAM lParam) {
    const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code == HC_ACTION && message.hwnd != bar) {
        const bool child = (GetWindowLongW(message.hwnd, GWL_STYLE) & WS_CHILD) != 0;
        if (message.message == WM_ACTIVATE && LOWORD(message.wParam) != WA_INACTIVE && !child) {
            shownWindow = message.hwnd;
            RepaintNavigationBar();
        } else if (message.message == WM_SETTEXT && message.hwnd == shownWindow) {
            RepaintNavigationBar();
        }
    }
    return CallNextHookEx(hook, code, wParam, lParam);
}

}  // namespace

void ShowNavigationBar() {
    if (bar) return;
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = BarProcedure;
    windowClass.hInstance = GetModuleHandleW(L"aygshell.dll");
    windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    windowClass.lpszClassName = L"HHTaskBar";
    RegisterClassW(&windowClass);
    bar = CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOPMOST | WS_EX_TOOLWINDOW, L"HHTaskBar", L"",
                          WS_POPUP, 0, 0, GetSystemMetrics(SM_CXSCREEN), shell::BarHeight(),
                          nullptr, nullptr, windowClass.hInstance, nullptr);
    hook = SetWindowsHookExW(WH_CALLWNDPROCRET, AfterMessage, nullptr, GetCurrentThreadId());
    ShowWindow(bar, SW_SHOWNOACTIVATE);
}

void RepaintNavigationBar() {
    if (bar) InvalidateRect(bar, nullptr, FALSE);
}
