#pragma once

#include <windows.h>

#include "pocketpc/include/windbase.h"

// One change to a database.
struct Notice {
    CEGUID volume;
    CEOID database;
    UINT code;  // DB_CEOID_...
    CEOID oid;
    CEOID parent;
};

// Starts listening for what other processes change; needed once a handle asks for notices.
void ListenForNotices();

// Tells every handle of this process that asked for it, but the one that made the change, and the
// other processes.
void SendNotice(const Notice& notice, HANDLE changer);
