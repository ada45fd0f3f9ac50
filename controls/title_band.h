#pragma once

#include <windows.h>

#include <string>

// Height of the title band of every page, in pixels; the line under it comes in addition.
int TitleBandHeight();

// Paints the band, `bandHeight` pixels high, and its line at the vertical position `top` (negative
// once the page is scrolled). A band that is scrolled out of view paints nothing.
void PaintTitleBand(HDC dc, const std::wstring& title, int bandHeight, int top);

// Invalidates what a scroll from one position to another changes of the band.
void InvalidateTitleBand(HWND hwnd, int bandHeight, int oldPosition, int newPosition);
