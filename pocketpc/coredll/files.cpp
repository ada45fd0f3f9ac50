// Files. What differs from the desktop's is DeleteAndRenameFile, and that calls can be made to
// fail. Documented is that they may and how they say so. Guessed, for the worst: that a write for
// which there is no room leaves a part, that a copy does, and the errors other than
// ERROR_DISK_FULL.
#include <windows.h>

#include "pocketpc/common/failing_calls.h"

namespace {

bool Refuse(DWORD error) {
    if (error) SetLastError(error);
    return error != ERROR_SUCCESS;
}

bool CannotBeRead() { return failing::Fails(failing::kFiles) && Refuse(ERROR_READ_FAULT); }

bool CannotBeStored() {
    const DWORD error = failing::StoringError(failing::kFiles, ERROR_WRITE_FAULT);
    if (error) SetLastError(error);
    return error != ERROR_SUCCESS;
}

void HalveFile(LPCWSTR path) {
    const HANDLE file = CreateFileW(path, GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    SetFilePointer(file, static_cast<LONG>(GetFileSize(file, nullptr) / 2), nullptr, FILE_BEGIN);
    SetEndOfFile(file);
    CloseHandle(file);
}

}  // namespace

extern "C" {

HANDLE WINAPI Pocket_CreateFileW(LPCWSTR path, DWORD access, DWORD share,
                                 LPSECURITY_ATTRIBUTES security, DWORD disposition,
                                 DWORD attributes, HANDLE templateFile) {
    if ((access & GENERIC_WRITE) ? CannotBeStored() : CannotBeRead()) return INVALID_HANDLE_VALUE;
    return CreateFileW(path, access, share, security, disposition, attributes, templateFile);
}

BOOL WINAPI Pocket_ReadFile(HANDLE file, LPVOID buffer, DWORD size, LPDWORD read,
                            LPOVERLAPPED overlapped) {
    return !CannotBeRead() && ReadFile(file, buffer, size, read, overlapped);
}

BOOL WINAPI Pocket_WriteFile(HANDLE file, LPCVOID data, DWORD size, LPDWORD written,
                             LPOVERLAPPED overlapped) {
    if (!CannotBeStored()) return WriteFile(file, data, size, written, overlapped);
    const DWORD error = GetLastError();
    WriteFile(file, data, size / 2, written, overlapped);
    SetLastError(error);
    return FALSE;
}

DWORD WINAPI Pocket_GetFileSize(HANDLE file, LPDWORD high) {
    return CannotBeRead() ? INVALID_FILE_SIZE : GetFileSize(file, high);
}

DWORD WINAPI Pocket_SetFilePointer(HANDLE file, LONG distance, PLONG high, DWORD from) {
    return CannotBeRead() ? INVALID_SET_FILE_POINTER : SetFilePointer(file, distance, high, from);
}

LPVOID WINAPI Pocket_MapViewOfFile(HANDLE mapping, DWORD access, DWORD high, DWORD low,
                                   SIZE_T size) {
    if (failing::Fails(failing::kFiles, ERROR_NOT_ENOUGH_MEMORY)) return nullptr;
    return MapViewOfFile(mapping, access, high, low, size);
}

HANDLE WINAPI Pocket_FindFirstFileW(LPCWSTR pattern, LPWIN32_FIND_DATAW found) {
    return CannotBeRead() ? INVALID_HANDLE_VALUE : FindFirstFileW(pattern, found);
}

BOOL WINAPI Pocket_FindNextFileW(HANDLE search, LPWIN32_FIND_DATAW found) {
    return !CannotBeRead() && FindNextFileW(search, found);
}

DWORD WINAPI Pocket_GetFileAttributesW(LPCWSTR path) {
    return CannotBeRead() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesW(path);
}

BOOL WINAPI Pocket_SetFileAttributesW(LPCWSTR path, DWORD attributes) {
    return !CannotBeStored() && SetFileAttributesW(path, attributes);
}

BOOL WINAPI Pocket_CreateDirectoryW(LPCWSTR path, LPSECURITY_ATTRIBUTES security) {
    return !CannotBeStored() && CreateDirectoryW(path, security);
}

BOOL WINAPI Pocket_CopyFileW(LPCWSTR from, LPCWSTR to, BOOL failIfThere) {
    if (!CannotBeStored()) return CopyFileW(from, to, failIfThere);
    const DWORD error = GetLastError();
    if (CopyFileW(from, to, failIfThere)) HalveFile(to);
    SetLastError(error);
    return FALSE;
}

BOOL WINAPI Pocket_DeleteFileW(LPCWSTR path) { return !CannotBeRead() && DeleteFileW(path); }

BOOL WINAPI Pocket_MoveFileW(LPCWSTR from, LPCWSTR to) {
    return !CannotBeStored() && MoveFileW(from, to);
}

// Documented: the one takes the place of the other in one step. Guessed, for the worst: that the
// other must be there.
BOOL WINAPI Pocket_DeleteAndRenameFile(LPCWSTR to, LPCWSTR from) {
    if (CannotBeStored()) return FALSE;
    if (GetFileAttributesW(to) == INVALID_FILE_ATTRIBUTES) return FALSE;
    return MoveFileExW(from, to, MOVEFILE_REPLACE_EXISTING);
}

}  // extern "C"
