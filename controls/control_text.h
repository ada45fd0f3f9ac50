#pragma once

#include <windows.h>

#include "controls/dialog_layout.h"

// Where a control stands, and what it needs for its text, measured in its font.

// As the dialog is scrolled now.
RECT RectInDialog(HWND dialog, HWND control);

bool IsOfClass(HWND control, const wchar_t* className);
ControlKind KindOf(HWND control);
// How wide in pixels a control must be to show its text, or the longest of its list, in one line;
// 0 where it shows none;
// for a control of kField without a text, how wide it must be to be of use. `width` is its own.
int TextWidth(HWND control, int width);
// The height in pixels of a control of kLabel or kText that has this width.
int TextHeight(HWND control, int width);
// Whether a check box breaks its text into lines; other texts do so anyway.
void BreakLines(HWND control, bool breaks);
