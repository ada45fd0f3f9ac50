#include "appearance/categories/icon_grid.h"

#include <algorithm>
#include <utility>

IconGrid::IconGrid(const IconGridMetrics& metrics, int width, std::vector<IconGroupShape> groups)
    : metrics_(metrics),
      width_(width),
      columns_(std::max(1, (width - metrics.indent) / metrics.cellWidth)),
      groups_(std::move(groups)) {
    for (int group = 0; group < groupCount(); ++group) {
        const int rows = (ShownIcons(group) + columns_ - 1) / columns_;
        tops_.push_back(tops_.back() + metrics_.headerHeight + rows * metrics_.cellHeight);
    }
}

int IconGrid::ShownIcons(int group) const {
    const IconGroupShape& shape = groups_[static_cast<std::size_t>(group)];
    return shape.expanded ? shape.icons : 0;
}

GridArea IconGrid::AreaOf(const IconPlace& place) const {
    const int top = tops_[static_cast<std::size_t>(place.group)];
    if (place.isHeader()) return {0, top, width_, top + metrics_.headerHeight};
    const int left = metrics_.indent + place.icon % columns_ * metrics_.cellWidth;
    const int rowTop = top + metrics_.headerHeight + place.icon / columns_ * metrics_.cellHeight;
    return {left, rowTop, left + metrics_.cellWidth, rowTop + metrics_.cellHeight};
}

std::optional<IconPlace> IconGrid::At(const GridPoint& point) const {
    const Range groups = GroupsWithin(point.y, point.y + 1);
    if (point.y < 0 || groups.begin == groups.end || point.x < 0 || point.x >= width_)
        return std::nullopt;
    const int group = groups.begin;
    const int y = point.y - tops_[static_cast<std::size_t>(group)] - metrics_.headerHeight;
    if (y < 0) return IconPlace{group};
    if (point.x < metrics_.indent) return std::nullopt;
    const int column = (point.x - metrics_.indent) / metrics_.cellWidth;
    const int icon = y / metrics_.cellHeight * columns_ + column;
    if (column >= columns_ || icon >= ShownIcons(group)) return std::nullopt;
    return IconPlace{group, icon};
}

IconGrid::Range IconGrid::GroupsWithin(int top, int bottom) const {
    // The first group that ends below the top, and the first that begins at the bottom or below.
    const auto ends = tops_.begin() + 1;
    const auto begin = std::upper_bound(ends, tops_.end(), top) - ends;
    const auto end = std::lower_bound(tops_.begin(), tops_.end() - 1, bottom) - tops_.begin();
    return {static_cast<int>(begin), static_cast<int>(std::max(begin, end))};
}

IconGrid::Range IconGrid::IconsWithin(int group, int top, int bottom) const {
    const int origin = tops_[static_cast<std::size_t>(group)] + metrics_.headerHeight;
    const int count = ShownIcons(group);
    const int firstRow = std::max(0, top - origin) / metrics_.cellHeight;
    const int endRow =
        (std::max(0, bottom - origin) + metrics_.cellHeight - 1) / metrics_.cellHeight;
    const int begin = std::min(firstRow * columns_, count);
    return {begin, std::max(begin, std::min(endRow * columns_, count))};
}

IconPlace IconGrid::Next(const IconPlace& from) const {
    if (from.icon + 1 < ShownIcons(from.group)) return {from.group, from.icon + 1};
    return from.group + 1 < groupCount() ? IconPlace{from.group + 1} : from;
}

IconPlace IconGrid::Previous(const IconPlace& from) const {
    if (!from.isHeader()) return {from.group, from.icon - 1};  // Before the first is the header.
    return from.group > 0 ? IconPlace{from.group - 1, ShownIcons(from.group - 1) - 1} : from;
}

IconPlace IconGrid::Above(const IconPlace& from) const {
    if (from.isHeader()) {
        if (from.group == 0) return from;
        const int icons = ShownIcons(from.group - 1);
        return {from.group - 1, icons ? (icons - 1) / columns_ * columns_ : IconPlace::kHeader};
    }
    return {from.group, from.icon < columns_ ? IconPlace::kHeader : from.icon - columns_};
}

IconPlace IconGrid::Below(const IconPlace& from) const {
    const int icons = ShownIcons(from.group);
    if (from.isHeader()) return Next(from);
    if (from.icon + columns_ < icons) return {from.group, from.icon + columns_};
    if (from.icon / columns_ < (icons - 1) / columns_) return {from.group, icons - 1};
    return from.group + 1 < groupCount() ? IconPlace{from.group + 1} : from;
}

std::optional<IconPlace> IconGrid::Move(std::optional<IconPlace> from, IconMove move,
                                        int page) const {
    if (groups_.empty()) return std::nullopt;
    const IconPlace last = {groupCount() - 1, ShownIcons(groupCount() - 1) - 1};
    if (!from) return IconPlace{};
    switch (move) {
        case IconMove::kLeft: return Previous(*from);
        case IconMove::kRight: return Next(*from);
        case IconMove::kUp: return Above(*from);
        case IconMove::kDown: return Below(*from);
        case IconMove::kFirst: return IconPlace{};
        case IconMove::kLast: return last;
        case IconMove::kPageUp:
        case IconMove::kPageDown: break;
    }
    // As many rows as fit a page, but at least one.
    const int start = AreaOf(*from).top;
    IconPlace place = *from;
    for (;;) {
        const IconPlace next = move == IconMove::kPageUp ? Above(place) : Below(place);
        const int distance = AreaOf(next).top - start;
        const bool far = (distance < 0 ? -distance : distance) > page - metrics_.cellHeight;
        if (next == place || (far && place != *from)) return place;
        place = next;
        if (far) return place;
    }
}
