#pragma once

#include <cstdint>

// A number of the product key that one page reads and writes: its name and the default that the
// first read creates.
struct NumberSetting {
    const wchar_t* name = nullptr;
    std::uint32_t defaultValue = 0;
};

namespace settings {

// The main window and the plug-in's tabs: a bit for each tab, and their order.
inline constexpr NumberSetting ShowTabs{L"ShowTabs", 0xFFFFFFFF};
inline constexpr const wchar_t ShowTabsSequence[] = L"ShowTabsSequence";

// Return to a view after idle time (seconds, 0: never), keyboard.
inline constexpr NumberSetting TimeoutTime{L"TimeoutTime", 900};
inline constexpr NumberSetting TimeoutView{L"TimeoutView", 1};
inline constexpr NumberSetting AdvancedKeyboardSupport{L"AdvancedKeyboardSupport", 0};

// Calendar.
inline constexpr NumberSetting CalendarPeriod{L"CalendarPeriod", 7};
inline constexpr NumberSetting CalendarFirstYearWeek{L"Calendar_FirstYearWeek", 0};
inline constexpr NumberSetting CalendarShowPastAppts{L"CalendarShowPastAppts", 1};
inline constexpr NumberSetting CalendarShowEmptyDays{L"CalendarShowEmptyDays", 0};
inline constexpr NumberSetting CalendarShowTransactions{L"CalendarShowTransactions", 1};
inline constexpr NumberSetting CalendarShowFreeAppts{L"CalendarShowFreeAppts", 1};
inline constexpr NumberSetting CalendarShowTodayAlways{L"CalendarShowTodayAlways", 1};
inline constexpr NumberSetting CalendarShowBirthdays{L"CalendarShowBirthdays", 1};
inline constexpr NumberSetting CalendarShowEmails{L"CalendarShowEmails", 1};
inline constexpr NumberSetting CalendarShowTasks{L"CalendarShowTasks", 1};
inline constexpr NumberSetting CalendarShowOverdueTasks{L"CalendarShowOverdueTasks", 1};
inline constexpr NumberSetting CalendarShowCompletedTasks{L"CalendarShowCompletedTasks", 0};
inline constexpr NumberSetting CalendarShowUndatedTasks{L"CalendarShowUndatedTasks", 0};

// Tasks.
inline constexpr NumberSetting TaskCompletionMessage{L"Task_DisplayComplMsg", 1};
inline constexpr NumberSetting TasksShowActiveTasks{L"TasksShowActiveTasks", 0};
inline constexpr NumberSetting TasksShowCompletedTasks{L"TasksShowCompletedTasks", 0};

// Special events. Transactions default to what the device can show.
inline constexpr NumberSetting SpecialShowBirthdays{L"SpecialShowBirthdays", 1};
constexpr NumberSetting SpecialShowTransactions(bool financeProgramPresent) {
    return {L"SpecialShowTransactions", financeProgramPresent ? 1u : 0u};
}

// Colours of appointments by how busy they make, as 0x00BBGGRR. The plug-in knows two of them under
// these very spellings.
inline constexpr NumberSetting ApptStatusBackground{L"clrApptStatusBkg", 0xCCCCCC};
inline constexpr NumberSetting ApptStatusFree{L"clrApptStatusFree", 0xFFFFFF};
inline constexpr NumberSetting ApptStatusTentative{L"clrApptStatusTentative", 0xF7CBA5};
inline constexpr NumberSetting ApptStatusBusy{L"clrApptStatusBusy", 0xDC4040};
inline constexpr NumberSetting ApptStatusOutOfOffice{L"clrApptStatusOutOfOffice", 0x840084};
inline constexpr NumberSetting ApptStatusNotLoaded{L"clrApptStatusNotloaded", 0xD2FFFF};
inline constexpr NumberSetting ApptStatusConflicting{L"clrApptStatusConfliciting", 0x0000FF};

// Category icons: the program whose icons are used (1 Agenda Fusion, 2 Pocket Informant, else the
// diary's own), and the source last shown for choosing one.
inline constexpr NumberSetting CurrentPim{L"CurrentPIM", 0};
inline constexpr NumberSetting IconSetId{L"IconSetID", 0};

}  // namespace settings
