#pragma once

#include <windows.h>

#include <array>

#include "base/owned_handle.h"

// The colours in which pages paint their previews, each with a brush.
enum class ThemeColor {
    kSeparator = 1,
    kHighlight,        // of the Today screen
    kText,             // of the Today screen
    kHighlightedText,  // of the Today screen
    kOwner,            // whatever the owner of the preview sets
    kConflicting,      // appointments at the same time
};

class ThemeColors {
  public:
    // Drops all brushes and asks for the colours anew, but for the owner's.
    void Refresh();
    // Drops all brushes.
    void Release();

    COLORREF GetColor(ThemeColor which) const { return SlotOf(which).color; }
    void SetOwnerColor(COLORREF color) { SlotOf(ThemeColor::kOwner).color = color; }

    // A brush of the colour; it lasts until the colour changes or the brushes are dropped. Null
    // when it cannot be made.
    HBRUSH GetBrush(ThemeColor which);

  private:
    struct Slot {
        COLORREF color = 0;
        COLORREF brushColor = 0;
        OwnedBrush brush;
    };
    Slot& SlotOf(ThemeColor which) { return slots_[static_cast<std::size_t>(which) - 1]; }
    const Slot& SlotOf(ThemeColor which) const {
        return slots_[static_cast<std::size_t>(which) - 1];
    }

    std::array<Slot, 6> slots_;
};

// The program's own, filled by the main window.
ThemeColors& GetThemeColors();
