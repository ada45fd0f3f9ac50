#pragma once

#include <windows.h>

// Fits what the bar's thread shows to a screen that had another size before: the bars, what filled
// the screen, and other windows as far as they would lie outside. Then every window is told.
void FollowScreen(HWND navigationBar, SIZE before);

// Shows or hides the input panel and tells every window.
void FollowInputPanel();

// A list that drops down from a combo box.
bool IsDropDownList(HWND hwnd);

// The desktop keeps drop-down lists on the display, which may be larger than the screen.
void KeepDropDownListOnScreen(HWND list, WINDOWPOS& position);
