#pragma once

#include <windows.h>

// The line between the items of the Today screen, also of lists, and its usual colour.
inline constexpr int kShellSeparatorColor = 6;
inline constexpr COLORREF kUsualSeparatorColor = 0xCE8231;

// One of the colours of the device's shell, as its theme and its owner chose them.
COLORREF GetShellColor(int index, COLORREF defaultColor);

// How busy an appointment makes its owner.
enum ApptStatus {
    kApptBackground = -1,
    kApptFree,
    kApptTentative,
    kApptBusy,
    kApptOutOfOffice,
    kApptNotLoaded,
    kApptConflicting,
};

// The colour that the diary paints a status in; 0 for a number that is none.
COLORREF GetApptStatusColor(int status);
