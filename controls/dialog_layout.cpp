#include "controls/dialog_layout.h"

#include <algorithm>
#include <cstddef>

namespace {

bool ShareColumn(const ControlPlace& a, const ControlPlace& b) {
    return a.left < b.right && b.left < a.right;
}

// The shown controls that fill, from the top down, with their least heights in their place.
struct Filling {
    std::size_t index;
    int least;
};

std::vector<Filling> FindFilling(const std::vector<ControlPlace>& places,
                                 std::span<const Fill> fills) {
    std::vector<Filling> found;
    for (const Fill& fill : fills) {
        for (std::size_t i = 0; i < places.size(); ++i) {
            if (places[i].id == fill.control && places[i].shown) found.push_back({i, fill.least});
        }
    }
    std::sort(found.begin(), found.end(), [&places](const Filling& a, const Filling& b) {
        return places[a.index].top < places[b.index].top;
    });
    return found;
}

void FitWidth(std::vector<ControlPlace>& places, const std::vector<Filling>& filling,
              int designedRight, int extra) {
    // Who stands right of the leftmost filling control goes along with its right edge.
    int edge = designedRight;
    for (const Filling& fill : filling) edge = std::min(edge, places[fill.index].right);
    for (ControlPlace& place : places) {
        const bool moves = place.left >= edge;
        const bool fillsToEdge = std::any_of(filling.begin(), filling.end(), [&](const Filling& f) {
            return &places[f.index] == &place && place.right == edge;
        });
        if (moves) place.left += extra;
        if (moves || fillsToEdge || place.right >= designedRight) place.right += extra;
    }
}

void FitHeight(std::vector<ControlPlace>& places, const std::vector<Filling>& filling, int extra) {
    const std::vector<ControlPlace> designed = places;
    for (const Filling& fill : filling) {
        const ControlPlace& own = designed[fill.index];
        // Those above and below each other share what there is.
        const auto sharers = std::count_if(
            filling.begin(), filling.end(),
            [&](const Filling& other) { return ShareColumn(designed[other.index], own); });
        const int growth =
            std::max(extra / static_cast<int>(sharers), fill.least - (own.bottom - own.top));
        for (std::size_t i = 0; i < places.size(); ++i) {
            const bool below = designed[i].top >= own.bottom && ShareColumn(designed[i], own);
            if (below) places[i].top += growth;
            if (below || i == fill.index) places[i].bottom += growth;
        }
    }
}

int LowestEdge(const std::vector<ControlPlace>& places) {
    int lowest = 0;
    for (const ControlPlace& place : places) {
        if (place.shown) lowest = std::max(lowest, place.bottom);
    }
    return lowest;
}

}  // namespace

int FitToDialog(std::vector<ControlPlace>& places, std::span<const Fill> fills, int designedWidth,
                int rightMargin, int bottomMargin, const LayoutSize& size) {
    const std::vector<Filling> filling = FindFilling(places, fills);
    FitWidth(places, filling, designedWidth - rightMargin, size.width - designedWidth);
    FitHeight(places, filling, size.height - bottomMargin - LowestEdge(places));
    return LowestEdge(places) + bottomMargin;
}
