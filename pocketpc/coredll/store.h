#pragma once

#include <windows.h>

#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "pocketpc/coredll/volume.h"

// What a handle of the store stands for. Closing the handle destroys it.
class StoreObject {
  public:
    virtual ~StoreObject() = default;
};

// The databases as this process sees them: the volumes that are mounted and the handles that are
// open. Whoever uses it holds its mutex.
class Store {
  public:
    // Lives until the process ends, as handles may be closed while libraries unload.
    static Store& Get();

    std::recursive_mutex& mutex() { return mutex_; }

    bool Mount(CEGUID& guid, const wchar_t* path, DWORD flags);
    bool Unmount(const CEGUID& guid);
    // The volume after `guid`, or the first one after an invalid identifier.
    bool Next(CEGUID& guid, std::wstring& name);

    // The volume with this identifier; null, with the last error set, when there is none. The
    // object store itself is made when it is first written to.
    std::shared_ptr<Volume> Find(const CEGUID& guid, bool toWrite = false);
    // Identifiers of the object store and of all mounted volumes.
    std::vector<CEGUID> All();
    CEGUID IdentifierOf(const Volume& volume) const;

    HANDLE Open(std::unique_ptr<StoreObject> object);
    bool Close(HANDLE handle);
    // Null, with the last error set, when the handle stands for nothing of this kind.
    template <typename Kind>
    Kind* ObjectOf(HANDLE handle) {
        for (const auto& [known, object] : handles_) {
            if (known != handle) continue;
            if (const auto found = dynamic_cast<Kind*>(object.get())) return found;
        }
        SetLastError(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    template <typename Kind, typename Action>
    void ForEach(Action action) {
        for (const auto& [handle, object] : handles_) {
            if (const auto found = dynamic_cast<Kind*>(object.get())) action(handle, *found);
        }
    }

  private:
    struct Mounted {
        CEGUID guid;
        std::wstring name;  // as the one who mounted it called it
        std::shared_ptr<Volume> volume;
        int count;  // of this process's mounts
        bool system;
    };

    void MountSystemVolume();
    std::vector<Mounted>::iterator Locate(const CEGUID& guid);

    std::recursive_mutex mutex_;
    std::vector<Mounted> volumes_;
    std::shared_ptr<Volume> objectStore_;
    std::vector<std::pair<HANDLE, std::unique_ptr<StoreObject>>> handles_;
};

bool IsSame(const CEGUID& left, const CEGUID& right);
// Whether it is one of the two identifiers that no volume has.
bool IsInvalid(const CEGUID& guid);
