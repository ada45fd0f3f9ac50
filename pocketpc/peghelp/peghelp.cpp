// The help viewer: opens a page of the device's help, "file.htm#anchor", in the desktop's browser,
// and notes it in \peghelp.log of the device. What keeps it from that is said on the screen.
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

void WriteLine(const wchar_t* path, const wchar_t* mode, const std::wstring& line) {
    FILE* const file = _wfopen(path, mode);
    if (!file) return;
    fprintf(file, "%s\n", Utf8(line).c_str());
    fclose(file);
}

std::wstring UrlOf(const std::wstring& path) {
    std::wstring url;
    for (const wchar_t c : path) {
        if (c == L' ') {
            url += L"%20";
        } else {
            url += c == L'\\' ? L'/' : c;
        }
    }
    return url;
}

// Whether what was started runs on, or has ended well soon.
bool Start(const wchar_t* file, const wchar_t* parameters) {
    constexpr DWORD kLongestStart = 5000;  // milliseconds
    SHELLEXECUTEINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;
    info.lpVerb = L"open";
    info.lpFile = file;
    info.lpParameters = parameters;
    info.nShow = SW_SHOWNORMAL;
    if (!ShellExecuteExW(&info)) return false;
    if (!info.hProcess) return true;  // A browser that runs already has taken the page.
    DWORD code = 0;
    if (WaitForSingleObject(info.hProcess, kLongestStart) == WAIT_OBJECT_0) {
        GetExitCodeProcess(info.hProcess, &code);
    }
    CloseHandle(info.hProcess);
    return code == 0;
}

// Desktops lose the anchor of a file's address on its way to the browser, so that a small page of
// our own leads there. Wine may know no program for pages, but has one that finds the browser.
bool OpenInBrowser(const std::wstring& file, const std::wstring& anchor) {
    constexpr wchar_t kLeadingPage[] = L"\\peghelp.htm";
    const std::wstring fromRoot = UrlOf(file.substr(file.find(L'\\') + 1));
    WriteLine(kLeadingPage, L"wb",
              L"<meta http-equiv=refresh content=\"0; url=" + fromRoot + anchor + L"\">");
    wchar_t page[MAX_PATH] = {};
    GetFullPathNameW(kLeadingPage, MAX_PATH, page, nullptr);
    return Start(page, nullptr) || Start(L"winebrowser.exe", (L"file:///" + UrlOf(page)).c_str());
}

void Say(const std::wstring& problem) {
    MessageBoxW(nullptr, problem.c_str(), L"Help", MB_OK | MB_ICONINFORMATION | MB_SETFOREGROUND);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR page, int) {
    if (!*page) return 1;
    const HWND asking = GetForegroundWindow();
    const std::wstring asked = page;
    WriteLine(L"\\peghelp.log", L"ab", asked);
    const std::size_t hash = asked.find(L'#');
    const std::wstring name = asked.substr(0, hash);
    const std::wstring file = FindHelpFile(name);
    int result = 1;
    if (file.empty()) {
        Say(L"There is no help file " + name + L".");
    } else if (OpenInBrowser(file, hash == std::wstring::npos ? L"" : asked.substr(hash))) {
        result = 0;
    } else {
        Say(L"There is no browser to show the help. It is in " + file.substr(file.find(L'\\')) +
            L".");
    }
    // The keyboard belongs to the program that asked.
    if (asking) SetForegroundWindow(asking);
    return result;
}
