#include "pages/general/general_pages.h"

#include <algorithm>

#include "app/language/language_table.h"
#include "app/sheets/options_page.h"
#include "appearance/drawing/date_formats.h"
#include "controls/explanation.h"

namespace {

constexpr Row kRows[] = {
    rows::Check(IDC_LONG_REGIONAL, settings::LongDateRegional),
    rows::Own(IDC_LONG_FORMAT, settings::LongDateCustomFormat),
    rows::Check(IDC_LONG_NOT_YEAR, settings::LongDateNotYear),
    rows::Check(IDC_LONG_SHORT_YEAR, settings::LongDateShortYear).KeptWhileOn(IDC_LONG_NOT_YEAR),
    rows::Check(IDC_LONG_SHORT_MONTH, settings::LongDateShortMonth),
    rows::Check(IDC_LONG_SHORT_DAY, settings::LongDateShortDay),
};

// How the headings of days look.
class GeneralLongDatePage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;

  private:
    int customFormat_ = 0;      // remembered while the list shows the device's own format
    bool listsCustom_ = false;  // whether the list shows the custom formats
};

void GeneralLongDatePage::OnLoad(PageValues& values) {
    const auto stored = static_cast<std::int32_t>(values.Read(settings::LongDateCustomFormat));
    customFormat_ = std::max(stored, 0);
    ShowExplanation(Item(IDC_LONG_EXPLANATION),
                    GetLanguageTable().LoadString(IDS_LONG_DATE_EXPLANATION));
}

// The list previews what the boxes say, so that each change fills it anew.
void GeneralLongDatePage::OnUpdate() {
    if (listsCustom_) customFormat_ = Selection(IDC_LONG_FORMAT);
    const DatePictureFlags flags = {!IsChecked(IDC_LONG_NOT_YEAR), IsChecked(IDC_LONG_SHORT_YEAR),
                                    IsChecked(IDC_LONG_SHORT_MONTH), IsChecked(IDC_LONG_SHORT_DAY)};
    const auto add = [&](const std::wstring& picture) {
        AddItem(IDC_LONG_FORMAT, FormatToday(BuildDatePicture(picture, flags)), 0);
    };
    SendDlgItemMessageW(hwnd(), IDC_LONG_FORMAT, CB_RESETCONTENT, 0, 0);
    listsCustom_ = !IsChecked(IDC_LONG_REGIONAL);
    if (listsCustom_) {
        for (int format = 0; format < kCustomLongFormats; ++format) add(CustomLongPicture(format));
    } else {
        add(RegionalLongPicture());
    }
    SetSelection(IDC_LONG_FORMAT, listsCustom_ ? customFormat_ : 0);
    Enable(IDC_LONG_FORMAT, listsCustom_);
}

void GeneralLongDatePage::OnSave(PageValues& values) {
    if (!listsCustom_) return;
    const int format = Selection(IDC_LONG_FORMAT);
    if (format < 0) return;  // A stored format that the list does not have stays.
    values.Write(settings::LongDateCustomFormat, static_cast<std::uint32_t>(format));
}

}  // namespace

constexpr PageDescription kGeneralLongDatePage = {IDD_GENERAL_LONG_DATE, L"general_long_date",
                                                  kRows, MakePage<GeneralLongDatePage>};
