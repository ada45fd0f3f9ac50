#include "pages/calendar/calendar_pages.h"

#include "resources/ids.h"

namespace {

// Clearing the first box greys the rest and empties the boxes, but keeps their values.
constexpr Row kRows[] = {
    rows::Check(IDC_SHOW_TASKS, settings::CalendarShowTasks),
    rows::Check(IDC_SHOW_UNDATED_TASKS, settings::CalendarShowUndatedTasks)
        .KeptWhileOff(IDC_SHOW_TASKS),
    rows::Check(IDC_SHOW_OVERDUE_TASKS, settings::CalendarShowOverdueTasks)
        .KeptWhileOff(IDC_SHOW_TASKS),
    rows::Check(IDC_SHOW_COMPLETED_TASKS, settings::CalendarShowCompletedTasks)
        .KeptWhileOff(IDC_SHOW_TASKS),
    rows::NoValue(IDC_TASK_PLACEMENT_LABEL).EnabledBy(IDC_SHOW_TASKS),
    rows::Choice(IDC_TASK_PLACEMENT, &CDiarySettings::taskPlacement, kTaskPlacements)
        .EnabledBy(IDC_SHOW_TASKS),
};

}  // namespace

// What the calendar shows of the tasks.
constexpr PageDescription kCalendarTasksPage = {IDD_CALENDAR_TASKS, L"calendar_tasks", kRows};
