#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "pocketpc/devicectl/properties.h"

// Whether the device is one of the newer kind, whose volumes are EDB's.
bool IsNewerDevice();

// Mounts a volume for the length of a scope. The name "store" means the object store itself.
class MountedVolume {
  public:
    explicit MountedVolume(const std::wstring& name);
    ~MountedVolume();
    MountedVolume(const MountedVolume&) = delete;
    MountedVolume& operator=(const MountedVolume&) = delete;

    explicit operator bool() const { return ready_; }
    bool IsEdb() const { return edb_; }
    CEGUID* guid() { return &guid_; }

  private:
    CEGUID guid_ = {};
    bool ready_ = false;
    bool mounted_ = false;
    bool edb_ = false;
};

// A database that is open for the length of a scope.
class OpenedDatabase {
  public:
    OpenedDatabase(MountedVolume& volume, const std::wstring& name);
    ~OpenedDatabase();
    OpenedDatabase(const OpenedDatabase&) = delete;
    OpenedDatabase& operator=(const OpenedDatabase&) = delete;

    explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE handle() const { return handle_; }
    CEOID oid() const { return oid_; }

  private:
    CEOID oid_ = 0;
    HANDLE handle_;
};

// Makes an empty volume. True as well when there is one already.
bool MakeVolume(const std::wstring& name, bool edb);

// One or more keys joined by "+", each a property and, behind it, "-" for descending and "~" to
// ignore case: "2:string~+0:ui4-".
struct SortText {
    std::vector<SORTORDERSPEC> keys;
};
std::optional<SortText> ParseSort(const std::wstring& text);
std::wstring SortOrderText(const std::vector<SORTORDERSPEC>& keys);

// Returns its identifier, or 0. Fails with ERROR_DUP_NAME when there is one already.
CEOID MakeDatabase(MountedVolume& volume, const std::wstring& name,
                   const std::vector<SortText>& orders);

struct DatabaseText {
    CEOID oid;
    std::wstring name;
    DWORD records;
    std::vector<std::wstring> orders;
};
std::vector<DatabaseText> ListDatabases(MountedVolume& volume);

struct RecordText {
    CEOID oid;
    std::vector<std::wstring> values;
};
std::vector<RecordText> ListRecords(const OpenedDatabase& database);
