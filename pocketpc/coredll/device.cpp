#include "pocketpc/coredll/device.h"

#include <cstdio>

#include "pocketpc/common/input_panel.h"
#include "pocketpc/common/shell_windows.h"
#include "pocketpc/include/sipapi.h"

namespace {

constexpr wchar_t kFile[] = L"\\device.ini";
constexpr DWORD kPlatformWindowsCe = 3;
constexpr UINT kGetSipInfo = 225;
constexpr UINT kGetPlatformType = 257;
constexpr UINT kGetOemInfo = 258;

std::wstring Entry(const wchar_t* name, const std::wstring& defaultText) {
    wchar_t path[MAX_PATH] = {};
    wchar_t text[128];
    GetFullPathNameW(kFile, MAX_PATH, path, nullptr);
    GetPrivateProfileStringW(L"device", name, defaultText.c_str(), text, 128, path);
    return text;
}

Device ReadDevice() {
    Device device;
    device.hive = Entry(L"hive", device.hive);
    device.platform = Entry(L"platform", device.platform);
    swscanf(Entry(L"version", L"").c_str(), L"%lu.%lu.%lu", &device.major, &device.minor,
            &device.build);
    return device;
}

BOOL CopyText(const std::wstring& text, UINT length, void* buffer) {
    if (!buffer || length <= text.size()) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return FALSE;
    }
    wcscpy(static_cast<wchar_t*>(buffer), text.c_str());
    return TRUE;
}

}  // namespace

const Device& ThisDevice() {
    static const Device device = ReadDevice();
    return device;
}

bool RecordIdentifiersAreNumbers() { return Entry(L"recid", L"blob") == L"number"; }

extern "C" BOOL WINAPI Pocket_GetVersionExW(OSVERSIONINFOW* info) {
    if (!info || info->dwOSVersionInfoSize < sizeof *info) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return FALSE;
    }
    const Device& device = ThisDevice();
    info->dwMajorVersion = device.major;
    info->dwMinorVersion = device.minor;
    info->dwBuildNumber = device.build;
    info->dwPlatformId = kPlatformWindowsCe;
    info->szCSDVersion[0] = L'\0';
    return TRUE;
}

// The visible desktop reaches down to the panel, or below the menu bar while there is none. That a
// panel that is down lies at the screen's bottom without any height is a guess.
extern "C" BOOL WINAPI Pocket_SipGetInfo(SIPINFO* info) {
    if (!info || info->cbSize != sizeof *info || info->dwImDataSize != 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const SIZE screen = shell::Screen();
    info->fdwFlags = SIPF_OFF | SIPF_DOCKED;
    info->rcVisibleDesktop = {0, shell::BarHeight(), screen.cx, screen.cy};
    info->rcSipRect = {0, screen.cy, screen.cx, screen.cy};
    if (shell::InputPanelIsUp()) {
        info->fdwFlags = SIPF_ON | SIPF_DOCKED;
        info->rcVisibleDesktop = shell::VisibleWorkArea();
        info->rcSipRect = shell::InputPanelArea(screen);
    }
    return TRUE;
}

extern "C" BOOL WINAPI Pocket_SipShowIM(DWORD flag) {
    if (flag != SIPF_ON && flag != SIPF_OFF) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    shell::SetInputPanel(flag == SIPF_ON);
    return TRUE;
}

extern "C" BOOL WINAPI Pocket_SystemParametersInfoW(UINT action, UINT parameter, void* data,
                                                    UINT change) {
    switch (action) {
        case kGetPlatformType: return CopyText(ThisDevice().platform, parameter, data);
        case kGetOemInfo: return CopyText(L"Stand-in Pocket PC", parameter, data);
        case kGetSipInfo: return Pocket_SipGetInfo(static_cast<SIPINFO*>(data));
        // All but the navigation bar, whether or not a program has a menu bar.
        case SPI_GETWORKAREA: {
            const SIZE screen = shell::Screen();
            *static_cast<RECT*>(data) = {0, shell::BarHeight(), screen.cx, screen.cy};
            return TRUE;
        }
    }
    return SystemParametersInfoW(action, parameter, data, change);
}
