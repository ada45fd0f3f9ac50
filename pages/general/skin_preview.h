#pragma once

#include <windows.h>

// What the skins page shows of the current skin's artwork, each filling its rectangle.

// All item icons, ten in a row.
void PaintItemIcons(HDC dc, const RECT& rect);
// A scroll bar that stands still.
void PaintScrollBar(HDC dc, const RECT& rect);
// The diary with some items: its tabs, a group with its items, a scroll bar. Texts have the font
// that `dc` has.
void PaintSampleList(HDC dc, const RECT& rect);
