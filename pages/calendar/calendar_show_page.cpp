#include "pages/calendar/calendar_pages.h"
#include "resources/ids.h"
#include "settings/device.h"

namespace {

constexpr Row kRows[] = {
    rows::Check(IDC_SHOW_PAST, settings::CalendarShowPastAppts),
    rows::Check(IDC_SHOW_EMPTY_DAYS, settings::CalendarShowEmptyDays),
    rows::Check(IDC_SHOW_FREE, settings::CalendarShowFreeAppts),
    rows::Check(IDC_SHOW_TODAY_ALWAYS, settings::CalendarShowTodayAlways),
    rows::Check(IDC_SHOW_BIRTHDAYS, settings::CalendarShowBirthdays),
    rows::Check(IDC_SHOW_EMAILS, settings::CalendarShowEmails),
    // Without the finance program nothing is known of transactions, and their value is left alone.
    rows::Check(IDC_SHOW_TRANSACTIONS, settings::CalendarShowTransactions)
        .RemovedWithout(IsFinanceProgramPresent),
};

}  // namespace

// What the calendar lists besides appointments.
constexpr PageDescription kCalendarShowPage = {IDD_CALENDAR_SHOW, L"calendar_show", kRows};
