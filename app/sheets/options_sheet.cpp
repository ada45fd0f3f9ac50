#include "app/sheets/options_sheet.h"

#include <commctrl.h>

#include <utility>

#include "app/language/language_table.h"
#include "app/language/module.h"
#include "app/sheets/options_page.h"

namespace {

// The version of the common controls that the sheets are written for, 2.12.
constexpr int kCommonControlsVersion = 524;
constexpr int kTabTextLength = 256;

}  // namespace

OptionsSheet* OptionsSheet::innermost_ = nullptr;

OptionsSheet::OptionsSheet(std::wstring caption) : caption_(std::move(caption)) {
    header_.dwSize = sizeof header_;
    header_.dwFlags = PSH_USECALLBACK | PSH_MAXIMIZE;
    header_.hInstance = ResourceLibrary();
    header_.pszCaption = caption_.c_str();
    header_.pfnCallback = SheetCallback;
}

OptionsSheet::~OptionsSheet() {
    // Pages that no sheet took over; DoModal hands them to the system.
    for (const HPROPSHEETPAGE page : pages_) DestroyPropertySheetPage(page);
}

void OptionsSheet::AddPage(OptionsPage& page) {
    if (const HPROPSHEETPAGE handle = page.CreateHandle()) pages_.push_back(handle);
}

void OptionsSheet::SetActivePage(int index) {
    header_.nStartPage = index;
    if (hwnd_) SendMessageW(hwnd_, PSM_SETCURSEL, index, 0);
}

INT_PTR OptionsSheet::DoModal(HWND parent) {
    if (pages_.empty()) return 0;
    header_.dwFlags &= ~PSH_MODELESS;
    if (!header_.hwndParent) header_.hwndParent = parent;
    std::vector<HPROPSHEETPAGE> pages = std::exchange(pages_, {});
    header_.nPages = static_cast<UINT>(pages.size());
    header_.phpage = pages.data();
    if (header_.nStartPage >= header_.nPages) header_.nStartPage = 0;
    outer_ = std::exchange(innermost_, this);
    const INT_PTR result = PropertySheetW(&header_);
    innermost_ = outer_;
    return result;
}

// The shell's broadcasts reach no further than the sheet itself.
void OptionsSheet::PassToPages(HWND sheet, UINT message, WPARAM wParam, LPARAM lParam) {
    for (HWND child = GetWindow(sheet, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        SendMessageW(child, message, wParam, lParam);
    }
}

OptionsSheet* OptionsSheet::Find(HWND hwnd) {
    OptionsSheet* sheet = innermost_;
    while (sheet && sheet->hwnd_ != hwnd) sheet = sheet->outer_;
    return sheet;
}

int CALLBACK OptionsSheet::SheetCallback(HWND hwnd, UINT code, LPARAM lParam) {
    switch (code) {
        case PSCB_GETVERSION: return kCommonControlsVersion;
        case PSCB_GETTITLE:
            if (lParam) *reinterpret_cast<wchar_t*>(lParam) = L'\0';
            return 0;
        case PSCB_INITIALIZED:
            innermost_->Attach(hwnd);
            PostMessageW(hwnd, WM_INITDIALOG, 0, 0);
            return 0;
    }
    return 0;
}

void OptionsSheet::Attach(HWND hwnd) {
    hwnd_ = hwnd;
    modal_.emplace(hwnd);
    systemProcedure_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(SheetProcedure)));
}

LRESULT CALLBACK OptionsSheet::SheetProcedure(HWND hwnd, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
    OptionsSheet* const sheet = Find(hwnd);
    if (!sheet) return DefWindowProcW(hwnd, message, wParam, lParam);
    const WNDPROC procedure = sheet->systemProcedure_;
    static const UINT metricsMessage = RegisterWindowMessageW(L"SH_UIMETRIC_CHANGE");
    const bool panelChanged = message == WM_SETTINGCHANGE && wParam == SPI_SETSIPINFO;
    if (message == metricsMessage || panelChanged) PassToPages(hwnd, message, wParam, lParam);
    switch (message) {
        case WM_INITDIALOG:  // Our own, posted when the window was there; the system's came before.
            sheet->OnInitSheet();
            return 0;
        case WM_NCDESTROY:
            SetWindowLongPtrW(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
            sheet->modal_.reset();
            sheet->hwnd_ = nullptr;
            break;
    }
    return CallWindowProcW(procedure, hwnd, message, wParam, lParam);
}

// The tabs show the captions of the pages' templates, which are translated nowhere else.
void OptionsSheet::OnInitSheet() {
    const auto tabs = reinterpret_cast<HWND>(SendMessageW(hwnd_, PSM_GETTABCONTROL, 0, 0));
    wchar_t text[kTabTextLength];
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    for (int i = 0;; ++i) {
        item.pszText = text;
        item.cchTextMax = kTabTextLength;
        if (!SendMessageW(tabs, TCM_GETITEMW, i, reinterpret_cast<LPARAM>(&item))) break;
        std::wstring translated = GetLanguageTable().Translate(item.pszText);
        if (translated == item.pszText) continue;
        item.pszText = translated.data();
        SendMessageW(tabs, TCM_SETITEMW, i, reinterpret_cast<LPARAM>(&item));
    }
}
