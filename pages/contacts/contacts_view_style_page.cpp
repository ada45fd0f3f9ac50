#include "pages/contacts/contacts_pages.h"

#include <vector>

#include "app/language/language_table.h"
#include "appearance/drawing/sample_list.h"
#include "pages/shared/title_page.h"
#include "resources/ids.h"
#include "settings/contact_name.h"

namespace {

constexpr Row kRows[] = {
    rows::Index(IDC_CONTACT_DISPLAY, &CDiarySettings::contactDisplay),
    rows::Check(IDC_CONTACT_INDENT, &CDiarySettings::contactIndent),
    rows::Check(IDC_CONTACT_SEARCH_COMPANY, &CDiarySettings::contactSearchCompany),
    rows::Check(IDC_CONTACT_COMPANY_NO_CASE, &CDiarySettings::contactGroupCompanyNoCase),
    rows::Index(IDC_CONTACT_ADDRESS, &CDiarySettings::contactAddressMode),
    rows::Own(IDC_TITLE_FIELDS, &CDiarySettings::contactPattern),
    rows::Own(IDC_TITLE_UP),
    rows::Own(IDC_TITLE_DOWN),
};

constexpr Fill kFills[] = {{IDC_TITLE_FIELDS, 50}, {IDC_TITLE_PREVIEW, 54}};

constexpr int kLines = 5;  // of the preview

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

// How contacts are named and shown.
class ContactsViewStylePage : public TitlePage {
  public:
    using TitlePage::TitlePage;

  protected:
    DisplayPattern& Edited() const override;
    std::wstring_view OfferedFields() const override { return kContactFields; }
    void OnLoad(PageValues& values) override;
    void OnUpdate() override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    std::vector<PreviewedContact> samples_;
};

DisplayPattern& ContactsViewStylePage::Edited() const { return Draft().contact; }

void ContactsViewStylePage::OnLoad(PageValues& values) {
    samples_ = SampleContacts();
    TitlePage::OnLoad(values);
}

void ContactsViewStylePage::OnUpdate() {
    for (PreviewedContact& sample : samples_) sample.Name(Selection(IDC_CONTACT_DISPLAY), true);
    TitlePage::OnUpdate();
}

// A group of contacts, the first with its address. Beside a name stands the other one, in grey.
void ContactsViewStylePage::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const CDiarySettings& shared = GetDiarySettings();
    FoldingStripe stripe;
    stripe.style = static_cast<StripeStyle>(shared.stripeStyle);
    stripe.drawCounter = shared.stripeDrawCounter != 0;
    stripe.showCollapseIcon = shared.stripeShowCollapseIcon != 0;
    SampleList list(item.hDC, item.rcItem, kLines);
    list.AddGroup(GetLanguageTable().LoadString(IDS_SAMPLE_CONTACTS),
                  static_cast<int>(samples_.size()), stripe);
    list.SetIndented(IsChecked(IDC_CONTACT_INDENT));

    const int mode = Selection(IDC_CONTACT_DISPLAY);
    for (std::size_t i = 0; i < samples_.size(); ++i) {
        const bool isCompany = i + 1 == samples_.size();
        const std::wstring& name = samples_[i].Name(mode);
        const std::wstring& other = samples_[i].AlternativeName(mode);
        TitleLook look;
        if (other != name) look.details = other;
        list.AddTitle(isCompany ? ItemIcon::kCompany : ItemIcon::kContact, Edited(), name, look);
        if (i > 0) continue;
        switch (static_cast<Address>(Selection(IDC_CONTACT_ADDRESS))) {
            case Address::kWhole:
                list.AddDetail(GetLanguageTable().LoadString(IDS_SAMPLE_ADDRESS));
                break;
            case Address::kTown:
                list.AddDetail(GetLanguageTable().LoadString(IDS_SAMPLE_TOWN));
                break;
        }
    }
}

}  // namespace

constexpr PageDescription kContactsViewStylePage = {IDD_CONTACTS_VIEW_STYLE, L"contacts_view_style",
                                                    kRows, MakePage<ContactsViewStylePage>, kFills};
