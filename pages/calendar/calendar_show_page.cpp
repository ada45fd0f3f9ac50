#include "pages/calendar/calendar_show_page.h"

#include "resources/ids.h"
#include "settings/device.h"

namespace {

// Without the finance program nothing is known of transactions, and their value is left alone.
std::vector<Row> Rows(bool financeProgramPresent) {
    std::vector<Row> result = {
        rows::Check(IDC_SHOW_PAST, settings::CalendarShowPastAppts),
        rows::Check(IDC_SHOW_EMPTY_DAYS, settings::CalendarShowEmptyDays),
        rows::Check(IDC_SHOW_FREE, settings::CalendarShowFreeAppts),
        rows::Check(IDC_SHOW_TODAY_ALWAYS, settings::CalendarShowTodayAlways),
        rows::Check(IDC_SHOW_BIRTHDAYS, settings::CalendarShowBirthdays),
        rows::Check(IDC_SHOW_EMAILS, settings::CalendarShowEmails),
    };
    if (financeProgramPresent) {
        result.push_back(rows::Check(IDC_SHOW_TRANSACTIONS, settings::CalendarShowTransactions));
    }
    return result;
}

}  // namespace

CalendarShowPage::CalendarShowPage() : CalendarShowPage(IsFinanceProgramPresent()) {}

CalendarShowPage::CalendarShowPage(bool financeProgramPresent)
    : OptionsPage(IDD_CALENDAR_SHOW, L"calendar_show", Rows(financeProgramPresent)),
      financeProgramPresent_(financeProgramPresent) {}

void CalendarShowPage::OnLoad(PageValues&) {
    if (!financeProgramPresent_) DestroyWindow(Item(IDC_SHOW_TRANSACTIONS));
}
