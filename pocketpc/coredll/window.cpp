// Window calls whose manners differ.
#include <windows.h>

#include "pocketpc/common/screen.h"

namespace {

// Means nothing on the device; on the desktop it asks for a child of an MDI window, which fails.
constexpr DWORD kMdiChild = 0x40;
constexpr int kColorFlag = 0x40000000;
// Two colours that only the device has: the face and the text of static controls.
constexpr int kColorStatic = 25;
constexpr int kColorStaticText = 26;

int DesktopColor(int index) {
    const int plain = index & ~kColorFlag;
    if (plain == kColorStatic) return COLOR_WINDOW;
    if (plain == kColorStaticText) return COLOR_WINDOWTEXT;
    return plain;
}

}  // namespace

extern "C" HWND WINAPI Pocket_CreateWindowExW(DWORD extendedStyle, LPCWSTR className, LPCWSTR title,
                                              DWORD style, int x, int y, int width, int height,
                                              HWND parent, HMENU menu, HINSTANCE instance,
                                              LPVOID parameter) {
    // A program's main window has no caption of its own: the navigation bar shows its title.
    if (!parent && !(style & (WS_CHILD | WS_POPUP))) style = (style & ~WS_CAPTION) | WS_POPUP;
    return CreateWindowExW(extendedStyle & ~kMdiChild, className, title, style, x, y, width, height,
                           parent, menu, instance, parameter);
}

// With the low bit set, the whole application comes forward, with the dialog it has open in front.
extern "C" BOOL WINAPI Pocket_SetForegroundWindow(HWND hwnd) {
    const auto value = reinterpret_cast<ULONG_PTR>(hwnd);
    if (!(value & 1)) return SetForegroundWindow(hwnd);
    const auto window = reinterpret_cast<HWND>(value & ~ULONG_PTR{1});
    return SetForegroundWindow(GetLastActivePopup(window));
}

// The desktop's first child is the Today screen; elsewhere any program's window may be the first.
extern "C" HWND WINAPI Pocket_GetWindow(HWND hwnd, UINT relation) {
    if (relation == GW_CHILD && hwnd == GetDesktopWindow()) {
        return FindWindowW(L"DesktopExplorerWindow", nullptr);
    }
    return GetWindow(hwnd, relation);
}

// The display may be larger than the screen, which can be turned on it.
extern "C" int WINAPI Pocket_GetSystemMetrics(int index) {
    if (index == SM_CXSCREEN) return shell::Screen().cx;
    if (index == SM_CYSCREEN) return shell::Screen().cy;
    return GetSystemMetrics(index);
}

extern "C" BOOL WINAPI Pocket_GetWindowRect(HWND hwnd, RECT* rect) {
    if (!GetWindowRect(hwnd, rect)) return FALSE;
    if (hwnd == GetDesktopWindow()) {
        const SIZE screen = shell::Screen();
        *rect = {0, 0, screen.cx, screen.cy};
    }
    return TRUE;
}

extern "C" DWORD WINAPI Pocket_GetSysColor(int index) { return GetSysColor(DesktopColor(index)); }

extern "C" HBRUSH WINAPI Pocket_GetSysColorBrush(int index) {
    return GetSysColorBrush(DesktopColor(index));
}
