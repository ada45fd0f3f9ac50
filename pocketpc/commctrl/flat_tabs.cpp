#include "pocketpc/commctrl/flat_tabs.h"

#include <commctrl.h>

#include "pocketpc/common/shell_windows.h"

namespace {

constexpr UINT_PTR kSubclass = 1;
constexpr COLORREF kRowColor = RGB(0xDC, 0xE3, 0xEE);
constexpr COLORREF kLineColor = RGB(0x6B, 0x7C, 0x99);
constexpr COLORREF kTextColor = RGB(0, 0, 0);

// The selected tab has the page's colour and no line towards it.
void PaintTab(HDC dc, HWND tabs, int index) {
    RECT tab;
    if (!TabCtrl_GetItemRect(tabs, index, &tab)) return;
    const bool selected = index == TabCtrl_GetCurSel(tabs);
    const int line = shell::Scale(1);
    if (!selected) tab.top += line;
    const RECT outline = {tab.left - line, tab.top, tab.right, tab.bottom};
    shell::FillColor(dc, outline, kLineColor);
    const RECT face = {tab.left, tab.top, tab.right - line, tab.bottom - line};
    shell::FillColor(dc, face, selected ? GetSysColor(COLOR_WINDOW) : kRowColor);
    wchar_t text[256] = {};
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 256;
    TabCtrl_GetItem(tabs, index, &item);
    RECT label = face;
    DrawTextW(dc, item.pszText, -1, &label, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    if (selected && GetFocus() == tabs) {
        InflateRect(&label, -2 * line, -2 * line);
        DrawFocusRect(dc, &label);
    }
}

void Paint(HWND tabs) {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(tabs, &paint);
    RECT area;
    GetClientRect(tabs, &area);
    RECT selected = {};
    TabCtrl_GetItemRect(tabs, TabCtrl_GetCurSel(tabs), &selected);
    const RECT page = {area.left, area.top, area.right, selected.top};
    FillRect(dc, &page, GetSysColorBrush(COLOR_WINDOW));
    const RECT row = {area.left, selected.top, area.right, area.bottom};
    shell::FillColor(dc, row, kRowColor);
    const RECT edge = {row.left, row.top, row.right, row.top + shell::Scale(1)};
    shell::FillColor(dc, edge, kLineColor);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(tabs, WM_GETFONT, 0, 0));
    const HGDIOBJ oldFont = SelectObject(dc, font ? font : GetStockObject(SYSTEM_FONT));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, kTextColor);
    for (int i = 0; i < TabCtrl_GetItemCount(tabs); ++i) PaintTab(dc, tabs, i);
    SelectObject(dc, oldFont);
    EndPaint(tabs, &paint);
}

// Texts that became shorter may leave the arrows standing over tabs that now have room.
void HideNeedlessArrows(HWND tabs) {
    RECT area, first, last;
    GetClientRect(tabs, &area);
    const HWND arrows = FindWindowExW(tabs, nullptr, UPDOWN_CLASSW, nullptr);
    if (arrows && TabCtrl_GetItemRect(tabs, 0, &first) && first.left >= 0 &&
        TabCtrl_GetItemRect(tabs, TabCtrl_GetItemCount(tabs) - 1, &last) &&
        last.right <= area.right) {
        ShowWindow(arrows, SW_HIDE);
    }
    InvalidateRect(tabs, nullptr, FALSE);
}

LRESULT CALLBACK Procedure(HWND tabs, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                           DWORD_PTR) {
    switch (message) {
        case WM_PAINT: Paint(tabs); return 0;
        case WM_ERASEBKGND: return TRUE;
        case TCM_SETITEMW: {
            const LRESULT result = DefSubclassProc(tabs, message, wParam, lParam);
            HideNeedlessArrows(tabs);
            return result;
        }
        case TCM_SETCURSEL:
        case WM_SETFOCUS:
        case WM_KILLFOCUS: InvalidateRect(tabs, nullptr, FALSE); break;
        case WM_NCDESTROY: RemoveWindowSubclass(tabs, Procedure, kSubclass); break;
    }
    return DefSubclassProc(tabs, message, wParam, lParam);
}

}  // namespace

void FlattenTabs(HWND tabs) { SetWindowSubclass(tabs, Procedure, kSubclass, 0); }
