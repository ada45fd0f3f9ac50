// The device's messaging library: sessions, message stores, folders and tables. The order of the
// methods is that of the objects' tables of functions.
#pragma once

#include <windows.h>

#include <objbase.h>

// Types of values, in the low word of a property tag, and how the two are joined.
#define PT_UNSPECIFIED 0UL
#define PT_LONG 3UL
#define PT_ERROR 10UL
#define PT_BOOLEAN 11UL
#define PT_TSTRING 0x1FUL
#define PT_UNICODE 0x1FUL
#define PT_BINARY 0x102UL
#define PROP_TAG(type, id) (((ULONG)(id)) << 16 | ((ULONG)(type)))
#define PROP_TYPE(tag) (((ULONG)(tag)) & 0xFFFFUL)
#define PROP_ID(tag) (((ULONG)(tag)) >> 16)
#define CHANGE_PROP_TYPE(tag, type) ((((ULONG)(tag)) & 0xFFFF0000UL) | (type))

#define PR_OBJECT_TYPE PROP_TAG(PT_LONG, 0x0FFE)
#define PR_ENTRYID PROP_TAG(PT_BINARY, 0x0FFF)
#define PR_DISPLAY_NAME PROP_TAG(PT_TSTRING, 0x3001)
#define PR_DISPLAY_NAME_W PROP_TAG(PT_UNICODE, 0x3001)
#define PR_IPM_SUBTREE_ENTRYID PROP_TAG(PT_BINARY, 0x35E0)
#define PR_IPM_OUTBOX_ENTRYID PROP_TAG(PT_BINARY, 0x35E2)
#define PR_IPM_WASTEBASKET_ENTRYID PROP_TAG(PT_BINARY, 0x35E3)
#define PR_IPM_SENTMAIL_ENTRYID PROP_TAG(PT_BINARY, 0x35E4)
#define PR_SUBFOLDERS PROP_TAG(PT_BOOLEAN, 0x360A)
#define PR_CE_IPM_DRAFTS_ENTRYID PROP_TAG(PT_BINARY, 0x8104)
#define PR_CE_IPM_INBOX_ENTRYID PROP_TAG(PT_BINARY, 0x8106)
// The name of a store's transport service, on systems from 5.0 on. Before that it was another
// property, for which the SDK has no name.
#define PR_CE_TRANSPORT_NAME PROP_TAG(PT_TSTRING, 0x8117)

#define MAPI_UNICODE 0x80000000UL

// Kinds of objects.
#define MAPI_STORE 1UL
#define MAPI_FOLDER 3UL
#define MAPI_MESSAGE 5UL

#define MAPI_E_NO_SUPPORT ((HRESULT)0x80040102L)
#define MAPI_E_NOT_FOUND ((HRESULT)0x8004010FL)
#define MAPI_E_END_OF_SESSION ((HRESULT)0x80040200L)
#define MAPI_E_INTERFACE_NOT_SUPPORTED E_NOINTERFACE
#define MAPI_E_INVALID_PARAMETER E_INVALIDARG
#define MAPI_E_NOT_ENOUGH_MEMORY E_OUTOFMEMORY
#define MAPI_W_ERRORS_RETURNED ((HRESULT)0x00040380L)

typedef ULONG FLAGS;
typedef struct {
    BYTE abFlags[4];
    BYTE ab[1];
} ENTRYID, *LPENTRYID;
typedef const IID* LPCIID;

typedef struct _SBinary {
    ULONG cb;
    LPBYTE lpb;
} SBinary, *LPSBinary;

typedef struct _SPropTagArray {
    ULONG cValues;
    ULONG aulPropTag[1];
} SPropTagArray, *LPSPropTagArray;
// An array with room for some tags, of which the first is the count.
#define SizedSPropTagArray(count, name) \
    struct {                            \
        ULONG cValues;                  \
        ULONG aulPropTag[count];        \
    } name

typedef struct _SPropValue {
    ULONG ulPropTag;
    ULONG dwAlignPad;
    union {
        short i;
        LONG l;
        ULONG ul;
        unsigned short b;
        double dbl;
        FILETIME ft;
        LARGE_INTEGER li;
        LPSTR lpszA;
        LPWSTR lpszW;
        SBinary bin;
        LPGUID lpguid;
        SCODE err;
    } Value;
} SPropValue, *LPSPropValue;

typedef struct _SRow {
    ULONG ulAdrEntryPad;
    ULONG cValues;
    LPSPropValue lpProps;
} SRow, *LPSRow;

typedef struct _SRowSet {
    ULONG cRows;
    SRow aRow[1];
} SRowSet, *LPSRowSet;

// What only passes through methods that nothing of ours calls.
struct MAPIERROR;
struct MAPIUID;
struct MAPINAMEID;
struct SPropProblemArray;
struct SRestriction;
struct SSortOrderSet;
struct ENTRYLIST;
struct IMAPIAdviseSink;
struct IMAPIProgress;
struct IAddrBook;
struct IProfSect;
struct IMsgServiceAdmin;
struct IMessage;
struct IMAPITable;
struct IMAPIFolder;
struct IMsgStore;
typedef ULONG_PTR BOOKMARK;

inline constexpr IID IID_IMAPISession = {0x00020300, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_IMAPITable = {0x00020301, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_IMAPIProp = {0x00020303, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_IMsgStore = {0x00020306, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_IMAPIContainer = {0x0002030B, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_IMAPIFolder = {0x0002030C, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

#define MAPI_METHOD(name) virtual HRESULT STDMETHODCALLTYPE name

struct IMAPITable : IUnknown {
    MAPI_METHOD(GetLastError)(HRESULT result, ULONG flags, MAPIERROR** error) = 0;
    MAPI_METHOD(Advise)(ULONG events, IMAPIAdviseSink* sink, ULONG* connection) = 0;
    MAPI_METHOD(Unadvise)(ULONG connection) = 0;
    MAPI_METHOD(GetStatus)(ULONG* status, ULONG* type) = 0;
    MAPI_METHOD(SetColumns)(LPSPropTagArray tags, ULONG flags) = 0;
    MAPI_METHOD(QueryColumns)(ULONG flags, LPSPropTagArray* tags) = 0;
    MAPI_METHOD(GetRowCount)(ULONG flags, ULONG* count) = 0;
    MAPI_METHOD(SeekRow)(BOOKMARK origin, LONG count, LONG* sought) = 0;
    MAPI_METHOD(SeekRowApprox)(ULONG numerator, ULONG denominator) = 0;
    MAPI_METHOD(QueryPosition)(ULONG* row, ULONG* numerator, ULONG* denominator) = 0;
    MAPI_METHOD(FindRow)(SRestriction* restriction, BOOKMARK origin, ULONG flags) = 0;
    MAPI_METHOD(Restrict)(SRestriction* restriction, ULONG flags) = 0;
    MAPI_METHOD(CreateBookmark)(BOOKMARK* position) = 0;
    MAPI_METHOD(FreeBookmark)(BOOKMARK position) = 0;
    MAPI_METHOD(SortTable)(SSortOrderSet* order, ULONG flags) = 0;
    MAPI_METHOD(QuerySortOrder)(SSortOrderSet** order) = 0;
    MAPI_METHOD(QueryRows)(LONG count, ULONG flags, LPSRowSet* rows) = 0;
    MAPI_METHOD(Abort)() = 0;
    MAPI_METHOD(ExpandRow)
    (ULONG size, LPBYTE key, ULONG count, ULONG flags, LPSRowSet* rows, ULONG* more) = 0;
    MAPI_METHOD(CollapseRow)(ULONG size, LPBYTE key, ULONG flags, ULONG* count) = 0;
    MAPI_METHOD(WaitForCompletion)(ULONG flags, ULONG timeout, ULONG* status) = 0;
    MAPI_METHOD(GetCollapseState)
    (ULONG flags, ULONG keySize, LPBYTE key, ULONG* size, LPBYTE* state) = 0;
    MAPI_METHOD(SetCollapseState)(ULONG flags, ULONG size, LPBYTE state, BOOKMARK* position) = 0;
};
typedef IMAPITable* LPMAPITABLE;

struct IMAPIProp : IUnknown {
    MAPI_METHOD(GetLastError)(HRESULT result, ULONG flags, MAPIERROR** error) = 0;
    MAPI_METHOD(SaveChanges)(ULONG flags) = 0;
    // A property that is missing comes back in its place with the type PT_ERROR, and the call
    // returns MAPI_W_ERRORS_RETURNED.
    MAPI_METHOD(GetProps)
    (LPSPropTagArray tags, ULONG flags, ULONG* count, LPSPropValue* values) = 0;
    MAPI_METHOD(GetPropList)(ULONG flags, LPSPropTagArray* tags) = 0;
    MAPI_METHOD(OpenProperty)
    (ULONG tag, LPCIID id, ULONG options, ULONG flags, LPUNKNOWN* object) = 0;
    MAPI_METHOD(SetProps)(ULONG count, LPSPropValue values, SPropProblemArray** problems) = 0;
    MAPI_METHOD(DeleteProps)(LPSPropTagArray tags, SPropProblemArray** problems) = 0;
    MAPI_METHOD(CopyTo)
    (ULONG count, LPCIID excludedIds, LPSPropTagArray excluded, ULONG ui, IMAPIProgress* progress,
     LPCIID id, LPVOID target, ULONG flags, SPropProblemArray** problems) = 0;
    MAPI_METHOD(CopyProps)
    (LPSPropTagArray included, ULONG ui, IMAPIProgress* progress, LPCIID id, LPVOID target,
     ULONG flags, SPropProblemArray** problems) = 0;
    MAPI_METHOD(GetNamesFromIDs)
    (LPSPropTagArray* tags, LPGUID set, ULONG flags, ULONG* count, MAPINAMEID*** names) = 0;
    MAPI_METHOD(GetIDsFromNames)
    (ULONG count, MAPINAMEID** names, ULONG flags, LPSPropTagArray* tags) = 0;
};
typedef IMAPIProp* LPMAPIPROP;

struct IMsgStore : IMAPIProp {
    MAPI_METHOD(Advise)
    (ULONG size, LPENTRYID entry, ULONG events, IMAPIAdviseSink* sink, ULONG* connection) = 0;
    MAPI_METHOD(Unadvise)(ULONG connection) = 0;
    MAPI_METHOD(CompareEntryIDs)
    (ULONG size1, LPENTRYID entry1, ULONG size2, LPENTRYID entry2, ULONG flags, ULONG* same) = 0;
    // The identifier cannot be null, by its documentation; PR_IPM_SUBTREE_ENTRYID is that of the
    // folder with all others.
    MAPI_METHOD(OpenEntry)
    (ULONG size, LPENTRYID entry, LPCIID id, ULONG flags, ULONG* type, LPUNKNOWN* object) = 0;
    MAPI_METHOD(SetReceiveFolder)
    (LPTSTR messageClass, ULONG flags, ULONG size, LPENTRYID entry) = 0;
    MAPI_METHOD(GetReceiveFolder)
    (LPTSTR messageClass, ULONG flags, ULONG* size, LPENTRYID* entry, LPTSTR* found) = 0;
    MAPI_METHOD(GetReceiveFolderTable)(ULONG flags, LPMAPITABLE* table) = 0;
    MAPI_METHOD(StoreLogoff)(ULONG* flags) = 0;
    MAPI_METHOD(AbortSubmit)(ULONG size, LPENTRYID entry, ULONG flags) = 0;
    MAPI_METHOD(GetOutgoingQueue)(ULONG flags, LPMAPITABLE* table) = 0;
    MAPI_METHOD(SetLockState)(IMessage* message, ULONG state) = 0;
    MAPI_METHOD(FinishedMsg)(ULONG flags, ULONG size, LPENTRYID entry) = 0;
    MAPI_METHOD(NotifyNewMail)(void* notification) = 0;
};
typedef IMsgStore* LPMDB;

struct IMAPIContainer : IMAPIProp {
    MAPI_METHOD(GetContentsTable)(ULONG flags, LPMAPITABLE* table) = 0;
    // Fails with MAPI_E_NO_SUPPORT when there is nothing in it.
    MAPI_METHOD(GetHierarchyTable)(ULONG flags, LPMAPITABLE* table) = 0;
    MAPI_METHOD(OpenEntry)
    (ULONG size, LPENTRYID entry, LPCIID id, ULONG flags, ULONG* type, LPUNKNOWN* object) = 0;
    MAPI_METHOD(SetSearchCriteria)
    (SRestriction* restriction, ENTRYLIST* containers, ULONG flags) = 0;
    MAPI_METHOD(GetSearchCriteria)
    (ULONG flags, SRestriction** restriction, ENTRYLIST** containers, ULONG* state) = 0;
};
typedef IMAPIContainer* LPMAPICONTAINER;

struct IMAPIFolder : IMAPIContainer {
    MAPI_METHOD(CreateMessage)(LPCIID id, ULONG flags, IMessage** message) = 0;
    MAPI_METHOD(CopyMessages)
    (ENTRYLIST* messages, LPCIID id, LPVOID target, ULONG ui, IMAPIProgress* progress,
     ULONG flags) = 0;
    MAPI_METHOD(DeleteMessages)
    (ENTRYLIST* messages, ULONG ui, IMAPIProgress* progress, ULONG flags) = 0;
    MAPI_METHOD(CreateFolder)
    (ULONG type, LPTSTR name, LPTSTR comment, LPCIID id, ULONG flags, IMAPIFolder** folder) = 0;
    MAPI_METHOD(CopyFolder)
    (ULONG size, LPENTRYID entry, LPCIID id, LPVOID target, LPTSTR name, ULONG ui,
     IMAPIProgress* progress, ULONG flags) = 0;
    MAPI_METHOD(DeleteFolder)
    (ULONG size, LPENTRYID entry, ULONG ui, IMAPIProgress* progress, ULONG flags) = 0;
    MAPI_METHOD(SetReadFlags)
    (ENTRYLIST* messages, ULONG ui, IMAPIProgress* progress, ULONG flags) = 0;
    MAPI_METHOD(GetMessageStatus)(ULONG size, LPENTRYID entry, ULONG flags, ULONG* status) = 0;
    MAPI_METHOD(SetMessageStatus)
    (ULONG size, LPENTRYID entry, ULONG status, ULONG mask, ULONG* previous) = 0;
    MAPI_METHOD(SaveContentsSort)(SSortOrderSet* order, ULONG flags) = 0;
    MAPI_METHOD(EmptyFolder)(ULONG ui, IMAPIProgress* progress, ULONG flags) = 0;
};
typedef IMAPIFolder* LPMAPIFOLDER;

struct IMAPISession : IUnknown {
    MAPI_METHOD(GetLastError)(HRESULT result, ULONG flags, MAPIERROR** error) = 0;
    MAPI_METHOD(GetMsgStoresTable)(ULONG flags, LPMAPITABLE* table) = 0;
    MAPI_METHOD(OpenMsgStore)
    (ULONG ui, ULONG size, LPENTRYID entry, LPCIID id, ULONG flags, LPMDB* store) = 0;
    MAPI_METHOD(OpenAddressBook)(ULONG ui, LPCIID id, ULONG flags, IAddrBook** book) = 0;
    MAPI_METHOD(OpenProfileSection)(MAPIUID* uid, LPCIID id, ULONG flags, IProfSect** section) = 0;
    MAPI_METHOD(GetStatusTable)(ULONG flags, LPMAPITABLE* table) = 0;
    MAPI_METHOD(OpenEntry)
    (ULONG size, LPENTRYID entry, LPCIID id, ULONG flags, ULONG* type, LPUNKNOWN* object) = 0;
    MAPI_METHOD(CompareEntryIDs)
    (ULONG size1, LPENTRYID entry1, ULONG size2, LPENTRYID entry2, ULONG flags, ULONG* same) = 0;
    MAPI_METHOD(Advise)
    (ULONG size, LPENTRYID entry, ULONG events, IMAPIAdviseSink* sink, ULONG* connection) = 0;
    MAPI_METHOD(Unadvise)(ULONG connection) = 0;
    MAPI_METHOD(MessageOptions)(ULONG ui, ULONG flags, LPTSTR type, IMessage* message) = 0;
    MAPI_METHOD(QueryDefaultMessageOpt)
    (LPTSTR type, ULONG flags, ULONG* count, LPSPropValue* options) = 0;
    MAPI_METHOD(EnumAdrTypes)(ULONG flags, ULONG* count, LPTSTR** types) = 0;
    MAPI_METHOD(QueryIdentity)(ULONG* size, LPENTRYID* entry) = 0;
    MAPI_METHOD(Logoff)(ULONG ui, ULONG flags, ULONG reserved) = 0;
    MAPI_METHOD(SetDefaultStore)(ULONG flags, ULONG size, LPENTRYID entry) = 0;
    MAPI_METHOD(AdminServices)(ULONG flags, IMsgServiceAdmin** admin) = 0;
    MAPI_METHOD(ShowForm)
    (ULONG ui, LPMDB store, LPMAPIFOLDER parent, LPCIID id, ULONG token, IMessage* sent,
     ULONG flags, ULONG messageStatus, ULONG messageFlags, ULONG access, LPSTR messageClass) = 0;
    MAPI_METHOD(PrepareForm)(LPCIID id, IMessage* message, ULONG* token) = 0;
};
typedef IMAPISession* LPMAPISESSION;

// What a session on the device really is.
struct ICEMAPISession : IMAPISession {
    MAPI_METHOD(CreateMsgStore)(LPCWSTR name, LPMDB* store) = 0;
    MAPI_METHOD(DeleteMsgStore)(ULONG size, LPENTRYID entry) = 0;
};

#undef MAPI_METHOD

EXTERN_C HRESULT WINAPI MAPIInitialize(LPVOID init);
EXTERN_C void WINAPI MAPIUninitialize(void);
// Everything but the result is ignored.
EXTERN_C HRESULT WINAPI MAPILogonEx(ULONG ui, LPTSTR profile, LPTSTR password, FLAGS flags,
                                    LPMAPISESSION* session);
// Memory that MAPIFreeBuffer frees, with what was allocated as a part of it.
EXTERN_C HRESULT WINAPI MAPIAllocateBuffer(ULONG size, LPVOID* buffer);
EXTERN_C HRESULT WINAPI MAPIAllocateMore(ULONG size, LPVOID whole, LPVOID* buffer);
EXTERN_C ULONG WINAPI MAPIFreeBuffer(LPVOID buffer);
// Frees a set of rows and the values of each.
EXTERN_C void WINAPI FreeProws(LPSRowSet rows);
