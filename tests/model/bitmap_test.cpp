// The stand-in device loads bitmaps as a device does, and refuses what is none.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace {

// A bitmap file of two by two pixels.
struct BitmapCase {
    const char* name;
    std::uint32_t headerSize;
    int height;
    std::uint16_t bits;
    std::vector<std::uint32_t> masks;
    std::vector<std::uint8_t> table;
    std::vector<std::uint8_t> rows;
    std::vector<COLORREF> colors;  // Top left, top right and so on; none when it must be refused.
};

std::string FileOf(const BitmapCase& bitmap) {
    std::string bytes = "BM";
    const auto put = [&](std::uint32_t number, int size) {
        for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> 8 * i);
    };
    const std::uint32_t masks = bitmap.headerSize == 40 ? 4 * bitmap.masks.size() : 0;
    put(0, 8);
    put(14 + bitmap.headerSize + masks + bitmap.table.size(), 4);
    put(bitmap.headerSize, 4);
    const int side = bitmap.headerSize == 12 ? 2 : 4;
    put(2, side), put(bitmap.height, side), put(1, 2), put(bitmap.bits, 2);
    if (side == 4) {
        put(bitmap.masks.empty() ? 0 : 3, 4), put(0, 12);
        put(bitmap.bits <= 8 ? bitmap.table.size() / 4 : 0, 4), put(0, 4);
    }
    for (const std::uint32_t mask : bitmap.masks) put(mask, 4);
    if (bytes.size() < 14 + bitmap.headerSize) bytes.resize(14 + bitmap.headerSize);
    bytes.append(bitmap.table.begin(), bitmap.table.end());
    return bytes.append(bitmap.rows.begin(), bitmap.rows.end());
}

std::vector<COLORREF> LoadColors(const std::string& file) {
    std::ofstream("\\test.bmp", std::ios::binary) << file;
    const HBITMAP bitmap = SHLoadDIBitmap(L"\\test.bmp");
    std::vector<COLORREF> colors;
    if (!bitmap) return colors;
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ old = SelectObject(dc, bitmap);
    for (int i = 0; i < 4; ++i) colors.push_back(GetPixel(dc, i % 2, i / 2));
    SelectObject(dc, old);
    DeleteDC(dc);
    DeleteObject(bitmap);
    return colors;
}

TEST(Bitmaps, AreDecodedAtEveryDepthAndInEveryOrder) {
    constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0), kBlue = RGB(0, 0, 255);
    constexpr COLORREF kDim = RGB(0x55, 0x24, 0xAA);
    const std::vector<std::uint8_t> rgbw = {0,   0, 255, 0, 0,   255, 0,   0,
                                            255, 0, 0,   0, 255, 255, 255, 0};
    const std::vector<std::uint8_t> redAndGreen = {0, 0, 255, 0, 255, 0};
    const std::vector<COLORREF> all = {kRed, kGreen, kBlue, RGB(255, 255, 255)};
    const std::vector<COLORREF> turned = {kBlue, RGB(255, 255, 255), kRed, kGreen};
    const std::vector<BitmapCase> cases = {
        {"1, core",
         12,
         2,
         1,
         {},
         redAndGreen,
         {0x40, 0, 0, 0, 0x80, 0, 0, 0},
         {kGreen, kRed, kRed, kGreen}},
        {"1, top down",
         40,
         -2,
         1,
         {},
         {0, 0, 255, 0, 0, 255, 0, 0},
         {0x40, 0, 0, 0, 0x80, 0, 0, 0},
         {kRed, kGreen, kGreen, kRed}},
        {"4", 40, 2, 4, {}, rgbw, {0x01, 0, 0, 0, 0x23, 0, 0, 0}, turned},
        {"4, no such colour",
         40,
         2,
         4,
         {},
         rgbw,
         {0x01, 0, 0, 0, 0xF3, 0, 0, 0},
         {0, RGB(255, 255, 255), kRed, kGreen}},
        {"8, top down", 40, -2, 8, {}, rgbw, {0, 1, 0, 0, 2, 3, 0, 0}, all},
        {"16", 40, 2, 16, {}, {}, {0x00, 0x7C, 0xE0, 0x03, 0x1F, 0x00, 0xFF, 0x7F}, turned},
        {"16, top down, 565",
         40,
         -2,
         16,
         {0xF800, 0x7E0, 0x1F},
         {},
         {0x00, 0xF8, 0xE0, 0x07, 0x1F, 0x00, 0xFF, 0xFF},
         all},
        {"16, 2 to 4 bits",
         40,
         2,
         16,
         {0x3, 0x1C, 0x1E0},
         {},
         {0x45, 0x01, 0x45, 0x01, 0x03, 0, 0xFF, 0x01},
         {kRed, RGB(255, 255, 255), kDim, kDim}},
        {"24, core",
         12,
         2,
         24,
         {},
         {},
         {0, 0, 255, 0, 255, 0, 9, 9, 255, 0, 0, 255, 255, 255, 9, 9},
         turned},
        {"32, top down", 40, -2, 32, {}, {}, rgbw, all},
        {"32, longer header, channels the other way round",
         56,
         2,
         32,
         {0xFF, 0xFF00, 0xFF0000},
         {},
         rgbw,
         {kRed, RGB(255, 255, 255), kBlue, kGreen}},
        {"32, more than 8 bits",
         40,
         -2,
         32,
         {0x3FF00000, 0xFFC00, 0x3FF},
         {},
         {0, 0, 0xF0, 0x3F, 0, 0xFC, 0xF, 0, 0xFF, 3, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF},
         all},
        {"masks with a gap", 40, 2, 16, {0xF100, 0x7E, 0x1}, {}, {0, 0, 0, 0, 0, 0, 0, 0}, {}},
        {"masks over each other",
         40,
         2,
         16,
         {0xF800, 0xFE0, 0x1F},
         {},
         {0, 0, 0, 0, 0, 0, 0, 0},
         {}},
        {"2", 40, 2, 2, {}, rgbw, {0, 0, 0, 0, 0, 0, 0, 0}, {}},
        {"longer table than pixels can name", 40, 2, 1, {}, rgbw, {0, 0, 0, 0, 0, 0, 0, 0}, {}},
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const std::string file = FileOf(cases[i]);
        EXPECT_EQ(LoadColors(file), cases[i].colors) << cases[i].name;
        if (i % 7 != 0) continue;  // Among these are a short header and masks.
        for (std::size_t size = 0; size < file.size(); ++size) {
            EXPECT_TRUE(LoadColors(file.substr(0, size)).empty())
                << cases[i].name << " of " << size;
        }
        // Whatever byte is wrong, nothing is read that is not there.
        for (std::size_t at = 2; at < 66 && at < file.size(); ++at) {
            std::string wrong = file;
            wrong[at] = '\xFF';
            LoadColors(wrong);
        }
    }
    EXPECT_EQ(SHLoadDIBitmap(L"\\nothing.bmp"), nullptr);
}

}  // namespace
