#include "pages/general/general_pages.h"

#include "app/language/language_table.h"
#include "app/sheets/options_page.h"
#include "appearance/drawing/date_formats.h"
#include "controls/explanation.h"

namespace {

constexpr Row kRows[] = {
    rows::Check(IDC_SHORT_NOT_YEAR, settings::ShortDateNotYear),
    rows::Check(IDC_SHORT_SHORT_YEAR, settings::ShortDateShortYear).KeptWhileOn(IDC_SHORT_NOT_YEAR),
};

// How dates inside lines look.
class GeneralShortDatePage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    void OnLoad(PageValues& values) override;
    void OnUpdate() override;
};

void GeneralShortDatePage::OnLoad(PageValues&) {
    ShowExplanation(Item(IDC_SHORT_EXPLANATION),
                    GetLanguageTable().LoadString(IDS_SHORT_DATE_EXPLANATION));
}

void GeneralShortDatePage::OnUpdate() {
    const std::wstring picture =
        ShortDatePicture(!IsChecked(IDC_SHORT_NOT_YEAR), IsChecked(IDC_SHORT_SHORT_YEAR));
    SetDlgItemTextW(hwnd(), IDC_SHORT_SAMPLE, FormatToday(picture).c_str());
}

}  // namespace

constexpr PageDescription kGeneralShortDatePage = {IDD_GENERAL_SHORT_DATE, L"general_short_date",
                                                   kRows, MakePage<GeneralShortDatePage>};
