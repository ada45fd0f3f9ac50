#include "app/sheets/options_page.h"
#include "pages/contacts/contacts_pages.h"
#include "pages/shared/flag_icons_page.h"
#include "resources/ids.h"

namespace {

constexpr auto kRows = FlagRows(&CDiarySettings::contactPattern);

std::unique_ptr<OptionsPage> Make(const PageDescription& description) {
    return MakeFlagIconsPage(description, &TitleDraft::contact, ItemIcon::kContact,
                             IDS_SAMPLE_CONTACT);
}

}  // namespace

constexpr PageDescription kContactsIconsPage = {IDD_CONTACTS_ICONS, L"contacts_icons", kRows, Make};
