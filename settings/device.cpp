#include "settings/device.h"

#include <windows.h>

#include "base/owned_handle.h"
#include "settings/settings_key.h"

namespace {

bool CanLoad(const wchar_t* path) { return static_cast<bool>(OwnedLibrary(LoadLibraryW(path))); }

bool HasText(const wchar_t* path, const wchar_t* name) {
    CSettingsKey key(HKEY_LOCAL_MACHINE, path, false, false);
    return key.IsOpen() && !key.ReadString(name).empty();
}

// The operating system's version; all 0 for a device that is no Pocket PC.
struct PocketPcVersion {
    DWORD major = 0;
    DWORD minor = 0;
};

PocketPcVersion AskVersion() {
    constexpr UINT kLongestType = 128;
    wchar_t type[kLongestType] = {};
    if (!SystemParametersInfoW(SPI_GETPLATFORMTYPE, kLongestType, type, 0) ||
        wcscmp(type, L"PocketPC") != 0) {
        return {};
    }
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    if (!GetVersionExW(&version)) return {};
    return {version.dwMajorVersion, version.dwMinorVersion};
}

const PocketPcVersion& Version() {
    static const PocketPcVersion version = AskVersion();
    return version;
}

}  // namespace

bool IsPhoneDevice() {
    static const bool present = CanLoad(L"phone.dll");
    return present;
}

bool IsFinanceProgramPresent() { return CanLoad(L"\\Windows\\LumFinanceScheduledAPI.dll"); }

bool IsAgendaFusionPresent() {
    return HasText(L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion", L"AppLocation");
}

bool IsPocketInformantPresent() { return CanLoad(L"PITools.dll"); }

bool IsAgendaOnePresent() {
    return HasText(L"SOFTWARE\\Developer One\\Agenda One", L"InstallPath");
}

bool IsWeatherPluginRegistered() {
    return CSettingsKey(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Today\\Items\\\"Lum Weather\"",
                        false, false)
        .IsOpen();
}

bool IsEarlyPocketPc() { return Version().major == 3; }

bool HasTodayHighlight() {
    return Version().major >= 5 || (Version().major == 4 && Version().minor >= 21);
}

bool IsNewerPocketPc() { return Version().major >= 5; }
