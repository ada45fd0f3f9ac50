// The help viewer: opens a page of the device's help, "file.htm#anchor", in the desktop's browser,
// and notes it in \peghelp.log of the device.
#include <windows.h>

#include <shellapi.h>

#include <cstdio>
#include <string>

namespace {

std::string Utf8(const std::wstring& text) {
    const int size =
        WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, nullptr, 0, nullptr, nullptr);
    std::string bytes(size, '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, bytes.data(), size, nullptr, nullptr);
    bytes.pop_back();
    return bytes;
}

std::wstring InstallFolder() {
    HKEY key = nullptr;
    wchar_t folder[MAX_PATH] = {};
    DWORD size = sizeof folder - sizeof(wchar_t);
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Apps\\Lum Diary", 0, 0, &key) ==
        ERROR_SUCCESS) {
        RegQueryValueExW(key, L"InstallDir", nullptr, nullptr, reinterpret_cast<BYTE*>(folder),
                         &size);
        RegCloseKey(key);
    }
    return folder;
}

std::wstring OwnFolder() {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH - 1);
    if (wchar_t* const name = wcsrchr(path, L'\\')) *name = L'\0';
    return path;
}

// The full path of a help file; empty when the device has none of this name.
std::wstring FindHelpFile(const std::wstring& name) {
    const std::wstring installed = InstallFolder();
    for (const std::wstring& folder :
         {installed.empty() ? OwnFolder() : installed, std::wstring(L"\\Windows")}) {
        wchar_t path[MAX_PATH] = {};
        GetFullPathNameW((folder + L"\\" + name).c_str(), MAX_PATH, path, nullptr);
        if (GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES) return path;
    }
    return {};
}

void Note(const std::wstring& page) {
    FILE* const log = _wfopen(L"\\peghelp.log", L"ab");
    if (!log) return;
    fprintf(log, "%s\n", Utf8(page).c_str());
    fclose(log);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count < 2) return 1;
    const std::wstring page = arguments[1];
    Note(page);
    const std::size_t hash = page.find(L'#');
    const std::wstring file = FindHelpFile(page.substr(0, hash));
    const std::wstring anchor = hash == std::wstring::npos ? L"" : page.substr(hash);
    if (file.empty()) {
        printf("There is no help file for %s.\n", Utf8(page).c_str());
        return 1;
    }
    std::wstring url = L"file:///";
    for (const wchar_t c : file) {
        if (c == L' ') {
            url += L"%20";
        } else {
            url += c == L'\\' ? L'/' : c;
        }
    }
    url += anchor;
    const auto result = reinterpret_cast<INT_PTR>(
        ShellExecuteW(nullptr, L"open", url.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
    // Values up to 32 are errors.
    if (result <= 32) printf("Help: %s\n", Utf8(url).c_str());
    return 0;
}
