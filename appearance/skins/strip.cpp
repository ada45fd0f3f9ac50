#include "appearance/skins/strip.h"

namespace {

bool IsMagenta(const std::uint8_t* pixel) {
    return pixel[0] == 255 && pixel[1] == 0 && pixel[2] == 255;
}

}  // namespace

std::vector<StripPiece> FindStripPieces(const BitmapView& strip) {
    std::vector<StripPiece> pieces;
    int top = 0;
    for (int y = 0; y < strip.height; ++y) {
        if (!IsMagenta(strip.Pixel(strip.width / 2, y))) continue;
        pieces.push_back({top, y});
        top = y + 1;
    }
    if (pieces.empty()) pieces.push_back({0, strip.height});
    return pieces;
}
