#include "pages/tasks/tasks_pages.h"

#include "app/sheets/options_page.h"
#include "pages/shared/title_draft.h"
#include "resources/ids.h"

namespace {

constexpr Row kRows[] = {
    rows::Check(IDC_TASK_COMPLETION_MESSAGE, settings::TaskCompletionMessage),
    rows::Check(IDC_TASKS_COMPLETED, settings::TasksShowCompletedTasks),
    rows::Check(IDC_TASKS_ACTIVE, settings::TasksShowActiveTasks),
    rows::Check(IDC_TASKS_ALL_CATEGORIES, &CDiarySettings::tasksAllCategories),
    rows::Own(IDC_TASK_SUBJECT, &CDiarySettings::taskPattern),
};

// Which tasks the tasks tab lists, and how their subjects are shown.
class TasksCommonPage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    void OnLoad(PageValues& values) override;
    bool OnCommand(int id, int code) override;
    void OnSave(PageValues& values) override;

  private:
    SheetTitles& titles_ = SheetTitles::Innermost();
};

// The way the subject is shown is the digit of the tasks' title pattern.
void TasksCommonPage::OnLoad(PageValues&) {
    FillChoices(*this, IDC_TASK_SUBJECT, kSubjectModes, titles_.Draft().task.mode);
}

bool TasksCommonPage::OnCommand(int id, int code) {
    std::int32_t& mode = titles_.Draft().task.mode;
    if (id == IDC_TASK_SUBJECT && code == CBN_SELCHANGE) {
        mode = ChosenValue(*this, IDC_TASK_SUBJECT, mode);
    }
    return OptionsPage::OnCommand(id, code);
}

void TasksCommonPage::OnSave(PageValues&) {
    titles_.Draft().task.mode = ChosenValue(*this, IDC_TASK_SUBJECT, 0);
    titles_.Store();
}

}  // namespace

constexpr PageDescription kTasksCommonPage = {IDD_TASKS_COMMON, L"tasks_common", kRows,
                                              MakePage<TasksCommonPage>};
