#include "appearance/categories/category_icon_files.h"

#include <windows.h>

#include "appearance/categories/file_name_escape.h"
#include "appearance/categories/icon_files.h"
#include "base/put_in_place.h"
#include "settings/catalogue.h"
#include "settings/install_path.h"
#include "settings/settings_key.h"

namespace {

// Of CurrentPIM.
constexpr std::uint32_t kAgendaFusion = 1;
constexpr std::uint32_t kPocketInformant = 2;

std::wstring ReadFolder() {
    switch (OpenProductKey().Read(settings::CurrentPIM)) {
        case kAgendaFusion:
            return ReadText(HKEY_LOCAL_MACHINE, kAgendaFusionKey, L"Core.Categories");
        case kPocketInformant:
            return ReadText(HKEY_CURRENT_USER, L"\\Software\\WebIS\\PocketInformant", L"IconPath");
    }
    return GetInstallPath(L"Icons\\");
}

// Whether the file is there; a read-only one is made writable.
bool Unlock(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return false;
    if (attributes & FILE_ATTRIBUTE_READONLY)
        SetFileAttributesW(path.c_str(), attributes & ~FILE_ATTRIBUTE_READONLY);
    return true;
}

}  // namespace

std::wstring FindCategoryIconFolder() {
    std::wstring folder = ReadFolder();
    if (!folder.empty() && !folder.ends_with(L'\\')) folder += L'\\';
    return folder;
}

std::wstring CategoryIconPath(const std::wstring& folder, const std::wstring& category) {
    return folder + EscapeFileName(category) + L".bmp";
}

bool AssignCategoryIcon(const std::wstring& folder, const std::wstring& category,
                        const std::wstring& source) {
    if (folder.empty()) return false;
    std::wstring plain = folder;
    if (plain.ends_with(L'\\')) plain.pop_back();
    if (GetFileAttributesW(plain.c_str()) == INVALID_FILE_ATTRIBUTES)
        CreateDirectoryW(plain.c_str(), nullptr);
    const std::wstring target = CategoryIconPath(folder, category);
    const std::wstring fresh = FreshName(target);
    Unlock(fresh);
    if (!CopyFileW(source.c_str(), fresh.c_str(), FALSE)) {
        DeleteFileW(fresh.c_str());
        return false;
    }
    Unlock(target);
    return PutInPlace(target);
}

void DeleteCategoryIcon(const std::wstring& folder, const std::wstring& category) {
    const std::wstring path = CategoryIconPath(folder, category);
    if (Unlock(path)) DeleteFileW(path.c_str());
}
