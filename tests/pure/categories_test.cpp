#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "appearance/categories/color_grid.h"
#include "appearance/categories/icon_catalogue.h"
#include "appearance/categories/icon_grid.h"
#include "appearance/categories/icon_header.h"
#include "appearance/categories/icon_picture.h"
#include "appearance/categories/icon_sources.h"
#include "appearance/categories/short_path.h"
#include "appearance/drawing/category_color.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

void Append(Bytes& bytes, std::uint32_t value, int size = 4) {
    for (; size > 0; --size, value >>= 8) bytes.push_back(value & 0xFF);
}

IconDigest Digest(std::uint8_t fill) {
    IconDigest digest;
    digest.fill(fill);
    return digest;
}

// Two groups, "AB" (padded) and a letter (not), which share a digest.
Bytes Catalogue() {
    Bytes file;
    Append(file, 2);
    for (const std::uint32_t unit : {65, 66, 0, 0, 0x416, 0}) Append(file, unit, 2);
    Append(file, 1);
    file.insert(file.end(), 16, 1);
    Append(file, 2);
    file.insert(file.end(), 16, 1);
    file.insert(file.end(), 16, 2);
    return file;
}

TEST(IconCatalogue, FindsTheFirstGroupAndRefusesWhatIsCut) {
    const Bytes file = Catalogue();
    IconCatalogue catalogue;
    ASSERT_TRUE(catalogue.Read(file));
    EXPECT_EQ(catalogue.titles(), (std::vector<std::wstring>{L"AB", L"\x416"}));
    EXPECT_TRUE(catalogue.CountOf(0) == 1 && catalogue.CountOf(1) == 1);
    EXPECT_EQ(catalogue.FindGroup(Digest(1)), 0u);
    EXPECT_EQ(catalogue.FindGroup(Digest(2)), 1u);
    EXPECT_EQ(catalogue.FindGroup(Digest(3)), std::nullopt);

    for (std::size_t size = 0; size < file.size(); ++size) {
        EXPECT_FALSE(catalogue.Read(std::span(file).first(size))) << size;
        EXPECT_TRUE(catalogue.titles().empty() && !catalogue.FindGroup(Digest(1)));
    }
    // The counts of groups and of the first group's digests.
    for (const std::size_t place : {0, 16}) {
        for (const std::uint32_t count : {0xFFFFFFFFu, 0x7FFFFFFFu, 0x80000000u, 100u}) {
            Bytes wrong = file;
            for (int i = 0; i < 4; ++i) wrong[place + i] = count >> 8 * i & 0xFF;
            EXPECT_FALSE(catalogue.Read(wrong)) << place << ": " << count;
        }
    }
    EXPECT_TRUE(catalogue.Read(file) && catalogue.Read(Bytes(4)) &&
                !catalogue.FindGroup(Digest(1)));
    EXPECT_FALSE(catalogue.Read(Bytes{1, 0, 0, 0, 'A', 0, 'A', 0}));
}

TEST(IconHeader, LetsOnlyWholeBitmapsThrough) {
    struct Case {
        const char* what;
        std::uint32_t header, width, height, bits, compression, colors, pixels;
        bool good;
        std::uint32_t early = 0;  // bytes by which the pixels begin within what is before them
    };
    for (const Case& c : {
             Case{"24 bits", 40, 3, 2, 24, 0, 0, 24, true},
             Case{"a byte short", 40, 3, 2, 24, 0, 0, 23, false},
             Case{"top down", 40, 3, 0xFFFFFFFE, 32, 0, 0, 24, true},
             Case{"8 bits", 40, 3, 2, 8, 0, 256, 8, true},
             Case{"short table", 40, 3, 2, 8, 0, 2, 8, true},
             Case{"too many colours", 40, 3, 2, 4, 0, 17, 500, false},
             Case{"run lengths", 40, 3, 2, 8, 1, 256, 500, false},
             Case{"no such depth", 40, 3, 2, 7, 0, 2, 500, false},
             Case{"masks", 40, 3, 2, 16, 3, 0, 16, true},
             Case{"a mask's byte short", 40, 3, 2, 16, 3, 0, 15, false},
             Case{"no such compression", 40, 3, 2, 16, 2, 0, 500, false},
             Case{"pixels in the table", 40, 3, 2, 8, 0, 2, 8, false, 1},
             Case{"pixels in the masks", 40, 3, 2, 16, 3, 0, 16, false, 1},
             Case{"pixels in the header", 40, 3, 2, 24, 0, 0, 24, false, 1},
             Case{"no width", 40, 0, 2, 24, 0, 0, 500, false},
             Case{"no height", 40, 3, 0, 24, 0, 0, 500, false},
             Case{"widest", 40, 0x7FFF, 2, 1, 0, 2, 8192, true},
             Case{"wider", 40, 0x8000, 2, 1, 0, 2, 8192, false},
             Case{"highest", 40, 1, 0x7FFF, 1, 0, 2, 4 * 0x7FFF, true},
             Case{"higher", 40, 1, 0x8000, 1, 0, 2, 4 * 0x8000, false},
             Case{"deepest", 40, 3, 0x80000000, 24, 0, 0, 500, false},
             Case{"no such header", 41 + 84, 3, 2, 24, 0, 0, 500, false},
         }) {
        Bytes file = {'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0};
        const std::uint32_t masks = c.compression == 3 ? 12 : 0;
        const std::uint32_t pixels = 14 + c.header + 4 * c.colors + masks - c.early;
        for (const std::uint32_t field : {pixels, c.header, c.width, c.height, 1 | c.bits << 16,
                                          c.compression, 0u, 0u, 0u, c.colors}) {
            Append(file, field);
        }
        file.resize(pixels + c.early + c.pixels);
        const std::optional<BitmapFileHeader> header = ReadIconHeader(file);
        ASSERT_EQ(header.has_value(), c.good) << c.what;
        if (!header) continue;
        EXPECT_EQ(header->info.width, static_cast<int>(c.width)) << c.what;
        EXPECT_EQ(header->info.height, static_cast<int>(c.height > 0x8000 ? 2 : c.height))
            << c.what;
    }
    EXPECT_FALSE(ReadIconHeader({}));
}

// Of files with one pixel, FF, behind everything: what the picture says from its depth on, without
// zeros.
TEST(IconPicture, HasOneHeaderWhicheverTheFileHad) {
    using Numbers = std::vector<std::uint32_t>;
    struct Case {
        const char* what;
        Numbers header;  // the file's
        Bytes rest;      // masks and colours
        Bytes after;     // of the picture, behind the pixel's depth
    };
    const Numbers masked = {40, 1, 1, 1 | 16 << 16, 3, 0, 0, 0, 0, 0};
    const Bytes masks = {0, 0xF8, 0, 0, 0xE0, 7, 0, 0, 0x1F, 0, 0, 0};
    const auto with = [&](std::size_t at, std::uint8_t byte) {
        Bytes changed = masks;
        changed[at] = byte;
        return changed;
    };
    const Bytes maskedPicture = {16, 3, 0xF8, 0xE0, 7, 0x1F, 0xFF};
    for (const Case& c : {
             Case{"24 bits", {40, 1, 1, 1 | 24 << 16, 0, 0, 5, 5, 0, 0}, {}, {24, 0xFF}},
             Case{"colours",
                  {40, 1, 1, 1 | 4 << 16, 0, 0, 5, 5, 2, 0},
                  {1, 2, 3, 9, 4, 5, 6, 9},
                  {4, 2, 1, 2, 3, 4, 5, 6, 0xFF}},
             Case{"a hint", {40, 1, 1, 1 | 24 << 16, 0, 0, 0, 0, 1, 0}, {1, 2, 3, 0}, {24, 0xFF}},
             Case{"the oldest header",
                  {12, 1 | 1 << 16, 1 | 1 << 16},
                  {1, 2, 3, 4, 5, 6},
                  {1, 2, 1, 2, 3, 4, 5, 6, 0xFF}},
             Case{"masks", masked, masks, maskedPicture},
             Case{"masks in the header",
                  {52, 1, 1, 1 | 16 << 16, 3, 0, 0, 0, 0, 0},
                  masks,
                  maskedPicture},
             Case{"a gap", masked, with(1, 0xE8), {}},
             Case{"no blue", masked, with(8, 0), {}},
             Case{"twice", masked, with(8, 0x3F), {}},
         }) {
        Bytes file = {'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
        for (const std::uint32_t field : c.header) Append(file, field);
        file.insert(file.end(), c.rest.begin(), c.rest.end());
        file[10] = static_cast<std::uint8_t>(file.size());
        file.insert(file.end(), {0xFF, 0, 0, 0});
        const std::optional<BitmapFileHeader> fileHeader = ReadIconHeader(file);
        ASSERT_TRUE(fileHeader) << c.what;
        const std::optional<IconPicture> picture = ReadIconPicture(file, *fileHeader);
        ASSERT_EQ(picture.has_value(), !c.after.empty()) << c.what;
        if (!picture) continue;
        Bytes bytes = picture->bytes;
        EXPECT_EQ(bytes.size(), picture->pixels + 4u) << c.what;
        EXPECT_TRUE(bytes[0] == 40 && bytes[12] == 1 && bytes[14] == c.after[0]) << c.what;
        EXPECT_EQ(picture->width * 100 + picture->height, 101) << c.what;
        bytes.erase(bytes.begin(), bytes.begin() + 14);
        std::erase(bytes, 0);
        EXPECT_EQ(bytes, c.after) << c.what;
    }
}

TEST(IconGrid, LiesGroupBelowGroup) {
    const IconGridMetrics metrics = {15, 20, 20, 24};
    // Three columns; groups of two rows, of none, collapsed, of one row.
    const IconGrid grid(metrics, 85, {{5, true}, {0, true}, {9, false}, {1, true}});
    EXPECT_EQ(grid.columns(), 3);
    EXPECT_EQ(grid.height(), 4 * 15 + 3 * 24);
    EXPECT_EQ(grid.AreaOf({0, 4}), (GridArea{40, 39, 60, 63}));
    EXPECT_EQ(grid.AreaOf({3}), (GridArea{0, 93, 85, 108}));
    EXPECT_EQ(grid.At({40, 39}), (IconPlace{0, 4}));
    EXPECT_EQ(grid.At({0, 0}), (IconPlace{0}));
    EXPECT_EQ(grid.At({0, 92}), (IconPlace{2}));
    EXPECT_EQ(grid.At({60, 39}), std::nullopt);  // behind the last icon
    EXPECT_EQ(grid.At({80, 20}), std::nullopt);  // behind the last column
    EXPECT_EQ(grid.At({85, 5}), std::nullopt);
    EXPECT_EQ(grid.At({20, 132}), std::nullopt);
    EXPECT_EQ(grid.At({20, -1}), std::nullopt);
    EXPECT_EQ(grid.GroupsWithin(0, 15), (IconGrid::Range{0, 1}));
    EXPECT_EQ(grid.GroupsWithin(62, 79), (IconGrid::Range{0, 3}));
    EXPECT_EQ(grid.GroupsWithin(132, 200), (IconGrid::Range{4, 4}));
    EXPECT_EQ(grid.IconsWithin(0, 0, 15), (IconGrid::Range{0, 0}));
    EXPECT_EQ(grid.IconsWithin(0, 38, 40), (IconGrid::Range{0, 5}));
    EXPECT_EQ(grid.IconsWithin(0, 39, 90), (IconGrid::Range{3, 5}));
    EXPECT_EQ(grid.IconsWithin(2, 0, 500), (IconGrid::Range{0, 0}));

    struct Case {
        IconMove move;
        std::vector<std::pair<IconPlace, IconPlace>> ways;
    };
    for (const Case& c :
         {Case{IconMove::kUp, {{{0}, {0}}, {{0, 1}, {0}}, {{0, 4}, {0, 1}}, {{1}, {0, 3}}}},
          Case{IconMove::kDown,
               {{{0, 1}, {0, 4}}, {{0, 2}, {0, 4}}, {{0, 3}, {1}}, {{3, 0}, {3, 0}}}},
          Case{IconMove::kRight, {{{0, 4}, {1}}, {{3}, {3, 0}}}},
          Case{IconMove::kLeft, {{{3}, {2}}, {{1}, {0, 4}}, {{0, 4}, {0, 3}}}},
          Case{IconMove::kLast, {{{0}, {3, 0}}}}, Case{IconMove::kFirst, {{{3, 0}, {0}}}},
          Case{IconMove::kPageDown, {{{0}, {0, 3}}, {{3}, {3, 0}}}},
          Case{IconMove::kPageUp, {{{3, 0}, {2}}}}}) {
        for (const auto& [from, to] : c.ways) {
            EXPECT_EQ(grid.Move(from, c.move, 63), to)
                << from.group << "," << from.icon << " " << static_cast<int>(c.move);
        }
    }
    EXPECT_EQ(grid.Move(std::nullopt, IconMove::kDown, 60), IconPlace{});
    EXPECT_EQ(IconGrid().Move(std::nullopt, IconMove::kDown, 60), std::nullopt);
    EXPECT_EQ(IconGrid(metrics, 5, {{2, true}}).columns(), 1);
    const IconGrid oneIsLast(metrics, 85, {{4, true}});
    EXPECT_EQ(oneIsLast.Move(IconPlace{0, 1}, IconMove::kDown, 60), (IconPlace{0, 3}));
}

TEST(IconSources, ShowsAnyOfThem) {
    using Folders = std::vector<std::wstring>;
    const RememberedFolders remembered(
        {{L"10", L"c"}, {L"2", L"b"}, {L"x1", L"-"}, {L"0", L"-"}, {L"3", L""}, {L"01", L"a"}});
    EXPECT_EQ(remembered.folders(), (Folders{L"a", L"b", L"c"}));
    RememberedFolders many({{L"1", L"a"},
                            {L"2", L"b"},
                            {L"3", L"a"},
                            {L"4", L"c"},
                            {L"5", L"d"},
                            {L"6", L"e"},
                            {L"7", L"f"}});
    EXPECT_EQ(many.folders(), (Folders{L"a", L"b", L"c", L"d", L"e"}));
    many.Add(L"c");
    EXPECT_EQ(many.folders(), (Folders{L"c", L"a", L"b", L"d", L"e"}));
    many.Add(L"g");
    EXPECT_EQ(many.folders(), (Folders{L"g", L"c", L"a", L"b", L"d"}));

    IconSources sources({L"1", L"2"}, RememberedFolders({{L"1", L"a"}, {L"2", L"b"}}));
    EXPECT_EQ(sources.Show(99), (Folders{L"1", L"2", L"a", L"b"}));
    EXPECT_EQ(sources.Show(-1), std::nullopt);
    EXPECT_EQ(sources.Show(5), std::nullopt);
    EXPECT_EQ(sources.shown(), 0);
    EXPECT_EQ(sources.Show(2), Folders{L"2"});
    EXPECT_EQ(sources.Show(0), (Folders{L"1", L"2", L"a", L"b"}));
    EXPECT_EQ(sources.Show(4), Folders{L"b"});
    EXPECT_EQ(sources.shown(), 3);
    EXPECT_EQ(sources.remembered().folders(), (Folders{L"b", L"a"}));
    EXPECT_EQ(sources.ShowFolder(L"c"), Folders{L"c"});
    EXPECT_EQ(sources.shown(), 3);
}

TEST(IconSources, AreShownAsShortPaths) {
    const std::tuple<std::wstring, std::size_t, std::wstring> cases[] = {
        {L"\\My Documents\\Icons\\", 20, L"\\My Documents\\Icons\\"},
        {L"\\My Documents\\Icons\\", 19, L"...\\Icons\\"},
        {L"\\My Documents\\Icons\\", 5, L"...s\\"},
        {L"\\My Documents\\Icons", 8, L"...Icons"},
        {L"\\My Documents\\Icons", 0, L"..."},
        {std::wstring(260, L'a'), 6, L"...aaa"},
        {L"\\", 0, L"..."},
        {L"", 0, L""}};
    for (const auto& [path, room, shown] : cases) {
        const auto fits = [room](const std::wstring& text) { return text.size() <= room; };
        EXPECT_EQ(ShortenPath(path, fits), shown) << room;
    }
}

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
    EXPECT_EQ(FindPaletteColor(0x00123456), kNoCell);

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
    EXPECT_TRUE(ClampToGrid({8, 5}) == (GridCell{7, 4}) && ClampToGrid({-1, -1}) == GridCell{});

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
