#include "tests/layout/seen_controls.h"

#include <aygshell.h>
#include <commctrl.h>
#include <prsht.h>

#include <algorithm>

#include "resources/ids.h"

namespace layout {

namespace {

constexpr int kTextLength = 512;

// Lists of names that are not the program's.
constexpr int kOwnersNames[] = {IDC_FONT_FACE,     IDC_SKIN,         IDC_NOTES_FOLDERS,
                                IDC_MAIL_FILTER,   IDC_LAYOUTS_LIST, IDC_MAIL_FILTER_NAME,
                                IDC_CATEGORY_LIST, IDC_LONG_FORMAT,  IDC_SHORT_SAMPLE,
                                IDC_SKIN_HINT,     IDC_PIM};

bool IsOwners(HWND control) {
    return std::count(std::begin(kOwnersNames), std::end(kOwnersNames), GetDlgCtrlID(control)) > 0;
}

std::wstring ClassOf(HWND hwnd) {
    wchar_t name[64] = {};
    GetClassNameW(hwnd, name, 64);
    CharLowerW(name);
    return name;
}

std::wstring TextOf(HWND hwnd) {
    wchar_t text[kTextLength] = {};
    SendMessageW(hwnd, WM_GETTEXT, kTextLength, reinterpret_cast<LPARAM>(text));
    return text;
}

std::vector<std::wstring> Entries(HWND control) {
    std::vector<std::wstring> texts;
    wchar_t text[kTextLength] = {};
    if (ClassOf(control) == L"combobox") {
        const LRESULT count = SendMessageW(control, CB_GETCOUNT, 0, 0);
        for (int i = 0; i < count; ++i) {
            SendMessageW(control, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
            texts.push_back(text);
        }
    } else if (ClassOf(control) == L"syslistview32") {
        const LRESULT count = SendMessageW(control, LVM_GETITEMCOUNT, 0, 0);
        for (int i = 0; i < count; ++i) {
            LVITEMW item = {};
            item.pszText = text;
            item.cchTextMax = kTextLength;
            SendMessageW(control, LVM_GETITEMTEXTW, i, reinterpret_cast<LPARAM>(&item));
            texts.push_back(text);
        }
    }
    return texts;
}

SIZE Measure(HWND control, const std::wstring& text, int width) {
    const HDC dc = GetDC(control);
    LRESULT font = SendMessageW(control, WM_GETFONT, 0, 0);
    if (!font) font = SendMessageW(GetParent(control), WM_GETFONT, 0, 0);
    const HGDIOBJ old = SelectObject(dc, reinterpret_cast<HFONT>(font));
    RECT area = {0, 0, width, 0};
    DrawTextW(dc, text.c_str(), -1, &area,
              DT_CALCRECT | DT_NOPREFIX | (width ? DT_WORDBREAK : DT_SINGLELINE));
    SelectObject(dc, old);
    ReleaseDC(control, dc);
    return {area.right, area.bottom};
}

// As the control itself has broken its lines.
int InkHeight(HWND ink, const std::wstring& text) {
    POINTL last = {};
    SendMessageW(ink, EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&last), text.size() - 1);
    return static_cast<int>(last.y + Measure(ink, text, 0).cy);
}

int Widest(HWND control) {
    int widest = 0;
    for (const std::wstring& text : Entries(control)) {
        widest = std::max<int>(widest, Measure(control, text, 0).cx);
    }
    return widest;
}

// What the control needs around its text comes from how the system paints it.
void MeasureText(HWND control, LONG style, int dpi, Seen& seen) {
    const auto scaled = [dpi](int length) { return MulDiv(length, dpi, 96); };
    const std::wstring text = TextOf(control);
    const int width = seen.right - seen.left;
    const auto wrapped = [&](int beside) {
        const SIZE size = Measure(control, text, width - beside);
        seen.wantedWidth = size.cx + beside;
        seen.wantedHeight = size.cy;
    };
    switch (seen.kind) {
        case Kind::kLabel:
            if (text.empty()) break;
            wrapped(0);
            if (ClassOf(control) == L"richink") seen.wantedHeight = InkHeight(control, text);
            break;
        case Kind::kCheckBox:
            if (style & BS_MULTILINE) {
                wrapped(scaled(13) + 4);
            } else {
                seen.wantedWidth = Measure(control, text, 0).cx + scaled(13) + 4;
            }
            break;
        case Kind::kButton: seen.wantedWidth = Measure(control, text, 0).cx + scaled(6); break;
        case Kind::kList:
            if (IsOwners(control)) break;
            if (ClassOf(control) == L"combobox") {
                seen.wantedWidth = Widest(control) + GetSystemMetrics(SM_CXVSCROLL) + scaled(6);
            } else if (const int widest = Widest(control)) {
                // The box, and what stands around the text.
                const bool scrolls = GetWindowLongW(control, GWL_STYLE) & WS_VSCROLL;
                seen.wantedWidth =
                    widest + scaled(30) + (scrolls ? GetSystemMetrics(SM_CXVSCROLL) : 0);
            }
            break;
        default: break;
    }
}

Kind KindOf(HWND control, LONG style) {
    const std::wstring name = ClassOf(control);
    const LONG type = style & SS_TYPEMASK;
    if (name == L"static") return type == SS_ICON ? Kind::kOther : Kind::kLabel;
    if (name == L"richink") return Kind::kLabel;
    if (name == L"edit") return Kind::kEdit;
    if (name == L"combobox" || name == L"syslistview32" || name == L"systreeview32") {
        return Kind::kList;
    }
    if (name != L"button") return Kind::kOther;
    switch (style & BS_TYPEMASK) {
        case BS_AUTOCHECKBOX: return Kind::kCheckBox;
        case BS_OWNERDRAW: return Kind::kOther;
        default: return Kind::kButton;
    }
}

std::string NameOf(HWND control) {
    const std::wstring text = TextOf(control);
    char bytes[kTextLength] = {};
    WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, bytes, kTextLength - 1, nullptr, nullptr);
    return std::to_string(GetDlgCtrlID(control)) + " \"" + bytes + "\"";
}

}  // namespace

Page Look(HWND dialog, int dpi) {
    Page page;
    page.dpi = dpi;
    RECT client;
    GetClientRect(dialog, &client);
    page.width = client.right;
    SCROLLINFO scroll = {};
    scroll.cbSize = sizeof scroll;
    scroll.fMask = SIF_ALL;
    const bool scrolls = GetWindowLongW(dialog, GWL_STYLE) & WS_VSCROLL &&
                         GetScrollInfo(dialog, SB_VERT, &scroll) &&
                         scroll.nMax >= static_cast<int>(scroll.nPage);
    page.bottom = scrolls ? scroll.nMax + 1 : client.bottom;
    const int scrolled = scrolls ? scroll.nPos : 0;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const LONG style = GetWindowLongW(child, GWL_STYLE);
        // Arrows stand within their field's edge.
        if (!(style & WS_VISIBLE) || ClassOf(child) == UPDOWN_CLASSW) continue;
        Seen seen;
        seen.name = NameOf(child);
        seen.kind = KindOf(child, style);
        RECT rect;
        GetWindowRect(child, &rect);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
        seen.left = rect.left;
        seen.top = rect.top + scrolled;
        seen.right = rect.right;
        seen.bottom = rect.bottom + scrolled;
        seen.tabStop = style & WS_TABSTOP;
        seen.tapped = seen.kind != Kind::kLabel && seen.tabStop;
        const std::wstring text = TextOf(child);
        seen.labels = ClassOf(child) == L"static" && text.ends_with(L':');
        MeasureText(child, style, dpi, seen);
        page.controls.push_back(seen);
    }
    return page;
}

std::vector<std::wstring> ShownTexts(HWND window, HWND dialog) {
    std::vector<std::wstring> texts = {TextOf(window)};
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!IsWindowVisible(child) || IsOwners(child)) continue;
        const std::wstring name = ClassOf(child);
        if (name == L"static" || name == L"button" || name == L"richink") {
            texts.push_back(TextOf(child));
        }
        const std::vector<std::wstring> entries = Entries(child);
        texts.insert(texts.end(), entries.begin(), entries.end());
    }
    if (const HWND bar = SHFindMenuBar(dialog)) {
        wchar_t text[kTextLength] = {};
        TBBUTTONINFOW info = {};
        info.cbSize = sizeof info;
        info.dwMask = TBIF_TEXT | TBIF_BYINDEX;
        info.pszText = text;
        info.cchText = kTextLength;
        for (int i = 0;
             SendMessageW(bar, TB_GETBUTTONINFOW, i, reinterpret_cast<LPARAM>(&info)) >= 0; ++i) {
            texts.push_back(text);
        }
    }
    if (dialog != window) {
        const HWND tabs = PropSheet_GetTabControl(window);
        for (int i = 0; i < TabCtrl_GetItemCount(tabs); ++i) {
            wchar_t text[kTextLength] = {};
            TCITEMW item = {};
            item.mask = TCIF_TEXT;
            item.pszText = text;
            item.cchTextMax = kTextLength;
            TabCtrl_GetItem(tabs, i, &item);
            texts.push_back(text);
        }
    }
    return texts;
}

}  // namespace layout
