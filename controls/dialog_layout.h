#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

// What a control does with a text that is longer than its place.
enum class ControlKind {
    kLabel,  // takes more lines, or stands above its field
    kText,   // such as a check box: takes more lines
    kField,  // shows one line, such as a drop-down list or push button
    kOther,  // has no text of its own
};

// Where a control stands in its dialog, in pixels, as long as nothing is scrolled.
struct ControlPlace {
    int id = 0;
    int left = 0, top = 0, right = 0, bottom = 0;
    ControlKind kind = ControlKind::kOther;
    int textWidth = 0;  // how wide it must be to show its texts in one line
    bool shown = true;
};

// A control that takes what the others leave of the dialog's height and width. Where it would be
// lower than its least height, in dialog units, the dialog scrolls instead; then it is as high as
// all it has takes, so that nothing scrolls within what scrolls.
struct Fill {
    int control;
    int least;      // 0: takes width only
    int whole = 0;  // 0: as `least`
};

// What places are designed with, in pixels.
struct LayoutMetrics {
    int width;         // of the dialog they are designed for
    int rightMargin;   // beside what reaches to the right
    int bottomMargin;  // below the lowest
    int labelGap;      // at most this is between a label and its field
    int narrow;        // up to here a control keeps its width, such as arrows
    int lineGap;       // between a label and its field below it
};

// The height in pixels of a control of kLabel or kText, by its place in the list, at a width.
using HeightAtWidth = std::function<int(std::size_t control, int width)>;

// Fits controls to a dialog of a size that they were not designed for, and to longer texts:
// What ends at the right margin goes on doing so; where a filling control stands left of it, that
// one grows instead. Labels and fields share what they have, or labels stand above; other texts
// take what is free beside them, and more lines. What stands below makes room, and filling controls
// take what is left. `fills` have their heights in pixels. Returns the height that is needed, which
// may be more than there is.
int FitToDialog(std::vector<ControlPlace>& places, std::span<const Fill> fills,
                const LayoutMetrics& metrics, int width, int height, const HeightAtWidth& heightAt);
