#pragma once

#include <memory>

#include "app/sheets/page_description.h"
#include "appearance/skins/item_icons.h"
#include "pages/shared/title_draft.h"

// Makes a page on which the user chooses the flags that an item shows as icons: fields of the
// list's title pattern, each with a box of its own as far as its rows have one. Its preview
// shows an item with this icon and the text with this string id.
std::unique_ptr<OptionsPage> MakeFlagIconsPage(const PageDescription& description,
                                               DisplayPattern TitleDraft::*pattern, ItemIcon icon,
                                               unsigned sample);
