// Property sheets in the device's manner over the desktop's: maximised between the two bars,
// without a caption or buttons, the tabs at the bottom, confirmed by the navigation bar's ok.
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "pocketpc/shell_windows.h"

namespace {

constexpr DWORD kMaximize = 0x2000;  // on the desktop the same bit makes a wizard
constexpr int kApplyButton = 0x3021;
constexpr UINT_PTR kSheetSubclass = 1;

// What the device tells a program's callback.
constexpr UINT kGetVersion = 3;
constexpr UINT kGetTitle = 4;
constexpr UINT kGetLinkText = 5;
constexpr int kTextLength = 256;

class Sheet {
  public:
    explicit Sheet(const PROPSHEETHEADERW& header)
        : programHeader_(header), outer_(std::exchange(creating_, this)) {}
    ~Sheet() { creating_ = outer_; }
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    INT_PTR Run() {
        PROPSHEETHEADERW header = {};
        std::memcpy(&header, &programHeader_,
                    std::min<std::size_t>(programHeader_.dwSize, sizeof header));
        header.dwSize = sizeof header;
        header.dwFlags = (header.dwFlags & ~kMaximize) | PSH_USECALLBACK | PSH_NOAPPLYNOW;
        header.pfnCallback = Callback;
        TellProgram(nullptr, kGetVersion, 0);
        return PropertySheetW(&header);
    }

  private:
    static int CALLBACK Callback(HWND hwnd, UINT code, LPARAM lParam) {
        if (code == PSCB_PRECREATE) return creating_->TellProgram(nullptr, code, lParam);
        if (code == PSCB_INITIALIZED) creating_->Initialize(hwnd);
        return 0;
    }

    int TellProgram(HWND hwnd, UINT code, LPARAM lParam) const {
        const bool wanted = programHeader_.dwFlags & PSH_USECALLBACK && programHeader_.pfnCallback;
        return wanted ? programHeader_.pfnCallback(hwnd, code, lParam) : 0;
    }

    void Initialize(HWND hwnd) {
        if (programHeader_.dwFlags & kMaximize) Maximize(hwnd);
        TellProgram(hwnd, PSCB_INITIALIZED, reinterpret_cast<LPARAM>(&programHeader_));
        wchar_t text[kTextLength] = {};
        TellProgram(hwnd, kGetTitle, reinterpret_cast<LPARAM>(text));
        TellProgram(hwnd, kGetLinkText, reinterpret_cast<LPARAM>(text));
    }

    static void Maximize(HWND hwnd) {
        const LONG style = GetWindowLongW(hwnd, GWL_STYLE);
        SetWindowLongW(hwnd, GWL_STYLE,
                       style & ~(WS_CAPTION | WS_SYSMENU | WS_BORDER | WS_DLGFRAME));
        const LONG extended = GetWindowLongW(hwnd, GWL_EXSTYLE);
        SetWindowLongW(hwnd, GWL_EXSTYLE, extended & ~(WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE));
        const HWND tabs = PropSheet_GetTabControl(hwnd);
        const LONG tabStyle = GetWindowLongW(tabs, GWL_STYLE);
        SetWindowLongW(tabs, GWL_STYLE, (tabStyle & ~TCS_MULTILINE) | TCS_BOTTOM);
        for (const int button : {IDOK, IDCANCEL, kApplyButton, IDHELP}) {
            if (const HWND control = GetDlgItem(hwnd, button)) ShowWindow(control, SW_HIDE);
        }
        SetPropW(hwnd, shell::kDoneButton, hwnd);
        SetWindowSubclass(hwnd, SheetProcedure, kSheetSubclass, 0);
        SetWindowPos(hwnd, nullptr, 0, 0, 0, 0, SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }

    // The current page gets all above the row of tabs, whose height any visible tab tells.
    static void Layout(HWND hwnd) {
        const HWND tabs = PropSheet_GetTabControl(hwnd);
        if (!tabs) return;
        RECT area;
        GetClientRect(hwnd, &area);
        SetWindowPos(tabs, nullptr, 0, 0, area.right, area.bottom, SWP_NOZORDER | SWP_NOACTIVATE);
        RECT tab = {};
        TabCtrl_GetItemRect(tabs, std::max(0, TabCtrl_GetCurSel(tabs)), &tab);
        const HWND page = PropSheet_GetCurrentPageHwnd(hwnd);
        if (!page) return;
        const int height = area.bottom - (tab.bottom - tab.top) - 1;
        SetWindowPos(page, HWND_TOP, 0, 0, area.right, height, SWP_NOACTIVATE);
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
        return result;
    }

    const PROPSHEETHEADERW& programHeader_;
    Sheet* outer_;

    // The innermost sheet; the desktop's callback does not say which one it is about.
    static inline Sheet* creating_ = nullptr;
};

}  // namespace

extern "C" INT_PTR WINAPI Pocket_PropertySheetW(LPCPROPSHEETHEADERW header) {
    return Sheet(*header).Run();
}

// The device's date controls bring the standard ones along.
extern "C" BOOL WINAPI Pocket_InitCommonControlsEx(const INITCOMMONCONTROLSEX* classes) {
    if (!classes || classes->dwSize != sizeof *classes) return FALSE;
    const INITCOMMONCONTROLSEX all = {sizeof all, classes->dwICC | ICC_WIN95_CLASSES};
    return InitCommonControlsEx(&all);
}
