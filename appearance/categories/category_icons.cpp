#include "appearance/categories/category_icons.h"

#include "appearance/categories/category_icon_files.h"
#include "appearance/categories/icon_files.h"
#include "appearance/skins/skin_art.h"

void CategoryIcons::Load(const std::wstring& folder, const std::vector<std::wstring>& categories) {
    bitmaps_.clear();
    bitmaps_.resize(categories.size());
    for (std::size_t i = 0; i < categories.size(); ++i) {
        if (folder.empty() || categories[i].empty()) continue;
        bitmaps_[i] = LoadIconBitmap(CategoryIconPath(folder, categories[i]));
    }
    loaded_ = true;
}

HBITMAP CategoryIcons::Get(int index) const {
    const auto position = static_cast<std::size_t>(index);
    return position < bitmaps_.size() ? bitmaps_[position].get() : nullptr;
}

void CategoryIcons::Remove(int index) {
    const auto position = static_cast<std::size_t>(index);
    if (position < bitmaps_.size()) bitmaps_[position].Reset();
}

void CategoryIcons::Drop() {
    bitmaps_.clear();
    loaded_ = false;
}

CategoryIcons& GetCategoryIcons() {
    static CategoryIcons* const icons = [] {
        static CategoryIcons instance;
        GetSkinArt().ListenForReset([] { instance.Drop(); });
        return &instance;
    }();
    return *icons;
}
