#include "pages/general_group_style_page.h"

#include "app/language_table.h"
#include "appearance/folding_stripe.h"
#include "appearance/fonts.h"
#include "appearance/scale.h"
#include "appearance/skin_art.h"
#include "controls/owned_handle.h"

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
constexpr int kIconIndent = 3;
constexpr int kTextIndent = 22;

}  // namespace

GeneralGroupStylePage::GeneralGroupStylePage()
    : OptionsPage(IDD_GENERAL_GROUP_STYLE, L"general_group_style",
                  {std::begin(kRows), std::end(kRows)}) {}

void GeneralGroupStylePage::OnUpdate() { InvalidateRect(Item(IDC_STRIPE_PREVIEW), nullptr, TRUE); }

// A group of one item, and one of none below it.
void GeneralGroupStylePage::OnDrawItem(const DRAWITEMSTRUCT& item) {
    FoldingStripe stripe;
    stripe.style = static_cast<StripeStyle>(Selection(IDC_STRIPE_STYLE));
    stripe.drawCounter = IsChecked(IDC_STRIPE_COUNTER);
    stripe.showCollapseIcon = IsChecked(IDC_STRIPE_COLLAPSE_ICON);
    const int height = (item.rcItem.bottom - item.rcItem.top) / 3;
    RECT row = item.rcItem;
    row.bottom = row.top + height;
    stripe.Draw(item.hDC, row, GetLanguageTable().LoadString(IDS_SAMPLE_GROUP), 1);

    OffsetRect(&row, 0, height);
    SkinArt& art = GetSkinArt();
    if (art.LoadIcons() != SkinArt::kFailed) {
        const SIZE icon = art.Icons()->PieceSize(static_cast<int>(ItemIcon::kAppointment));
        art.DrawItemIcon(item.hDC, ItemIcon::kAppointment, row.left + ScaleX(kIconIndent),
                         (row.top + row.bottom - icon.cy) / 2);
    }
    RECT place = row;
    place.left += ScaleX(kTextIndent);
    const std::wstring text = GetLanguageTable().LoadString(IDS_SAMPLE_APPOINTMENT);
    {
        const SelectedObject font(item.hDC, ListFont(FontStyle::kNormal));
        SetTextColor(item.hDC, GetSysColor(COLOR_WINDOWTEXT));
        DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &place,
                  DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    }
    if (IsChecked(IDC_STRIPE_HIDE_EMPTY)) return;
    OffsetRect(&row, 0, height);
    stripe.Draw(item.hDC, row, GetLanguageTable().LoadString(IDS_SAMPLE_EMPTY_GROUP), 0);
}
