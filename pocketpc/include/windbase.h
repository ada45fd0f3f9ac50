// The object-store databases. Programs that use the newer kind of volume (EDB) define EDB before
// they include this; the information blocks then have that kind's layouts.
#pragma once

#include <windows.h>

typedef DWORD CEOID;
typedef CEOID* PCEOID;
typedef DWORD CEPROPID;
typedef CEPROPID* PCEPROPID;

typedef struct _CEGUID {
    DWORD Data1;
    DWORD Data2;
    DWORD Data3;
    DWORD Data4;
} CEGUID, *PCEGUID;

// All zero is the object store itself; the two kinds of volumes have an invalid identifier each.
#define CREATE_SYSTEMGUID(guid) (memset((guid), 0, sizeof(CEGUID)))
#define CREATE_INVALIDGUID(guid) (memset((guid), -1, sizeof(CEGUID)))
#define CREATE_INVALIDEDBGUID(guid) \
    (memset((guid), 0, sizeof(CEGUID)), *(BYTE*)(guid) = 0xFF, (guid))
#define CHECK_SYSTEMGUID(guid) (!((guid)->Data1 | (guid)->Data2 | (guid)->Data3 | (guid)->Data4))
#define CHECK_INVALIDGUID(guid) (!~((guid)->Data1 & (guid)->Data2 & (guid)->Data3 & (guid)->Data4))

// Property identifiers: a number of the program's in the high word, the type in the low one.
#define CEVT_I2 2
#define CEVT_I4 3
#define CEVT_R8 5
#define CEVT_BOOL 11
#define CEVT_UI2 18
#define CEVT_UI4 19
#define CEVT_LPWSTR 31
#define CEVT_FILETIME 64
#define CEVT_BLOB 65
#define CEVT_STREAM 100
#define CEVT_RECID 101
#define CEVT_AUTO_I4 102
#define CEVT_AUTO_I8 103
#define TypeFromPropID(propid) LOWORD(propid)

typedef struct _CEBLOB {
    DWORD dwCount;
    LPBYTE lpb;
} CEBLOB;

typedef union _CEVALUNION {
    short iVal;
    USHORT uiVal;
    long lVal;
    ULONG ulVal;
    FILETIME filetime;
    LPWSTR lpwstr;
    CEBLOB blob;
    BOOL boolVal;
    double dblVal;
} CEVALUNION;

#define CEDB_PROPNOTFOUND 0x0100  // set by a read
#define CEDB_PROPDELETE 0x0200    // asked for by a write

typedef struct _CEPROPVAL {
    CEPROPID propid;
    WORD wLenData;  // not used
    WORD wFlags;
    CEVALUNION val;
} CEPROPVAL, *PCEPROPVAL;

#define CEDB_SORT_DESCENDING 0x00000001
#define CEDB_SORT_CASEINSENSITIVE 0x00000002
#define CEDB_SORT_UNKNOWNFIRST 0x00000004
#define CEDB_SORT_IGNORENONSPACE 0x00000010
#define CEDB_SORT_IGNORESYMBOLS 0x00000020
#define CEDB_SORT_IGNOREKANATYPE 0x00000040
#define CEDB_SORT_IGNOREWIDTH 0x00000080
#define CEDB_SORT_UNIQUE 0x00000200
#define CEDB_SORT_NONNULL 0x00000400
#define CEDB_SORT_PRIMARYKEY 0x00001000

typedef struct _SORTORDERSPEC {
    CEPROPID propid;
    DWORD dwFlags;
} SORTORDERSPEC;

#define CEDB_SORTORDERSPECEX_VERSION_CEDB 1
#define CEDB_SORTORDERSPECEX_VERSION_EDB 2

// The two layouts of what describes a database; the version in a block says which one it has.
typedef struct _SORTORDERSPECEX_CEDB {
    WORD wVersion;
    WORD wNumProps;
    WORD wKeyFlags;
    WORD wReserved;
    CEPROPID rgPropID[3];
    DWORD rgdwFlags[3];
} SORTORDERSPECEX_CEDB;

typedef struct _SORTORDERSPECEX_EDB {
    WORD wVersion;
    WORD wNumProps;
    WORD wKeyFlags;
    WORD wReserved;
    CEPROPID rgPropID[16];
    DWORD rgdwFlags[16];
} SORTORDERSPECEX_EDB;

#define CEDB_VALIDNAME 0x0001
#define CEDB_VALIDTYPE 0x0002
#define CEDB_VALIDSORTSPEC 0x0004
#define CEDB_VALIDMODTIME 0x0008
#define CEDB_VALIDDBFLAGS 0x0010
#define CEDB_VALIDCREATE (CEDB_VALIDNAME | CEDB_VALIDTYPE | CEDB_VALIDSORTSPEC | CEDB_VALIDDBFLAGS)

typedef struct _CEDBASEINFO {
    DWORD dwFlags;
    WCHAR szDbaseName[32];
    DWORD dwDbaseType;
    WORD wNumRecords;
    WORD wNumSortOrder;
    DWORD dwSize;
    FILETIME ftLastModified;
    SORTORDERSPEC rgSortSpecs[4];
} CEDBASEINFO;

#define CEDBASEINFOEX_VERSION_CEDB 1
#define CEDBASEINFOEX_VERSION_EDB 2

typedef struct _CEDBASEINFOEX_CEDB {
    WORD wVersion;
    WORD wNumSortOrder;
    DWORD dwFlags;
    WCHAR szDbaseName[32];
    DWORD dwDbaseType;
    DWORD dwNumRecords;
    DWORD dwSize;
    FILETIME ftLastModified;
    SORTORDERSPECEX_CEDB rgSortSpecs[4];
} CEDBASEINFOEX_CEDB;

// Pages say 16 sort orders, a later header 32, and the version is the same in both.
typedef struct _CEDBASEINFOEX_EDB {
    WORD wVersion;
    WORD wNumSortOrder;
    DWORD dwFlags;
    WCHAR szDbaseName[128];
    DWORD dwDbaseType;
    DWORD dwNumRecords;
    DWORD dwSize;
    FILETIME ftLastModified;
    SORTORDERSPECEX_EDB rgSortSpecs[32];
} CEDBASEINFOEX_EDB;

typedef struct _CEFILEINFO {
    DWORD dwAttributes;
    CEOID oidParent;
    WCHAR szFileName[MAX_PATH];
    FILETIME ftLastChanged;
    DWORD dwLength;
} CEFILEINFO;

typedef struct _CEDIRINFO {
    DWORD dwAttributes;
    CEOID oidParent;
    WCHAR szDirName[MAX_PATH];
} CEDIRINFO;

typedef struct _CERECORDINFO {
    CEOID oidParent;
} CERECORDINFO;

#define OBJTYPE_INVALID 0
#define OBJTYPE_FILE 1
#define OBJTYPE_DIRECTORY 2
#define OBJTYPE_DATABASE 3
#define OBJTYPE_RECORD 4

typedef struct _CEOIDINFO {
    WORD wObjType;
    WORD wPad;
    union {
        CEFILEINFO infFile;
        CEDIRINFO infDirectory;
        CEDBASEINFO infDatabase;
        CERECORDINFO infRecord;
    };
} CEOIDINFO;

#define CEOIDINFOEX_VERSION_CEDB 1
#define CEOIDINFOEX_VERSION_EDB 2

typedef struct _CEOIDINFOEX_CEDB {
    WORD wVersion;  // to be set by the caller
    WORD wObjType;
    union {
        CEFILEINFO infFile;
        CEDIRINFO infDirectory;
        CEDBASEINFOEX_CEDB infDatabase;
        CERECORDINFO infRecord;
    };
} CEOIDINFOEX_CEDB;

typedef struct _CEOIDINFOEX_EDB {
    WORD wVersion;  // to be set by the caller
    WORD wObjType;
    union {
        CEFILEINFO infFile;
        CEDIRINFO infDirectory;
        CEDBASEINFOEX_EDB infDatabase;
        CERECORDINFO infRecord;
    };
} CEOIDINFOEX_EDB;

#ifdef EDB
#define CEDB_MAXDBASENAMELEN 128
#define CEDB_MAXSORTORDER 32
#define CEDB_MAXSORTPROP 16
#define CEDB_MAXPROPDATASIZE (8 * 1024)
#define CEDB_MAXRECORDSIZE (8 * 1024)
#define SORTORDERSPECEX_VERSION CEDB_SORTORDERSPECEX_VERSION_EDB
#define CEDBASEINFOEX_VERSION CEDBASEINFOEX_VERSION_EDB
#define CEOIDINFOEX_VERSION CEOIDINFOEX_VERSION_EDB
typedef SORTORDERSPECEX_EDB SORTORDERSPECEX;
typedef CEDBASEINFOEX_EDB CEDBASEINFOEX;
typedef CEOIDINFOEX_EDB CEOIDINFOEX;
#else
#define CEDB_MAXDBASENAMELEN 32
#define CEDB_MAXSORTORDER 4
#define CEDB_MAXSORTPROP 3
#define CEDB_MAXDATABLOCKSIZE 4092
#define CEDB_MAXPROPDATASIZE (CEDB_MAXDATABLOCKSIZE * 16)
#define CEDB_MAXRECORDSIZE (128 * 1024)
#define SORTORDERSPECEX_VERSION CEDB_SORTORDERSPECEX_VERSION_CEDB
#define CEDBASEINFOEX_VERSION CEDBASEINFOEX_VERSION_CEDB
#define CEOIDINFOEX_VERSION CEOIDINFOEX_VERSION_CEDB
typedef SORTORDERSPECEX_CEDB SORTORDERSPECEX;
typedef CEDBASEINFOEX_CEDB CEDBASEINFOEX;
typedef CEOIDINFOEX_CEDB CEOIDINFOEX;
#endif

// Notifications. Without CEDB_EXNOTIFICATION the window gets the code itself as a message, with the
// object and its parent as parameters; with it WM_DBNOTIFICATION with a CENOTIFICATION to be freed.
#define WM_DBNOTIFICATION 0x03FD
#define CEDB_EXNOTIFICATION 0x00000001
#define DB_CEOID_CREATED (WM_USER + 1)
#define DB_CEOID_DATABASE_DELETED (WM_USER + 2)
#define DB_CEOID_RECORD_DELETED (WM_USER + 3)
#define DB_CEOID_FILE_DELETED (WM_USER + 4)
#define DB_CEOID_DIRECTORY_DELETED (WM_USER + 5)
#define DB_CEOID_CHANGED (WM_USER + 6)
#define DB_NOTIFY_VOLUME_CHANGED (WM_USER + 8)

typedef struct _CENOTIFYREQUEST {
    DWORD dwSize;
    HWND hwnd;
    DWORD dwFlags;
    HANDLE hHeap;   // where notifications are allocated; null: the process's heap
    DWORD dwParam;  // comes back with each notification
} CENOTIFYREQUEST, *PCENOTIFYREQUEST;

typedef struct _CENOTIFICATION {
    DWORD dwSize;
    DWORD dwParam;
    UINT uType;
    CEGUID guid;
    CEOID oid;
    CEOID oidParent;
} CENOTIFICATION;

#define EDB_MOUNT_FLAG 0x80000000  // with the flags of CeMountDBVol: a volume of the newer kind
#define CEDB_AUTOINCREMENT 0x00000001
#define CEDB_ALLOWREALLOC 0x00000001

#define CEDB_SEEK_CEOID 0x00000001
#define CEDB_SEEK_BEGINNING 0x00000002
#define CEDB_SEEK_END 0x00000004
#define CEDB_SEEK_CURRENT 0x00000008
#define CEDB_SEEK_VALUESMALLER 0x00000010
#define CEDB_SEEK_VALUEFIRSTEQUAL 0x00000020
#define CEDB_SEEK_VALUEGREATER 0x00000040
#define CEDB_SEEK_VALUENEXTEQUAL 0x00000080
#define CEDB_SEEK_PREFIX 0x00000100
#define CEDB_SEEK_VALUEGREATEROREQUAL 0x00000200
#define CEDB_SEEK_VALUESMALLEROREQUAL 0x00000400

EXTERN_C BOOL WINAPI CeMountDBVol(PCEGUID guid, LPWSTR path, DWORD flags);
EXTERN_C BOOL WINAPI CeUnmountDBVol(PCEGUID guid);
EXTERN_C BOOL WINAPI CeEnumDBVolumes(PCEGUID guid, LPWSTR path, DWORD characters);
EXTERN_C BOOL WINAPI CeFlushDBVol(PCEGUID guid);

EXTERN_C CEOID WINAPI CeCreateDatabaseEx(PCEGUID guid, CEDBASEINFO* info);
EXTERN_C HANDLE WINAPI CeOpenDatabaseEx(PCEGUID guid, PCEOID oid, LPWSTR name, CEPROPID sort,
                                        DWORD flags, CENOTIFYREQUEST* request);
EXTERN_C BOOL WINAPI CeDeleteDatabaseEx(PCEGUID guid, CEOID oid);
EXTERN_C HANDLE WINAPI CeFindFirstDatabaseEx(PCEGUID guid, DWORD type);
EXTERN_C CEOID WINAPI CeFindNextDatabaseEx(HANDLE search, PCEGUID guid);
EXTERN_C BOOL WINAPI CeOidGetInfoEx(PCEGUID guid, CEOID oid, CEOIDINFO* info);
EXTERN_C BOOL WINAPI CeSetDatabaseInfoEx(PCEGUID guid, CEOID oid, CEDBASEINFO* info);
EXTERN_C CEOID WINAPI CeSeekDatabase(HANDLE database, DWORD type, DWORD_PTR value, LPDWORD index);
EXTERN_C CEOID WINAPI CeReadRecordProps(HANDLE database, DWORD flags, LPWORD count, CEPROPID* ids,
                                        LPBYTE* buffer, LPDWORD size);
EXTERN_C CEOID WINAPI CeReadRecordPropsEx(HANDLE database, DWORD flags, LPWORD count, CEPROPID* ids,
                                          LPBYTE* buffer, LPDWORD size, HANDLE heap);
EXTERN_C CEOID WINAPI CeWriteRecordProps(HANDLE database, CEOID oid, WORD count, CEPROPVAL* values);
EXTERN_C BOOL WINAPI CeDeleteRecord(HANDLE database, CEOID oid);
EXTERN_C BOOL WINAPI CeFreeNotification(CENOTIFYREQUEST* request, CENOTIFICATION* notification);

// On newer devices. A value to seek is passed as a pointer to one CEPROPVAL for each key.
EXTERN_C CEOID WINAPI CeCreateDatabaseEx2(PCEGUID guid, CEDBASEINFOEX* info);
EXTERN_C HANDLE WINAPI CeOpenDatabaseEx2(PCEGUID guid, PCEOID oid, LPWSTR name,
                                         SORTORDERSPECEX* sort, DWORD flags,
                                         CENOTIFYREQUEST* request);
// Newer volumes only; without a session every call is complete in itself.
EXTERN_C HANDLE WINAPI CeOpenDatabaseInSession(HANDLE session, PCEGUID guid, PCEOID oid,
                                               LPWSTR name, SORTORDERSPECEX* sort, DWORD flags,
                                               CENOTIFYREQUEST* request);
EXTERN_C CEOID WINAPI CeSeekDatabaseEx(HANDLE database, DWORD type, DWORD_PTR value, WORD count,
                                       LPDWORD index);
EXTERN_C BOOL WINAPI CeOidGetInfoEx2(PCEGUID guid, CEOID oid, CEOIDINFOEX* info);
EXTERN_C BOOL WINAPI CeSetDatabaseInfoEx2(PCEGUID guid, CEOID oid, CEDBASEINFOEX* info);
