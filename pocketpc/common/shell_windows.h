// What the stand-in libraries share about the shell's windows.
#pragma once

#include <windows.h>

#include "pocketpc/common/screen.h"

namespace shell {

// Window properties: a window that shows the Done button, a window's menu bar.
inline constexpr wchar_t kDoneButton[] = L"PocketPC.DoneButton";
inline constexpr wchar_t kMenuBar[] = L"PocketPC.MenuBar";

// A length in pixels of this screen, from one at 96 dots per inch.
inline int Scale(int length) {
    const HDC screen = GetDC(nullptr);
    const int density = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return (length * density + 48) / 96;
}

// Height in pixels of the navigation bar at the top of the screen, and of the menu bar at its
// bottom.
inline int BarHeight() { return Scale(26); }

// What lies between the two bars.
inline RECT WorkArea() {
    const int bar = BarHeight();
    const SIZE screen = Screen();
    return {0, bar, screen.cx, screen.cy - bar};
}

inline HFONT CreateBarFont(int weight) {
    LOGFONTW font = {};
    font.lfHeight = -Scale(12);
    font.lfWeight = weight;
    wcscpy(font.lfFaceName, L"Tahoma");
    return CreateFontIndirectW(&font);
}

inline constexpr COLORREF kBarColor = RGB(0x1C, 0x3F, 0x7C);
inline constexpr COLORREF kBarPressedColor = RGB(0x4A, 0x74, 0xBA);
inline constexpr COLORREF kBarLineColor = RGB(0x5B, 0x7F, 0xBE);
inline constexpr COLORREF kBarTextColor = RGB(255, 255, 255);

inline void FillColor(HDC dc, const RECT& area, COLORREF color) {
    const HBRUSH brush = CreateSolidBrush(color);
    FillRect(dc, &area, brush);
    DeleteObject(brush);
}

}  // namespace shell
