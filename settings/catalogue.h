#pragma once

#include <cstdint>

// A number of the product key that one page reads and writes: its name and the default that the
// first read creates.
struct NumberSetting {
    const wchar_t* name = nullptr;
    std::uint32_t defaultValue = 0;
};

// A text, likewise; without a default a missing one is empty and is not created.
struct TextSetting {
    const wchar_t* name = nullptr;
    const wchar_t* defaultText = nullptr;
};

namespace settings {

// The main window and the plug-in's tabs: a bit for each tab, and their order.
inline constexpr NumberSetting ShowTabs{L"ShowTabs", 0xFFFFFFFF};
inline constexpr TextSetting ShowTabsSequence{L"ShowTabsSequence", L""};
inline constexpr NumberSetting AllTabsInShell{L"AllTabsInShell", 1};

// The plug-in's size in pixels, portrait and landscape, when nothing smaller is possible.
constexpr NumberSetting TotalHeight(bool landscape, int defaultHeight) {
    return {landscape ? L"TotalHeightL" : L"TotalHeight",
            static_cast<std::uint32_t>(defaultHeight)};
}
inline constexpr NumberSetting HeaderMinimized{L"HeaderMinimized", 0};
inline constexpr NumberSetting AutoSizeAdjust{L"AutoSizeAdjust", 1};
inline constexpr NumberSetting AllowMinimization{L"AllowMinimization", 1};
// The program whose items are shown: 0 the device's own, 1 Agenda Fusion, 2 Pocket Informant,
// 3 Agenda One.
inline constexpr NumberSetting CurrentPIM{L"CurrentPIM", 0};

// Dates.
inline constexpr NumberSetting LongDateRegional{L"LongDate_Regional", 1};
inline constexpr NumberSetting LongDateCustomFormat{L"LongDate_CustomFormat", 0};
inline constexpr NumberSetting LongDateNotYear{L"LongDate_NotYear", 1};
inline constexpr NumberSetting LongDateShortYear{L"LongDate_ShortYear", 1};
inline constexpr NumberSetting LongDateShortMonth{L"LongDate_ShortMonth", 1};
inline constexpr NumberSetting LongDateShortDay{L"LongDate_ShortDay", 1};
inline constexpr NumberSetting ShortDateNotYear{L"ShortDate_NotYear", 1};
inline constexpr NumberSetting ShortDateShortYear{L"ShortDate_ShortYear", 1};

// The font of the lists. The page that edits ClearType and whoever draws first differ in its
// default.
inline constexpr NumberSetting UseSystem{L"UseSystem", 1};
inline constexpr TextSetting FontName{L"FontName", L"Tahoma"};
inline constexpr NumberSetting FontHeight{L"FontHeight", 12};
inline constexpr NumberSetting ClearTypeOnPage{L"ClearType", 2};
inline constexpr NumberSetting ClearTypeWhenDrawing{L"ClearType", 0};

// The skin's name; its default stands with the artwork, as an empty name means the same.
inline constexpr TextSetting SkinName{L"SkinName", L"NewStyle"};

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

inline constexpr NumberSetting TimeSpanNewStyle{L"TimeSpanNewStyle", 0};

// Tasks.
inline constexpr NumberSetting TaskCompletionMessage{L"Task_DisplayComplMsg", 1};
inline constexpr NumberSetting TasksShowActiveTasks{L"TasksShowActiveTasks", 0};
inline constexpr NumberSetting TasksShowCompletedTasks{L"TasksShowCompletedTasks", 0};

// Notes: how they are grouped (a code), their order and what a tap does (indices). The hidden
// folders are a text of a key of their own.
inline constexpr NumberSetting NotesGroupBy{L"NotesGroupBy", 559};
inline constexpr NumberSetting NoteSortOrder{L"NoteSortOrder", 1};
inline constexpr NumberSetting NotesOneTap{L"NotesOneTap", 2};
inline constexpr TextSetting HiddenFolders{L"HiddenFolders", L""};

// Contacts. The grouping is a code.
inline constexpr NumberSetting ContactsGroupBy{L"ContactsGroupBy", 551};
inline constexpr NumberSetting ContactsShowPhotoContacts{L"ContactsShowPhotoContacts", 0};

// Keyboard layouts of a tab, whose name comes before: those it offers, by name, and the position
// of the active one (-1: none).
inline constexpr TextSetting TabLayouts{L"_layouts", L"Latin"};
inline constexpr NumberSetting TabLayoutActive{L"_layout_active", 0};

// Special events. Transactions default to what the device can show.
inline constexpr NumberSetting SpecialShowBirthdays{L"SpecialShowBirthdays", 1};
constexpr NumberSetting SpecialShowTransactions(bool financeProgramPresent) {
    return {L"SpecialShowTransactions", financeProgramPresent ? 1u : 0u};
}

// Messages.
inline constexpr NumberSetting EmailSorting{L"EmailSorting", 0};
inline constexpr NumberSetting EmailsOneTap{L"EmailsOneTap", 2};
inline constexpr NumberSetting MessagesSetAsReadedPreview{L"Messages_SetAsReadedPreview", 1};
inline constexpr NumberSetting MessagesInCalendar{L"Calendar_ShowEmails", 1};
// The name of the active filter of mail folders; none is active without it.
inline constexpr TextSetting EmailFilter{L"EmailFilter", nullptr};

// Colours of appointments by how busy they make, as 0x00BBGGRR. The plug-in knows two of them under
// these very spellings.
inline constexpr NumberSetting ApptStatusBackground{L"clrApptStatusBkg", 0xCCCCCC};
inline constexpr NumberSetting ApptStatusFree{L"clrApptStatusFree", 0xFFFFFF};
inline constexpr NumberSetting ApptStatusTentative{L"clrApptStatusTentative", 0xF7CBA5};
inline constexpr NumberSetting ApptStatusBusy{L"clrApptStatusBusy", 0xDC4040};
inline constexpr NumberSetting ApptStatusOutOfOffice{L"clrApptStatusOutOfOffice", 0x840084};
inline constexpr NumberSetting ApptStatusNotLoaded{L"clrApptStatusNotloaded", 0xD2FFFF};
inline constexpr NumberSetting ApptStatusConflicting{L"clrApptStatusConfliciting", 0x0000FF};

// Category icons: the source last shown for choosing one.
inline constexpr NumberSetting IconSetId{L"IconSetID", 0};

}  // namespace settings
