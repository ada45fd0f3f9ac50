// The stand-in device loads bitmaps as a device does, and refuses what is none.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>
#include <fstream>
#include <map>
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
    std::string colors;  // "RGBW": top left, top right and so on; none when it must be refused.
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

// Red, green, blue, white, 0 for black, D for one dimmed.
std::string LoadColors(const std::string& file) {
    std::ofstream("\\test.bmp", std::ios::binary) << file;
    const HBITMAP bitmap = SHLoadDIBitmap(L"\\test.bmp");
    std::string colors;
    if (!bitmap) return colors;
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ old = SelectObject(dc, bitmap);
    const std::map<COLORREF, char> names = {{0xFF, 'R'},     {0xFF00, 'G'}, {0xFF0000, 'B'},
                                            {0xFFFFFF, 'W'}, {0, '0'},      {0xAA2455, 'D'}};
    for (int i = 0; i < 4; ++i) {
        const auto name = names.find(GetPixel(dc, i % 2, i / 2));
        colors += name == names.end() ? '?' : name->second;
    }
    SelectObject(dc, old);
    DeleteDC(dc);
    DeleteObject(bitmap);
    return colors;
}

TEST(Bitmaps, AreDecodedAtEveryDepthAndInEveryOrder) {
    using Bytes = std::vector<std::uint8_t>;
    const Bytes rgbw = {0, 0, 255, 0, 0, 255, 0, 0, 255, 0, 0, 0, 255, 255, 255, 0};
    const Bytes redGreen3 = {0, 0, 255, 0, 255, 0}, redGreen4 = {0, 0, 255, 0, 0, 255, 0, 0};
    const Bytes bits1 = {0x40, 0, 0, 0, 0x80, 0, 0, 0}, nibbles = {0x01, 0, 0, 0, 0x23, 0, 0, 0};
    const Bytes tooMany = {0x01, 0, 0, 0, 0xF3, 0, 0, 0}, bytes8 = {0, 1, 0, 0, 2, 3, 0, 0};
    const Bytes rgbw555 = {0x00, 0x7C, 0xE0, 0x03, 0x1F, 0x00, 0xFF, 0x7F};
    const Bytes rgbw565 = {0x00, 0xF8, 0xE0, 0x07, 0x1F, 0x00, 0xFF, 0xFF};
    const Bytes few = {0x45, 0x01, 0x45, 0x01, 0x03, 0, 0xFF, 0x01}, zeros(8);
    const Bytes rgbw24 = {0, 0, 255, 0, 255, 0, 9, 9, 255, 0, 0, 255, 255, 255, 9, 9};
    const Bytes rgbw10 = {0, 0, 0xF0, 0x3F, 0, 0xFC, 0xF, 0, 0xFF, 3, 0, 0, 255, 255, 255, 255};
    const std::vector<BitmapCase> cases = {
        {"1, core", 12, 2, 1, {}, redGreen3, bits1, "GRRG"},
        {"1, top down", 40, -2, 1, {}, redGreen4, bits1, "RGGR"},
        {"4", 40, 2, 4, {}, rgbw, nibbles, "BWRG"},
        {"4, no such colour", 40, 2, 4, {}, rgbw, tooMany, "0WRG"},
        {"8, top down", 40, -2, 8, {}, rgbw, bytes8, "RGBW"},
        {"16", 40, 2, 16, {}, {}, rgbw555, "BWRG"},
        {"16, top down, 565", 40, -2, 16, {0xF800, 0x7E0, 0x1F}, {}, rgbw565, "RGBW"},
        {"16, 2 to 4 bits", 40, 2, 16, {0x3, 0x1C, 0x1E0}, {}, few, "RWDD"},
        {"24, core", 12, 2, 24, {}, {}, rgbw24, "BWRG"},
        {"32, top down", 40, -2, 32, {}, {}, rgbw, "RGBW"},
        {"longer header, channels turned", 56, 2, 32, {0xFF, 0xFF00, 0xFF0000}, {}, rgbw, "RWBG"},
        {"more than 8 bits", 40, -2, 32, {0x3FF00000, 0xFFC00, 0x3FF}, {}, rgbw10, "RGBW"},
        {"masks with a gap", 40, 2, 16, {0xF100, 0x7E, 0x1}, {}, zeros, ""},
        {"masks over each other", 40, 2, 16, {0xF800, 0xFE0, 0x1F}, {}, zeros, ""},
        {"2", 40, 2, 2, {}, rgbw, zeros, ""},
        {"longer table than pixels can name", 40, 2, 1, {}, rgbw, zeros, ""},
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
