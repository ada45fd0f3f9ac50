#pragma once

#include <array>
#include <cstdint>

#include "base/grid_area.h"

inline constexpr int kColorColumns = 8;
inline constexpr int kColorRows = 5;

// The colours to choose from, row by row; the first is "no colour".
extern const std::array<std::uint32_t, kColorColumns * kColorRows> ColorPalette;

struct GridCell {
    int column = 0;
    int row = 0;
    bool operator==(const GridCell&) const = default;
};

inline constexpr GridCell kNoCell = {-1, -1};
// The cell of a colour; kNoCell of one that the palette lacks.
GridCell FindPaletteColor(std::uint32_t color);
GridCell ClampToGrid(GridCell cell);

// Where the cells of the colour grid lie, in pixels of a screen of the given density.
class ColorGrid {
  public:
    ColorGrid(int horizontalDpi, int verticalDpi);

    // Of the window, with its border of one pixel.
    int width() const { return width_; }
    int height() const { return height_; }

    GridArea CellArea(const GridCell& cell) const;
    // What changes with a cell's selection: the cell and half the gap around it.
    GridArea SelectionArea(const GridCell& cell) const;
    // The frame behind the selected cell.
    GridArea FrameArea(const GridCell& cell) const;

    // The cell under a point of the window. Beyond the last column or row it is one past the grid.
    GridCell CellAt(int x, int y) const;

  private:
    int marginX_, marginY_;
    int cellX_, cellY_;
    int gapX_, gapY_;
    int frameX_, frameY_;
    int width_, height_;
};

// Where a grid of the given size opens for a button: under it, `overlap` pixels into it; where the
// screen ends, aligned with its right edge or above it.
GridPoint PlaceColorGrid(const GridArea& button, int width, int height, int screenWidth,
                         int screenHeight, int overlap);
