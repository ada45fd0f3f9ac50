#include "pages/general/general_pages.h"

#include "app/sheets/options_page.h"
#include "resources/ids.h"

namespace {

constexpr Row kRows[] = {
    rows::Own(IDC_TIMEOUT_ON),
    rows::Own(IDC_TIMEOUT_TIME, settings::TimeoutTime).EnabledBy(IDC_TIMEOUT_ON),
    rows::NoValue(IDC_TIMEOUT_VIEW_LABEL).EnabledBy(IDC_TIMEOUT_ON),
    rows::Choice(IDC_TIMEOUT_VIEW, settings::TimeoutView, kTimeoutViews).EnabledBy(IDC_TIMEOUT_ON),
    rows::Choice(IDC_KEYBOARD_SUPPORT, settings::AdvancedKeyboardSupport, kKeyboardSupport),
    rows::InvertedCheck(IDC_PHONE_BACKSPACE, &CDiarySettings::keypadNoBackspace),
};

// The view the plug-in returns to when it has been left alone, and what the keys do.
class GeneralAutoReturnPage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
};

// The check box and the time are one value: a time of 0 means never.
void GeneralAutoReturnPage::OnLoad(PageValues& values) {
    const auto seconds = static_cast<std::int32_t>(values.Read(settings::TimeoutTime));
    SetChecked(IDC_TIMEOUT_ON, seconds != 0);
    FillChoices(*this, IDC_TIMEOUT_TIME, kTimeouts, seconds);
}

void GeneralAutoReturnPage::OnSave(PageValues& values) {
    const bool on = IsChecked(IDC_TIMEOUT_ON);
    values.Write(settings::TimeoutTime, on ? ChosenValue(*this, IDC_TIMEOUT_TIME, 0) : 0);
}

}  // namespace

constexpr PageDescription kGeneralAutoReturnPage = {IDD_GENERAL_AUTO_RETURN, L"general_auto_return",
                                                    kRows, MakePage<GeneralAutoReturnPage>};
