#include "appearance/categories/icon_files.h"

#include <algorithm>
#include <array>
#include <utility>

#include "appearance/categories/icon_header.h"
#include "base/find_files.h"
#include "base/mapped_file.h"
#include "base/scale.h"
#include "settings/install_path.h"
#include "settings/settings_key.h"

namespace {

// Where Pocket Informant notes the folder last used for icons, and before it for pictures.
constexpr std::array kPocketInformantKeys = {
    L"\\Software\\WebIS\\PocketInformant\\Menus\\IconChooser\\MRU",
    L"\\Software\\WebIS\\PocketInformant\\Menus\\PictureChooser\\MRU",
};

std::wstring PocketInformantFolder() {
    for (const wchar_t* const path : kPocketInformantKeys) {
        const std::wstring folder = ReadText(HKEY_CURRENT_USER, path, L"0");
        if (!folder.empty()) return folder;
    }
    return {};
}

}  // namespace

std::wstring ReadText(HKEY root, const wchar_t* path, const wchar_t* name) {
    CSettingsKey key(root, path, false, false);
    return key.IsOpen() ? key.ReadString(name) : std::wstring();
}

std::wstring JoinPath(const std::wstring& folder, const std::wstring& name) {
    return folder.ends_with(L'\\') ? folder + name : folder + L'\\' + name;
}

std::vector<std::wstring> FindBitmapFiles(const std::wstring& folder) {
    std::vector<std::wstring> names;
    if (folder.empty()) return names;
    ForEachFile(JoinPath(folder, L"*.bmp"), [&names](const WIN32_FIND_DATAW& found) {
        if (!IsFolder(found) && found.cFileName[0] != L'.') names.push_back(found.cFileName);
        return true;
    });
    return names;
}

OwnedBitmap LoadIconBitmap(const std::wstring& path) {
    if (!ReadIconHeader(MappedFile(path).bytes())) return {};
    return OwnedBitmap(SHLoadDIBitmap(path.c_str()));
}

std::optional<IconPicture> ReadOfferedIcon(std::span<const std::uint8_t> file, int widest) {
    const std::optional<BitmapFileHeader> header = ReadIconHeader(file);
    if (!header || header->info.width > widest || header->info.height > ScaleY(kLargestIcon))
        return {};
    return ReadIconPicture(file, *header);
}

bool HasIcons(const std::wstring& folder) {
    const std::vector<std::wstring> names = FindBitmapFiles(folder);
    return std::any_of(names.begin(), names.end(), [&folder](const std::wstring& name) {
        // Here the width counts as the height does.
        return ReadOfferedIcon(MappedFile(JoinPath(folder, name)).bytes(), ScaleY(kLargestIcon));
    });
}

std::vector<std::wstring> FindFixedIconSources() {
    std::vector<std::wstring> sources;
    for (std::wstring folder :
         {GetInstallPath(L"IconSet\\"),
          ReadText(HKEY_LOCAL_MACHINE, kAgendaFusionKey, L"SourceIconLocation"),
          PocketInformantFolder()}) {
        if (HasIcons(folder)) sources.push_back(std::move(folder));
    }
    return sources;
}

std::optional<RememberedFolders> ReadRememberedFolders() {
    CSettingsKey key = OpenProductKey(settings::keys::IconFolders);
    std::vector<std::pair<std::wstring, std::wstring>> values;
    for (std::wstring& each : key.ValueNames()) {
        std::wstring folder = key.ReadString(each.c_str());
        values.emplace_back(std::move(each), std::move(folder));
    }
    if (key.HasUnread()) return {};
    return RememberedFolders(std::move(values));
}

// From the last one on, so that one more in front costs none of them at any moment.
void WriteRememberedFolders(const RememberedFolders& remembered) {
    CSettingsKey key = OpenProductKey(settings::keys::IconFolders);
    std::vector<std::wstring> names;
    for (std::size_t i = remembered.folders().size(); i > 0; --i) {
        names.push_back(std::to_wstring(i));
        if (!key.WriteString(names.back().c_str(), remembered.folders()[i - 1].c_str())) return;
    }
    key.DeleteValuesBut(names);  // Of what an import brought, more may be there, with gaps.
}
