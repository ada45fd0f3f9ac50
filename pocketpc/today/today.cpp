// The Today screen: answers its plug-ins' questions about colours, holds the diary plug-in's helper
// window, and shows what reaches it. Each event is also a line in \today.log of the device.
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "pocketpc/include/todaycmn.h"
#include "pocketpc/shell_windows.h"

namespace {

constexpr COLORREF kTextColor = RGB(0x10, 0x28, 0x50);
constexpr COLORREF kHighlightColor = RGB(0xFF, 0xD9, 0x80);
constexpr COLORREF kBackground = RGB(0xE4, 0xEE, 0xFA);
constexpr WPARAM kReloadItems = 0xF2;  // of WM_WININICHANGE
constexpr std::size_t kMostLines = 8;

HWND todayWindow = nullptr;
std::vector<std::wstring> events;
UINT updateMessage = 0;

// Shows a text on the screen and notes what it stands for.
void Note(const wchar_t* shown, const std::wstring& event) {
    SYSTEMTIME now;
    GetLocalTime(&now);
    wchar_t time[16];
    swprintf(time, 16, L"%02d:%02d:%02d  ", now.wHour, now.wMinute, now.wSecond);
    events.push_back(std::wstring(time) + shown);
    if (events.size() > kMostLines) events.erase(events.begin());
    InvalidateRect(todayWindow, nullptr, TRUE);
    if (FILE* const log = _wfopen(L"\\today.log", L"ab")) {
        for (const wchar_t c : event) fputc(static_cast<char>(c), log);  // Our own texts are ASCII.
        fputc('\n', log);
        fclose(log);
    }
}

LRESULT Color(WPARAM which) {
    switch (which) {
        case TODAYCOLOR_TEXT:
        case TODAYCOLOR_HIGHLIGHTEDTEXT: return kTextColor;
        case TODAYCOLOR_HIGHLIGHT: return kHighlightColor;
    }
    return 0;
}

void Paint(HWND hwnd) {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(hwnd, &paint);
    RECT area;
    GetClientRect(hwnd, &area);
    const HFONT bold = shell::CreateBarFont(FW_BOLD);
    const HFONT normal = shell::CreateBarFont(FW_NORMAL);
    const HGDIOBJ old = SelectObject(dc, bold);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, kTextColor);
    const int line = shell::BarHeight();
    RECT row = {line / 3, line + line / 4, area.right - line / 3, line * 2 + line / 4};
    wchar_t date[64] = {};
    GetDateFormatW(LOCALE_USER_DEFAULT, DATE_LONGDATE, nullptr, nullptr, date, 64);
    const auto text = [&](const wchar_t* what) {
        DrawTextW(dc, what, -1, &row, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
        OffsetRect(&row, 0, line);
    };
    text(date);
    text(L"Lum Diary");
    SelectObject(dc, normal);
    for (const std::wstring& event : events) text(event.c_str());
    SelectObject(dc, old);
    DeleteObject(bold);
    DeleteObject(normal);
    EndPaint(hwnd, &paint);
}

LRESULT CALLBACK TodayProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT: Paint(hwnd); return 0;
        case TODAYM_GETCOLOR: return Color(wParam);
        case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
        case WM_WINDOWPOSCHANGING:
            // The Today screen lies under every program.
            reinterpret_cast<WINDOWPOS*>(lParam)->hwndInsertAfter = HWND_BOTTOM;
            return 0;
        case WM_WININICHANGE:
            if (wParam == kReloadItems)
                Note(L"Today items reloaded", L"WM_WININICHANGE wParam=242");
            return 0;
        case WM_DESTROY: PostQuitMessage(0); return 0;
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

LRESULT CALLBACK PluginProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == updateMessage) {
        wchar_t text[128];
        swprintf(text, 128, L"LumDiary_UpdateSettings wParam=%d lParam=%d",
                 static_cast<int>(wParam), static_cast<int>(lParam));
        Note(lParam ? L"Tabs rebuilt" : L"Settings reloaded", text);
        return 0;
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

HWND Create(const wchar_t* className, const wchar_t* title, WNDPROC procedure, DWORD style,
            DWORD extendedStyle) {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    windowClass.hbrBackground = CreateSolidBrush(kBackground);
    windowClass.lpszClassName = className;
    RegisterClassW(&windowClass);
    return CreateWindowExW(extendedStyle, className, title, style, 0, 0,
                           GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), nullptr,
                           nullptr, windowClass.hInstance, nullptr);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
    updateMessage = RegisterWindowMessageW(L"LumDiary_UpdateSettings");
    todayWindow = Create(L"DesktopExplorerWindow", L"Desktop", TodayProcedure, WS_POPUP,
                         WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW);
    Create(L"LumDiaryTimeHelperWnd_1.0", L"", PluginProcedure, WS_POPUP, WS_EX_NOACTIVATE);
    ShowWindow(todayWindow, SW_SHOWNOACTIVATE);
    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
