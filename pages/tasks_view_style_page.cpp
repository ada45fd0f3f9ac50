#include "pages/tasks_view_style_page.h"

#include "app/language_table.h"
#include "appearance/sample_list.h"
#include "pages/title_draft.h"
#include "resources/ids.h"

namespace {

constexpr Row kRows[] = {
    rows::Check(IDC_TASK_CHECKBOX, &CDiarySettings::taskShowCheckbox),
    rows::Check(IDC_TASK_INDENT, &CDiarySettings::taskIndent),
};

}  // namespace

TasksViewStylePage::TasksViewStylePage()
    : OptionsPage(IDD_TASKS_VIEW_STYLE, L"tasks_view_style", {std::begin(kRows), std::end(kRows)}) {
}

void TasksViewStylePage::OnLoad(PageValues&) { editor_.Attach(hwnd()); }

// Another page of the sheet may have changed the pattern meanwhile.
bool TasksViewStylePage::OnSetActive() {
    editor_.Show(GetTitleDraft().task);
    OnUpdate();
    return true;
}

bool TasksViewStylePage::OnCommand(int id, int code) {
    editor_.OnCommand(id, code);
    return OptionsPage::OnCommand(id, code);
}

std::optional<INT_PTR> TasksViewStylePage::OnControlNotification(const NMHDR& header) {
    if (editor_.OnNotify(header)) OnUpdate();
    return std::nullopt;
}

void TasksViewStylePage::OnUpdate() { InvalidateRect(Item(IDC_TITLE_PREVIEW), nullptr, TRUE); }

void TasksViewStylePage::OnSave(PageValues&) { StoreTitleDraft(); }

void TasksViewStylePage::OnDrawItem(const DRAWITEMSTRUCT& item) {
    SampleList list(item.hDC, item.rcItem, 3);
    const bool boxes = IsChecked(IDC_TASK_CHECKBOX);
    const ItemIcon open = boxes ? ItemIcon::kTaskOpen : ItemIcon::kTaskOverdue;
    const ItemIcon done = boxes ? ItemIcon::kTaskDone : ItemIcon::kTaskOverdue;
    const DisplayPattern& pattern = GetTitleDraft().task;
    list.AddGroup(GetLanguageTable().LoadString(IDS_SAMPLE_GROUP), 2);
    list.SetIndented(IsChecked(IDC_TASK_INDENT));
    TitleLook completed;
    completed.done = true;
    list.AddTitle(open, pattern, GetLanguageTable().LoadString(IDS_SAMPLE_TASK));
    list.AddTitle(done, pattern, GetLanguageTable().LoadString(IDS_SAMPLE_APPOINTMENT), completed);
}
