#include "settings/tab_layout.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int kRowHeight = 20;
constexpr int kFewestRows = 3;

constexpr std::uint32_t AllBits() {
    std::uint32_t bits = 0;
    for (const DiaryTab& tab : kDiaryTabs) bits |= tab.bit;
    return bits;
}

}  // namespace

int SmallestHeight(std::uint32_t shownTabs, bool tabPerHostTab) {
    const auto shown = static_cast<int>(
        std::ranges::count_if(kDiaryTabs, [&](const DiaryTab& t) { return shownTabs & t.bit; }));
    return kRowHeight * (tabPerHostTab ? kFewestRows : std::max(shown, kFewestRows));
}

TabLayout TabLayout::Parse(std::uint32_t mask, std::wstring_view sequence) {
    TabLayout layout;
    layout.shown = mask | ~AllBits();
    if (!(mask & AllBits())) layout.shown |= kDiaryTabs[0].bit;
    std::iota(layout.order.begin(), layout.order.end(), 0);
    const std::size_t count = std::min(sequence.size(), layout.order.size());
    for (std::size_t i = 0; i < count; ++i) {
        const auto place = layout.order.begin() + static_cast<std::ptrdiff_t>(i);
        const auto found = std::find_if(place, layout.order.end(), [&](int tab) {
            return kDiaryTabs[static_cast<std::size_t>(tab)].digit == sequence[i];
        });
        if (found != layout.order.end()) std::rotate(place, found, found + 1);
    }
    return layout;
}

std::wstring TabLayout::Sequence() const {
    std::wstring text;
    for (const int tab : order) text.push_back(kDiaryTabs[static_cast<std::size_t>(tab)].digit);
    return text;
}
