// The order of what follows a turn, and that menus and lists close, are guesses; that windows which
// fill the screen get WM_SIZE and all of them WM_SETTINGCHANGE is documented. So is
// WM_SETTINGCHANGE for the input panel.
#include "pocketpc/aygshell/screen_change.h"

#include <commctrl.h>

#include <algorithm>
#include <vector>

#include "pocketpc/aygshell/keyboard.h"
#include "pocketpc/aygshell/menu_bar.h"
#include "pocketpc/common/input_panel.h"
#include "pocketpc/common/shell_windows.h"

namespace {

bool IsOfClass(HWND hwnd, const wchar_t* name) {
    wchar_t className[32] = {};
    GetClassNameW(hwnd, className, 32);
    return _wcsicmp(className, name) == 0;
}

BOOL CALLBACK AddWindow(HWND hwnd, LPARAM windows) {
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(hwnd);
    return TRUE;
}

BOOL CALLBACK CloseList(HWND hwnd, LPARAM) {
    if (IsOfClass(hwnd, WC_COMBOBOXW)) SendMessageW(hwnd, CB_SHOWDROPDOWN, FALSE, 0);
    return TRUE;
}

void Move(HWND hwnd, const RECT& area) {
    SetWindowPos(hwnd, nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

// What filled the width goes on doing so, down to the input panel, the menu bar or below it.
void Fit(HWND hwnd, SIZE before) {
    const SIZE screen = shell::Screen();
    const RECT work = shell::WorkArea();
    RECT area;
    GetWindowRect(hwnd, &area);
    if (area.left == 0 && area.right == before.cx) {
        LONG bottom = area.bottom >= before.cy ? screen.cy : work.bottom;
        if (shell::InputPanelIsUp() && area.bottom == shell::InputPanelArea(before).top) {
            bottom = shell::VisibleWorkArea().bottom;
        }
        Move(hwnd, {0, area.top, screen.cx, bottom});
        return;
    }
    const int x =
        std::clamp<int>(area.left, 0, std::max<int>(0, screen.cx - area.right + area.left));
    const int y = std::clamp<int>(area.top, work.top,
                                  std::max<int>(work.top, work.bottom - area.bottom + area.top));
    OffsetRect(&area, x - area.left, y - area.top);
    Move(hwnd, area);
}

// The visible ones of the program, without the shell's own and lists that have dropped down.
std::vector<HWND> ProgramWindows() {
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), AddWindow, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [](HWND hwnd) {
        return !IsWindowVisible(hwnd) || IsOfClass(hwnd, L"HHTaskBar") ||
               IsOfClass(hwnd, L"menu_worker") || IsOfClass(hwnd, kKeyboardClass) ||
               IsDropDownList(hwnd);
    });
    return windows;
}

void Tell(const std::vector<HWND>& windows, WPARAM change) {
    for (const HWND hwnd : windows) {
        SendMessageW(hwnd, WM_SETTINGCHANGE, change, 0);
        LeaveBarsFree(hwnd);
    }
}

}  // namespace

void FollowScreen(HWND navigationBar, SIZE before) {
    EndMenu();
    Move(navigationBar, {0, 0, shell::Screen().cx, shell::BarHeight()});
    InvalidateRect(navigationBar, nullptr, FALSE);
    const std::vector<HWND> windows = ProgramWindows();
    for (const HWND hwnd : windows) {
        EnumChildWindows(hwnd, CloseList, 0);
        Fit(hwnd, before);
    }
    PlaceMenuBars();
    PlaceKeyboard();
    Tell(windows, shell::kScreenReset);
}

void FollowInputPanel() {
    PlaceMenuBars();
    PlaceKeyboard();
    Tell(ProgramWindows(), shell::kSetSipInfo);
}

bool IsDropDownList(HWND hwnd) { return IsOfClass(hwnd, L"ComboLBox"); }

void KeepDropDownListOnScreen(HWND list, WINDOWPOS& position) {
    const SIZE screen = shell::Screen();
    const bool moves = !(position.flags & (SWP_NOMOVE | SWP_NOSIZE));
    if (!moves || position.y + position.cy <= screen.cy || !IsDropDownList(list)) return;
    const HWND focus = GetFocus();
    const HWND combo = IsOfClass(focus, WC_COMBOBOXW) ? focus : GetParent(focus);
    RECT area;
    if (!GetWindowRect(combo, &area)) return;
    position.y = std::max<int>(0, area.top - position.cy);
    position.cy = std::min<int>(position.cy, area.top - position.y);
}
