// Full-screen dialogs and the Done button.
#include <windows.h>

#include "pocketpc/aygshell/input_panel.h"
#include "pocketpc/aygshell/navigation_bar.h"
#include "pocketpc/common/input_panel.h"
#include "pocketpc/common/shell_windows.h"
#include "pocketpc/include/aygshell.h"

namespace {

// A property of dialogs that the input panel may cover.
constexpr wchar_t kFullScreen[] = L"PocketPC.FullScreen";

void Fill(HWND hwnd, const RECT& area) {
    SetWindowPos(hwnd, nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

}  // namespace

BOOL WINAPI SHInitExtraControls() {
    ShowNavigationBar();
    RegisterSipPreference();
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

// A page of a property sheet has neither a size nor an ok button of its own. That it lowers the
// input panel all the same is a guess.
BOOL WINAPI SHInitDialog(SHINITDLGINFO* info) {
    if (!info || !(info->dwMask & SHIDIM_FLAGS) || !IsWindow(info->hDlg)) return FALSE;
    if (info->dwFlags & SHIDIF_SIPDOWN) shell::SetInputPanel(false);
    const LONG style = GetWindowLongW(info->hDlg, GWL_STYLE);
    if (style & WS_CHILD) return TRUE;
    if (info->dwFlags & SHIDIF_DONEBUTTON) SHDoneButton(info->hDlg, SHDB_SHOW);
    if (info->dwFlags & SHIDIF_SIZEDLGFULLSCREEN) {
        SetWindowLongW(info->hDlg, GWL_STYLE,
                       style & ~(WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | DS_MODALFRAME));
        const LONG extended = GetWindowLongW(info->hDlg, GWL_EXSTYLE);
        SetWindowLongW(info->hDlg, GWL_EXSTYLE,
                       extended & ~(WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE));
        SetPropW(info->hDlg, kFullScreen, info->hDlg);
        Fill(info->hDlg, shell::WorkArea());
    }
    return TRUE;
}

// The input panel comes back as the window left it. That a window which never was inactive leaves
// it as it is, so that it may be up when a program starts, is a guess.
BOOL WINAPI SHHandleWMActivate(HWND hwnd, WPARAM wParam, LPARAM, SHACTIVATEINFO* info, DWORD) {
    if (!info || info->cbSize != sizeof *info) return FALSE;
    info->fActive = LOWORD(wParam) != WA_INACTIVE;
    if (!info->fActive) {
        info->hwndLastFocus = hwnd;
        info->fSipOnDeactivation = shell::InputPanelIsUp();
    } else if (info->hwndLastFocus) {
        shell::SetInputPanel(info->fSipOnDeactivation);
    }
    return TRUE;
}

// A full-screen dialog keeps its size whether or not the panel is up. That other windows follow it
// while they are inactive, too, is a guess.
BOOL WINAPI SHHandleWMSettingChange(HWND hwnd, WPARAM wParam, LPARAM, SHACTIVATEINFO* info) {
    if (!info || info->cbSize != sizeof *info) return FALSE;
    if (wParam != shell::kSetSipInfo) return TRUE;
    info->fSipUp = shell::InputPanelIsUp();
    if (!GetPropW(hwnd, kFullScreen)) Fill(hwnd, shell::VisibleWorkArea());
    return TRUE;
}
