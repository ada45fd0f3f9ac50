// Controls may stand anywhere and have texts of any length: the layout ends, keeps all of them, and
// needs no less height than the lowest takes.
#include "controls/dialog_layout.h"

#include "base/byte_reader.h"
#include "tests/fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr LayoutMetrics kMetrics = {200, 10, 8, 5, 20, 2};
    ByteReader reader({data, size});
    const auto byte = [&reader] { return static_cast<int>(reader.TakeNumber(1)); };
    const int width = byte() * 2, height = byte() * 2;
    const std::vector<Fill> fills = {{1, byte(), byte()}, {2, byte()}};
    std::vector<ControlPlace> places;
    while (reader.left() >= 7 && places.size() < 40) {
        ControlPlace place;
        place.id = byte() % 8;
        place.left = byte();
        place.top = byte();
        place.right = place.left + byte();
        place.bottom = place.top + byte();
        place.kind = static_cast<ControlKind>(byte() % 4);
        place.textWidth = byte();
        place.shown = place.textWidth != 1;
        places.push_back(place);
    }
    const std::size_t count = places.size();
    const int needed =
        FitToDialog(places, fills, kMetrics, width, height, [](std::size_t control, int at) {
            return static_cast<int>(control) + (at > 0 ? 400 / at : 9);
        });
    REQUIRE(places.size() == count);
    for (const ControlPlace& place : places) REQUIRE(!place.shown || needed >= place.bottom);
    return 0;
}
