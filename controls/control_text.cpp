#include "controls/control_text.h"

#include <commctrl.h>

#include <algorithm>
#include <string>

#include "base/owned_handle.h"
#include "base/scale.h"

namespace {

// Pixels at 96 dots per inch: the box of a check box with what parts it from its text, and the
// edges of buttons and drop-down lists around theirs.
constexpr int kCheckBox = 18, kButtonEdges = 12, kListEdges = 8;
constexpr int kLineEdges = 2;
constexpr int kRowEdges = 32;
constexpr int kRowLength = 256;

std::wstring TextOf(HWND control) {
    const int length = GetWindowTextLengthW(control);
    std::wstring text(length, L'\0');
    text.resize(GetWindowTextW(control, text.data(), length + 1));
    return text;
}

// A control for ink does not tell its font, which is the dialog's.
HFONT FontOf(HWND control) {
    const LRESULT own = SendMessageW(control, WM_GETFONT, 0, 0);
    return reinterpret_cast<HFONT>(own ? own : SendMessageW(GetParent(control), WM_GETFONT, 0, 0));
}

SIZE Measure(HWND control, const std::wstring& text, UINT format, int width = 0) {
    const WindowDc dc(control);
    const SelectedObject font(dc.get(), FontOf(control));
    RECT area = {0, 0, width, 0};
    DrawTextW(dc.get(), text.c_str(), static_cast<int>(text.size()), &area,
              DT_CALCRECT | DT_NOPREFIX | format);
    return {area.right, area.bottom};
}

LONG ButtonType(HWND control) { return GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK; }

bool IsCheckBox(HWND control) {
    return IsOfClass(control, WC_BUTTONW) && ButtonType(control) == BS_AUTOCHECKBOX;
}

bool IsLabel(HWND control) {
    const LONG type = GetWindowLongW(control, GWL_STYLE) & SS_TYPEMASK;
    return IsOfClass(control, WC_STATICW) && type != SS_ICON && type != SS_BITMAP;
}

int WidestEntry(HWND combo) {
    const auto count = static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0));
    int widest = 0;
    for (int i = 0; i < count; ++i) {
        const LRESULT length = SendMessageW(combo, CB_GETLBTEXTLEN, i, 0);
        if (length <= 0) continue;
        std::wstring text(length, L'\0');
        SendMessageW(combo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text.data()));
        widest = std::max<int>(widest, Measure(combo, text, DT_SINGLELINE).cx);
    }
    return widest;
}

// Rows that the dialog draws itself hold the owner's names.
int WidestRow(HWND list) {
    if (GetWindowLongW(list, GWL_STYLE) & LVS_OWNERDRAWFIXED) return 0;
    const auto count = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    wchar_t text[kRowLength] = {};
    int widest = 0;
    for (int i = 0; i < count; ++i) {
        LVITEMW item = {};
        item.pszText = text;
        item.cchTextMax = kRowLength;
        SendMessageW(list, LVM_GETITEMTEXTW, i, reinterpret_cast<LPARAM>(&item));
        widest = std::max<int>(widest, Measure(list, text, DT_SINGLELINE).cx);
    }
    return widest ? widest + ScaleX(kRowEdges) : 0;
}

}  // namespace

RECT RectInDialog(HWND dialog, HWND control) {
    RECT rect = {};
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

bool IsOfClass(HWND control, const wchar_t* className) {
    wchar_t name[32] = {};
    GetClassNameW(control, name, 32);
    return _wcsicmp(name, className) == 0;
}

ControlKind KindOf(HWND control) {
    if (IsLabel(control)) return ControlKind::kLabel;
    if (IsCheckBox(control) || IsOfClass(control, L"RichInk")) return ControlKind::kText;
    for (const wchar_t* const field : {WC_BUTTONW, WC_COMBOBOXW, WC_EDITW, TRACKBAR_CLASSW}) {
        if (IsOfClass(control, field)) return ControlKind::kField;
    }
    return ControlKind::kOther;
}

int TextWidth(HWND control, int width) {
    if (IsOfClass(control, WC_LISTVIEWW)) return WidestRow(control);
    if (KindOf(control) == ControlKind::kOther) return 0;
    // Sorted lists hold names that are not the program's and may be cut.
    const bool names =
        IsOfClass(control, WC_COMBOBOXW) && GetWindowLongW(control, GWL_STYLE) & CBS_SORT;
    if (names || IsOfClass(control, WC_EDITW) || IsOfClass(control, TRACKBAR_CLASSW)) {
        return width / 2;
    }
    if (IsOfClass(control, WC_COMBOBOXW)) {
        return WidestEntry(control) + GetSystemMetrics(SM_CXVSCROLL) + ScaleX(kListEdges);
    }
    const int text = Measure(control, TextOf(control), DT_SINGLELINE).cx;
    if (IsCheckBox(control)) return text + ScaleX(kCheckBox);
    if (!IsOfClass(control, WC_BUTTONW)) return text;
    return ButtonType(control) == BS_OWNERDRAW ? width : text + ScaleX(kButtonEdges);
}

int TextHeight(HWND control, int width) {
    const int used = IsCheckBox(control) ? ScaleX(kCheckBox) : 0;
    return Measure(control, TextOf(control), DT_WORDBREAK, width - used).cy + ScaleY(kLineEdges);
}

void BreakLines(HWND control, bool breaks) {
    if (!IsCheckBox(control)) return;
    const LONG style = GetWindowLongW(control, GWL_STYLE);
    const LONG wanted = breaks ? style | BS_MULTILINE : style & ~BS_MULTILINE;
    if (style != wanted) SetWindowLongW(control, GWL_STYLE, wanted);
}
