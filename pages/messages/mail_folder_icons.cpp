#include "pages/messages/mail_folder_icons.h"

#include <iterator>
#include <string>

#include "appearance/skins/skin_art.h"
#include "base/scale.h"
#include "pages/stores/mail_folder_tree.h"
#include "settings/settings_key.h"

namespace {

constexpr int kIconSize = 16;
constexpr std::uint32_t kUsualDensity = 96;

struct FolderIcon {
    unsigned deviceId;  // of the icon in the library of the device's mail program
    ItemIcon skinIcon;
};
constexpr FolderIcon kIcons[kMailFolderKindCount] = {
    {101, ItemIcon::kEmail},  {102, ItemIcon::kFolder}, {103, ItemIcon::kDeleted},
    {104, ItemIcon::kDrafts}, {105, ItemIcon::kInbox},  {106, ItemIcon::kOutbox},
    {107, ItemIcon::kSent},
};

// The library for the display's density or, where there is none, the one for any.
OwnedLibrary LoadMailResources() {
    CSettingsKey key(HKEY_LOCAL_MACHINE, L"Drivers\\Display\\GPE", false, false);
    std::uint32_t density = kUsualDensity;
    if (key.IsOpen()) {
        const std::uint32_t read = key.ReadDword(L"LogicalPixelsX", SETTINGS_NO_DEFAULT);
        if (read != SETTINGS_NO_DEFAULT) density = read;
    }
    const std::wstring name =
        L"outres." + std::to_wstring(static_cast<std::int32_t>(density)) + L".dll";
    OwnedLibrary library(LoadLibraryW(name.c_str()));
    if (!library) library.Reset(LoadLibraryW(L"outres.dll"));
    return library;
}

// Adds the icon, or an empty place so that those behind it keep theirs.
void AddIcon(HIMAGELIST list, HICON icon, int place) {
    if (!icon || ImageList_ReplaceIcon(list, -1, icon) < 0) {
        ImageList_SetImageCount(list, static_cast<UINT>(place) + 1);
    }
}

}  // namespace

OwnedImageList MailFolderIcons() {
    const int width = ScaleX(kIconSize), height = ScaleY(kIconSize);
    OwnedImageList list(
        ImageList_Create(width, height, ILC_COLOR | ILC_MASK, kMailFolderKindCount, 1));
    if (!list) return {};
    const OwnedLibrary library = LoadMailResources();
    for (int i = 0; i < kMailFolderKindCount; ++i) {
        OwnedIcon icon;
        if (library) {
            icon.Reset(
                static_cast<HICON>(LoadImageW(library.get(), MAKEINTRESOURCEW(kIcons[i].deviceId),
                                              IMAGE_ICON, width, height, 0)));
        }
        if (!icon && GetSkinArt().LoadIcons() != SkinArt::kFailed) {
            icon = GetSkinArt().Icons()->CreateIcon(static_cast<int>(kIcons[i].skinIcon));
        }
        AddIcon(list.get(), icon.get(), i);
    }
    return list;
}
