#pragma once

// A point and a rectangle in pixels, for what must know no window system. Right and bottom lie
// outside the rectangle.
struct GridPoint {
    int x = 0;
    int y = 0;
    bool operator==(const GridPoint&) const = default;
};

struct GridArea {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const GridArea&) const = default;
};
