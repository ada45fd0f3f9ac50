// The device maps only files that were opened for it, and each once.
#include <windows.h>

#include <algorithm>
#include <mutex>
#include <vector>

#include "pocketpc/common/failing_calls.h"

namespace {

std::mutex filesMutex;
std::vector<HANDLE> files;  // opened to be mapped, and not mapped yet

bool TakeFile(HANDLE file) {
    const std::lock_guard lock(filesMutex);
    const auto found = std::find(files.begin(), files.end(), file);
    if (found == files.end()) return false;
    files.erase(found);
    return true;
}

}  // namespace

extern "C" HANDLE WINAPI Pocket_CreateFileForMappingW(LPCWSTR path, DWORD access, DWORD share,
                                                      LPSECURITY_ATTRIBUTES, DWORD disposition,
                                                      DWORD attributes, HANDLE) {
    if (failing::Fails(failing::kFiles, ERROR_READ_FAULT)) return INVALID_HANDLE_VALUE;
    const HANDLE file = CreateFileW(path, access, share, nullptr, disposition, attributes, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
        TakeFile(file);  // A closed file's handle may come again.
        const std::lock_guard lock(filesMutex);
        files.push_back(file);
    }
    return file;
}

extern "C" HANDLE WINAPI Pocket_CreateFileMappingW(HANDLE file, LPSECURITY_ATTRIBUTES security,
                                                   DWORD protection, DWORD highSize, DWORD lowSize,
                                                   LPCWSTR name) {
    if (failing::Fails(failing::kFiles, ERROR_NOT_ENOUGH_MEMORY)) return nullptr;
    if (file != INVALID_HANDLE_VALUE && !TakeFile(file)) {
        SetLastError(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    return CreateFileMappingW(file, security, protection, highSize, lowSize, name);
}
