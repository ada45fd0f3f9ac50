#include "appearance/drawing/theme_colors.h"

#include <todaycmn.h>

#include "appearance/drawing/shell_colors.h"
#include "settings/device.h"

namespace {

HWND TodayWindow() {
    const HWND shell = GetWindow(GetDesktopWindow(), GW_CHILD);
    return IsNewerPocketPc() || !shell ? shell : GetWindow(shell, GW_CHILD);
}

// The Today screen's colour; without a Today screen, the system's own of that kind.
COLORREF TodayColor(WPARAM which, int systemColor) {
    const HWND today = TodayWindow();
    if (!today) return GetSysColor(systemColor);
    return static_cast<COLORREF>(SendMessageW(today, TODAYM_GETCOLOR, which, 0));
}

COLORREF TodayHighlightColor(WPARAM which, int systemColor) {
    return HasTodayHighlight() ? TodayColor(which, systemColor) : GetSysColor(systemColor);
}

}  // namespace

void ThemeColors::Refresh() {
    Release();
    SlotOf(ThemeColor::kSeparator).color =
        GetShellColor(kShellSeparatorColor, kUsualSeparatorColor);
    SlotOf(ThemeColor::kHighlight).color =
        TodayHighlightColor(TODAYCOLOR_HIGHLIGHT, COLOR_HIGHLIGHT);
    SlotOf(ThemeColor::kText).color = TodayColor(TODAYCOLOR_TEXT, COLOR_WINDOWTEXT);
    SlotOf(ThemeColor::kHighlightedText).color =
        TodayHighlightColor(TODAYCOLOR_HIGHLIGHTEDTEXT, COLOR_HIGHLIGHTTEXT);
    SlotOf(ThemeColor::kConflicting).color = GetApptStatusColor(kApptConflicting);
}

void ThemeColors::Release() {
    for (Slot& slot : slots_) slot.brush.Reset();
}

HBRUSH ThemeColors::GetBrush(ThemeColor which) {
    Slot& slot = SlotOf(which);
    if (!slot.brush || slot.brushColor != slot.color) {
        slot.brush.Reset(CreateSolidBrush(slot.color));
        slot.brushColor = slot.color;
    }
    return slot.brush.get();
}

ThemeColors& GetThemeColors() {
    static ThemeColors colors;
    return colors;
}
