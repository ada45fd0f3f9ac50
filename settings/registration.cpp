#include "settings/registration.h"

#include <windows.h>

#include "settings/catalogue.h"
#include "settings/settings_key.h"

namespace {

constexpr wchar_t kPlugins[] = L"SOFTWARE\\Lum Software House\\Shared\\TabPlugins";
constexpr wchar_t kCombined[] = L"DiaryAll";
constexpr wchar_t kTodayItem[] = L"SOFTWARE\\Microsoft\\Today\\Items\\\"Lum Diary\"";
constexpr wchar_t kHost[] = L"SOFTWARE\\Lum Software House\\Lum Shell 2";
constexpr wchar_t kLibrary[] = L"\\Windows\\LumDiary.dll";
constexpr wchar_t kLibraryValue[] = L"DLL";
constexpr DWORD kSelectableAsOne = 2;
constexpr DWORD kCustomItem = 4;
constexpr WPARAM kReloadItems = 0xF2;
constexpr DWORD kReloadTime = 1000;  // milliseconds
constexpr DWORD kNameLength = 256;

std::wstring PluginKey(const std::wstring& name) { return std::wstring(kPlugins) + L"\\" + name; }

// In these, `unknown` is set when the registry cannot say.

bool Exists(const std::wstring& path, bool& unknown) {
    const CSettingsKey key(HKEY_LOCAL_MACHINE, path.c_str(), false, false);
    unknown = unknown || key.HasUnread();
    return key.IsOpen();
}

// The key's first key; empty when it has none, or is not there itself. The tab host makes one in
// the key of a plug-in that it holds.
std::wstring FirstSubKey(const std::wstring& path, bool& unknown) {
    if (!Exists(path, unknown)) return {};
    const OwnedKey key = OpenKey(HKEY_LOCAL_MACHINE, path.c_str());
    wchar_t name[kNameLength] = {};
    DWORD length = kNameLength;
    const LSTATUS status =
        key ? RegEnumKeyExW(key.get(), 0, name, &length, nullptr, nullptr, nullptr, nullptr)
            : ERROR_INVALID_HANDLE;
    unknown = unknown || (status != ERROR_SUCCESS && status != ERROR_NO_MORE_ITEMS);
    return {name, status == ERROR_SUCCESS ? length : 0};
}

Registration::State TodayState(bool& unknown) {
    CSettingsKey key(HKEY_LOCAL_MACHINE, kTodayItem, false, false);
    unknown = unknown || key.HasUnread();
    if (!key.IsOpen()) return Registration::kNone;
    if (key.ReadString(kLibraryValue).empty()) return Registration::kTodayDisabled;
    const std::uint32_t enabled = key.ReadDword(L"enabled", SETTINGS_NO_DEFAULT);
    return enabled && enabled != SETTINGS_NO_DEFAULT ? Registration::kToday
                                                     : Registration::kTodayDisabled;
}

// Registers with the tab host under a key; false when that cannot be stored. Sets `held` when the
// host holds the plug-in there.
bool RegisterWithHost(const std::wstring& hostKey, const std::wstring& name, bool& held) {
    const std::wstring path = PluginKey(hostKey);
    bool done = false;
    {
        CSettingsKey key(HKEY_LOCAL_MACHINE, path.c_str(), true, true);
        done = key.WriteString(kLibraryValue, kLibrary) &&
               key.WriteString(L"Name3.0", name.c_str()) && key.WriteString(L"Label", L"");
    }
    bool unknown = false;
    const std::wstring holder = FirstSubKey(path, unknown);
    if (!holder.empty()) {
        held = true;
        CSettingsKey(HKEY_LOCAL_MACHINE, (path + L"\\" + holder).c_str(), false, true)
            .WriteString(kLibraryValue, kLibrary);
    }
    return done && !unknown;
}

void RegisterWithToday() {
    CSettingsKey key(HKEY_LOCAL_MACHINE, kTodayItem, true, true);
    key.WriteString(kLibraryValue, kLibrary);
    key.WriteDword(L"selectability", kSelectableAsOne);
    key.WriteDword(L"type", kCustomItem);
    key.WriteDword(L"options", 1);
    key.WriteDword(L"enabled", 1);
}

}  // namespace

Registration Registration::Probe() {
    Registration result;
    result.hostInstalled = Exists(kHost, result.unknown);
    result.state = TodayState(result.unknown);
    if (Exists(PluginKey(kCombined), result.unknown)) {
        if (!FirstSubKey(PluginKey(kCombined), result.unknown).empty()) result.state = kOneHostTab;
        return result;
    }
    for (const DiaryTab& tab : kDiaryTabs) {
        if (FirstSubKey(PluginKey(tab.hostKey), result.unknown).empty()) continue;
        result.state = kTabPerHostTab;
        break;
    }
    return result;
}

void RegisterPlugin(const std::array<std::wstring, kDiaryTabs.size()>& labels) {
    bool combined = false;
    {
        CSettingsKey settings = OpenProductKey();
        combined = settings.Read(settings::AllTabsInShell) != 0;
        const Registration now = Registration::Probe();
        // The other way of registering would take its own away.
        if (now.unknown || settings.HasUnread()) return;
        const bool heldApart = now.state == Registration::kTabPerHostTab;
        if (now.hostInstalled && (heldApart || now.state == Registration::kOneHostTab)) {
            combined = !heldApart;
            settings.Write(settings::AllTabsInShell, combined);
        }
    }
    bool held = false;
    if (combined) {
        if (!RegisterWithHost(kCombined, L"Lum Diary", held)) return;
        for (const DiaryTab& tab : kDiaryTabs) {
            DeleteKeyTree(HKEY_LOCAL_MACHINE, PluginKey(tab.hostKey).c_str());
        }
    } else {
        for (std::size_t i = kDiaryTabs.size(); i-- > 0;) {
            if (!RegisterWithHost(kDiaryTabs[i].hostKey, L"Lum Diary - " + labels[i], held)) return;
        }
        DeleteKeyTree(HKEY_LOCAL_MACHINE, PluginKey(kCombined).c_str());
    }
    if (!held) RegisterWithToday();
}

void ReloadTodayItems() {
    if (const HWND today = FindWindowW(L"DesktopExplorerWindow", nullptr)) {
        SendMessageW(today, WM_WININICHANGE, kReloadItems, 0);
    }
    Sleep(kReloadTime);
}
