// The structures that programs and the device's libraries hand to each other, as a device has them:
// nothing to be run, compiled where a pointer has the device's size. Where the desktop's structure
// goes on behind the device's, its last member stands for the size.
#include <windows.h>

#include <aygshell.h>
#include <cemapi.h>
#include <commctrl.h>
#include <projects.h>
#include <sipapi.h>
#include <windbase.h>

#include <cstddef>

// The end of a member, and so the size of a structure that it closes.
#define END_OF(structure, member) \
    (offsetof(structure, member) + sizeof(static_cast<structure*>(nullptr)->member))

// What they are made of.
static_assert(sizeof(void*) == 4 && sizeof(WPARAM) == 4 && sizeof(LPARAM) == 4);
static_assert(sizeof(long) == 4 && sizeof(wchar_t) == 2 && sizeof(TCHAR) == 2);
static_assert(sizeof(BOOL) == 4 && sizeof(FILETIME) == 8 && alignof(double) == 8);

// The system and its input panel.
static_assert(sizeof(OSVERSIONINFOW) == 276);
static_assert(sizeof(SIPINFO) == 48);
static_assert(offsetof(SIPINFO, rcVisibleDesktop) == 8 && offsetof(SIPINFO, rcSipRect) == 24);
static_assert(offsetof(SIPINFO, dwImDataSize) == 40 && offsetof(SIPINFO, pvImData) == 44);

// The shell.
static_assert(sizeof(SHMENUBARINFO) == 36);
static_assert(offsetof(SHMENUBARINFO, hwndParent) == 4 &&
              offsetof(SHMENUBARINFO, nToolBarId) == 12);
static_assert(offsetof(SHMENUBARINFO, hInstRes) == 16 && offsetof(SHMENUBARINFO, nBmpId) == 20);
static_assert(offsetof(SHMENUBARINFO, hwndMB) == 28 && offsetof(SHMENUBARINFO, clrBk) == 32);
static_assert(sizeof(SHINITDLGINFO) == 12 && offsetof(SHINITDLGINFO, hDlg) == 4);
static_assert(sizeof(SHACTIVATEINFO) == 12 && offsetof(SHACTIVATEINFO, hwndLastFocus) == 4);

// Common controls. Property sheets and pages have 40 bytes; the desktop's have three members more,
// and programs pass the size that their headers have.
static_assert(END_OF(PROPSHEETHEADERW, pfnCallback) == 40);
static_assert(offsetof(PROPSHEETHEADERW, hwndParent) == 8 &&
              offsetof(PROPSHEETHEADERW, nPages) == 24);
static_assert(offsetof(PROPSHEETHEADERW, phpage) == 32);
static_assert(END_OF(PROPSHEETPAGEW, pcRefParent) == 40);
static_assert(offsetof(PROPSHEETPAGEW, pszTemplate) == 12 &&
              offsetof(PROPSHEETPAGEW, lParam) == 28);
static_assert(sizeof(TBBUTTONINFOW) == 32 && offsetof(TBBUTTONINFOW, lParam) == 20);
static_assert(sizeof(NMRGINFO) == 24 && offsetof(NMRGINFO, ptAction) == 12);

// Databases.
static_assert(sizeof(CEOID) == 4 && sizeof(CEPROPID) == 4 && sizeof(CEGUID) == 16);
static_assert(sizeof(CEBLOB) == 8 && offsetof(CEBLOB, lpb) == 4);
static_assert(sizeof(CEVALUNION) == 8);
static_assert(sizeof(CEPROPVAL) == 16 && offsetof(CEPROPVAL, wFlags) == 6);
static_assert(offsetof(CEPROPVAL, val) == 8);
static_assert(sizeof(SORTORDERSPEC) == 8);
static_assert(sizeof(SORTORDERSPECEX_CEDB) == 32 && sizeof(SORTORDERSPECEX_EDB) == 136);
static_assert(offsetof(SORTORDERSPECEX_EDB, rgPropID) == 8);
static_assert(offsetof(SORTORDERSPECEX_EDB, rgdwFlags) == 72);
static_assert(sizeof(CEDBASEINFO) == 120);
static_assert(offsetof(CEDBASEINFO, wNumRecords) == 72 && offsetof(CEDBASEINFO, rgSortSpecs) == 88);
static_assert(sizeof(CEDBASEINFOEX_CEDB) == 220);
static_assert(offsetof(CEDBASEINFOEX_CEDB, dwDbaseType) == 72);
static_assert(offsetof(CEDBASEINFOEX_CEDB, rgSortSpecs) == 92);
// With 16 sort orders, as pages say, it ends at 2460.
static_assert(sizeof(CEDBASEINFOEX_EDB) == 4636);
static_assert(offsetof(CEDBASEINFOEX_EDB, rgSortSpecs) + 16 * sizeof(SORTORDERSPECEX_EDB) == 2460);
static_assert(offsetof(CEOIDINFOEX_CEDB, infDatabase) == 4);
static_assert(offsetof(CEOIDINFOEX_EDB, infDatabase) == 4 && sizeof(CEOIDINFOEX_EDB) == 4640);
static_assert(sizeof(CENOTIFYREQUEST) == 20 && offsetof(CENOTIFYREQUEST, hHeap) == 12);
static_assert(sizeof(CENOTIFICATION) == 36 && offsetof(CENOTIFICATION, guid) == 12);
static_assert(offsetof(CENOTIFICATION, oid) == 28);

// Messaging.
static_assert(sizeof(SBinary) == 8 && offsetof(SPropTagArray, aulPropTag) == 4);
static_assert(sizeof(SPropValue) == 16 && offsetof(SPropValue, Value) == 8);
static_assert(sizeof(SRow) == 12 && offsetof(SRow, lpProps) == 8 && offsetof(SRowSet, aRow) == 4);

// Note folders.
static_assert(sizeof(PAstruct) == 196 && offsetof(PAstruct, m_szPathname) == 4);
