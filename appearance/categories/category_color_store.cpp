#include "appearance/categories/category_color_store.h"

#include "appearance/categories/file_name_escape.h"
#include "settings/settings_key.h"

namespace {

CSettingsKey OpenColors() { return OpenProductKey(settings::keys::CategoryColors); }

}  // namespace

CategoryColor ReadCategoryColor(const std::wstring& category) {
    CategoryColor color;
    const std::uint32_t value =
        OpenColors().ReadDword(UnescapeFileName(category).c_str(), kNoColor);
    if (value != kNoColor) color.Unpack(value);
    return color;
}

bool WriteCategoryColor(const std::wstring& category, const CategoryColor& color) {
    const std::uint32_t value = color.IsNone() ? kNoColor : color.Pack();
    return OpenColors().WriteDword(UnescapeFileName(category).c_str(), value);
}
