#include "pages/stores/handwriting.h"

#include <windows.h>

#include <string>
#include <utility>

#include "base/owned_handle.h"
#include "settings/settings_key.h"

namespace {

struct PhatNotesKey {
    std::uint32_t version;
    const wchar_t* path;
};
constexpr PhatNotesKey kPhatNotes[] = {
    {0x405, L"Software\\PhatWare\\PhatNotes\\4.0\\Settings"},
    {0x407, L"Software\\PhatWare\\PhatNotes\\Settings"},
};
constexpr wchar_t kFolderValue[] = L"InstPath";
constexpr wchar_t kUsualFolder[] = L"\\Program Files\\PhatPad\\";
constexpr wchar_t kViewLibrary[] = L"PhatPadViewCtl.dll";

// The folder a program was installed in, with a backslash at its end; empty without its key. The
// key is another program's, so that the usual folder is not written there.
std::wstring InstallFolder(const wchar_t* path) {
    CSettingsKey key(HKEY_CURRENT_USER, path, false, false);
    if (!key.IsOpen()) return {};
    DWORD size = 0;
    const bool isNoted = key.ReadBinary(kFolderValue, nullptr, &size);
    std::wstring folder = isNoted ? key.ReadString(kFolderValue) : kUsualFolder;
    if (folder.empty() || folder.back() != L'\\') folder += L'\\';
    return folder;
}

OwnedLibrary LoadFrom(const std::wstring& folder, const std::wstring& otherFolder,
                      const wchar_t* library) {
    OwnedLibrary module;
    for (const std::wstring& place : {folder, otherFolder}) {
        if (!module && !place.empty()) module.Reset(LoadLibraryW((place + library).c_str()));
    }
    return module;
}

bool IsFile(const std::wstring& folder, const wchar_t* name) {
    return !folder.empty() &&
           GetFileAttributesW((folder + name).c_str()) != INVALID_FILE_ATTRIBUTES;
}

// The view library leaves its window classes behind, which would keep its code from being loaded
// anew elsewhere.
void UnloadViews(OwnedLibrary views) {
    views.Reset();
    if (GetModuleHandleW(kViewLibrary)) return;
    for (const wchar_t* name : {L"PW_FileViewClass", L"PW_PageBrowserClass"}) {
        UnregisterClassW(name, GetModuleHandleW(nullptr));
    }
}

}  // namespace

std::uint32_t PhatNotesVersion() {
    for (const PhatNotesKey& key : kPhatNotes) {
        if (CSettingsKey(HKEY_CURRENT_USER, key.path, false, false).IsOpen()) return key.version;
    }
    return 0;
}

bool IsPhatPadPresent() {
    const std::wstring pad = InstallFolder(L"Software\\PhatWare\\PhatPad");
    const std::wstring viewer = InstallFolder(L"Software\\PhatWare\\PhatPad Viewer");
    if (pad.empty() && viewer.empty()) return false;
    const OwnedLibrary control = LoadFrom(pad, viewer, L"PhatPadCtl.dll");
    const bool installed = IsFile(pad, L"PhatPad.exe") || IsFile(viewer, L"PhatPadViewer.exe");
    OwnedLibrary views = LoadFrom(pad, viewer, kViewLibrary);
    if (!views) return false;
    const bool present = installed && GetProcAddress(views.get(), L"PhatPad_CreateView") != nullptr;
    UnloadViews(std::move(views));
    return present;
}
