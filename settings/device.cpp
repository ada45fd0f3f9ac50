#include "settings/device.h"

#include <windows.h>

namespace {

bool CanLoad(const wchar_t* path) {
    const HMODULE library = LoadLibraryW(path);
    if (!library) return false;
    FreeLibrary(library);
    return true;
}

bool IsNewerPocketPc() {
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    wchar_t platform[64] = {};
    return GetVersionExW(&version) && version.dwMajorVersion >= 5 &&
           SystemParametersInfoW(SPI_GETPLATFORMTYPE, 64, platform, 0) &&
           wcscmp(platform, L"PocketPC") == 0;
}

}  // namespace

bool IsPhoneDevice() {
    static const bool present = CanLoad(L"phone.dll");
    return present;
}

bool IsFinanceProgramPresent() { return CanLoad(L"\\Windows\\LumFinanceScheduledAPI.dll"); }

bool IsNewerDatabasePlatform() {
    static const bool newer = IsNewerPocketPc();
    return newer;
}
