#pragma once

#include <string>

#include "appearance/skins/bitmap_file.h"

// The files that a skin has for a screen's density.
struct SkinMembers {
    std::string icons;
    std::string scrollBar;
    std::string tabIcons;
    int tabIconSize;  // pixels, across and down
};
bool IsHighResolution(int dotsPerInch);
SkinMembers SkinMembersFor(int dotsPerInch);

// A bitmap's squares, row by row from its upper left corner; what is left over is none.
struct SquareGrid {
    int size, columns, rows;

    SquareGrid(const BitmapView& view, int squareSize)
        : size(squareSize), columns(view.width / squareSize), rows(view.height / squareSize) {}
    int Count() const { return columns * rows; }
    int Left(int square) const { return square % columns * size; }
    int Top(int square) const { return square / columns * size; }
};

// Whether a pixel of a tab icon, its bytes blue, green, red, is not painted.
inline bool IsTransparentInTabIcons(const std::uint8_t* pixel) {
    return pixel[0] == 255 && pixel[1] == 0 && pixel[2] == 255;
}
