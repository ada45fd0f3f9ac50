#include "app/sheets/options_page.h"
#include "pages/shared/flag_icons_page.h"
#include "pages/tasks/tasks_pages.h"
#include "resources/ids.h"

namespace {

constexpr auto kPattern = &CDiarySettings::taskPattern;
constexpr Row kRows[] = {
    rows::Own(IDC_FLAG_PRIVATE, kPattern),      rows::Own(IDC_FLAG_REMINDER, kPattern),
    rows::Own(IDC_FLAG_RECURRENCE, kPattern),   rows::Own(IDC_FLAG_IMPORTANCE, kPattern),
    rows::Own(IDC_FLAG_LOW_PRIORITY, kPattern), rows::Own(IDC_FLAG_NOTE, kPattern),
};

constexpr Fill kFills[] = {{IDC_TITLE_PREVIEW, 14}};

std::unique_ptr<OptionsPage> Make(const PageDescription& description) {
    return MakeFlagIconsPage(description, &TitleDraft::task, ItemIcon::kTaskOpen, IDS_SAMPLE_TASK);
}

}  // namespace

constexpr PageDescription kTasksIconsPage = {IDD_TASKS_ICONS, L"tasks_icons", kRows, Make, kFills};
