// What skins are made of: bitmap files, strips, archives and the names of the Skins folder.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "appearance/skins/archive.h"
#include "appearance/skins/skin_list.h"
#include "appearance/skins/skin_members.h"
#include "appearance/skins/strip.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

void Put(Bytes& bytes, std::size_t offset, std::uint32_t value) {
    for (int i = 0; i < 4; ++i) bytes[offset + i] = static_cast<std::uint8_t>(value >> 8 * i);
}

// A bitmap file 4 pixels wide; each letter of `column` is a row, from the top: its pixel in the
// column in the middle is magenta (M), not quite (m), or black.
Bytes Strip(const std::string& column) {
    Bytes bytes(54 + 12 * column.size());
    bytes[0] = 'B', bytes[1] = 'M';
    Put(bytes, 10, 54);
    Put(bytes, 14, 40);
    Put(bytes, 18, 4);
    Put(bytes, 22, static_cast<std::uint32_t>(column.size()));
    Put(bytes, 26, 24 << 16 | 1);
    for (std::size_t y = 0; y < column.size(); ++y) {
        std::uint8_t* const pixel = &bytes[54 + 12 * (column.size() - 1 - y) + 6];
        if (column[y] != '.') pixel[0] = column[y] == 'M' ? 255 : 254, pixel[2] = 255;
    }
    return bytes;
}

TEST(Strip, MagentaRowsEndPieces) {
    const std::pair<std::string, std::vector<StripPiece>> cases[] = {
        {"...", {{0, 3}}},
        {"..M.M..", {{0, 2}, {3, 4}}},  // What follows the last row is no piece.
        {"M.MM", {{0, 0}, {1, 2}, {3, 3}}},
        {".m.M", {{0, 3}}}};
    for (const auto& [column, pieces] : cases) {
        const Bytes bytes = Strip(column);
        EXPECT_EQ(FindStripPieces(ParseBitmapFile(bytes).value()), pieces) << column;
        Bytes topDown = Strip(std::string(column.rbegin(), column.rend()));
        Put(topDown, 22, 0u - static_cast<std::uint32_t>(column.size()));
        EXPECT_EQ(FindStripPieces(ParseBitmapFile(topDown).value()), pieces) << column;
    }
}

TEST(BitmapFile, RefusesWhatIsNoPlain24BitBitmap) {
    // Numbers of the header of a file with 3 rows of 4 pixels.
    const std::pair<std::size_t, std::vector<std::uint32_t>> refusals[] = {
        {0, {'B' | 'X' << 8, 'X' | 'M' << 8}},
        {10, {53, 55, 0xFFFFFFFF}},                                       // where the pixels are
        {14, {12, 39}},                                                   // the header's size
        {18, {0, 5, 0x55555556, 0xFFFFFFFC}},                             // the width
        {22, {0, 4, 0x7FFFFFFF, 0x80000000}},                             // the height
        {26, {0x180002, 0x10001, 0x40001, 0x80001, 0x100001, 0x200001}},  // planes, bits
        {30, {1, 3}}};                                                    // the compression
    for (const auto& [offset, values] : refusals) {
        for (const std::uint32_t value : values) {
            Bytes bytes = Strip("..M");
            Put(bytes, offset, value);
            EXPECT_FALSE(ParseBitmapFile(bytes)) << offset << ": " << value;
            EXPECT_TRUE(offset < 14 || !ParseBitmapResource(std::span(bytes).subspan(14)))
                << offset << ": " << value;
        }
    }
    Bytes bytes = Strip("..M");
    const std::span<const std::uint8_t> resource = std::span(bytes).subspan(14);
    EXPECT_TRUE(ParseBitmapResource(resource));
    Bytes listed = bytes;
    Put(listed, 46, 1);  // a listed colour, which pushes the last pixels out
    EXPECT_FALSE(ParseBitmapResource(std::span(listed).subspan(14)));
    listed.resize(listed.size() + 4);
    EXPECT_TRUE(ParseBitmapResource(std::span(listed).subspan(14)));
    Put(bytes, 46, 0x40000000);  // Listed colours, which the pixels of a resource follow.
    EXPECT_TRUE(ParseBitmapFile(bytes));
    EXPECT_FALSE(ParseBitmapResource(resource));
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        EXPECT_FALSE(ParseBitmapFile({bytes.data(), size})) << size;
    }
}

TEST(SkinMembers, FollowTheDensity) {
    for (const auto& [dpi, size, suffix] : {std::tuple(96, 16, ".bmp"),
                                            {128, 21, ".bmp"},
                                            {143, 24, ".bmp"},
                                            {144, 24, "_vga.bmp"},
                                            {192, 32, "_vga.bmp"}}) {
        const SkinMembers members = SkinMembersFor(dpi);
        EXPECT_EQ(members.icons + members.scrollBar,
                  std::string("icons") + suffix + "scrollbar" + suffix)
            << dpi;
        EXPECT_EQ(members.tabIcons, "tab_icons_" + std::to_string(size) + ".bmp");
        EXPECT_EQ(members.tabIconSize, size);
    }
    constexpr std::uint8_t kPixels[][3] = {
        {255, 0, 255}, {255, 1, 255}, {254, 0, 255}, {255, 0, 254}};
    for (const auto& pixel : kPixels) {
        EXPECT_EQ(IsTransparentInTabIcons(pixel), &pixel == &kPixels[0]);
    }
    BitmapView view;
    view.width = 50, view.height = 33;
    const SquareGrid squares(view, 16);
    EXPECT_TRUE(squares.Count() == 6 && squares.Left(4) == 16 && squares.Top(4) == 16);
}

Bytes ReadFile(const std::string& name) {
    std::ifstream file(ARCHIVES + name + ".zip", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Archive, YieldsIntactMembersOnly) {
    constexpr std::uint32_t kNone = ~0u;
    // What marks such sizes is known to minizip by a long's width, which is that of every Windows.
    constexpr bool kZip64 = sizeof(long) == 4;
    const std::tuple<const char*, bool, std::uint32_t, bool> cases[] = {
        {"stored", true, 30000, true},          {"deflated", true, 30000, true},
        {"data_descriptor", true, 30000, true}, {"zip64", true, kZip64 ? 30000 : kNone, kZip64},
        {"comment", true, 30000, true},         {"folders", true, 30000, true},
        {"encrypted", true, kNone, false},      {"other_names", true, kNone, false},
        {"bzip2", true, 30000, false},          {"largest", true, 16777216, true},
        {"too_large", true, kNone, false},      {"claims_more", true, 1000000, false},
        {"claims_less", true, 100, false},      {"wrong_extra", true, kNone, false},
        {"wrong_sum", true, 30000, false},      {"cut", false, kNone, false}};
    for (const auto& [name, opens, size, isRead] : cases) {
        const Bytes file = ReadFile(name);
        const auto archive = Archive::OfBytes(file);
        EXPECT_TRUE(!file.empty() && (archive != nullptr) == opens) << name;
        if (!archive) continue;
        EXPECT_EQ(archive->MemberSize("icons.bmp").value_or(kNone), size) << name;
        const std::optional<Bytes> bytes = archive->ReadMember("icons.bmp");
        ASSERT_EQ(bytes.has_value(), isRead) << name;
        if (!bytes || size != 30000) continue;
        for (std::size_t i = 0; i < bytes->size(); ++i) ASSERT_EQ((*bytes)[i], i * 7 % 251) << name;
    }
}

TEST(SkinList, OffersFoldersAndArchives) {
    EXPECT_EQ(OfferedSkinName(L"My.skin", true), L"My.skin");
    EXPECT_EQ(OfferedSkinName(L"Blue.ZIP", false), L"Blue");
    for (const wchar_t* name : {L".", L"..", L".zip", L"a.b.zip", L"zip", L"Blue.zipx", L"Blue."}) {
        EXPECT_EQ(OfferedSkinName(name, name[1] == L'\0'), std::nullopt)
            << testing::PrintToString(name);
    }
}

}  // namespace
