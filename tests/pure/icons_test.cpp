#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "appearance/bitmap_header.h"
#include "appearance/icon_catalogue.h"
#include "appearance/icon_grid.h"
#include "appearance/icon_sources.h"

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

// Two groups, "AB" (padded) and "C" (not), which share a digest.
Bytes Catalogue() {
    Bytes file;
    Append(file, 2);
    for (const std::uint32_t unit : {65, 66, 0, 0, 67, 0}) Append(file, unit, 2);
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
    EXPECT_EQ(catalogue.titles(), (std::vector<std::wstring>{L"AB", L"C"}));
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
    EXPECT_TRUE(catalogue.Read(Bytes(4)));
    EXPECT_FALSE(catalogue.Read(Bytes{1, 0, 0, 0, 'A', 0, 'A', 0}));
}

Bytes Bitmap(std::uint32_t header, std::uint32_t width, std::uint32_t height, std::uint32_t bits,
             std::uint32_t compression, std::uint32_t colors, std::size_t size) {
    Bytes file = {'B', 'M'};
    for (const std::uint32_t field : {0u, 0u, 14 + header + 4 * colors, header})
        Append(file, field);
    const int side = header == 12 ? 2 : 4;
    Append(file, width, side);
    Append(file, height, side);
    Append(file, 1, 2);
    Append(file, bits, 2);
    for (const std::uint32_t field : {compression, 0u, 0u, 0u, colors}) Append(file, field);
    file.resize(size);
    return file;
}

TEST(BitmapHeader, LetsOnlyWholeBitmapsThrough) {
    struct Case {
        const char* what;
        Bytes file;
        bool good;
    };
    const BitmapSize size = {3, 2};
    for (const Case& c : {
             Case{"24 bits", Bitmap(40, 3, 2, 24, 0, 0, 54 + 24), true},
             Case{"a byte short", Bitmap(40, 3, 2, 24, 0, 0, 54 + 23), false},
             Case{"top down", Bitmap(40, 3, 0xFFFFFFFE, 32, 0, 0, 54 + 24), true},
             Case{"core header", Bitmap(12, 3, 2, 24, 0, 0, 26 + 24), true},
             Case{"8 bits", Bitmap(40, 3, 2, 8, 0, 256, 54 + 1024 + 8), true},
             Case{"short table", Bitmap(40, 3, 2, 8, 0, 2, 54 + 8 + 8), true},
             Case{"table beyond the end", Bitmap(40, 3, 2, 8, 0, 256, 100), false},
             Case{"too many colours", Bitmap(40, 3, 2, 4, 0, 17, 500), false},
             Case{"run lengths", Bitmap(40, 3, 2, 8, 1, 256, 2000), false},
             Case{"no such depth", Bitmap(40, 3, 2, 7, 0, 0, 500), false},
             Case{"no width", Bitmap(40, 0, 2, 24, 0, 0, 500), false},
             Case{"widest", Bitmap(40, 0x7FFFFFFF, 2, 24, 0, 0, 500), false},
             Case{"deepest", Bitmap(40, 3, 0x80000000, 24, 0, 0, 500), false},
             Case{"header beyond the end", Bitmap(124, 3, 2, 24, 0, 0, 60), false},
             Case{"no such header", Bitmap(13, 3, 2, 24, 0, 0, 500), false},
             Case{"nothing", {}, false},
         }) {
        EXPECT_EQ(ReadBitmapSize(c.file), c.good ? std::optional(size) : std::nullopt) << c.what;
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
    EXPECT_EQ(grid.At({0, 92}), (IconPlace{2}));
    EXPECT_EQ(grid.At({60, 39}), std::nullopt);  // behind the last icon
    EXPECT_EQ(grid.At({80, 20}), std::nullopt);  // behind the last column
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
        IconPlace from;
        IconMove move;
        IconPlace to;
    };
    for (const Case& c : {
             Case{{0}, IconMove::kUp, {0}},
             Case{{0, 1}, IconMove::kUp, {0}},
             Case{{0, 4}, IconMove::kUp, {0, 1}},
             Case{{0, 1}, IconMove::kDown, {0, 4}},
             Case{{0, 2}, IconMove::kDown, {0, 4}},
             Case{{0, 3}, IconMove::kDown, {1}},
             Case{{1}, IconMove::kUp, {0, 3}},
             Case{{0, 4}, IconMove::kRight, {1}},
             Case{{3}, IconMove::kLeft, {2}},
             Case{{3}, IconMove::kRight, {3, 0}},
             Case{{3, 0}, IconMove::kDown, {3, 0}},
             Case{{0}, IconMove::kLast, {3, 0}},
             Case{{3, 0}, IconMove::kFirst, {0}},
             Case{{0}, IconMove::kPageDown, {0, 3}},
             Case{{3, 0}, IconMove::kPageUp, {2}},
             Case{{3}, IconMove::kPageDown, {3, 0}},
         }) {
        EXPECT_EQ(grid.Move(c.from, c.move, 63), c.to)
            << c.from.group << "," << c.from.icon << " " << static_cast<int>(c.move);
    }
    EXPECT_EQ(grid.Move(std::nullopt, IconMove::kDown, 60), IconPlace{});
    EXPECT_EQ(IconGrid().Move(std::nullopt, IconMove::kDown, 60), std::nullopt);
    EXPECT_EQ(IconGrid(metrics, 5, {{2, true}}).columns(), 1);
}

TEST(IconSources, RemembersFiveFoldersAndShowsAnyOfThem) {
    using Folders = std::vector<std::wstring>;
    RememberedFolders remembered({{L"10", L"d"},
                                  {L"2", L"b"},
                                  {L"x1", L"no"},
                                  {L"0", L"no"},
                                  {L"3", L""},
                                  {L"99999999999999999999", L"e"},
                                  {L"01", L"a"},
                                  {L"", L"no"},
                                  {L"4", L"c"}});
    EXPECT_EQ(remembered.folders(), (Folders{L"a", L"b", L"c", L"d", L"e"}));
    remembered.Add(L"c");
    EXPECT_EQ(remembered.folders(), (Folders{L"c", L"a", L"b", L"d", L"e"}));
    remembered.Add(L"f");
    EXPECT_EQ(remembered.folders(), (Folders{L"f", L"c", L"a", L"b", L"d"}));

    IconSources sources({L"1", L"2"}, RememberedFolders({{L"1", L"a"}, {L"2", L"b"}}));
    EXPECT_EQ(sources.Show(99), (Folders{L"1", L"2", L"a", L"b"}));
    EXPECT_EQ(sources.Show(-1), std::nullopt);
    EXPECT_EQ(sources.Show(5), std::nullopt);
    EXPECT_EQ(sources.shown(), 0);
    EXPECT_EQ(sources.Show(2), Folders{L"2"});
    EXPECT_EQ(sources.Show(4), Folders{L"b"});
    EXPECT_EQ(sources.shown(), 3);
    EXPECT_EQ(sources.remembered().folders(), (Folders{L"b", L"a"}));
    EXPECT_EQ(sources.ShowFolder(L"c"), Folders{L"c"});
    EXPECT_EQ(sources.shown(), 3);
}

}  // namespace
