#include <gtest/gtest.h>

#include "appearance/categories/color_grid.h"
#include "appearance/drawing/category_color.h"

namespace {

TEST(CategoryColor, PacksAndBlends) {
    CategoryColor color;
    EXPECT_EQ(color.Pack(), 0xE4000000u);
    EXPECT_EQ(color.GetColor(), kNoColor);
    color.SetColor(0x7F123456);
    EXPECT_EQ(color.Pack(), 0x64123456u);
    color.SetColor(kNoColor);
    color.SetIntensity(25);
    EXPECT_EQ(color.Pack(), 0x99123456u);
    color.Unpack(0x80FF0000);
    EXPECT_EQ(color.GetColor(), kNoColor);
    EXPECT_EQ(color.GetIntensity(), 0);

    constexpr std::tuple<std::uint32_t, std::uint32_t, std::uint32_t> kBlends[] = {
        {0x00123456, 0x00ABCDEF, 0x00ABCDEF}, {0x64123456, 0x00ABCDEF, 0x00123456},
        {0xE4123456, 0x00ABCDEF, 0x00ABCDEF}, {0x32000000, 0x00FFFFFF, 0x00808080},  // 255 - 127
        {0x320000FF, 0x00000000, 0x0000007F}, {0x190A14FF, 0x00FF1400, 0x00C2143F}};
    for (const auto& [packed, background, blended] : kBlends) {
        color.Unpack(packed);
        EXPECT_EQ(BlendCategoryColor(color, background), blended) << std::hex << packed;
    }
}

TEST(ColorGrid, LiesOnTheScreenAsDesigned) {
    EXPECT_EQ(ColorPalette[1], 0x00002AA5u);
    EXPECT_EQ(FindPaletteColor(0x00FAE6E6), (GridCell{6, 4}));
    EXPECT_EQ(FindPaletteColor(kNoColor), (GridCell{0, 0}));
    EXPECT_FALSE(IsInGrid(FindPaletteColor(0x00123456)));

    const ColorGrid usual(96, 96), fine(192, 192), uneven(192, 96);
    EXPECT_EQ(usual.width(), 148);
    EXPECT_EQ(usual.height(), 94);
    EXPECT_EQ(fine.width(), 294);
    EXPECT_EQ(fine.height(), 186);
    EXPECT_EQ(uneven.width(), 286);  // with the vertical margin
    EXPECT_EQ(usual.CellArea({7, 4}), (GridArea{130, 76, 142, 88}));
    EXPECT_EQ(fine.CellArea({1, 2}), (GridArea{44, 80, 68, 104}));
    EXPECT_EQ(usual.FrameArea({0, 0}), (GridArea{1, 1, 19, 19}));
    EXPECT_EQ(uneven.SelectionArea({0, 1}), (GridArea{2, 19, 38, 37}));
    EXPECT_EQ(uneven.FrameArea({0, 1}), (GridArea{2, 19, 38, 37}));

    const std::tuple<const ColorGrid&, GridPoint, GridCell> cells[] = {
        {usual, {4, 4}, {0, 0}},       {usual, {21, 21}, {0, 0}},
        {usual, {22, 22}, {1, 1}},     {usual, {147, 93}, {7, 4}},
        {usual, {148, 94}, {8, 5}},    {usual, {900, 900}, {8, 5}},
        {usual, {-900, -900}, {0, 0}}, {fine, {44, 80}, {1, 2}},
        {uneven, {8, 39}, {0, 0}}};  // rows by the horizontal density
    for (const auto& [grid, point, cell] : cells) {
        EXPECT_EQ(grid.CellAt(point.x, point.y), cell) << point.x << "," << point.y;
    }
    EXPECT_EQ(ClampToGrid({8, 5}), (GridCell{7, 4}));

    const std::tuple<GridArea, int, int, GridPoint> places[] = {
        {{10, 20, 50, 40}, 240, 320, {10, 39}},
        {{92, 206, 132, 227}, 240, 320, {92, 226}},  // fits exactly; there is no room left of it
        {{92, 20, 160, 40}, 240, 320, {92, 39}},     // nor need for it
        {{190, 290, 230, 310}, 240, 320, {82, 196}},
        {{100, 20, 148, 40}, 240, 320, {0, 39}},  // exactly as far as there is screen
        {{10, 94, 50, 114}, 240, 180, {10, 0}},
        {{100, 50, 140, 70}, 140, 100, {100, 69}}};
    for (const auto& [button, width, height, place] : places) {
        EXPECT_EQ(PlaceColorGrid(button, 148, 94, width, height, 1), place) << button.left;
    }
}

}  // namespace
