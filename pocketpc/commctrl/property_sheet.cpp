// Property sheets in the device's manner over the desktop's: maximised between the two bars,
// without a caption or buttons, the tabs at the bottom, confirmed by the navigation bar's ok.
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "pocketpc/commctrl/flat_tabs.h"
#include "pocketpc/common/shell_windows.h"

namespace {

constexpr DWORD kMaximize = 0x2000;  // on the desktop the same bit makes a wizard
constexpr int kApplyButton = 0x3021;
constexpr int kTitleText = 0x3100;  // our own control, above the page
constexpr UINT_PTR kSheetSubclass = 1;

// What the device tells a program's callback.
constexpr UINT kGetVersion = 3;
constexpr UINT kGetTitle = 4;
constexpr UINT kGetLinkText = 5;
constexpr int kTextLength = 256;
// A program that asks for the Pocket PC's version of the controls gets the tabs at the bottom.
constexpr int kPocketPcVersion = 524;

class Sheet {
  public:
    explicit Sheet(const PROPSHEETHEADERW& header)
        : programHeader_(header), outer_(std::exchange(innermost_, this)) {}
    ~Sheet() { innermost_ = outer_; }
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    INT_PTR Run() {
        PROPSHEETHEADERW header = {};
        std::memcpy(&header, &programHeader_,
                    std::min<std::size_t>(programHeader_.dwSize, sizeof header));
        header.dwSize = sizeof header;
        header.dwFlags = (header.dwFlags & ~kMaximize) | PSH_USECALLBACK | PSH_NOAPPLYNOW;
        header.pfnCallback = Callback;
        pocketPcLook_ = TellProgram(nullptr, kGetVersion, 0) >= kPocketPcVersion;
        const HHOOK hook =
            SetWindowsHookExW(WH_MSGFILTER, BeforeMessage, nullptr, GetCurrentThreadId());
        const INT_PTR result = PropertySheetW(&header);
        UnhookWindowsHookEx(hook);
        return result;
    }

  private:
    // Control with Tab, Page up and Page down turns the pages. Wine's sheets know that only of
    // their modeless kind.
    static LRESULT CALLBACK BeforeMessage(int code, WPARAM wParam, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const MSG*>(lParam);
        if (code == MSGF_DIALOGBOX && message.message == WM_KEYDOWN &&
            GetKeyState(VK_CONTROL) < 0 && innermost_ && IsChild(innermost_->hwnd_, message.hwnd)) {
            const bool back = message.wParam == VK_PRIOR ||
                              (message.wParam == VK_TAB && GetKeyState(VK_SHIFT) < 0);
            if (back || message.wParam == VK_NEXT || message.wParam == VK_TAB) {
                const HWND tabs = PropSheet_GetTabControl(innermost_->hwnd_);
                const int count = TabCtrl_GetItemCount(tabs);
                const int page = (TabCtrl_GetCurSel(tabs) + (back ? count - 1 : 1)) % count;
                PostMessageW(innermost_->hwnd_, PSM_SETCURSEL, page, 0);
                return 1;
            }
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static int CALLBACK Callback(HWND hwnd, UINT code, LPARAM lParam) {
        if (code == PSCB_PRECREATE) return innermost_->TellProgram(nullptr, code, lParam);
        if (code == PSCB_INITIALIZED) innermost_->Initialize(hwnd);
        return 0;
    }

    int TellProgram(HWND hwnd, UINT code, LPARAM lParam) const {
        const bool wanted = programHeader_.dwFlags & PSH_USECALLBACK && programHeader_.pfnCallback;
        return wanted ? programHeader_.pfnCallback(hwnd, code, lParam) : 0;
    }

    void Initialize(HWND hwnd) {
        hwnd_ = hwnd;
        if (programHeader_.dwFlags & kMaximize) Maximize(hwnd);
        TellProgram(hwnd, PSCB_INITIALIZED, reinterpret_cast<LPARAM>(&programHeader_));
        wchar_t title[kTextLength] = {};
        TellProgram(hwnd, kGetTitle, reinterpret_cast<LPARAM>(title));
        if (*title) ShowTitle(hwnd, title);
        wchar_t link[kTextLength] = {};  // Asked for as on the device, but not shown.
        TellProgram(hwnd, kGetLinkText, reinterpret_cast<LPARAM>(link));
    }

    static void ShowTitle(HWND hwnd, const wchar_t* title) {
        const HWND label =
            CreateWindowExW(0, L"STATIC", title, WS_CHILD | WS_VISIBLE | SS_CENTERIMAGE, 0, 0, 0, 0,
                            hwnd, reinterpret_cast<HMENU>(INT_PTR{kTitleText}),
                            GetModuleHandleW(L"commctrl.dll"), nullptr);
        SendMessageW(label, WM_SETFONT, SendMessageW(hwnd, WM_GETFONT, 0, 0), FALSE);
        Layout(hwnd);
    }

    void Maximize(HWND hwnd) const {
        const LONG style = GetWindowLongW(hwnd, GWL_STYLE);
        SetWindowLongW(hwnd, GWL_STYLE,
                       style & ~(WS_CAPTION | WS_SYSMENU | WS_BORDER | WS_DLGFRAME));
        const LONG extended = GetWindowLongW(hwnd, GWL_EXSTYLE);
        SetWindowLongW(hwnd, GWL_EXSTYLE, extended & ~(WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE));
        const HWND tabs = PropSheet_GetTabControl(hwnd);
        const LONG tabStyle = GetWindowLongW(tabs, GWL_STYLE);
        SetWindowLongW(tabs, GWL_STYLE,
                       (tabStyle & ~TCS_MULTILINE) | (pocketPcLook_ ? TCS_BOTTOM : 0));
        if (pocketPcLook_) FlattenTabs(tabs);
        for (const int button : {IDOK, IDCANCEL, kApplyButton, IDHELP}) {
            if (const HWND control = GetDlgItem(hwnd, button)) ShowWindow(control, SW_HIDE);
        }
        SetPropW(hwnd, shell::kDoneButton, hwnd);
        SetWindowSubclass(hwnd, SheetProcedure, kSheetSubclass, 0);
        SetWindowPos(hwnd, nullptr, 0, 0, 0, 0, SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }

    // The current page gets all that the row of tabs leaves; any visible tab tells the row's
    // height.
    static void Layout(HWND hwnd) {
        const HWND tabs = PropSheet_GetTabControl(hwnd);
        if (!tabs) return;
        RECT area;
        GetClientRect(hwnd, &area);
        if (const HWND title = GetDlgItem(hwnd, kTitleText)) {
            area.top = shell::BarHeight();
            const int margin = shell::Scale(7);
            SetWindowPos(title, HWND_TOP, margin, 0, area.right - margin, area.top, SWP_NOACTIVATE);
        }
        SetWindowPos(tabs, nullptr, 0, area.top, area.right, area.bottom - area.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        RECT tab = {};
        TabCtrl_GetItemRect(tabs, std::max(0, TabCtrl_GetCurSel(tabs)), &tab);
        const HWND page = PropSheet_GetCurrentPageHwnd(hwnd);
        if (!page) return;
        if (GetWindowLongW(tabs, GWL_STYLE) & TCS_BOTTOM) {
            area.bottom = area.top + tab.top;
        } else {
            area.top += tab.bottom;
        }
        SetWindowPos(page, HWND_TOP, 0, area.top, area.right, area.bottom - area.top,
                     SWP_NOACTIVATE);
    }

    // The focus must not stay behind on a page that is hidden now.
    static void FocusPage(HWND hwnd) {
        const HWND page = PropSheet_GetCurrentPageHwnd(hwnd);
        const HWND focus = GetFocus();
        if (!IsChild(hwnd, focus) || focus == PropSheet_GetTabControl(hwnd)) return;
        if (!IsChild(page, focus)) SetFocus(GetNextDlgTabItem(page, nullptr, FALSE));
    }

    static LRESULT PassHelpToPage(HWND hwnd) {
        const HWND page = PropSheet_GetCurrentPageHwnd(hwnd);
        PSHNOTIFY notify = {};
        notify.hdr.hwndFrom = hwnd;
        notify.hdr.code = static_cast<UINT>(PSN_HELP);
        return SendMessageW(page, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notify));
    }

    static LRESULT CALLBACK SheetProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam,
                                           UINT_PTR, DWORD_PTR) {
        switch (message) {
            case WM_WINDOWPOSCHANGING: {
                auto& position = *reinterpret_cast<WINDOWPOS*>(lParam);
                const RECT area = shell::WorkArea();
                position.x = area.left;
                position.y = area.top;
                position.cx = area.right - area.left;
                position.cy = area.bottom - area.top;
                position.flags &= ~(SWP_NOMOVE | SWP_NOSIZE);
                return 0;
            }
            case WM_HELP: PassHelpToPage(hwnd); return TRUE;
            case WM_NCDESTROY:
                RemovePropW(hwnd, shell::kDoneButton);
                RemoveWindowSubclass(hwnd, SheetProcedure, kSheetSubclass);
                break;
        }
        const LRESULT result = DefSubclassProc(hwnd, message, wParam, lParam);
        const bool newTab = message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(lParam)->code ==
                                                        static_cast<UINT>(TCN_SELCHANGE);
        if (message == WM_WINDOWPOSCHANGED || message == WM_SHOWWINDOW ||
            message == PSM_SETCURSEL || newTab) {
            Layout(hwnd);
        }
        if (message == PSM_SETCURSEL) FocusPage(hwnd);
        return result;
    }

    const PROPSHEETHEADERW& programHeader_;
    Sheet* outer_;
    HWND hwnd_ = nullptr;
    bool pocketPcLook_ = false;

    // The desktop's callback does not say which sheet it is about.
    static inline Sheet* innermost_ = nullptr;
};

// The device's structures end where the desktop's first ones did; here a program's header may also
// be the desktop's whole one. That the device refuses every other size is a guess.
bool IsSizeOfHeader(DWORD size) {
    return size == PROPSHEETHEADERW_V1_SIZE || size == sizeof(PROPSHEETHEADERW);
}

bool IsSizeOfPage(DWORD size) {
    return size == PROPSHEETPAGEW_V1_SIZE || size == sizeof(PROPSHEETPAGEW);
}

}  // namespace

extern "C" HPROPSHEETPAGE WINAPI Pocket_CreatePropertySheetPageW(LPCPROPSHEETPAGEW page) {
    if (page && IsSizeOfPage(page->dwSize)) return CreatePropertySheetPageW(page);
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
}

extern "C" INT_PTR WINAPI Pocket_PropertySheetW(LPCPROPSHEETHEADERW header) {
    if (!header || !IsSizeOfHeader(header->dwSize) || !header->phpage || !header->nPages) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return -1;
    }
    return Sheet(*header).Run();
}

// The device's date controls bring the standard ones along.
extern "C" BOOL WINAPI Pocket_InitCommonControlsEx(const INITCOMMONCONTROLSEX* classes) {
    if (!classes || classes->dwSize != sizeof *classes) return FALSE;
    const INITCOMMONCONTROLSEX all = {sizeof all, classes->dwICC | ICC_WIN95_CLASSES};
    return InitCommonControlsEx(&all);
}
