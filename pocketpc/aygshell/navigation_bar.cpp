#include "pocketpc/aygshell/navigation_bar.h"

#include <windows.h>

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "pocketpc/aygshell/keyboard.h"
#include "pocketpc/aygshell/menu_bar.h"
#include "pocketpc/aygshell/screen_change.h"
#include "pocketpc/common/input_panel.h"
#include "pocketpc/common/shell_windows.h"

namespace {

HWND bar = nullptr;
// Kept beside GetActiveWindow, which says nothing while a menu or another program has the focus.
HWND activeWindow = nullptr;
bool pressed = false;
// The windows that the bars follow, with their own procedures. Kept here, as the desktop's own way
// of putting a procedure before another asks Wine's server at each message.
std::unordered_map<HWND, WNDPROC> followed;

RECT OkButton() {
    const int height = shell::BarHeight();
    const int size = height - 2 * shell::Scale(3);
    const int right = shell::Screen().cx - shell::Scale(4);
    const int top = (height - size) / 2;
    return {right - size, top, right, top + size};
}

bool HasOkButton() {
    return IsWindow(activeWindow) && GetPropW(activeWindow, shell::kDoneButton) != nullptr;
}

COLORREF Blend(COLORREF over, COLORREF under, double share) {
    const auto channel = [share](int a, int b) {
        return static_cast<BYTE>(std::lround(a * share + b * (1 - share)));
    };
    return RGB(channel(GetRValue(over), GetRValue(under)),
               channel(GetGValue(over), GetGValue(under)),
               channel(GetBValue(over), GetBValue(under)));
}

// A disc with a lighter rim. GDI draws no smooth circles, so each pixel is blended by its distance.
void PaintDisc(HDC dc, const RECT& square, COLORREF fill) {
    const double radius = (square.right - square.left) / 2.0;
    const double rim = radius - std::max(1.0, radius / 8);
    for (int y = square.top; y < square.bottom; ++y) {
        for (int x = square.left; x < square.right; ++x) {
            const double distance =
                std::hypot(x + 0.5 - square.left - radius, y + 0.5 - square.top - radius);
            const double inDisc = std::clamp(radius - distance, 0.0, 1.0);
            const double inFace = std::clamp(rim - distance + 0.5, 0.0, 1.0);
            const COLORREF color = Blend(fill, shell::kBarTextColor, inFace);
            if (inDisc > 0) SetPixelV(dc, x, y, Blend(color, shell::kBarColor, inDisc));
        }
    }
}

void PaintMark(HDC dc, int height) {
    constexpr COLORREF kPetals[] = {RGB(0xF2, 0x8C, 0x28), RGB(0x6F, 0xB5, 0x3C),
                                    RGB(0x4A, 0x90, 0xD9), RGB(0xF2, 0xC4, 0x2E)};
    const int size = height / 4;
    const int gap = shell::Scale(1);
    const int left = height / 4;
    const int top = (height - 2 * size - gap) / 2;
    for (int i = 0; i < 4; ++i) {
        const int x = left + (i % 2) * (size + gap);
        const int y = top + (i / 2) * (size + gap);
        shell::FillColor(dc, {x, y, x + size, y + size}, kPetals[i]);
    }
}

void PaintOkButton(HDC dc) {
    RECT button = OkButton();
    PaintDisc(dc, button, pressed ? shell::kBarPressedColor : shell::kBarColor);
    OffsetRect(&button, 0, -shell::Scale(1));
    DrawTextW(dc, L"ok", -1, &button, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
}

void Paint(HWND hwnd) {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(hwnd, &paint);
    RECT area;
    GetClientRect(hwnd, &area);
    shell::FillColor(dc, area, shell::kBarColor);
    PaintMark(dc, area.bottom);
    const HFONT font = shell::CreateBarFont(FW_BOLD);
    const HGDIOBJ oldFont = SelectObject(dc, font);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, shell::kBarTextColor);
    wchar_t title[256] = {};
    if (IsWindow(activeWindow)) GetWindowTextW(activeWindow, title, 256);
    RECT text = {area.bottom, 0, OkButton().left - shell::Scale(6), area.bottom};
    DrawTextW(dc, title, -1, &text, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    SelectObject(dc, oldFont);
    DeleteObject(font);
    if (HasOkButton()) {
        const HFONT small = shell::CreateBarFont(FW_NORMAL);
        SelectObject(dc, small);
        PaintOkButton(dc);
        SelectObject(dc, oldFont);
        DeleteObject(small);
    }
    EndPaint(hwnd, &paint);
}

bool IsOnOkButton(LPARAM position) {
    const RECT button = OkButton();
    const POINT point = {static_cast<short>(LOWORD(position)),
                         static_cast<short>(HIWORD(position))};
    return HasOkButton() && PtInRect(&button, point);
}

void SetPressed(bool value) {
    if (pressed != value) RepaintNavigationBar();
    pressed = value;
}

LRESULT CALLBACK BarProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == shell::ScreenChangeMessage()) {
        FollowScreen(hwnd, {LOWORD(wParam), HIWORD(wParam)});
        ShowMenuBarsOf(WindowOnScreen());
        return 0;
    }
    if (message == shell::InputPanelMessage()) {
        FollowInputPanel();
        return 0;
    }
    switch (message) {
        case WM_PAINT: Paint(hwnd); return 0;
        case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
        case WM_LBUTTONDOWN:
            SetPressed(IsOnOkButton(lParam));
            if (pressed) SetCapture(hwnd);
            return 0;
        case WM_LBUTTONUP:
            if (pressed && IsOnOkButton(lParam) && IsWindowEnabled(activeWindow)) {
                PostMessageW(activeWindow, WM_COMMAND, IDOK, 0);
            }
            if (GetCapture() == hwnd) ReleaseCapture();
            return 0;
        case WM_CAPTURECHANGED: SetPressed(false); return 0;
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

// What the bars learn from a message that a window has just been sent.
void Follow(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ACTIVATE:
            if (LOWORD(wParam) == WA_INACTIVE) return;
            activeWindow = hwnd;
            RepaintNavigationBar();
            ShowMenuBarsOf(WindowOnScreen());
            LeaveBarsFree(activeWindow);
            PlaceKeyboard();
            return;
        case WM_SETTEXT:
            if (hwnd == activeWindow) RepaintNavigationBar();
            return;
        case WM_WINDOWPOSCHANGED: {
            constexpr UINT kVisibility = SWP_SHOWWINDOW | SWP_HIDEWINDOW;
            constexpr UINT kSamePlace = SWP_NOMOVE | SWP_NOSIZE;
            const UINT flags = reinterpret_cast<const WINDOWPOS*>(lParam)->flags;
            const bool active = hwnd == activeWindow;
            if (flags & kVisibility && (active || GetPropW(hwnd, shell::kMenuBar))) {
                ShowMenuBarsOf(WindowOnScreen());
            }
            if (active && (flags & kSamePlace) != kSamePlace) LeaveBarsFree(hwnd);
            return;
        }
        case WM_WINDOWPOSCHANGING:
            KeepDropDownListOnScreen(hwnd, *reinterpret_cast<WINDOWPOS*>(lParam));
            return;
        case WM_ENTERMENULOOP: MenuOpened(hwnd); return;
        case WM_EXITMENULOOP: MenuClosed(hwnd); return;
        case WM_DESTROY:
            if (const auto menuBar = static_cast<HWND>(GetPropW(hwnd, shell::kMenuBar))) {
                DestroyWindow(menuBar);
            }
            return;
    }
}

LRESULT CALLBACK FollowedProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC procedure = followed.at(hwnd);
    const LRESULT result = CallWindowProcW(procedure, hwnd, message, wParam, lParam);
    // What the window sends itself meanwhile comes here, too.
    if (message == WM_NCDESTROY) followed.erase(hwnd);
    Follow(hwnd, message, wParam, lParam);
    return result;
}

// A hook that saw every message of the thread would cost three such requests for each.
LRESULT CALLBACK BeforeCreation(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND) {
        const auto hwnd = reinterpret_cast<HWND>(wParam);
        const auto& creation = *reinterpret_cast<const CBT_CREATEWNDW*>(lParam);
        if (!(creation.lpcs->style & WS_CHILD) || IsDropDownList(hwnd)) FollowWindow(hwnd);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// A device's two soft keys are its first function keys. The first one here is the help key, so F10,
// the desktop's key for menus, takes its place.
LRESULT CALLBACK BeforeKey(int code, WPARAM wParam, LPARAM lParam) {
    constexpr LPARAM kReleased = LPARAM{1} << 31;
    if (code == HC_ACTION && (wParam == VK_F10 || wParam == VK_F2)) {
        GUITHREADINFO thread = {};
        thread.cbSize = sizeof thread;
        GetGUIThreadInfo(GetCurrentThreadId(), &thread);
        const bool inMenu = (thread.flags & GUI_INMENUMODE) != 0;
        const int index = wParam == VK_F10 ? 0 : 1;
        if (!inMenu && !(lParam & kReleased) && PressSoftKey(WindowOnScreen(), index)) return 1;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

HWND WindowOnScreen() {
    const RECT workArea = shell::WorkArea();
    HWND hwnd = IsWindow(activeWindow) ? activeWindow : nullptr;
    while (hwnd) {
        RECT area;
        GetWindowRect(hwnd, &area);
        const HWND owner = GetWindow(hwnd, GW_OWNER);
        if (!owner || area.bottom - area.top >= workArea.bottom - workArea.top) break;
        hwnd = owner;
    }
    return hwnd;
}

void ShowNavigationBar() {
    if (bar) return;
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = BarProcedure;
    windowClass.hInstance = GetModuleHandleW(L"aygshell.dll");
    windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    windowClass.lpszClassName = L"HHTaskBar";
    RegisterClassW(&windowClass);
    bar = CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOPMOST | WS_EX_TOOLWINDOW, L"HHTaskBar", L"",
                          WS_POPUP, 0, 0, shell::Screen().cx, shell::BarHeight(), nullptr, nullptr,
                          windowClass.hInstance, nullptr);
    SetWindowsHookExW(WH_CBT, BeforeCreation, nullptr, GetCurrentThreadId());
    SetWindowsHookExW(WH_KEYBOARD, BeforeKey, nullptr, GetCurrentThreadId());
    activeWindow = GetActiveWindow();
    ShowWindow(bar, SW_SHOWNOACTIVATE);
    PlaceKeyboard();
}

void FollowWindow(HWND hwnd) {
    if (followed.contains(hwnd)) return;
    const auto ours = reinterpret_cast<LONG_PTR>(FollowedProcedure);
    followed[hwnd] = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(hwnd, GWLP_WNDPROC));
    SetWindowLongPtrW(hwnd, GWLP_WNDPROC, ours);
}

void RepaintNavigationBar() {
    if (bar) InvalidateRect(bar, nullptr, FALSE);
}
