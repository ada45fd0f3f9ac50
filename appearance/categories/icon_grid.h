#pragma once

#include <optional>
#include <vector>

#include "base/grid_area.h"

// Lengths of the icon list in pixels.
struct IconGridMetrics {
    int headerHeight = 0;
    int indent = 0;  // of the first column of icons
    int cellWidth = 0;
    int cellHeight = 0;
};

struct IconGroupShape {
    int icons = 0;
    bool expanded = true;
};

// An icon of a group, or the group's header.
struct IconPlace {
    static constexpr int kHeader = -1;
    int group = 0;
    int icon = kHeader;
    bool isHeader() const { return icon == kHeader; }
    bool operator==(const IconPlace&) const = default;
};

enum class IconMove { kLeft, kRight, kUp, kDown, kPageUp, kPageDown, kFirst, kLast };

// Where headers and icons of a list of groups lie, one group below the other, in pixels from the
// top of the whole list. Collapsed groups show their header only.
class IconGrid {
  public:
    IconGrid() = default;
    IconGrid(const IconGridMetrics& metrics, int width, std::vector<IconGroupShape> groups);

    int columns() const { return columns_; }
    int height() const { return tops_.back(); }

    GridArea AreaOf(const IconPlace& place) const;
    // No value beside the icons and below the last group.
    std::optional<IconPlace> At(const GridPoint& point) const;

    // What meets the strip from `top` to `bottom`: groups, and icons of a group, each from the
    // first up to the one behind the last.
    struct Range {
        int begin = 0;
        int end = 0;
        bool operator==(const Range&) const = default;
    };
    Range GroupsWithin(int top, int bottom) const;
    Range IconsWithin(int group, int top, int bottom) const;

    // Where a key leads; headers are stops on the way. From nowhere every key leads to the first
    // place. `page` is the height of a page.
    std::optional<IconPlace> Move(std::optional<IconPlace> from, IconMove move, int page) const;

  private:
    int groupCount() const { return static_cast<int>(groups_.size()); }
    int ShownIcons(int group) const;
    IconPlace Next(const IconPlace& from) const;
    IconPlace Previous(const IconPlace& from) const;
    IconPlace Above(const IconPlace& from) const;
    IconPlace Below(const IconPlace& from) const;

    IconGridMetrics metrics_;
    int width_ = 0;
    int columns_ = 1;
    std::vector<IconGroupShape> groups_;
    std::vector<int> tops_ = {0};  // of each group, and the end of the last
};
