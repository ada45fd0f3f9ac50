#pragma once

#include <windows.h>

// Shows the menu bars of `root` or of the visible pages inside it, above all other windows, and
// hides those of other windows.
void ShowMenuBarsOf(HWND root);

// Presses a soft key of the window's menu bar as a tap does. False when the bar has none such.
bool PressSoftKey(HWND root, int index);
