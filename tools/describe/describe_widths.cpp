#include "tools/describe/describe_widths.h"

#include <windows.h>

#include <cstdio>

#include "base/owned_handle.h"

namespace {

// The letters that translations into languages with alphabets are written in.
constexpr struct {
    wchar_t first, last;
} kRanges[] = {
    {0x20, 0x7E},   {0xA0, 0x17F},    {0x218, 0x21B},   {0x400, 0x45F},
    {0x490, 0x491}, {0x2010, 0x2026}, {0x20AC, 0x20AC},
};

// 0 for a letter that the font lacks.
long WidthOf(HDC dc, wchar_t c) {
    WORD glyph = 0;
    SIZE size = {};
    GetGlyphIndicesW(dc, &c, 1, &glyph, GGI_MARK_NONEXISTING_GLYPHS);
    if (glyph == 0xFFFF || !GetTextExtentPoint32W(dc, &c, 1, &size)) return 0;
    return size.cx;
}

// The dialogs' font: 8 points at a density.
OwnedFont DialogFont(int dpi) {
    LOGFONTW font = {};
    font.lfHeight = -MulDiv(8, dpi, 72);
    font.lfCharSet = DEFAULT_CHARSET;
    wcscpy(font.lfFaceName, L"Tahoma");
    return OwnedFont(CreateFontIndirectW(&font));
}

}  // namespace

void PrintWidths() {
    std::printf(
        "// How wide the letters of the dialogs' font, Tahoma of 8 points, are in pixels, and how\n"
        "// high its lines, at each density: as the simulated device has the font, from Debian's\n"
        "// package fonts-wine; 0 for a letter that it lacks. Written by tools/describe_program.sh "
        "widths.\n\n");
    const HDC dc = GetDC(nullptr);
    for (const int dpi : {96, 192}) {
        const OwnedFont font = DialogFont(dpi);
        const SelectedObject selected(dc, font.get());
        TEXTMETRICW metrics = {};
        GetTextMetricsW(dc, &metrics);
        std::printf("DENSITY(%d, %ld)\n", dpi, metrics.tmHeight);
        for (const auto& range : kRanges) {
            std::printf("LETTERS(0x%X", range.first);
            for (wchar_t c = range.first; c <= range.last; ++c) {
                const bool breaks = (c - range.first) % 24 == 0;
                std::printf(breaks ? ",\n        %ld" : ", %ld", WidthOf(dc, c));
            }
            std::printf(")\n");
        }
    }
    ReleaseDC(nullptr, dc);
}
