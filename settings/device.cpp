#include "settings/device.h"

#include <windows.h>

#include "settings/settings_key.h"

namespace {

bool CanLoad(const wchar_t* path) {
    const HMODULE library = LoadLibraryW(path);
    if (!library) return false;
    FreeLibrary(library);
    return true;
}

bool HasText(const wchar_t* path, const wchar_t* name) {
    CSettingsKey key(HKEY_LOCAL_MACHINE, path, false, false);
    return key.IsOpen() && !key.ReadString(name).empty();
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
