#include "appearance/categories/color_grid.h"

#include <algorithm>

#include "appearance/drawing/category_color.h"
#include "base/scale.h"

namespace {

// Pixels at 96 dots per inch.
constexpr int kMargin = 4;
constexpr int kCell = 12;
constexpr int kGap = 6;
constexpr int kFrame = 3;
constexpr int kBothBorders = 2;  // pixels of any screen

GridArea Enlarge(const GridArea& area, int x, int y) {
    return {area.left - x, area.top - y, area.right + x, area.bottom + y};
}

}  // namespace

const std::array<std::uint32_t, kColorColumns* kColorRows> ColorPalette = {
    kNoColor,   0x00002AA5, 0x00404000, 0x00005500, 0x005E0000, 0x008B0000, 0x0082004B, 0x00282828,
    0x0000008B, 0x002068FF, 0x00008B8B, 0x00009300, 0x008E8E38, 0x00FF0000, 0x00C07B7B, 0x00666666,
    0x000000FF, 0x005BADFF, 0x0032CD32, 0x0071B33C, 0x00D4FF7F, 0x00C09E7D, 0x00800080, 0x007F7F7F,
    0x00CBC0FF, 0x0000D7FF, 0x0000FFFF, 0x0000FF00, 0x00D0E040, 0x00FFFFC0, 0x00480048, 0x00C0C0C0,
    0x00E1E4FF, 0x008CB4D2, 0x00E0FFFF, 0x0098FB98, 0x00EEEEAF, 0x008B8368, 0x00FAE6E6, 0x00FFFFFF,
};

GridCell FindPaletteColor(std::uint32_t color) {
    const auto found = std::find(ColorPalette.begin(), ColorPalette.end(), color);
    if (found == ColorPalette.end()) return kNoCell;
    const int index = static_cast<int>(found - ColorPalette.begin());
    return {index % kColorColumns, index / kColorColumns};
}

GridCell ClampToGrid(GridCell cell) {
    return {std::clamp(cell.column, 0, kColorColumns - 1), std::clamp(cell.row, 0, kColorRows - 1)};
}

ColorGrid::ColorGrid(int horizontalDpi, int verticalDpi)
    : marginX_(ScaleLength(kMargin, horizontalDpi)),
      marginY_(ScaleLength(kMargin, verticalDpi)),
      cellX_(ScaleLength(kCell, horizontalDpi)),
      cellY_(ScaleLength(kCell, verticalDpi)),
      gapX_(ScaleLength(kGap, horizontalDpi)),
      gapY_(ScaleLength(kGap, verticalDpi)),
      frameX_(ScaleLength(kFrame, horizontalDpi)),
      frameY_(ScaleLength(kFrame, verticalDpi)),
      // The margin is the vertical one here as well; the grid's looks are known with it.
      width_(7 * gapX_ + 2 * (marginY_ + 4 * cellX_) + kBothBorders),
      height_(5 * cellY_ + 2 * (marginY_ + 2 * gapY_) + kBothBorders) {}

GridArea ColorGrid::CellArea(const GridCell& cell) const {
    const int left = marginX_ + cell.column * (cellX_ + gapX_);
    const int top = marginY_ + cell.row * (cellY_ + gapY_);
    return {left, top, left + cellX_, top + cellY_};
}

GridArea ColorGrid::SelectionArea(const GridCell& cell) const {
    return Enlarge(CellArea(cell), gapX_ / 2, gapY_ / 2);
}

GridArea ColorGrid::FrameArea(const GridCell& cell) const {
    return Enlarge(CellArea(cell), frameX_, frameY_);
}

GridCell ColorGrid::CellAt(int x, int y) const {
    // A row is as high as a column is wide: the grid is square on any screen.
    const int step = cellX_ + gapX_;
    return {std::clamp((x - marginX_) / step, 0, kColorColumns),
            std::clamp((y - marginY_) / step, 0, kColorRows)};
}

GridPoint PlaceColorGrid(const GridArea& button, int width, int height, int screenWidth,
                         int screenHeight, int overlap) {
    GridPoint place = {button.left, button.bottom - overlap};
    if (place.x + width > screenWidth && button.right - width >= 0) place.x = button.right - width;
    if (place.y + height > screenHeight && button.top - height >= 0) place.y = button.top - height;
    return place;
}
