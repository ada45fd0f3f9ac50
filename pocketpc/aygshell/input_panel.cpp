// Who raises and lowers the input panel.
#include "pocketpc/aygshell/input_panel.h"

#include <windows.h>

#include <commctrl.h>

#include <utility>

#include "pocketpc/common/input_panel.h"
#include "pocketpc/include/aygshell.h"

namespace {

constexpr UINT_PTR kDialogSubclass = 1;
// A guess, as is that SIP_DOWN waits at all: on its way to the next edit control the focus may pass
// another control.
constexpr UINT kDelay = 200;  // milliseconds

UINT_PTR lowering = 0;  // the timer

void StopLowering() {
    if (lowering) KillTimer(nullptr, std::exchange(lowering, 0));
}

void CALLBACK Lower(HWND, UINT, UINT_PTR, DWORD) {
    StopLowering();
    shell::SetInputPanel(false);
}

bool IsEdit(HWND control) {
    wchar_t name[8] = {};
    GetClassNameW(control, name, 8);
    return _wcsicmp(name, L"Edit") == 0;
}

LRESULT CALLBACK DialogProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                 DWORD_PTR) {
    if (message == WM_COMMAND && IsEdit(reinterpret_cast<HWND>(lParam))) {
        if (HIWORD(wParam) == EN_SETFOCUS) SHSipPreference(hwnd, SIP_UP);
        if (HIWORD(wParam) == EN_KILLFOCUS) SHSipPreference(hwnd, SIP_DOWN);
    }
    if (message == WM_NCDESTROY) RemoveWindowSubclass(hwnd, DialogProcedure, kDialogSubclass);
    return DefSubclassProc(hwnd, message, wParam, lParam);
}

LRESULT CALLBACK PreferenceProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CREATE) {
        SetWindowSubclass(GetParent(hwnd), DialogProcedure, kDialogSubclass, 0);
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

}  // namespace

void RegisterSipPreference() {
    WNDCLASSW windowClass = {};
    windowClass.style = CS_GLOBALCLASS;
    windowClass.lpfnWndProc = PreferenceProcedure;
    windowClass.hInstance = GetModuleHandleW(L"aygshell.dll");
    windowClass.lpszClassName = WC_SIPPREF;
    RegisterClassW(&windowClass);
}

// SIP_INPUTDIALOG, for dialogs that open while the panel is up, is not among what this library
// does.
BOOL WINAPI SHSipPreference(HWND hwnd, SIPSTATE state) {
    if (!IsWindow(hwnd)) return FALSE;
    switch (state) {
        case SIP_UP:
            StopLowering();
            shell::SetInputPanel(true);
            return TRUE;
        case SIP_DOWN:
            StopLowering();
            lowering = SetTimer(nullptr, 0, kDelay, Lower);
            return TRUE;
        case SIP_FORCEDOWN: Lower(nullptr, 0, 0, 0); return TRUE;
        case SIP_UNCHANGED: return TRUE;
        default: return FALSE;
    }
}
