#pragma once

// Lengths are designed in pixels at 96 dots per inch and scaled to the screen, rounded to nearest.
constexpr int ScaleLength(int length, int dotsPerInch) { return (length * dotsPerInch + 48) / 96; }

// The screen's density in dots per inch, asked once.
int HorizontalDpi();
int VerticalDpi();

// ScaleX is for x positions and widths, ScaleY for y positions and heights.
inline int ScaleX(int length) { return ScaleLength(length, HorizontalDpi()); }
inline int ScaleY(int length) { return ScaleLength(length, VerticalDpi()); }
