// What the stand-in libraries share about the shell's windows.
#pragma once

#include <windows.h>

namespace shell {

// Window properties: a window that shows the Done button, a window's menu bar.
inline constexpr wchar_t kDoneButton[] = L"PocketPC.DoneButton";
inline constexpr wchar_t kMenuBar[] = L"PocketPC.MenuBar";

// Height in pixels of the navigation bar at the top of the screen, and of the menu bar at its
// bottom.
inline int BarHeight() {
    const HDC screen = GetDC(nullptr);
    const int height = (26 * GetDeviceCaps(screen, LOGPIXELSY) + 48) / 96;
    ReleaseDC(nullptr, screen);
    return height;
}

// What lies between the two bars.
inline RECT WorkArea() {
    const int bar = BarHeight();
    return {0, bar, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN) - bar};
}

inline HFONT CreateBarFont(int weight) {
    const HDC screen = GetDC(nullptr);
    LOGFONTW font = {};
    font.lfHeight = -(12 * GetDeviceCaps(screen, LOGPIXELSY) + 48) / 96;
    ReleaseDC(nullptr, screen);
    font.lfWeight = weight;
    wcscpy(font.lfFaceName, L"Tahoma");
    return CreateFontIndirectW(&font);
}

inline constexpr COLORREF kBarColor = RGB(0x1C, 0x3F, 0x7C);
inline constexpr COLORREF kBarTextColor = RGB(255, 255, 255);

}  // namespace shell
