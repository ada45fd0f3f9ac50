#include "pages/calendar/calendar_common_page.h"

#include "resources/ids.h"
#include "settings/device.h"

namespace {

constexpr Row kRows[] = {
    rows::NumberText(IDC_CALENDAR_PERIOD, settings::CalendarPeriod),
    rows::Index(IDC_FIRST_YEAR_WEEK, settings::CalendarFirstYearWeek),
    rows::Check(IDC_COLLAPSE_BUT_TODAY, &CDiarySettings::collapseButToday),
    rows::Check(IDC_MARK_CONFLICTING, &CDiarySettings::markConflicting),
    rows::Check(IDC_GROUP_TODAY, &CDiarySettings::todayGroup),
    rows::Check(IDC_GROUP_WEATHER, &CDiarySettings::weatherGroup),
    rows::NumberText(IDC_GROUP_OFFSET, &CDiarySettings::groupOffset),
    rows::NumberText(IDC_GROUP_SPAN, &CDiarySettings::groupSpan),
};

}  // namespace

CalendarCommonPage::CalendarCommonPage()
    : OptionsPage(IDD_CALENDAR_COMMON, L"calendar_common", {std::begin(kRows), std::end(kRows)}) {}

// Without the sibling plug-in there is no weather to group.
void CalendarCommonPage::OnLoad(PageValues&) {
    Enable(IDC_GROUP_WEATHER, IsWeatherPluginRegistered());
}
