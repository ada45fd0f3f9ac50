#include "pages/tasks_common_page.h"

#include "resources/ids.h"

namespace {

constexpr Row kRows[] = {
    rows::Check(IDC_TASK_COMPLETION_MESSAGE, settings::TaskCompletionMessage),
    rows::Check(IDC_TASKS_COMPLETED, settings::TasksShowCompletedTasks),
    rows::Check(IDC_TASKS_ACTIVE, settings::TasksShowActiveTasks),
    rows::Check(IDC_TASKS_ALL_CATEGORIES, &CDiarySettings::tasksAllCategories),
};

}  // namespace

TasksCommonPage::TasksCommonPage()
    : OptionsPage(IDD_TASKS_COMMON, L"tasks_common", {std::begin(kRows), std::end(kRows)}) {}

// The way the subject is shown is the digit of the tasks' title pattern.
void TasksCommonPage::OnLoad(PageValues&) {
    FillChoices(*this, IDC_TASK_SUBJECT, kSubjectModes, GetDiarySettings().taskPattern.mode);
}

void TasksCommonPage::OnSave(PageValues&) {
    std::int32_t& mode = GetDiarySettings().taskPattern.mode;
    mode = ChosenValue(*this, IDC_TASK_SUBJECT, mode);
}
