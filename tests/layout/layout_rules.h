// What is wrong with how a dialog stands on a screen. Knows no windows, so that it can be shown
// faults.
#pragma once

#include <string>
#include <vector>

namespace layout {

enum class Kind { kLabel, kCheckBox, kButton, kList, kEdit, kOther };

// A visible control, in pixels of the dialog before it is scrolled.
struct Seen {
    std::string name;  // for the report
    Kind kind = Kind::kOther;
    int left = 0, top = 0, right = 0, bottom = 0;
    bool tapped = false;  // something to tap
    bool tabStop = false;
    bool labels = false;  // a label that belongs to the control behind it
    int wantedWidth = 0;  // what its texts need; 0: nothing
    int wantedHeight = 0;
};

struct Page {
    int width = 0;   // without the scroll bar
    int top = 0;     // below the title band
    int bottom = 0;  // as far as it is seen or can be scrolled
    int dpi = 96;
    std::vector<Seen> controls;  // in the tab order
};

// One line for each fault: the rule, the control, and by how many pixels.
std::vector<std::string> FindFaults(const Page& page);

}  // namespace layout
