#include "appearance/drawing/fonts.h"

#include <gtest/gtest.h>

#include "settings/settings_key.h"

namespace {

LOGFONTW Describe(HFONT font) {
    LOGFONTW description = {};
    GetObjectW(font, sizeof description, &description);
    return description;
}

TEST(Fonts, PixelsOfAHeight) {
    EXPECT_EQ(FontPixels(12, 96), 12);
    EXPECT_EQ(FontPixels(12, 192), 23);
    EXPECT_EQ(FontPixels(11, 131), 15);
    EXPECT_EQ(FontPixels(-12, 96), -12);
    EXPECT_EQ(FontPixels(-12, 192), -25);
}

TEST(Fonts, ListFontsFollowTheSettings) {
    DeleteKeyTree(HKEY_LOCAL_MACHINE, kProductKey);
    ResetListFonts();
    // A fresh device has the system's font, and notes the default of whoever draws.
    EXPECT_EQ(Describe(ListFont(FontStyle::kNormal)).lfHeight,
              ListFontSettings::OfSystem()->height);
    EXPECT_EQ(OpenProductKey().ReadDword(L"ClearType", 9), 0u);
    for (const auto& [name, value] :
         {std::pair{L"UseSystem", 0}, {L"FontHeight", 16}, {L"ClearType", 1}}) {
        OpenProductKey().WriteDword(name, value);
    }
    OpenProductKey().WriteString(L"FontName", L"A face of more than thirty-two characters");
    EXPECT_NE(Describe(ListFont(FontStyle::kNormal)).lfHeight, 16) << "not from the cache";
    ResetListFonts();
    const std::tuple<FontStyle, bool, LONG, bool> cases[] = {
        {FontStyle::kNormal, false, 400, false},
        {FontStyle::kBold, true, 700, false},
        {FontStyle::kItalic, false, 400, true},
        {FontStyle::kItalic, true, 400, false}};
    for (const auto& [style, strikeOut, weight, italic] : cases) {
        const LOGFONTW font = Describe(ListFont(style, strikeOut));
        EXPECT_EQ(font.lfHeight, 16);
        EXPECT_EQ(font.lfQuality, CLEARTYPE_QUALITY);
        EXPECT_EQ(font.lfWeight, weight);
        EXPECT_EQ(font.lfItalic != 0, italic);
        EXPECT_EQ(font.lfStrikeOut != 0, strikeOut);
        EXPECT_EQ(std::wstring(font.lfFaceName), L"A face of more than thirty-two ");
    }
    ResetListFonts();
}

TEST(Fonts, PreviewFollowsTheSystemsSwitch) {
    constexpr wchar_t kSwitch[] = L"System\\GDI\\CLEARTYPE";
    const ListFontSettings settings = {L"Tahoma", 12, 0};
    DeleteKeyTree(HKEY_LOCAL_MACHINE, kSwitch);
    EXPECT_EQ(Describe(CreatePreviewFont(settings).get()).lfQuality, DEFAULT_QUALITY);
    { CSettingsKey key(HKEY_LOCAL_MACHINE, kSwitch, true, false); }
    EXPECT_EQ(Describe(CreatePreviewFont(settings).get()).lfQuality, CLEARTYPE_QUALITY);
    DeleteKeyTree(HKEY_LOCAL_MACHINE, kSwitch);
    const LOGFONTW off = Describe(CreatePreviewFont({L"Tahoma", 12, 2}).get());
    EXPECT_EQ(off.lfQuality, NONANTIALIASED_QUALITY);
    EXPECT_EQ(off.lfPitchAndFamily, 0);
}

}  // namespace
