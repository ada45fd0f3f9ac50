#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>

#include "base/owned_handle.h"

// The font of the plug-in's lists, as it is stored.
struct ListFontSettings {
    std::wstring face;
    std::int32_t height = 0;      // pixels at 96 dots per inch
    std::uint32_t clearType = 0;  // 0: as the system does, 1: always on, 2: always off

    // What follows from the system's font: Tahoma in the shell's text size. None where its height
    // cannot be measured, for want of memory.
    static std::optional<ListFontSettings> OfSystem();
    bool operator==(const ListFontSettings&) const = default;
};

// The height in pixels of this font on a screen of so many dots per inch. On dense screens half a
// scale step is taken off, which keeps lines of text apart.
constexpr int FontPixels(int height, int dotsPerInch) {
    const int pixels = ((height < 0 ? -height : height) * dotsPerInch + 48) / 96;
    return (height < 0 ? -pixels : pixels) - (dotsPerInch + 48) / 96 / 2;
}

enum class FontStyle { kNormal, kBold, kItalic };

// A font of the lists, made on first use and owned by a cache; null when it cannot be made. Struck
// out text is never italic.
HFONT ListFont(FontStyle style, bool strikeOut = false);
// Empties the cache, when the settings have changed. No window may use one of its fonts.
void ResetListFonts();

// The font as a preview of settings that are not stored yet. Smooth edges that are left to the
// system follow its switch.
OwnedFont CreatePreviewFont(const ListFontSettings& settings);

// Gives a window's list views and its menu bar the system's menu fonts, which are made on first
// use.
void ApplySharedFonts(HWND window);
// To be called once no window uses them any more.
void ReleaseSharedFonts();
