#include "app/reload_after_import.h"

#include "appearance/categories/category_list.h"
#include "appearance/drawing/fonts.h"
#include "appearance/drawing/theme_colors.h"
#include "appearance/skins/skin_art.h"
#include "settings/diary_settings.h"
#include "settings/keyboard_layouts.h"

void ReloadAfterImport() {
    ReloadDiarySettings();
    AddStoredKeyboardLayouts();
    ResetListFonts();
    GetThemeColors().Refresh();
    GetSkinArt().Reset();
    CategoryList::Reload();
}
