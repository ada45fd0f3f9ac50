#include "pocketpc/common/shared_number.h"

namespace shell {

namespace {
constexpr wchar_t kKey[] = L"Software\\PocketPC Devices";
}

// A device lacks both functions called here, so they are the desktop's wherever this is linked.
DWORD SharedNumber(const wchar_t* name) {
    DWORD number = 0, size = sizeof number;
    const LSTATUS error =
        RegGetValueW(HKEY_CURRENT_USER, kKey, name, RRF_RT_REG_DWORD, nullptr, &number, &size);
    return error == ERROR_SUCCESS ? number : 0;
}

void SetSharedNumber(const wchar_t* name, DWORD number) {
    RegSetKeyValueW(HKEY_CURRENT_USER, kKey, name, REG_DWORD, &number, sizeof number);
}

}  // namespace shell
