// Programs and libraries: the device searches \Windows and its root, adds ".exe", and hands a
// program its arguments without the program's name.
#include <windows.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "pocketpc/coredll/device.h"

namespace {

// Functions that came with a later version of the system: an older device does not know them.
struct LaterFunction {
    const wchar_t* name;
    DWORD major, minor;
};
constexpr LaterFunction kLaterFunctions[] = {
    {L"SHGetUIMetrics", 4, 21},      {L"CeCreateDatabaseEx2", 5, 0},    {L"CeOidGetInfoEx2", 5, 0},
    {L"CeOpenDatabaseEx2", 5, 0},    {L"CeReadRecordPropsEx", 5, 0},    {L"CeSeekDatabaseEx", 5, 0},
    {L"CeSetDatabaseInfoEx2", 5, 0}, {L"CeOpenDatabaseInSession", 5, 0}};

bool IsLater(const wchar_t* name) {
    const Device& device = ThisDevice();
    return std::any_of(
        std::begin(kLaterFunctions), std::end(kLaterFunctions), [&](const LaterFunction& function) {
            return wcscmp(function.name, name) == 0 &&
                   (device.major < function.major ||
                    (device.major == function.major && device.minor < function.minor));
        });
}

bool IsFile(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

// The full path of a program; empty when there is none.
std::wstring FindProgram(const std::wstring& name) {
    std::vector<std::wstring> folders = {L""};
    if (name.find(L'\\') == std::wstring::npos) folders = {L"\\Windows\\", L"\\"};
    for (const std::wstring& folder : folders) {
        for (const wchar_t* ending : {L"", L".exe"}) {
            if (IsFile(folder + name + ending)) return folder + name + ending;
        }
    }
    return {};
}

// Of some hundred processes Wine fails to make one, before any of the program's code runs. Devices
// do not, so it is made anew.
bool Start(const std::wstring& path, const std::wstring& commandLine, DWORD flags,
           PROCESS_INFORMATION& started) {
    constexpr int kTries = 3;
    for (int tries = 0; tries < kTries; ++tries) {
        std::wstring given = commandLine;
        STARTUPINFOW startup = {};
        startup.cb = sizeof startup;
        if (CreateProcessW(path.c_str(), given.data(), nullptr, nullptr, FALSE, flags, nullptr,
                           nullptr, &startup, &started)) {
            return true;
        }
        if (GetLastError() != ERROR_INTERNAL_ERROR) break;
    }
    return false;
}

}  // namespace

// What a device's programs cannot choose must be left out. Security attributes and the start-up
// record are not looked at.
extern "C" BOOL WINAPI Pocket_CreateProcessW(LPCWSTR image, LPWSTR arguments, LPSECURITY_ATTRIBUTES,
                                             LPSECURITY_ATTRIBUTES, BOOL inherit, DWORD flags,
                                             LPVOID environment, LPWSTR directory, LPSTARTUPINFOW,
                                             LPPROCESS_INFORMATION process) {
    if (!image || inherit || environment || directory) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const std::wstring path = FindProgram(image);
    if (path.empty()) {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return FALSE;
    }
    std::wstring commandLine = L"\"" + path + L"\"";
    if (arguments && *arguments) commandLine.append(L" ").append(arguments);
    PROCESS_INFORMATION started = {};
    if (!Start(path, commandLine, flags, started)) return FALSE;
    if (process) {
        *process = started;
    } else {
        CloseHandle(started.hThread);
        CloseHandle(started.hProcess);
    }
    return TRUE;
}

extern "C" HMODULE WINAPI Pocket_LoadLibraryW(LPCWSTR name) {
    const std::wstring inWindows = std::wstring(L"\\Windows\\") + (name ? name : L"");
    const bool bare = name && !wcschr(name, L'\\');
    return LoadLibraryW(bare && IsFile(inWindows) ? inWindows.c_str() : name);
}

extern "C" FARPROC WINAPI Pocket_GetProcAddressW(HMODULE module, LPCWSTR name) {
    if (IS_INTRESOURCE(name)) return GetProcAddress(module, reinterpret_cast<LPCSTR>(name));
    if (IsLater(name)) {
        SetLastError(ERROR_PROC_NOT_FOUND);
        return nullptr;
    }
    std::string narrow;
    for (const wchar_t* c = name; *c; ++c) narrow += *c < 0x80 ? static_cast<char>(*c) : '?';
    return GetProcAddress(module, narrow.c_str());
}
