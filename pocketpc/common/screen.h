// The device's screen, which may be held either way up while programs run.
#pragma once

#include <windows.h>

namespace shell {

// Pixels, as the screen is held now. Unless SetScreen said otherwise, all of the display.
SIZE Screen();

// Makes the upper left part of the display the screen and tells all that is open.
void SetScreen(SIZE screen);
// Holds it the other way up.
void TurnScreen();

// What each program's shell window is told when the screen has changed; wParam is the size before,
// as MAKELONG makes it.
UINT ScreenChangeMessage();

// WM_SETTINGCHANGE's wParam when the screen has been turned (SETTINGCHANGE_RESET of the device).
inline constexpr WPARAM kScreenReset = 0x3002;

}  // namespace shell
