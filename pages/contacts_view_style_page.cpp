#include "pages/contacts_view_style_page.h"

#include "app/language_table.h"
#include "appearance/folding_stripe.h"
#include "appearance/fonts.h"
#include "appearance/scale.h"
#include "appearance/skin_art.h"
#include "resources/ids.h"

namespace {

constexpr Row kRows[] = {
    rows::Index(IDC_CONTACT_DISPLAY, &CDiarySettings::contactDisplay),
    rows::Check(IDC_CONTACT_INDENT, &CDiarySettings::contactIndent),
    rows::Check(IDC_CONTACT_SEARCH_COMPANY, &CDiarySettings::contactSearchCompany),
    rows::Check(IDC_CONTACT_COMPANY_NO_CASE, &CDiarySettings::contactGroupCompanyNoCase),
    rows::Index(IDC_CONTACT_ADDRESS, &CDiarySettings::contactAddressMode),
};

// Design lengths of the preview.
constexpr int kIndent = 14;
constexpr int kMargin = 3;
constexpr int kTextLeft = 22;  // behind the icon
constexpr int kNameGap = 8;    // between the two names
constexpr int kLines = 5;

// The entries of the address list; the number is stored.
enum class Address { kWhole = 0, kTown = 1 };

std::vector<PreviewedContact> SampleContacts() {
    const auto text = [](unsigned id) { return GetLanguageTable().LoadString(id); };
    ContactRecord anna;
    anna.title = text(IDS_SAMPLE_TITLE);
    anna.firstName = text(IDS_SAMPLE_FIRST_NAME);
    anna.middleName = text(IDS_SAMPLE_MIDDLE_NAME);
    anna.lastName = text(IDS_SAMPLE_LAST_NAME);
    anna.nickname = text(IDS_SAMPLE_NICKNAME);
    anna.fileAs = text(IDS_SAMPLE_FILE_AS);
    ContactRecord peter;
    peter.firstName = text(IDS_SAMPLE_FIRST_NAME_2);
    peter.lastName = text(IDS_SAMPLE_LAST_NAME_2);
    peter.suffix = text(IDS_SAMPLE_SUFFIX_2);
    peter.fileAs = text(IDS_SAMPLE_FILE_AS_2);
    ContactRecord bakery;
    bakery.company = text(IDS_SAMPLE_COMPANY);
    return {PreviewedContact(anna), PreviewedContact(peter), PreviewedContact(bakery)};
}

// Returns where the text ends.
int DrawLine(HDC dc, const RECT& row, const std::wstring& text, int color) {
    RECT drawn = row;
    SetTextColor(dc, GetSysColor(color));
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &drawn,
              DT_SINGLELINE | DT_NOPREFIX | DT_CALCRECT);
    RECT place = row;
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &place,
              DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    return drawn.right;
}

void DrawIcon(HDC dc, const RECT& row, ItemIcon icon) {
    SkinArt& art = GetSkinArt();
    if (art.LoadIcons() == SkinArt::kFailed) return;
    const SIZE size = art.Icons()->PieceSize(static_cast<int>(icon));
    art.DrawItemIcon(dc, icon, row.left + ScaleX(kMargin), (row.top + row.bottom - size.cy) / 2);
}

}  // namespace

ContactsViewStylePage::ContactsViewStylePage()
    : OptionsPage(IDD_CONTACTS_VIEW_STYLE, L"contacts_view_style",
                  {std::begin(kRows), std::end(kRows)}) {}

void ContactsViewStylePage::OnLoad(PageValues&) { samples_ = SampleContacts(); }

void ContactsViewStylePage::OnUpdate() {
    for (PreviewedContact& sample : samples_) sample.Name(Selection(IDC_CONTACT_DISPLAY), true);
    InvalidateRect(Item(IDC_CONTACT_PREVIEW), nullptr, TRUE);
}

// A group of contacts, the first with its address. Behind a name stands the other one, in grey.
void ContactsViewStylePage::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const CDiarySettings& shared = GetDiarySettings();
    RECT row = item.rcItem;
    const int height = (row.bottom - row.top) / kLines;
    row.bottom = row.top + height;
    FoldingStripe stripe;
    stripe.style = static_cast<StripeStyle>(shared.stripeStyle);
    stripe.drawCounter = shared.stripeDrawCounter != 0;
    stripe.showCollapseIcon = shared.stripeShowCollapseIcon != 0;
    stripe.Draw(item.hDC, row, GetLanguageTable().LoadString(IDS_SAMPLE_CONTACTS),
                static_cast<int>(samples_.size()));
    if (IsChecked(IDC_CONTACT_INDENT)) row.left += ScaleX(kIndent);

    const SelectedObject font(item.hDC, ListFont(FontStyle::kNormal));
    const int mode = Selection(IDC_CONTACT_DISPLAY);
    const auto address = static_cast<Address>(Selection(IDC_CONTACT_ADDRESS));
    const bool hasAddress = address == Address::kWhole || address == Address::kTown;
    for (std::size_t i = 0; i < samples_.size(); ++i) {
        OffsetRect(&row, 0, height);
        const bool isCompany = i + 1 == samples_.size();
        DrawIcon(item.hDC, row, isCompany ? ItemIcon::kCompany : ItemIcon::kContact);
        RECT place = row;
        place.left += ScaleX(kTextLeft);
        place.right -= ScaleX(kMargin);
        const std::wstring& name = samples_[i].Name(mode);
        const std::wstring& alternative = samples_[i].AlternativeName(mode);
        RECT other = place;
        other.left = DrawLine(item.hDC, place, name, COLOR_WINDOWTEXT) + ScaleX(kNameGap);
        if (alternative != name) DrawLine(item.hDC, other, alternative, COLOR_GRAYTEXT);
        if (i == 0 && hasAddress) {
            OffsetRect(&row, 0, height);
            OffsetRect(&place, 0, height);
            const bool whole = address == Address::kWhole;
            const unsigned text = whole ? IDS_SAMPLE_ADDRESS : IDS_SAMPLE_TOWN;
            DrawLine(item.hDC, place, GetLanguageTable().LoadString(text), COLOR_GRAYTEXT);
        }
    }
}
