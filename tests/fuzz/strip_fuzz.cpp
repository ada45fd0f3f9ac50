// Any bytes are a bitmap file or none; its pieces lie in it, one below the other.
#include "appearance/skins/strip.h"

#include <vector>

#include "appearance/skins/skin_members.h"
#include "tests/fuzz/fuzz.h"

namespace {

void Check(const std::optional<BitmapView>& view, const std::vector<std::uint8_t>& bytes) {
    if (!view) return;
    REQUIRE(view->width >= 1 && view->height >= 1);
    for (const int y : {0, view->height - 1}) {
        REQUIRE(view->Pixel(0, y) >= bytes.data());
        REQUIRE(view->Pixel(view->width - 1, y) + 3 <= bytes.data() + bytes.size());
    }
    const std::vector<StripPiece> pieces = FindStripPieces(*view);
    int next = 0;
    for (const StripPiece& piece : pieces) {
        REQUIRE(piece.top == next && piece.bottom >= piece.top && piece.bottom <= view->height);
        next = piece.bottom + 1;
    }
    const SquareGrid squares(*view, 16);
    if (const int last = squares.Count() - 1; last >= 0) {
        REQUIRE(squares.Left(last) + 16 <= view->width && squares.Top(last) + 16 <= view->height);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::uint8_t> bytes(data, data + size);
    Check(ParseBitmapFile(bytes), bytes);
    Check(ParseBitmapResource(bytes), bytes);
    return 0;
}
