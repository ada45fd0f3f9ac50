#include "pages/tasks/tasks_pages.h"

#include "app/language/language_table.h"
#include "appearance/drawing/sample_list.h"
#include "pages/shared/title_page.h"
#include "resources/ids.h"

namespace {

constexpr Row kRows[] = {
    rows::Check(IDC_TASK_CHECKBOX, &CDiarySettings::taskShowCheckbox),
    rows::Check(IDC_TASK_INDENT, &CDiarySettings::taskIndent),
    rows::Own(IDC_TITLE_FIELDS, &CDiarySettings::taskPattern),
    rows::Own(IDC_TITLE_UP),
    rows::Own(IDC_TITLE_DOWN),
};

constexpr Fill kFills[] = {{IDC_TITLE_FIELDS, 30, 88}, {IDC_TITLE_PREVIEW, 20}};

// What stands in the lines of tasks.
class TasksViewStylePage : public TitlePage {
  public:
    using TitlePage::TitlePage;

  protected:
    DisplayPattern& Edited() const override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;
};

DisplayPattern& TasksViewStylePage::Edited() const { return Draft().task; }

void TasksViewStylePage::OnDrawItem(const DRAWITEMSTRUCT& item) {
    SampleList list(item.hDC, item.rcItem, 3);
    const bool boxes = IsChecked(IDC_TASK_CHECKBOX);
    const auto box = [boxes](ItemIcon icon) { return boxes ? std::optional(icon) : std::nullopt; };
    const DisplayPattern& pattern = Edited();
    list.AddGroup(GetLanguageTable().LoadString(IDS_SAMPLE_GROUP), 2);
    list.SetIndented(IsChecked(IDC_TASK_INDENT));
    TitleLook completed;
    completed.done = true;
    list.AddTitle(box(ItemIcon::kTaskOpen), pattern,
                  GetLanguageTable().LoadString(IDS_SAMPLE_TASK));
    list.AddTitle(box(ItemIcon::kTaskDone), pattern,
                  GetLanguageTable().LoadString(IDS_SAMPLE_APPOINTMENT), completed);
}

}  // namespace

constexpr PageDescription kTasksViewStylePage = {IDD_TASKS_VIEW_STYLE, L"tasks_view_style", kRows,
                                                 MakePage<TasksViewStylePage>, kFills};
