#pragma once

#include <windows.h>

// Shows the menu bars of `root` or of the visible pages inside it, above all other windows, and
// hides those of other windows.
void ShowMenuBarsOf(HWND root);

// Puts all menu bars at the bottom of the screen and paints them anew.
void PlaceMenuBars();

// Where no window manager runs, Wine raises the focused window even above topmost ones. A window
// that reaches under its menu bar or the input panel therefore leaves their place free.
void LeaveBarsFree(HWND root);

// To be called when a popup menu of a window opens or closes: the soft key whose command opened it
// is lit meanwhile, as it is for a menu of the bar's own.
void MenuOpened(HWND owner);
void MenuClosed(HWND owner);

// Presses a soft key of the window's menu bar as a tap does. False when the bar has none such.
bool PressSoftKey(HWND root, int index);
