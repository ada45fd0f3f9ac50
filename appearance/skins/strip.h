#pragma once

#include <vector>

#include "appearance/skins/bitmap_file.h"

// A strip is a bitmap with pictures one above the other in its left half, and how opaque each of
// their pixels is in its right half.
struct StripPiece {
    int top = 0;
    int bottom = 0;  // the row after the last one

    bool operator==(const StripPiece&) const = default;
};

// Each row with a pixel of pure magenta in the column width / 2 ends a piece; what follows the last
// such row is none. Without such a row all of the strip is one piece. A piece can be empty.
std::vector<StripPiece> FindStripPieces(const BitmapView& strip);
