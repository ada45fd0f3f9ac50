// Full-screen dialogs and the Done button.
#include <windows.h>

#include "pocketpc/aygshell/navigation_bar.h"
#include "pocketpc/common/shell_windows.h"
#include "pocketpc/include/aygshell.h"

namespace {

constexpr WPARAM kSetSipInfo = 224;

void FillWorkArea(HWND hwnd) {
    const RECT area = shell::WorkArea();
    SetWindowPos(hwnd, nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

}  // namespace

BOOL WINAPI SHInitExtraControls() {
    ShowNavigationBar();
    return TRUE;
}

BOOL WINAPI SHDoneButton(HWND hwnd, DWORD state) {
    if (!IsWindow(hwnd) || GetWindowLongW(hwnd, GWL_STYLE) & WS_CHILD) return FALSE;
    if (state == SHDB_HIDE) {
        RemovePropW(hwnd, shell::kDoneButton);
    } else {
        SetPropW(hwnd, shell::kDoneButton, hwnd);
    }
    RepaintNavigationBar();
    return TRUE;
}

// A page of a property sheet has neither a size nor an ok button of its own.
BOOL WINAPI SHInitDialog(SHINITDLGINFO* info) {
    if (!info || !(info->dwMask & SHIDIM_FLAGS) || !IsWindow(info->hDlg)) return FALSE;
    const LONG style = GetWindowLongW(info->hDlg, GWL_STYLE);
    if (style & WS_CHILD) return TRUE;
    if (info->dwFlags & SHIDIF_DONEBUTTON) SHDoneButton(info->hDlg, SHDB_SHOW);
    if (info->dwFlags & SHIDIF_SIZEDLGFULLSCREEN) {
        SetWindowLongW(info->hDlg, GWL_STYLE,
                       style & ~(WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | DS_MODALFRAME));
        const LONG extended = GetWindowLongW(info->hDlg, GWL_EXSTYLE);
        SetWindowLongW(info->hDlg, GWL_EXSTYLE,
                       extended & ~(WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE));
        FillWorkArea(info->hDlg);
    }
    return TRUE;
}

// The panel of this device never rises by itself, so there is no state of it to restore.
BOOL WINAPI SHHandleWMActivate(HWND hwnd, WPARAM wParam, LPARAM, SHACTIVATEINFO* info, DWORD) {
    if (!info || info->cbSize != sizeof *info) return FALSE;
    info->fActive = LOWORD(wParam) != WA_INACTIVE;
    if (!info->fActive) info->hwndLastFocus = hwnd;
    return TRUE;
}

BOOL WINAPI SHHandleWMSettingChange(HWND hwnd, WPARAM wParam, LPARAM, SHACTIVATEINFO* info) {
    if (!info || info->cbSize != sizeof *info) return FALSE;
    if (wParam == kSetSipInfo) FillWorkArea(hwnd);
    return TRUE;
}
