#pragma once

#include <cstdint>

#include "resources/ids.h"

// An entry of a drop-down list: the number stored and the text that stands for it, by string id. A
// table of them ends with label 0.
struct ValueLabel {
    std::int32_t value;
    unsigned label;
};

inline constexpr ValueLabel kTaskPlacements[] = {
    {0, IDS_PLACEMENT_START},
    {1, IDS_PLACEMENT_DUE},
    {2, IDS_PLACEMENT_BOTH},
    {3, IDS_PLACEMENT_ALL},
    {0, 0},
};

inline constexpr ValueLabel kSubjectModes[] = {
    {2, IDS_SUBJECT_WHOLE},
    {1, IDS_SUBJECT_WHOLE_SELECTED},
    {3, IDS_SUBJECT_ONE_LINE},
    {0, 0},
};

inline constexpr ValueLabel kTimeouts[] = {
    {900, IDS_TIMEOUT_15_MIN},
    {3600, IDS_TIMEOUT_1_HR},
    {14400, IDS_TIMEOUT_4_HR},
    {28800, IDS_TIMEOUT_8_HR},
    {0, 0},
};

inline constexpr ValueLabel kTimeoutViews[] = {
    {1, IDS_VIEW_CALENDAR},
    {2, IDS_VIEW_TASKS},
    {3, IDS_VIEW_CONTACTS},
    {4, IDS_VIEW_NOTES},
    {5, IDS_VIEW_MESSAGES},
    {6, IDS_VIEW_SPECIAL_EVENTS},
    {0, 0},
};

inline constexpr ValueLabel kKeyboardSupport[] = {
    {0, IDS_KEYBOARD_NEVER},
    {1, IDS_KEYBOARD_WHEN_ACTIVE},
    {2, IDS_KEYBOARD_ALWAYS},
    {0, 0},
};

inline constexpr ValueLabel kNoteGroupings[] = {
    {501, IDS_BY_LETTER},
    {559, IDS_BY_FOLDER},
    {551, IDS_BY_CATEGORY},
    {0, 0},
};

// The codes are the plug-in's own.
inline constexpr ValueLabel kContactGroups[] = {
    {501, IDS_BY_LETTER},
    {558, IDS_BY_COMPANY},
    {551, IDS_BY_CATEGORY},
    {0, 0},
};

// The plug-in counts the default period as 0, which stands fourth in the list.
inline constexpr ValueLabel kSpecialPeriods[] = {
    {1, IDS_PERIOD_FIRST},     {2, IDS_PERIOD_FIRST + 1},
    {3, IDS_PERIOD_FIRST + 2}, {0, IDS_PERIOD_FIRST + 3},
    {4, IDS_PERIOD_FIRST + 4}, {5, IDS_PERIOD_FIRST + 5},
    {6, IDS_PERIOD_FIRST + 6}, {0, 0},
};
