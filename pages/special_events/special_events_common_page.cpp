#include "pages/special_events/special_events_pages.h"
#include "resources/ids.h"
#include "settings/device.h"

namespace {

constexpr Row kRows[] = {
    rows::Check(IDC_SPECIAL_BIRTHDAYS, settings::SpecialShowBirthdays),
    // Without the finance program there are none to show.
    rows::Check(IDC_SPECIAL_TRANSACTIONS, settings::SpecialShowTransactions)
        .GreyedWithout(IsFinanceProgramPresent, 0),
    rows::Choice(IDC_SPECIAL_PERIOD, &CDiarySettings::specialPeriod, kSpecialPeriods),
};

}  // namespace

// Which special events are listed, and how far ahead.
constexpr PageDescription kSpecialEventsCommonPage = {IDD_SPECIAL_EVENTS_COMMON,
                                                      L"special_events_common", kRows};
