#include "settings/device.h"

#include <windows.h>

namespace {

bool CanLoad(const wchar_t* path) {
    const HMODULE library = LoadLibraryW(path);
    if (!library) return false;
    FreeLibrary(library);
    return true;
}

}  // namespace

bool IsPhoneDevice() {
    static const bool present = CanLoad(L"phone.dll");
    return present;
}

bool IsFinanceProgramPresent() { return CanLoad(L"\\Windows\\LumFinanceScheduledAPI.dll"); }
