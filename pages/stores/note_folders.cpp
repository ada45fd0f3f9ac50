#include "pages/stores/note_folders.h"

#include <projects.h>

#include <algorithm>

#include "base/names.h"
#include "base/owned_handle.h"

namespace {

constexpr WORD kEnumProjectsEx = 21;  // By its ordinal.

BOOL CALLBACK AddFolder(PAstruct* project, LPARAM context) {
    auto& names = *reinterpret_cast<std::vector<std::wstring>*>(context);
    if (project->m_IDtype == FILE_ID_TYPE_PATHNAME) {
        names.emplace_back(project->m_szPathname,
                           wcsnlen(project->m_szPathname, std::size(project->m_szPathname)));
    }
    return TRUE;
}

}  // namespace

std::vector<std::wstring> NoteFolders() {
    std::vector<std::wstring> names;
    const OwnedLibrary library(LoadLibraryW(L"Note_prj.dll"));
    if (!library) return names;
    using Enumerate = decltype(&EnumProjectsEx);
    if (const auto enumerate = reinterpret_cast<Enumerate>(reinterpret_cast<void*>(
            GetProcAddress(library.get(), MAKEINTRESOURCEW(kEnumProjectsEx))))) {
        enumerate(AddFolder, 0, PRJ_ENUM_ALL_DEVICES, reinterpret_cast<LPARAM>(&names));
    }
    std::ranges::sort(names, StandsBefore);
    return names;
}
