#include "pages/calendar/calendar_pages.h"

#include "resources/ids.h"
#include "settings/device.h"

namespace {

constexpr Row kRows[] = {
    rows::NumberText(IDC_CALENDAR_PERIOD, settings::CalendarPeriod),
    rows::Index(IDC_FIRST_YEAR_WEEK, settings::CalendarFirstYearWeek),
    rows::Check(IDC_COLLAPSE_BUT_TODAY, &CDiarySettings::collapseButToday),
    rows::Check(IDC_MARK_CONFLICTING, &CDiarySettings::markConflicting),
    rows::Check(IDC_GROUP_TODAY, &CDiarySettings::todayGroup),
    // Without the sibling plug-in there is no weather to group.
    rows::Check(IDC_GROUP_WEATHER, &CDiarySettings::weatherGroup)
        .GreyedWithout(IsWeatherPluginRegistered),
    rows::NumberText(IDC_GROUP_OFFSET, &CDiarySettings::groupOffset),
    rows::NumberText(IDC_GROUP_SPAN, &CDiarySettings::groupSpan),
};

}  // namespace

// How many days the calendar lists, how it counts weeks, its groups.
constexpr PageDescription kCalendarCommonPage = {IDD_CALENDAR_COMMON, L"calendar_common", kRows};
