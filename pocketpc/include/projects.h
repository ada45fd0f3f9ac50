// The note folders ("projects") of the device's documents.
#pragma once

#include <windows.h>

enum EnumProjectsFlags {
    PRJ_ENUM_MEMORY = 0x1,
    PRJ_ENUM_FLASH = 0x2,
    PRJ_ENUM_ALL_DEVICES = 0x4,
    PRJ_ENUM_ALL_PROJ = 0x10,
    PRJ_ENUM_HOME_PROJ = 0x100,
};

// The kinds of m_IDtype. The desktop's headers have another type of the device's name,
// FILE_ID_TYPE.
enum {
    FILE_ID_TYPE_OID = 0,
    FILE_ID_TYPE_PATHNAME = 1,
};

// A folder, named by its object identifier or by its path.
typedef struct PAstruct {
    int m_IDtype;
    union {
        DWORD m_fileOID;
        WCHAR m_szPathname[96];
    };
} PAstruct;

// FALSE ends the enumeration.
typedef BOOL(CALLBACK* PROJECTS_ENUMPROC)(PAstruct* project, LPARAM context);

// Number of folders; without a callback they are only counted. Its ordinal is 21.
EXTERN_C int WINAPI EnumProjectsEx(PROJECTS_ENUMPROC callback, DWORD flashOid, DWORD flags,
                                   LPARAM context);
