#include "pocketpc/coredll/store.h"

#include <algorithm>
#include <cstring>

#include "pocketpc/common/failing_calls.h"
#include "pocketpc/coredll/device.h"

namespace {

constexpr wchar_t kObjectStore[] = L"\\device.store";
// Newer devices keep the owner's data in a volume that is mounted from the start.
constexpr wchar_t kSystemVolume[] = L"pim.vol";

bool IsNewerDevice() { return ThisDevice().major >= 5; }

bool IsFile(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// A device has no current folder: what is not absolute lies in the root.
std::wstring FullPath(const std::wstring& path) {
    wchar_t full[MAX_PATH] = {};
    const bool absolute = path.starts_with(L"\\") || path.find(L':') != std::wstring::npos;
    GetFullPathNameW((absolute ? path : L"\\" + path).c_str(), MAX_PATH, full, nullptr);
    return full;
}

// The same file has the same identifier in every process.
CEGUID IdentifierOfPath(std::wstring path) {
    CharLowerBuffW(path.data(), static_cast<DWORD>(path.size()));
    unsigned long long hash = 14695981039346656037ull;  // FNV-1a
    for (const wchar_t c : path) hash = (hash ^ c) * 1099511628211ull;
    return {0x564F4C31, static_cast<DWORD>(hash), static_cast<DWORD>(hash >> 32), 0x1};
}

}  // namespace

bool IsSame(const CEGUID& left, const CEGUID& right) {
    return std::memcmp(&left, &right, sizeof left) == 0;
}

bool IsInvalid(const CEGUID& guid) {
    CEGUID edb;
    CREATE_INVALIDEDBGUID(&edb);
    return CHECK_INVALIDGUID(&guid) || IsSame(guid, edb);
}

Store& Store::Get() {
    static Store& store = *new Store;
    return store;
}

void Store::MountSystemVolume() {
    if (!IsNewerDevice()) return;
    if (std::any_of(volumes_.begin(), volumes_.end(), [](const Mounted& m) { return m.system; })) {
        return;
    }
    const std::wstring path = FullPath(kSystemVolume);
    if (!IsFile(path)) return;
    if (auto volume = Volume::Open(path, OPEN_EXISTING, kEdb)) {
        volumes_.insert(volumes_.begin(),
                        {IdentifierOfPath(path), kSystemVolume, std::move(volume), 0, true});
    }
}

std::vector<Store::Mounted>::iterator Store::Locate(const CEGUID& guid) {
    return std::find_if(volumes_.begin(), volumes_.end(),
                        [&](const Mounted& mounted) { return IsSame(mounted.guid, guid); });
}

bool Store::Mount(CEGUID& guid, const wchar_t* path, DWORD flags) {
    const bool edb = (flags & EDB_MOUNT_FLAG) != 0;
    const DWORD disposition = flags & ~EDB_MOUNT_FLAG;
    if (!path || !*path || (edb && !IsNewerDevice())) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return false;
    }
    MountSystemVolume();
    const std::wstring full = FullPath(path);
    const CEGUID identifier = IdentifierOfPath(full);
    const VolumeKind& kind = edb ? kEdb : kCedb;
    const auto known = Locate(identifier);
    if (known != volumes_.end()) {
        if (disposition != OPEN_EXISTING && disposition != OPEN_ALWAYS) {
            SetLastError(disposition == CREATE_NEW ? ERROR_ALREADY_EXISTS
                                                   : ERROR_SHARING_VIOLATION);
            return false;
        }
        if (known->volume->kind().format != kind.format) {
            SetLastError(ERROR_ACCESS_DENIED);
            return false;
        }
        ++known->count;
    } else {
        auto volume = Volume::Open(full, disposition, kind);
        if (!volume) return false;
        volumes_.push_back({identifier, path, std::move(volume), 1, false});
    }
    guid = identifier;
    return true;
}

bool Store::Unmount(const CEGUID& guid) {
    const auto mounted = Locate(guid);
    if (mounted == volumes_.end() || mounted->count == 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return false;
    }
    // The handles that are open in it hold it as well.
    if (mounted->count == 1 && !mounted->system && mounted->volume.use_count() > 1) {
        SetLastError(ERROR_SHARING_VIOLATION);
        return false;
    }
    if (--mounted->count == 0 && !mounted->system) volumes_.erase(mounted);
    return true;
}

bool Store::Next(CEGUID& guid, std::wstring& name) {
    MountSystemVolume();
    auto next = volumes_.begin();
    if (!IsInvalid(guid)) {
        next = Locate(guid);
        if (next == volumes_.end()) {
            SetLastError(ERROR_INVALID_PARAMETER);
            return false;
        }
        ++next;
    }
    if (next == volumes_.end()) {
        SetLastError(ERROR_NO_MORE_ITEMS);
        return false;
    }
    guid = next->guid;
    name = next->name;
    return true;
}

std::shared_ptr<Volume> Store::Find(const CEGUID& guid, bool toWrite) {
    if (CHECK_SYSTEMGUID(&guid)) {
        const std::wstring path = FullPath(kObjectStore);
        if (!objectStore_ && (toWrite || IsFile(path))) {
            objectStore_ = Volume::Open(path, toWrite ? OPEN_ALWAYS : OPEN_EXISTING, kCedb);
        } else if (!objectStore_) {
            SetLastError(ERROR_FILE_NOT_FOUND);
        }
        return objectStore_;
    }
    MountSystemVolume();
    const auto mounted = Locate(guid);
    if (mounted != volumes_.end()) return mounted->volume;
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
}

std::vector<CEGUID> Store::All() {
    MountSystemVolume();
    std::vector<CEGUID> all(1);
    for (const Mounted& mounted : volumes_) all.push_back(mounted.guid);
    return all;
}

CEGUID Store::IdentifierOf(const Volume& volume) const {
    for (const Mounted& mounted : volumes_) {
        if (mounted.volume.get() == &volume) return mounted.guid;
    }
    return {};
}

HANDLE Store::Open(std::unique_ptr<StoreObject> object) {
    // A kernel object of its own keeps the handle's number from meaning anything else.
    const HANDLE handle = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    if (!handle) return INVALID_HANDLE_VALUE;
    handles_.emplace_back(handle, std::move(object));
    return handle;
}

bool Store::Close(HANDLE handle) {
    const auto found = std::find_if(handles_.begin(), handles_.end(),
                                    [&](const auto& known) { return known.first == handle; });
    if (found == handles_.end()) return false;
    const auto object = std::move(found->second);
    handles_.erase(found);
    CloseHandle(handle);
    return true;
}

namespace {

bool Fails() { return failing::Fails(failing::kDatabases, ERROR_NOT_ENOUGH_MEMORY); }

}  // namespace

extern "C" {

BOOL WINAPI CeMountDBVol(PCEGUID guid, LPWSTR path, DWORD flags) {
    const std::lock_guard lock(Store::Get().mutex());
    CEGUID mounted;
    if (!guid) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    // The caller's identifier is an invalid one after a failure.
    if (flags & EDB_MOUNT_FLAG) {
        CREATE_INVALIDEDBGUID(guid);
    } else {
        CREATE_INVALIDGUID(guid);
    }
    if (Fails() || !Store::Get().Mount(mounted, path, flags)) return FALSE;
    *guid = mounted;
    return TRUE;
}

BOOL WINAPI CeUnmountDBVol(PCEGUID guid) {
    const std::lock_guard lock(Store::Get().mutex());
    if (guid) return Store::Get().Unmount(*guid);
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
}

BOOL WINAPI CeEnumDBVolumes(PCEGUID guid, LPWSTR buffer, DWORD characters) {
    const std::lock_guard lock(Store::Get().mutex());
    CEGUID next = guid ? *guid : CEGUID{};
    std::wstring name;
    if (!guid || !buffer) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    if (Fails() || !Store::Get().Next(next, name)) return FALSE;
    if (characters <= name.size()) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return FALSE;
    }
    *guid = next;
    wcscpy(buffer, name.c_str());
    return TRUE;
}

// Every change is in the file at once; there is nothing to be done.
BOOL WINAPI CeFlushDBVol(PCEGUID guid) {
    const std::lock_guard lock(Store::Get().mutex());
    return !guid || CHECK_SYSTEMGUID(guid) || Store::Get().Find(*guid);
}

BOOL WINAPI Pocket_CloseHandle(HANDLE handle) {
    {
        const std::lock_guard lock(Store::Get().mutex());
        if (Store::Get().Close(handle)) return TRUE;
    }
    return CloseHandle(handle);
}

}  // extern "C"
