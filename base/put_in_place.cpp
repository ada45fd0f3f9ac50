#include "base/put_in_place.h"

#include <windows.h>

bool PutInPlace(const std::wstring& path) {
    const std::wstring fresh = FreshName(path);
    // The device replaces only what is there.
    if (DeleteAndRenameFile(path.c_str(), fresh.c_str()) ||
        MoveFileW(fresh.c_str(), path.c_str())) {
        return true;
    }
    DeleteFileW(fresh.c_str());
    return false;
}
