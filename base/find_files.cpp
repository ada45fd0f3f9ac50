#include "base/find_files.h"

#include "base/owned_handle.h"

namespace {

struct SearchRelease {
    void operator()(HANDLE search) const { FindClose(search); }
};

}  // namespace

void ForEachFile(const std::wstring& pattern,
                 const std::function<bool(WIN32_FIND_DATAW& found)>& action) {
    WIN32_FIND_DATAW found = {};
    const HANDLE first = FindFirstFileW(pattern.c_str(), &found);
    if (first == INVALID_HANDLE_VALUE) return;
    const OwnedHandle<HANDLE, SearchRelease> search(first);
    while (action(found) && FindNextFileW(search.get(), &found)) {
    }
}
