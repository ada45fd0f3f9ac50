#pragma once

#include <span>
#include <vector>

// Where a control stands in its dialog, in pixels, as long as nothing is scrolled.
struct ControlPlace {
    int id = 0;
    int left = 0, top = 0, right = 0, bottom = 0;
    bool shown = true;
};

// A control that takes what the others leave of the dialog's height and width. Below its least
// height, in dialog units, the dialog scrolls instead.
struct Fill {
    int control;
    int least;
};

// The size in pixels that places are designed for, or have.
struct LayoutSize {
    int width = 0, height = 0;
};

// Fits places that were designed for a width to a dialog of another size. What ends at the right
// margin goes on doing so; where a filling control stands beside it, that one grows instead. What
// stands below a filling control makes room for it. `fills` have their least heights in pixels.
// Returns the height that is needed, which may be more than there is.
int FitToDialog(std::vector<ControlPlace>& places, std::span<const Fill> fills, int designedWidth,
                int rightMargin, int bottomMargin, const LayoutSize& size);
