#include "pages/special_events/special_events_common_page.h"

#include "resources/ids.h"
#include "settings/device.h"

SpecialEventsCommonPage::SpecialEventsCommonPage()
    : SpecialEventsCommonPage(IsFinanceProgramPresent()) {}

SpecialEventsCommonPage::SpecialEventsCommonPage(bool financeProgramPresent)
    : OptionsPage(
          IDD_SPECIAL_EVENTS_COMMON, L"special_events_common",
          {
              rows::Check(IDC_SPECIAL_BIRTHDAYS, settings::SpecialShowBirthdays),
              rows::Check(IDC_SPECIAL_TRANSACTIONS,
                          settings::SpecialShowTransactions(financeProgramPresent)),
              rows::Choice(IDC_SPECIAL_PERIOD, &CDiarySettings::specialPeriod, kSpecialPeriods),
          }),
      financeProgramPresent_(financeProgramPresent) {}

void SpecialEventsCommonPage::OnLoad(PageValues&) {
    Enable(IDC_SPECIAL_TRANSACTIONS, financeProgramPresent_);
}
