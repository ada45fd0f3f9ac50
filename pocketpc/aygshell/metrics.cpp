// The shell's measures.
#include "pocketpc/common/shell_windows.h"
#include "pocketpc/include/aygshell.h"

namespace {

// Pixels at 96 dots per inch: the user's choice in \\device.ini, usually 11, which are 8.25 points.
int TextSize() {
    constexpr int kUsual = 11;
    wchar_t path[MAX_PATH] = {};
    GetFullPathNameW(L"\\device.ini", MAX_PATH, path, nullptr);
    return static_cast<int>(GetPrivateProfileIntW(L"device", L"textsize", kUsual, path));
}

}  // namespace

HRESULT WINAPI SHGetUIMetrics(SHUIMETRIC metric, void* buffer, DWORD size, DWORD* needed) {
    DWORD value = 0;
    switch (metric) {
        case SHUIM_FONTSIZE_POINT: value = TextSize() * 75; break;
        case SHUIM_FONTSIZE_PIXEL: value = shell::Scale(TextSize()); break;
        case SHUIM_FONTSIZE_PERCENTAGE: value = TextSize() * 100 / 11; break;
        default: return E_INVALIDARG;
    }
    if (needed) *needed = sizeof value;
    if (!buffer || size < sizeof value) return HRESULT_FROM_WIN32(ERROR_INSUFFICIENT_BUFFER);
    *static_cast<DWORD*>(buffer) = value;
    return S_OK;
}
