#pragma once

#include <windows.h>

// Newer devices' volumes are of the newer kind; the older calls know nothing of its layouts.
#define EDB
#include <windbase.h>

#include <string>

#include "pages/stores/database_handle.h"

// The database functions that only newer devices have, by the names they are looked up with. One
// that the device lacks is null.
struct NewerDatabaseFunctions {
    decltype(&CeOpenDatabaseEx2) openDatabase = nullptr;
    decltype(&CeReadRecordPropsEx) readRecord = nullptr;
    decltype(&CeSeekDatabaseEx) seek = nullptr;
    decltype(&CeOidGetInfoEx2) getInfo = nullptr;
    decltype(&CeOpenDatabaseInSession) openInSession = nullptr;
    HANDLE(WINAPI* openStream)(HANDLE database, CEPROPID property, DWORD mode) = nullptr;
    BOOL(WINAPI* readStream)(HANDLE stream, LPBYTE bytes, DWORD size, LPDWORD read) = nullptr;
    BOOL(WINAPI* writeStream)(HANDLE stream, LPBYTE bytes, DWORD size, LPDWORD written) = nullptr;
    BOOL(WINAPI* saveStream)(HANDLE stream) = nullptr;
    BOOL(WINAPI* seekStream)(HANDLE stream, DWORD move, DWORD origin, LPDWORD position) = nullptr;
    BOOL(WINAPI* resizeStream)(HANDLE stream, DWORD size) = nullptr;
};

// The order that a database's records are read in: none, one with a property among its keys, or, on
// newer devices, the one at a position in the database's list.
struct DatabaseSort {
    CEPROPID property = 0;
    int position = -1;
};

struct DatabaseRequest {
    const CEGUID* volume = nullptr;  // null: where the device keeps the owner's data
    std::wstring name;               // counts when there is no oid
    CEOID oid = 0;
    DatabaseSort sort;
    DWORD flags = 0;  // CEDB_AUTOINCREMENT
    CENOTIFYREQUEST* notify = nullptr;
};

// Opens the device's databases with the calls that it has, older or newer.
class DatabaseLayer {
  public:
    DatabaseLayer();

    const NewerDatabaseFunctions& newer() const { return newer_; }

    // The volume "pim.vol", looked for once; all zero where none is mounted, as on older devices,
    // which keep the owner's data in the object store itself.
    const CEGUID& PimVolume();

    // No handle when it fails. `oid` receives the database's object identifier.
    DatabaseHandle Open(const DatabaseRequest& request, CEOID* oid = nullptr);

    // Moves to a record as CeSeekDatabase does. 0 when there is none.
    CEOID Seek(HANDLE database, DWORD type, DWORD value) const;

    // As CeReadRecordProps, with memory that LocalFree frees.
    CEOID ReadRecord(HANDLE database, WORD* count, CEPROPID* properties, BYTE** buffer,
                     DWORD* size) const;

  private:
    DatabaseHandle OpenOnNewer(const DatabaseRequest& request, CEOID& oid);

    NewerDatabaseFunctions newer_;
    CEGUID pimVolume_ = {};
    bool pimVolumeSought_ = false;
};

// The process's one.
DatabaseLayer& GetDatabaseLayer();
