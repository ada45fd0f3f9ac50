// Every page and control: what changes it, the value behind it, that value's default and what the
// change stores, all written out by hand.
#pragma once

#include <windows.h>

#include <span>
#include <vector>

#include "resources/ids.h"

namespace ui {

struct PageRow {
    int entry, page;
    int control;
    int select;  // an index, or kClick
    const wchar_t* name;
    DWORD defaultValue;
    DWORD stored;  // after the change
};
inline constexpr int kClick = -1;

// In the order of the pages.
inline constexpr PageRow kPageRows[] = {
    {0, 0, IDC_HEADER_STATE, 1, L"HeaderMinimized", 0, 1},
    {0, 0, IDC_ALLOW_MINIMIZATION, kClick, L"AllowMinimization", 1, 0},
    {0, 0, IDC_AUTO_SIZE, kClick, L"AutoSizeAdjust", 1, 0},
    {0, 1, IDC_SHORT_NOT_YEAR, kClick, L"ShortDate_NotYear", 1, 0},
    {0, 2, IDC_LONG_REGIONAL, kClick, L"LongDate_Regional", 1, 0},
    {0, 2, IDC_LONG_NOT_YEAR, kClick, L"LongDate_NotYear", 1, 0},
    {0, 2, IDC_LONG_SHORT_MONTH, kClick, L"LongDate_ShortMonth", 1, 0},
    {0, 2, IDC_LONG_SHORT_DAY, kClick, L"LongDate_ShortDay", 1, 0},
    {0, 4, IDC_STRIPE_STYLE, 0, L"FoldingStripeStyle", 2, 0},
    {0, 4, IDC_STRIPE_COUNTER, kClick, L"FoldingStripeDrawCounter", 1, 0},
    {0, 4, IDC_STRIPE_COLLAPSE_ICON, kClick, L"FoldingStripeShowCollapseIcon", 1, 0},
    {0, 4, IDC_STRIPE_HIDE_EMPTY, kClick, L"FoldingStripeDontShowNull", 1, 0},
    {0, 4, IDC_ONE_CLICK, 2, L"OneClick", 0, 2},
    {0, 4, IDC_DOUBLE_CLICK, 3, L"DoubleClick", 2, 3},
    {0, 4, IDC_DOUBLE_TAP_SCROLL, kClick, L"EnableDoubleTapOnScrollButton", 0, 1},
    {0, 7, IDC_TIMEOUT_TIME, 2, L"TimeoutTime", 900, 14400},
    {0, 7, IDC_TIMEOUT_VIEW, 5, L"TimeoutView", 1, 6},
    {0, 7, IDC_KEYBOARD_SUPPORT, 1, L"AdvancedKeyboardSupport", 0, 1},
    {0, 7, IDC_PHONE_BACKSPACE, kClick, L"PhoneKeyb_DisableBackspace", 0, 1},
    {1, 0, IDC_CALENDAR_PERIOD, 0, L"CalendarPeriod", 7, 1},
    {1, 0, IDC_FIRST_YEAR_WEEK, 2, L"Calendar_FirstYearWeek", 0, 2},
    {1, 0, IDC_GROUP_OFFSET, 0, L"AppGroup_Offset", 1, 0},
    {1, 0, IDC_GROUP_SPAN, 2, L"AppGroup_Span", 1, 3},
    {1, 0, IDC_COLLAPSE_BUT_TODAY, kClick, L"App_CollapseButToday", 1, 0},
    {1, 0, IDC_MARK_CONFLICTING, kClick, L"App_MarkConflicting", 1, 0},
    {1, 0, IDC_GROUP_TODAY, kClick, L"AppGroup_Today", 1, 0},
    {1, 0, IDC_GROUP_WEATHER, kClick, L"AppGroup_Weather", 1, 0},
    {1, 1, IDC_SHOW_PAST, kClick, L"CalendarShowPastAppts", 1, 0},
    {1, 1, IDC_SHOW_EMPTY_DAYS, kClick, L"CalendarShowEmptyDays", 0, 1},
    {1, 1, IDC_SHOW_FREE, kClick, L"CalendarShowFreeAppts", 1, 0},
    {1, 1, IDC_SHOW_TODAY_ALWAYS, kClick, L"CalendarShowTodayAlways", 1, 0},
    {1, 1, IDC_SHOW_BIRTHDAYS, kClick, L"CalendarShowBirthdays", 1, 0},
    {1, 1, IDC_SHOW_EMAILS, kClick, L"CalendarShowEmails", 1, 0},
    {1, 2, IDC_SHOW_UNDATED_TASKS, kClick, L"CalendarShowUndatedTasks", 0, 1},
    {1, 2, IDC_SHOW_OVERDUE_TASKS, kClick, L"CalendarShowOverdueTasks", 1, 0},
    {1, 2, IDC_SHOW_COMPLETED_TASKS, kClick, L"CalendarShowCompletedTasks", 0, 1},
    {1, 2, IDC_TASK_PLACEMENT, 1, L"App_TaskShowMultiday", 3, 1},
    {1, 3, IDC_APP_SUBJECT_STYLE, 1, L"App_SubjectStyle", 3, 1},
    {1, 3, IDC_APP_LOCATION, kClick, L"App_Location", 1, 0},
    {1, 3, IDC_APP_START_ONLY, kClick, L"App_StartOnly", 0, 1},
    {1, 3, IDC_APP_STATUS_BAR, kClick, L"App_StatusBar", 1, 0},
    {1, 3, IDC_APP_INDENT, kClick, L"App_MakeDateIndent", 1, 0},
    {1, 3, IDC_TIME_SPAN_NEW_STYLE, kClick, L"TimeSpanNewStyle", 0, 1},
    {2, 1, IDC_TASK_CHECKBOX, kClick, L"Task_ShowCheckbox", 1, 0},
    {2, 1, IDC_TASK_INDENT, kClick, L"Task_MakeDateIndent", 1, 0},
    {2, 0, IDC_TASK_COMPLETION_MESSAGE, kClick, L"Task_DisplayComplMsg", 1, 0},
    {2, 0, IDC_TASKS_ALL_CATEGORIES, kClick, L"ShowTasksInAllCategories", 0, 1},
    {2, 0, IDC_TASKS_COMPLETED, kClick, L"TasksShowCompletedTasks", 0, 1},
    {2, 0, IDC_TASKS_ACTIVE, kClick, L"TasksShowActiveTasks", 0, 1},
    {4, 0, IDC_NOTES_GROUP_BY, 2, L"NotesGroupBy", 559, 551},
    {4, 0, IDC_NOTES_SORT, 0, L"NoteSortOrder", 1, 0},
    {4, 0, IDC_NOTES_ONE_TAP, 3, L"NotesOneTap", 2, 3},
    {4, 0, IDC_NOTES_SIZE, kClick, L"NoteDrawSize", 0, 1},
    {4, 0, IDC_NOTES_TIME, kClick, L"NoteDrawTime", 1, 0},
    {4, 0, IDC_NOTES_INDENT, kClick, L"NoteMakeIndent", 1, 0},
    {4, 0, IDC_NOTES_TYPE_FIRST, kClick, L"NotesType0Enabled", 1, 0},
    {4, 0, IDC_NOTES_TYPE_FIRST + 1, kClick, L"NotesType1Enabled", 1, 0},
    {4, 0, IDC_NOTES_TYPE_FIRST + 2, kClick, L"NotesType2Enabled", 1, 0},
    {4, 0, IDC_NOTES_TYPE_FIRST + 3, kClick, L"NotesType3Enabled", 1, 0},
    {4, 0, IDC_NOTES_TYPE_FIRST + 4, kClick, L"NotesType4Enabled", 1, 0},
    {4, 0, IDC_NOTES_TYPE_FIRST + 5, kClick, L"NotesType5Enabled", 1, 0},
    {4, 0, IDC_NOTES_LAYOUT, 1, L"Notes_layout_active", 0, 0xFFFFFFFF},
    {3, 0, IDC_CONTACT_GROUPS, 1, L"ContactsGroupBy", 551, 558},
    {3, 0, IDC_CONTACT_PHOTOS, kClick, L"ContactsShowPhotoContacts", 0, 1},
    {3, 0, IDC_CONTACT_PHOTO_TEXT, kClick, L"ContactShowTextForPhotos", 0, 1},
    {3, 0, IDC_CONTACT_ONE_TAP, 0, L"ContactsOneTap", 3, 0},
    {3, 0, IDC_CONTACTS_ALL_CATEGORIES, kClick, L"ShowContactsInAllCategories", 0, 1},
    {3, 0, IDC_CONTACT_LAYOUT, 1, L"Contacts_layout_active", 0, 0xFFFFFFFF},
    {3, 1, IDC_CONTACT_DISPLAY, 3, L"ContDisplay", 1, 3},
    {3, 1, IDC_CONTACT_INDENT, kClick, L"ContLeftIdent", 1, 0},
    {3, 1, IDC_CONTACT_SEARCH_COMPANY, kClick, L"ContSearchCompany", 0, 1},
    {3, 1, IDC_CONTACT_COMPANY_NO_CASE, kClick, L"ContactGroupCompanyNoCase", 1, 0},
    {3, 1, IDC_CONTACT_ADDRESS, 2, L"ContPreview_ShowAddressMode", 0, 2},
    {5, 0, IDC_MESSAGES_SORTING, 1, L"EmailSorting", 0, 1},
    {5, 0, IDC_MESSAGES_ONE_TAP, 0, L"EmailsOneTap", 2, 0},
    {5, 0, IDC_MESSAGES_COUNTER, 2, L"EmailCounterStyle", 0, 2},
    {5, 0, IDC_MESSAGES_CONFIRM_DELETION, kClick, L"EmailConfirmDeletion", 1, 0},
    {5, 0, IDC_MESSAGES_READ_ON_PREVIEW, kClick, L"Messages_SetAsReadedPreview", 1, 0},
    {5, 0, IDC_MESSAGES_ONLY_UNREAD, kClick, L"EmailsOnlyUnreaded", 0, 1},
    {5, 0, IDC_MESSAGES_IN_CALENDAR, kClick, L"Calendar_ShowEmails", 1, 0},
    {5, 0, IDC_MESSAGES_EMPTY_ACCOUNTS, kClick, L"EmailShowEmptyAccounts", 0, 1},
    {5, 0, IDC_MESSAGES_SIZE, kClick, L"EmailShowSize", 0, 1},
    {6, 0, IDC_SPECIAL_PERIOD, 6, L"SpecialPeriod", 0, 6},
    {6, 0, IDC_SPECIAL_BIRTHDAYS, kClick, L"SpecialShowBirthdays", 1, 0},
};

// The rows of each page that has some.
inline std::vector<std::span<const PageRow>> PageTables() {
    std::vector<std::span<const PageRow>> tables;
    const std::span<const PageRow> all = kPageRows;
    for (std::size_t begin = 0, end = 0; begin < all.size(); begin = end) {
        while (end < all.size() && all[end].entry == all[begin].entry &&
               all[end].page == all[begin].page) {
            ++end;
        }
        tables.push_back(all.subspan(begin, end - begin));
    }
    return tables;
}

}  // namespace ui
