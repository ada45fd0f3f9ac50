// What skins are made of: bitmap files, strips and the names of the Skins folder.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "appearance/skin_list.h"
#include "appearance/strip.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

void Put(Bytes& bytes, std::size_t offset, std::uint32_t value, int size = 4) {
    for (int i = 0; i < size; ++i) bytes[offset + i] = static_cast<std::uint8_t>(value >> 8 * i);
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
    Put(bytes, 26, 1, 2);
    Put(bytes, 28, 24, 2);
    for (std::size_t y = 0; y < column.size(); ++y) {
        if (column[y] == '.') continue;
        std::uint8_t* const pixel = &bytes[54 + 12 * (column.size() - 1 - y) + 6];
        pixel[0] = column[y] == 'M' ? 255 : 254;
        pixel[2] = 255;
    }
    return bytes;
}

TEST(Strip, MagentaRowsEndPieces) {
    struct Case {
        std::string column;
        std::vector<StripPiece> pieces;
    };
    for (const Case& c : {
             Case{"...", {{0, 3}}},
             Case{"..M", {{0, 2}}},
             Case{"..M.M", {{0, 2}, {3, 4}}},
             Case{"..M.M..", {{0, 2}, {3, 4}}},  // What follows the last row is no piece.
             Case{"M.MM", {{0, 0}, {1, 2}, {3, 3}}},
             Case{".m.M", {{0, 3}}},
         }) {
        const Bytes bytes = Strip(c.column);
        const std::optional<BitmapView> view = ParseBitmapFile(bytes);
        ASSERT_TRUE(view) << c.column;
        EXPECT_EQ(FindStripPieces(*view), c.pieces) << c.column;
        // The same without the file header, and stored from the top down.
        const Bytes resource(bytes.begin() + 14, bytes.end());
        EXPECT_TRUE(ParseBitmapResource(resource)) << c.column;
        Bytes turned = Strip(std::string(c.column.rbegin(), c.column.rend()));
        Put(turned, 22, static_cast<std::uint32_t>(-static_cast<int>(c.column.size())));
        const std::optional<BitmapView> turnedView = ParseBitmapFile(turned);
        ASSERT_TRUE(turnedView) << c.column;
        EXPECT_EQ(FindStripPieces(*turnedView), c.pieces) << c.column;
    }
}

TEST(BitmapFile, RefusesWhatIsNoPlain24BitBitmap) {
    struct Case {
        const char* what;
        std::size_t offset;
        std::uint32_t value;
        int size;
        bool accepted;
    };
    for (const Case& c : {
             Case{"other letters", 0, 'A', 1, false},
             Case{"pixels within the header", 10, 53, 4, false},
             Case{"pixels beyond the end", 10, 0xFFFFFFFF, 4, false},
             Case{"one byte missing", 10, 55, 4, false},
             Case{"old header", 14, 12, 4, false},
             Case{"later header", 14, 124, 4, true},
             Case{"no width", 18, 0, 4, false},
             Case{"negative width", 18, 0xFFFFFFFC, 4, false},
             Case{"a row too long", 18, 5, 4, false},
             Case{"huge width", 18, 0x55555556, 4, false},
             Case{"no height", 22, 0, 4, false},
             Case{"a row too many", 22, 4, 4, false},
             Case{"height without a positive", 22, 0x80000000, 4, false},
             Case{"huge height", 22, 0x7FFFFFFF, 4, false},
             Case{"two planes", 26, 2, 2, false},
             Case{"1 bit", 28, 1, 2, false},
             Case{"8 bits", 28, 8, 2, false},
             Case{"16 bits", 28, 16, 2, false},
             Case{"32 bits", 28, 32, 2, false},
             Case{"run lengths", 30, 1, 4, false},
             Case{"colours listed", 46, 2, 4, true},
         }) {
        Bytes bytes = Strip("..M");
        Put(bytes, c.offset, c.value, c.size);
        EXPECT_EQ(ParseBitmapFile(bytes).has_value(), c.accepted) << c.what;
    }
    // In a resource the pixels follow the listed colours.
    Bytes resource = Strip("..M");
    Put(resource, 46, 0x40000000);
    EXPECT_FALSE(ParseBitmapResource({resource.begin() + 14, resource.end()}));
    for (std::size_t size = 0; size < 90; ++size) {
        const Bytes bytes = Strip("..M");
        EXPECT_FALSE(ParseBitmapFile({bytes.data(), size})) << size;
    }
}

TEST(SkinList, OffersFoldersAndArchives) {
    struct Case {
        std::wstring entry;
        bool isFolder;
        std::optional<std::wstring> name;
    };
    for (const Case& c : {
             Case{L"Classic", true, L"Classic"},
             Case{L"My.skin", true, L"My.skin"},
             Case{L".", true, {}},
             Case{L"..", true, {}},
             Case{L".hidden.zip", false, {}},
             Case{L"NewStyle.zip", false, L"NewStyle"},
             Case{L"Blue.ZIP", false, L"Blue"},
             Case{L"a.b.zip", false, {}},
             Case{L"zip", false, {}},
             Case{L"Blue.zipx", false, {}},
             Case{L"Blue.", false, {}},
         }) {
        EXPECT_EQ(OfferedSkinName(c.entry, c.isFolder), c.name) << testing::PrintToString(c.entry);
    }
}

}  // namespace
