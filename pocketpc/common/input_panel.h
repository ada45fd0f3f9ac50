// The input panel: a keyboard on the screen, above the menu bar. It is up or down for all programs.
#pragma once

#include <windows.h>

namespace shell {

bool InputPanelIsUp();
// Raises or lowers it and tells all that is open.
void SetInputPanel(bool up);

// Where it is while it is up, on a screen of this size.
RECT InputPanelArea(SIZE screen);
// What of the work area it does not cover.
RECT VisibleWorkArea();

// What each program's shell window is told when the panel has risen or gone down.
UINT InputPanelMessage();

// WM_SETTINGCHANGE's wParam then (SPI_SETSIPINFO of the device).
inline constexpr WPARAM kSetSipInfo = 224;

}  // namespace shell
