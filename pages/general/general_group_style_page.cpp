#include "pages/general/general_pages.h"

#include "app/language/language_table.h"
#include "app/sheets/options_page.h"
#include "appearance/drawing/date_formats.h"
#include "appearance/drawing/sample_list.h"

namespace {

constexpr Row kRows[] = {
    rows::Index(IDC_STRIPE_STYLE, &CDiarySettings::stripeStyle),
    rows::Check(IDC_STRIPE_COUNTER, &CDiarySettings::stripeDrawCounter),
    rows::Check(IDC_STRIPE_COLLAPSE_ICON, &CDiarySettings::stripeShowCollapseIcon),
    rows::Check(IDC_STRIPE_HIDE_EMPTY, &CDiarySettings::stripeHideEmpty),
    rows::Index(IDC_ONE_CLICK, &CDiarySettings::oneClick),
    rows::Index(IDC_DOUBLE_CLICK, &CDiarySettings::doubleClick),
    rows::Check(IDC_DOUBLE_TAP_SCROLL, &CDiarySettings::doubleTapOnScrollButton),
};

constexpr Fill kFills[] = {{IDC_STRIPE_PREVIEW, 30}};

// How the headings of groups look, and what taps do.
class GeneralGroupStylePage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    void OnUpdate() override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;
};

void GeneralGroupStylePage::OnUpdate() { InvalidateRect(Item(IDC_STRIPE_PREVIEW), nullptr, TRUE); }

// A day with one item, and one of none below it.
void GeneralGroupStylePage::OnDrawItem(const DRAWITEMSTRUCT& item) {
    FoldingStripe stripe;
    stripe.style = static_cast<StripeStyle>(Selection(IDC_STRIPE_STYLE));
    stripe.drawCounter = IsChecked(IDC_STRIPE_COUNTER);
    stripe.showCollapseIcon = IsChecked(IDC_STRIPE_COLLAPSE_ICON);
    SampleList list(item.hDC, item.rcItem, 3);
    const LanguageTable& texts = GetLanguageTable();
    list.AddGroup(FormatToday(LongDatePicture()), 1, stripe);
    list.AddItem(ItemIcon::kAppointment, texts.LoadString(IDS_SAMPLE_APPOINTMENT));
    if (IsChecked(IDC_STRIPE_HIDE_EMPTY)) return;
    list.AddGroup(texts.LoadString(IDS_SAMPLE_EMPTY_GROUP), 0, stripe);
}

}  // namespace

constexpr PageDescription kGeneralGroupStylePage = {IDD_GENERAL_GROUP_STYLE, L"general_group_style",
                                                    kRows, MakePage<GeneralGroupStylePage>, kFills};
