#include "pocketpc/common/shared_number.h"

namespace shell {

// These two functions a device does not have, so that they always are the desktop's.
namespace {
constexpr wchar_t kKey[] = L"Software\\PocketPC Devices";
}

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
