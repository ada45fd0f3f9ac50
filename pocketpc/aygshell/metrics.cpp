// The shell's measures.
#include "pocketpc/include/aygshell.h"
#include "pocketpc/shell_windows.h"

// The text size of this device is the usual one: 8.25 points, 11 pixels at 96 dots per inch.
HRESULT WINAPI SHGetUIMetrics(SHUIMETRIC metric, void* buffer, DWORD size, DWORD* needed) {
    DWORD value = 0;
    switch (metric) {
        case SHUIM_FONTSIZE_POINT: value = 825; break;
        case SHUIM_FONTSIZE_PIXEL: value = shell::Scale(11); break;
        case SHUIM_FONTSIZE_PERCENTAGE: value = 100; break;
        default: return E_INVALIDARG;
    }
    if (needed) *needed = sizeof value;
    if (!buffer || size < sizeof value) return HRESULT_FROM_WIN32(ERROR_INSUFFICIENT_BUFFER);
    *static_cast<DWORD*>(buffer) = value;
    return S_OK;
}
