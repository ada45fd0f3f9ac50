#include "appearance/categories/icon_library.h"

#include <algorithm>
#include <utility>

#include "app/language/language_table.h"
#include "appearance/categories/icon_digest.h"
#include "appearance/categories/icon_files.h"
#include "appearance/categories/icon_size.h"
#include "base/mapped_file.h"
#include "base/names.h"
#include "base/scale.h"
#include "settings/install_path.h"

IconLibrary::IconLibrary() {
    catalogue_.Read(MappedFile(GetInstallPath(L"icons.dat")).bytes());
    Clear();
}

void IconLibrary::LoadFolder(const std::wstring& folder) {
    std::wstring name = folder;
    while (name.ends_with(L'\\')) name.pop_back();
    const auto isSame = [&](const std::wstring& other) { return IsSameName(other, name); };
    if (std::any_of(loadedFolders_.begin(), loadedFolders_.end(), isSame)) return;

    const IconDigester digester;
    for (const std::wstring& file : FindBitmapFiles(folder)) {
        Icon icon;
        icon.path = JoinPath(folder, file);
        std::optional<IconDigest> digest;
        {
            const MappedFile mapped(icon.path);
            const std::optional<BitmapSize> size = ReadBitmapSize(mapped.bytes());
            if (!size || size->width > ScaleX(kLargestIcon) || size->height > ScaleY(kLargestIcon))
                continue;
            icon.width = size->width;
            icon.height = size->height;
            digest = digester.Digest(mapped.bytes());
        }
        icon.bitmap.Reset(SHLoadDIBitmap(icon.path.c_str()));
        if (!icon.bitmap) continue;
        Group& group = digest ? GroupOf(*digest) : groups_.front();
        group.icons.push_back(std::move(icon));
    }
    loadedFolders_.push_back(std::move(name));
}

IconLibrary::Group& IconLibrary::GroupOf(const IconDigest& digest) {
    const std::optional<std::size_t> found = catalogue_.FindGroup(digest);
    if (!found) return groups_.front();
    if (!positions_[*found]) {
        positions_[*found] = groups_.size();
        groups_.push_back({GetLanguageTable().Translate(catalogue_.titles()[*found])});
    }
    return groups_[positions_[*found]];
}

void IconLibrary::Clear() {
    groups_.clear();
    groups_.push_back({GetLanguageTable().Translate(L"Other Icons")});
    positions_.assign(catalogue_.titles().size(), 0);
    loadedFolders_.clear();
}
