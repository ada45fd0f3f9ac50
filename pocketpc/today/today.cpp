// The Today screen: answers its plug-ins' questions about colours, holds the diary plug-in's helper
// window, and shows what reaches it in the area of its items; a tap there starts the program. Each
// event is also a line in \today.log of the device.
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "pocketpc/common/input_panel.h"
#include "pocketpc/common/shell_windows.h"
#include "pocketpc/include/todaycmn.h"
#include "pocketpc/today/picture.h"

namespace {

constexpr COLORREF kTextColor = RGB(0x10, 0x28, 0x50);
constexpr COLORREF kHighlightColor = RGB(0xFF, 0xD9, 0x80);
constexpr COLORREF kLineColor = RGB(0x9C, 0xB4, 0xD8);
constexpr COLORREF kBackground = RGB(0xE4, 0xEE, 0xFA);
constexpr WPARAM kReloadItems = 0xF2;  // of WM_WININICHANGE
constexpr std::size_t kMostLines = 8;
constexpr UINT kTurn = WM_APP;

HWND itemsWindow = nullptr;
TodayPicture* picture = nullptr;
std::vector<std::wstring> events;
UINT updateMessage = 0;

// Shows what happened on the screen, with the time and what else there is to say, and notes what it
// stands for.
void Note(const wchar_t* shown, const wchar_t* more, const std::wstring& event) {
    SYSTEMTIME now;
    GetLocalTime(&now);
    wchar_t text[64];
    swprintf(text, 64, L"%ls %02d:%02d%ls", shown, now.wHour, now.wMinute, more);
    events.push_back(text);
    if (events.size() > kMostLines) events.erase(events.begin());
    InvalidateRect(itemsWindow, nullptr, TRUE);
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

class TextPainter {
  public:
    TextPainter(HDC dc, RECT row, int weight)
        : dc_(dc), row_(row), font_(shell::CreateBarFont(weight)), old_(SelectObject(dc, font_)) {
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, kTextColor);
    }
    ~TextPainter() {
        SelectObject(dc_, old_);
        DeleteObject(font_);
    }
    TextPainter(const TextPainter&) = delete;
    TextPainter& operator=(const TextPainter&) = delete;

    // Each text goes a row lower.
    void Draw(const wchar_t* text, UINT alignment = DT_LEFT) {
        DrawTextW(dc_, text, -1, &row_,
                  DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX | alignment);
        OffsetRect(&row_, 0, row_.bottom - row_.top);
    }

  private:
    HDC dc_;
    RECT row_;
    HFONT font_;
    HGDIOBJ old_;
};

int ItemsTop() { return shell::WorkArea().top + shell::Scale(30); }

RECT FirstRow(HWND hwnd) {
    RECT area;
    GetClientRect(hwnd, &area);
    const int margin = shell::Scale(8);
    return {margin, 0, area.right - margin, shell::Scale(22)};
}

// The background and the owner's picture, in a window that begins at `top` of the screen.
void PaintBackground(HDC dc, const RECT& area, int top) {
    shell::FillColor(dc, area, kBackground);
    picture->Paint(dc, shell::WorkArea().top - top, shell::Screen().cx);
}

// Where no program's bars lie over them, the places of both bars are the screen's own.
void PaintScreen(HWND hwnd) {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(hwnd, &paint);
    RECT area;
    GetClientRect(hwnd, &area);
    PaintBackground(dc, area, 0);
    const RECT work = shell::WorkArea();
    const RECT top = {0, 0, area.right, work.top};
    const RECT bottom = {0, work.bottom, area.right, area.bottom};
    shell::FillColor(dc, top, shell::kBarColor);
    shell::FillColor(dc, bottom, shell::kBarColor);
    RECT row = FirstRow(hwnd);
    OffsetRect(&row, 0, work.top + shell::Scale(4));
    wchar_t date[64] = {};
    GetDateFormatW(LOCALE_USER_DEFAULT, DATE_LONGDATE, nullptr, nullptr, date, 64);
    {
        TextPainter text(dc, row, FW_BOLD);
        text.Draw(date, DT_RIGHT);
    }
    {
        RECT title = FirstRow(hwnd);
        title.bottom = work.top;
        TextPainter text(dc, title, FW_BOLD);
        SetTextColor(dc, shell::kBarTextColor);
        text.Draw(L"Today");
    }
    EndPaint(hwnd, &paint);
}

void PaintItems(HWND hwnd) {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(hwnd, &paint);
    RECT row = FirstRow(hwnd);
    RECT area;
    GetClientRect(hwnd, &area);
    PaintBackground(dc, area, ItemsTop());
    const RECT line = {0, 0, area.right, shell::Scale(1)};
    shell::FillColor(dc, line, kLineColor);
    TextPainter(dc, row, FW_BOLD).Draw(L"Lum Diary");
    OffsetRect(&row, 0, row.bottom);
    TextPainter text(dc, row, FW_NORMAL);
    if (events.empty()) text.Draw(L"Tap here to set it up.");
    for (const std::wstring& event : events) text.Draw(event.c_str());
    EndPaint(hwnd, &paint);
}

// The program lies beside this one. One that runs already comes forward.
void StartProgram() {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH - 1);
    std::wstring program = path;
    program.replace(program.rfind(L'\\') + 1, std::wstring::npos, L"DiarySettings.exe");
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(program.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        nullptr, &process)) {
        Note(L"The program does not start", L"", L"no program");
        return;
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

void FitToScreen(HWND hwnd) {
    const SIZE screen = shell::Screen();
    SetWindowPos(hwnd, nullptr, 0, 0, screen.cx, screen.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    const RECT work = shell::WorkArea();
    MoveWindow(itemsWindow, 0, ItemsTop(), work.right, work.bottom - ItemsTop(), TRUE);
    InvalidateRect(hwnd, nullptr, TRUE);
    InvalidateRect(itemsWindow, nullptr, TRUE);
}

LRESULT CALLBACK TodayProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == shell::ScreenChangeMessage()) {
        FitToScreen(hwnd);
        return 0;
    }
    switch (message) {
        case WM_PAINT: PaintScreen(hwnd); return 0;
        case WM_ERASEBKGND: return TRUE;
        case TODAYM_GETCOLOR: return Color(wParam);
        case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
        // Above the items is the date. Posted, as others are told from there.
        case WM_LBUTTONUP: PostMessageW(hwnd, kTurn, 0, 0); return 0;
        case kTurn: shell::TurnScreen(); return 0;
        case WM_WINDOWPOSCHANGING:
            // The Today screen lies under every program.
            reinterpret_cast<WINDOWPOS*>(lParam)->hwndInsertAfter = HWND_BOTTOM;
            return 0;
        case WM_WININICHANGE:
            if (wParam == kReloadItems) {
                picture->Load();
                InvalidateRect(hwnd, nullptr, TRUE);
                Note(L"Today items reloaded", L"", L"WM_WININICHANGE wParam=242");
            }
            return 0;
        case WM_DESTROY: PostQuitMessage(0); return 0;
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

// On older devices plug-ins ask the Today screen's first child for its colours.
LRESULT CALLBACK ItemsProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT: PaintItems(hwnd); return 0;
        case WM_ERASEBKGND: return TRUE;
        case WM_LBUTTONUP: StartProgram(); return 0;
        case TODAYM_GETCOLOR: return Color(wParam);
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

LRESULT CALLBACK PluginProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == updateMessage) {
        wchar_t text[128];
        swprintf(text, 128, L"LumDiary_UpdateSettings wParam=%d lParam=%d",
                 static_cast<int>(wParam), static_cast<int>(lParam));
        Note(L"Settings reloaded", lParam ? L", tabs rebuilt" : L"", text);
        return 0;
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

HWND Create(const wchar_t* className, const wchar_t* title, WNDPROC procedure, DWORD style,
            DWORD extendedStyle, const RECT& area, HWND parent) {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    windowClass.lpszClassName = className;
    RegisterClassW(&windowClass);
    return CreateWindowExW(extendedStyle, className, title, style, area.left, area.top,
                           area.right - area.left, area.bottom - area.top, parent, nullptr,
                           windowClass.hInstance, nullptr);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
    updateMessage = RegisterWindowMessageW(L"LumDiary_UpdateSettings");
    TodayPicture ownersPicture;
    picture = &ownersPicture;
    shell::SetInputPanel(false);  // As the device has just been started.
    const SIZE size = shell::Screen();
    const RECT screen = {0, 0, size.cx, size.cy};
    const HWND today =
        Create(L"DesktopExplorerWindow", L"Desktop", TodayProcedure, WS_POPUP | WS_CLIPCHILDREN,
               WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, screen, nullptr);
    RECT items = shell::WorkArea();
    items.top = ItemsTop();
    itemsWindow =
        Create(L"TodayItems", L"", ItemsProcedure, WS_CHILD | WS_VISIBLE, 0, items, today);
    Create(L"LumDiaryTimeHelperWnd_1.0", L"", PluginProcedure, WS_POPUP, WS_EX_NOACTIVATE, screen,
           nullptr);
    ShowWindow(today, SW_SHOWNOACTIVATE);
    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
