// The folders of "My Documents", in memory and on storage cards.
#include "pocketpc/include/projects.h"

#include <string>
#include <vector>

namespace {

constexpr std::size_t kLongestName = 95;

std::vector<std::wstring> Folders(const std::wstring& parent) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW entry;
    const HANDLE find = FindFirstFileW((parent + L"\\*").c_str(), &entry);
    if (find == INVALID_HANDLE_VALUE) return names;
    do {
        const bool folder = entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
        const std::wstring name = entry.cFileName;
        if (folder && name[0] != L'.' && name.size() <= kLongestName) names.push_back(name);
    } while (FindNextFileW(find, &entry));
    FindClose(find);
    return names;
}

// Once used it stays: its run-time, which the device's library does without, loses 4 KB whenever it
// is loaded and given up.
void Stay() {
    HMODULE library = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<LPCWSTR>(&Stay), &library);
}

}  // namespace

int WINAPI EnumProjectsEx(PROJECTS_ENUMPROC callback, DWORD, DWORD flags, LPARAM context) {
    Stay();
    std::vector<std::wstring> names;
    if (flags & (PRJ_ENUM_MEMORY | PRJ_ENUM_ALL_DEVICES)) names = Folders(L"\\My Documents");
    if (flags & (PRJ_ENUM_FLASH | PRJ_ENUM_ALL_DEVICES)) {
        for (std::wstring& name : Folders(L"\\Storage Card\\My Documents")) {
            names.push_back(std::move(name));
        }
    }
    if (!callback) return static_cast<int>(names.size());
    int count = 0;
    for (const std::wstring& name : names) {
        PAstruct project = {};
        project.m_IDtype = FILE_ID_TYPE_PATHNAME;
        wcscpy(project.m_szPathname, name.c_str());
        ++count;
        if (!callback(&project, context)) break;
    }
    return count;
}
