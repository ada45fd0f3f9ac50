#include "app/sheets/options_page.h"
#include "pages/contacts/contacts_pages.h"
#include "pages/shared/flag_icons_page.h"
#include "resources/ids.h"

namespace {

// A contact is neither due nor urgent.
constexpr Row kRows[] = {
    rows::Own(IDC_FLAG_PRIVATE, &CDiarySettings::contactPattern),
    rows::Own(IDC_FLAG_NOTE, &CDiarySettings::contactPattern),
};

constexpr Fill kFills[] = {{IDC_TITLE_PREVIEW, 14}};

std::unique_ptr<OptionsPage> Make(const PageDescription& description) {
    return MakeFlagIconsPage(description, &TitleDraft::contact, ItemIcon::kContact,
                             IDS_SAMPLE_CONTACT);
}

}  // namespace

constexpr PageDescription kContactsIconsPage = {IDD_CONTACTS_ICONS, L"contacts_icons", kRows, Make,
                                                kFills};
