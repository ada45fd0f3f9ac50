#pragma once

#include <windows.h>

#include <string>

// The looks of a group's heading; the numbers are stored.
enum class StripeStyle { kPlain = 0, kLine = 1, kShaded = 2, kFilled = 3 };

// The heading of a group of items, which folds and unfolds the group by a tap.
struct FoldingStripe {
    StripeStyle style = StripeStyle::kShaded;  // any other number is drawn plain
    bool drawCounter = true;
    bool showCollapseIcon = true;

    // Draws the heading of an unfolded group of `count` items, its mark being the skin's, in the
    // text colour of `dc` where the style has none of its own.
    void Draw(HDC dc, const RECT& area, const std::wstring& title, int count) const;
};
