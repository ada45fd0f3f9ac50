#include "pages/contacts/contacts_pages.h"

#include "app/sheets/options_page.h"
#include "pages/shared/layout_drop_down.h"
#include "resources/ids.h"

namespace {

constexpr Row kRows[] = {
    rows::Choice(IDC_CONTACT_GROUPS, settings::ContactsGroupBy, kContactGroups),
    rows::Check(IDC_CONTACT_PHOTOS, settings::ContactsShowPhotoContacts),
    rows::InvertedCheck(IDC_CONTACT_PHOTO_TEXT, &CDiarySettings::contactTextForPhotos)
        .EnabledBy(IDC_CONTACT_PHOTOS),
    rows::Index(IDC_CONTACT_ONE_TAP, &CDiarySettings::contactOneTap),
    rows::Check(IDC_CONTACTS_ALL_CATEGORIES, &CDiarySettings::contactsAllCategories),
    rows::Own(IDC_CONTACT_LAYOUT, settings::TabLayouts),
    rows::Own(IDC_CONTACT_LAYOUT, settings::TabLayoutActive),
    rows::Own(IDC_CONTACT_LAYOUT, &CDiarySettings::keypadNoLanguageSwitch),
};

// How the contacts tab groups its contacts, which it shows, and how they are reached.
class ContactsCommonPage : public OptionsPage {
  public:
    using OptionsPage::OptionsPage;

  protected:
    bool OnSetActive() override;
    void OnTranslated() override;
    void OnSave(PageValues& values) override;
    bool OnCommand(int id, int code) override;

  private:
    LayoutDropDown layouts_{IDC_CONTACT_LAYOUT, L"Contacts"};
};

// Other programs may have changed the settings while another page was in front.
bool ContactsCommonPage::OnSetActive() {
    RefreshRows();
    return true;
}

void ContactsCommonPage::OnTranslated() { layouts_.Load(hwnd()); }

void ContactsCommonPage::OnSave(PageValues&) { layouts_.Save(); }

bool ContactsCommonPage::OnCommand(int id, int code) {
    layouts_.OnCommand(id, code);
    return OptionsPage::OnCommand(id, code);
}

}  // namespace

constexpr PageDescription kContactsCommonPage = {IDD_CONTACTS_COMMON, L"contacts_common", kRows,
                                                 MakePage<ContactsCommonPage>};
