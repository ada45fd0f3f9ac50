#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "pages/stores/database_layer.h"

// A folder of a storage. A number that is missing is -1.
struct Mail2Folder {
    CEOID oid = 0;
    std::int32_t value = -1;
    std::int32_t type = -1;  // 1 inbox, 2 outbox, 3 sent items, 4 deleted items, 5 drafts
    std::wstring name;
};

// Mounts a volume for as long as it lives.
class MountedMail2Volume {
  public:
    explicit MountedMail2Volume(const std::wstring& path);
    ~MountedMail2Volume();
    MountedMail2Volume(const MountedMail2Volume&) = delete;
    MountedMail2Volume& operator=(const MountedMail2Volume&) = delete;

    explicit operator bool() const { return mounted_; }
    const CEGUID& guid() const { return guid_; }

  private:
    CEGUID guid_ = {};
    bool mounted_;
};

// One mail storage: a volume with its databases open. Several services may share it.
class Mail2Storage {
  public:
    // Null when the volume cannot be mounted, one of its databases cannot be opened, or it has no
    // folders.
    static std::unique_ptr<Mail2Storage> Open(const std::wstring& storage, const std::wstring& name,
                                              const std::wstring& path);

    const std::wstring& storage() const { return storage_; }
    const std::wstring& name() const { return name_; }
    // Names the storage for good: the base name of its volume's file in upper case.
    const std::wstring& key() const { return key_; }
    const std::vector<std::wstring>& services() const { return services_; }
    const std::vector<Mail2Folder>& folders() const { return folders_; }
    // What the storage says of itself.
    const Mail2Folder& info() const { return info_; }

    void AddService(const std::wstring& service) { services_.push_back(service); }

    // Identifies a folder among those of all storages: its record identifier, least significant
    // byte first, and the storage's key in UTF-16.
    std::vector<std::uint8_t> FolderIdentifier(const Mail2Folder& folder) const;

  private:
    Mail2Storage(const std::wstring& storage, const std::wstring& name, const std::wstring& path);
    DatabaseHandle OpenDatabase(const wchar_t* name, CEPROPID sort = 0) const;
    bool OpenDatabases();

    std::wstring storage_;
    std::wstring name_;
    std::wstring key_;
    std::vector<std::wstring> services_;
    std::vector<Mail2Folder> folders_;
    Mail2Folder info_;
    // The databases are closed before their volume is given up.
    MountedMail2Volume volume_;
    DatabaseHandle foldersDatabase_;
    DatabaseHandle messages_;
    DatabaseHandle bodies_;
};
