#include "pages/general/general_short_date_page.h"

#include "app/language/language_table.h"
#include "appearance/drawing/date_formats.h"

namespace {

constexpr Row kRows[] = {
    rows::Check(IDC_SHORT_NOT_YEAR, settings::ShortDateNotYear),
    rows::Check(IDC_SHORT_SHORT_YEAR, settings::ShortDateShortYear).KeptWhileOn(IDC_SHORT_NOT_YEAR),
};

}  // namespace

GeneralShortDatePage::GeneralShortDatePage()
    : OptionsPage(IDD_GENERAL_SHORT_DATE, L"general_short_date",
                  {std::begin(kRows), std::end(kRows)}) {}

void GeneralShortDatePage::OnLoad(PageValues&) {
    SetDlgItemTextW(hwnd(), IDC_SHORT_EXPLANATION,
                    GetLanguageTable().LoadString(IDS_SHORT_DATE_EXPLANATION).c_str());
}

void GeneralShortDatePage::OnUpdate() {
    const std::wstring picture =
        ShortDatePicture(!IsChecked(IDC_SHORT_NOT_YEAR), IsChecked(IDC_SHORT_SHORT_YEAR));
    SetDlgItemTextW(hwnd(), IDC_SHORT_SAMPLE, FormatToday(picture).c_str());
}
