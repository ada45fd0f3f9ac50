#include "pages/contacts/contacts_common_page.h"

#include "resources/ids.h"

namespace {

constexpr Row kRows[] = {
    rows::Choice(IDC_CONTACT_GROUPS, settings::ContactsGroupBy, kContactGroups),
    rows::Check(IDC_CONTACT_PHOTOS, settings::ContactsShowPhotoContacts),
    rows::InvertedCheck(IDC_CONTACT_PHOTO_TEXT, &CDiarySettings::contactTextForPhotos)
        .EnabledBy(IDC_CONTACT_PHOTOS),
    rows::Index(IDC_CONTACT_ONE_TAP, &CDiarySettings::contactOneTap),
    rows::Check(IDC_CONTACTS_ALL_CATEGORIES, &CDiarySettings::contactsAllCategories),
};

}  // namespace

ContactsCommonPage::ContactsCommonPage()
    : OptionsPage(IDD_CONTACTS_COMMON, L"contacts_common", {std::begin(kRows), std::end(kRows)}),
      layouts_(IDC_CONTACT_LAYOUT, L"Contacts") {}

void ContactsCommonPage::OnLoad(PageValues&) { layouts_.Load(hwnd()); }

void ContactsCommonPage::OnSave(PageValues&) { layouts_.Save(); }

bool ContactsCommonPage::OnCommand(int id, int code) {
    layouts_.OnCommand(id, code);
    return OptionsPage::OnCommand(id, code);
}
