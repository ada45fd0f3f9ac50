#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <vector>

#include "appearance/skins/strip.h"
#include "base/owned_handle.h"

// A strip that can be drawn.
class SkinStrip {
  public:
    // The strip in a bitmap file, which it keeps, or in a bitmap of the resource library, which
    // stays there; none when that is no bitmap of the kind.
    static std::optional<SkinStrip> FromFile(std::vector<std::uint8_t> file);
    static std::optional<SkinStrip> FromResource(HMODULE library, unsigned id);

    int Count() const { return static_cast<int>(pieces_.size()); }
    // Of a piece, in pixels; nothing for one that the strip does not have.
    SIZE PieceSize(int piece) const;
    // Draws a piece over what is there; nothing for one that the strip does not have.
    void Draw(HDC dc, int piece, int x, int y) const;
    // Draws a piece at another height: cut, or with the row in its middle repeated.
    void DrawStretched(HDC dc, int piece, int x, int y, int height) const;
    // The square at the left of a piece as an icon, its pixels opaque or not; null for an empty
    // piece or one that the strip does not have.
    OwnedIcon CreateIcon(int piece) const;

  private:
    SkinStrip(const BitmapView& view, std::vector<std::uint8_t> file);

    std::vector<std::uint8_t> file_;  // what the view looks at, unless that is a resource
    BitmapView view_;
    std::vector<StripPiece> pieces_;
};
