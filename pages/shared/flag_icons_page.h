#pragma once

#include <array>

#include "app/sheets/page_description.h"
#include "appearance/skins/item_icons.h"
#include "pages/shared/title_draft.h"
#include "resources/ids.h"

// The rows of a page on which the user chooses the flags that an item shows as icons. They are
// fields of the list's title pattern.
constexpr std::array<Row, 6> FlagRows(DisplayPattern CDiarySettings::*pattern) {
    return {rows::Own(IDC_FLAG_PRIVATE, pattern),      rows::Own(IDC_FLAG_REMINDER, pattern),
            rows::Own(IDC_FLAG_RECURRENCE, pattern),   rows::Own(IDC_FLAG_IMPORTANCE, pattern),
            rows::Own(IDC_FLAG_LOW_PRIORITY, pattern), rows::Own(IDC_FLAG_NOTE, pattern)};
}

// Makes such a page. Its preview shows an item with this icon and the text with this string id.
std::unique_ptr<OptionsPage> MakeFlagIconsPage(const PageDescription& description,
                                               DisplayPattern TitleDraft::*pattern, ItemIcon icon,
                                               unsigned sample);
