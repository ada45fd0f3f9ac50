#pragma once

#include <windows.h>

// Paints what lies behind the plug-in on the Today screen, as the background of a preview: its
// picture where the owner chose one that is a bitmap, else the window colour. The device context
// then has the text colour that goes with it.
void PaintTodayBackground(HDC dc, const RECT& area);
