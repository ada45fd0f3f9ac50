#include "settings/install_path.h"

#include <windows.h>

#include "settings/settings_key.h"

namespace {

std::wstring ProgramFolderPath(const wchar_t* fileName) {
    wchar_t path[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring program(path, length < MAX_PATH ? length : MAX_PATH - 1);
    const std::size_t slash = program.rfind(L'\\');
    if (!fileName) return slash == std::wstring::npos ? program : program.substr(0, slash);
    return slash == std::wstring::npos ? fileName : program.substr(0, slash + 1) + fileName;
}

}  // namespace

std::wstring GetInstallPath(const wchar_t* fileName) {
    CSettingsKey key(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Apps\\Lum Diary", false, false);
    if (!key.IsOpen()) return ProgramFolderPath(fileName);
    std::wstring path = key.ReadString(L"InstallDir");
    if (fileName) path.append(L"\\").append(fileName);
    return path;
}
