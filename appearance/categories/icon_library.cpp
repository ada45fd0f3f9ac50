#include "appearance/categories/icon_library.h"

#include <algorithm>
#include <utility>

#include "app/language/language_table.h"
#include "appearance/categories/icon_digest.h"
#include "appearance/categories/icon_files.h"
#include "appearance/categories/icon_header.h"
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

    loadedFolders_.push_back(std::move(name));
    const IconDigester digester;
    const int widest = ScaleX(kLargestIcon);
    for (std::wstring& file : FindBitmapFiles(folder)) {
        Icon icon = {&loadedFolders_.back(), std::move(file)};
        const MappedFile mapped(icon.Path());
        std::optional<IconPicture> picture = ReadOfferedIcon(mapped.bytes(), widest);
        if (!picture) continue;
        icon.picture = std::move(*picture);
        const std::optional<IconDigest> digest = digester.Digest(mapped.bytes());
        Group& group = digest ? GroupOf(*digest) : groups_.front();
        group.icons.push_back(std::move(icon));
    }
}

std::wstring IconLibrary::Icon::Path() const { return JoinPath(*folder, name); }

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
