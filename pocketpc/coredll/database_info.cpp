// Making, finding, describing and deleting databases.
#include <algorithm>
#include <cstring>
#include <iterator>

#include "pocketpc/common/failing_calls.h"
#include "pocketpc/coredll/database.h"
#include "pocketpc/coredll/notices.h"
#include "pocketpc/coredll/store.h"

namespace {

bool Refuse(DWORD error) {
    SetLastError(error);
    return false;
}

// The three layouts of one description, to and from ours.
void ReadOrder(const SORTORDERSPEC& from, SortOrder& order) { order.keys = {from}; }

template <typename SortOrderSpec>
void ReadOrder(const SortOrderSpec& from, SortOrder& order) {
    order.keyFlags = from.wKeyFlags;
    const std::size_t count = std::min<std::size_t>(from.wNumProps, std::size(from.rgPropID));
    for (std::size_t i = 0; i < count; ++i) {
        order.keys.push_back({from.rgPropID[i], from.rgdwFlags[i]});
    }
}

void WriteOrder(const SortOrder& order, SORTORDERSPEC& to) { to = order.keys.front(); }

template <typename SortOrderSpec>
void WriteOrder(const SortOrder& order, SortOrderSpec& to) {
    to = {};
    to.wVersion = std::size(to.rgPropID) == kCedb.mostKeys ? CEDB_SORTORDERSPECEX_VERSION_CEDB
                                                           : CEDB_SORTORDERSPECEX_VERSION_EDB;
    to.wKeyFlags = static_cast<WORD>(order.keyFlags);
    for (const SORTORDERSPEC& key : order.keys) {
        if (to.wNumProps == std::size(to.rgPropID)) break;
        to.rgPropID[to.wNumProps] = key.propid;
        to.rgdwFlags[to.wNumProps++] = key.dwFlags;
    }
}

// Takes over what the flags say is there.
template <typename BaseInfo>
bool ReadInfo(const BaseInfo& from, DatabaseInfo& info) {
    if (from.dwFlags & CEDB_VALIDNAME) {
        const std::size_t length = wcsnlen(from.szDbaseName, std::size(from.szDbaseName));
        if (length == std::size(from.szDbaseName)) return Refuse(ERROR_INVALID_PARAMETER);
        info.name.assign(from.szDbaseName, length);
    }
    if (from.dwFlags & CEDB_VALIDTYPE) info.type = from.dwDbaseType;
    if (from.dwFlags & CEDB_VALIDDBFLAGS) info.flags = from.dwFlags & 0xFFFF0000;
    info.modified = from.dwFlags & CEDB_VALIDMODTIME ? from.ftLastModified : FILETIME{};
    if (from.dwFlags & CEDB_VALIDSORTSPEC) {
        if (from.wNumSortOrder > std::size(from.rgSortSpecs)) {
            return Refuse(ERROR_INVALID_PARAMETER);
        }
        info.orders.assign(from.wNumSortOrder, {});
        for (std::size_t i = 0; i < info.orders.size(); ++i) {
            ReadOrder(from.rgSortSpecs[i], info.orders[i]);
        }
    }
    return true;
}

template <typename BaseInfo>
void WriteInfo(const DatabaseInfo& info, BaseInfo& to) {
    to.dwFlags = CEDB_VALIDNAME | CEDB_VALIDTYPE | CEDB_VALIDSORTSPEC | CEDB_VALIDMODTIME |
                 CEDB_VALIDDBFLAGS | info.flags;
    const std::size_t length = std::min(info.name.size(), std::size(to.szDbaseName) - 1);
    std::memcpy(to.szDbaseName, info.name.data(), length * sizeof(wchar_t));
    to.szDbaseName[length] = L'\0';
    to.dwDbaseType = info.type;
    to.dwSize = info.size;
    to.ftLastModified = info.modified;
    const std::size_t count = std::min(info.orders.size(), std::size(to.rgSortSpecs));
    to.wNumSortOrder = static_cast<WORD>(count);
    for (std::size_t i = 0; i < count; ++i) WriteOrder(info.orders[i], to.rgSortSpecs[i]);
}

bool IsValid(const DatabaseInfo& info, const VolumeKind& kind) {
    return !info.name.empty() && info.name.size() <= kind.longestName &&
           info.orders.size() <= kind.mostOrders &&
           std::all_of(info.orders.begin(), info.orders.end(), [&](const SortOrder& order) {
               return !order.keys.empty() && order.keys.size() <= kind.mostKeys &&
                      std::all_of(order.keys.begin(), order.keys.end(),
                                  [](const SORTORDERSPEC& key) { return CanSort(key.propid); });
           });
}

// With database 0 makes a new one.
template <typename BaseInfo>
CEOID WriteDatabase(PCEGUID guid, CEOID database, const BaseInfo* from) {
    const std::lock_guard lock(Store::Get().mutex());
    if (!guid || !from) return Refuse(ERROR_INVALID_PARAMETER);
    const auto volume = Store::Get().Find(*guid, true);
    if (!volume) return 0;
    DatabaseInfo info;
    if (database) {
        const auto known = volume->Info(database);
        if (!known) return 0;
        info = *known;
    }
    if (!ReadInfo(*from, info)) return 0;
    if (!IsValid(info, volume->kind())) return Refuse(ERROR_INVALID_PARAMETER);
    return volume->WriteInfo(database, info);
}

template <typename BaseInfo>
CEOID WriteDatabaseEx2(PCEGUID guid, CEOID database, const void* info) {
    return WriteDatabase(guid, database, static_cast<const BaseInfo*>(info));
}

// A block of the newer family begins with its version.
CEOID WriteAnyDatabase(PCEGUID guid, CEOID database, const CEDBASEINFOEX_CEDB* info) {
    switch (info ? info->wVersion : 0) {
        case CEDBASEINFOEX_VERSION_CEDB:
            return WriteDatabaseEx2<CEDBASEINFOEX_CEDB>(guid, database, info);
        case CEDBASEINFOEX_VERSION_EDB:
            return WriteDatabaseEx2<CEDBASEINFOEX_EDB>(guid, database, info);
    }
    return Refuse(ERROR_INVALID_PARAMETER);
}

// Describes a database or a record; `setCount` puts the number of records where the layout has it.
template <typename OidInfo, typename SetCount>
bool Describe(PCEGUID guid, CEOID oid, OidInfo& to, SetCount setCount) {
    const auto volume = Store::Get().Find(*guid);
    if (!volume) return false;
    if (const auto info = volume->Info(oid)) {
        to.wObjType = OBJTYPE_DATABASE;
        WriteInfo(*info, to.infDatabase);
        setCount(to.infDatabase, info->records);
    } else if (const auto parent = volume->ParentOf(oid)) {
        to.wObjType = OBJTYPE_RECORD;
        to.infRecord.oidParent = *parent;
    } else {
        to.wObjType = OBJTYPE_INVALID;
        return Refuse(ERROR_INVALID_HANDLE);
    }
    return true;
}

template <typename OidInfoEx>
bool DescribeEx2(PCEGUID guid, CEOID oid, const VolumeKind& kind, void* block) {
    const auto volume = Store::Get().Find(*guid);
    if (!volume) return false;
    // A description has the layout of the kind of volume that it is about.
    if (volume->kind().format != kind.format) return Refuse(ERROR_INVALID_PARAMETER);
    return Describe(guid, oid, *static_cast<OidInfoEx*>(block), [](auto& info, DWORD records) {
        info.wVersion = sizeof info == sizeof(CEDBASEINFOEX_CEDB) ? CEDBASEINFOEX_VERSION_CEDB
                                                                  : CEDBASEINFOEX_VERSION_EDB;
        info.dwNumRecords = records;
    });
}

// A walk over the databases of one volume or of all.
class DatabaseSearch : public StoreObject {
  public:
    DatabaseSearch(std::vector<CEGUID> volumes, DWORD type) {
        for (const CEGUID& guid : volumes) {
            const auto volume = Store::Get().Find(guid);
            if (!volume) continue;
            for (const CEOID oid : volume->Databases()) {
                const auto info = volume->Info(oid);
                if (info && (type == 0 || info->type == type)) found_.push_back({guid, oid});
            }
        }
    }

    CEOID Next(CEGUID* guid) {
        if (next_ == found_.size()) return Refuse(ERROR_NO_MORE_ITEMS);
        if (guid) *guid = found_[next_].first;
        return found_[next_++].second;
    }

  private:
    std::vector<std::pair<CEGUID, CEOID>> found_;
    std::size_t next_ = 0;
};

}  // namespace

extern "C" {

CEOID WINAPI CeCreateDatabaseEx(PCEGUID guid, CEDBASEINFO* info) {
    return WriteDatabase(guid, 0, info);
}

CEOID WINAPI CeCreateDatabaseEx2(PCEGUID guid, CEDBASEINFOEX* info) {
    return WriteAnyDatabase(guid, 0, info);
}

BOOL WINAPI CeSetDatabaseInfoEx(PCEGUID guid, CEOID oid, CEDBASEINFO* info) {
    return oid ? WriteDatabase(guid, oid, info) != 0 : Refuse(ERROR_INVALID_PARAMETER);
}

BOOL WINAPI CeSetDatabaseInfoEx2(PCEGUID guid, CEOID oid, CEDBASEINFOEX* info) {
    return oid ? WriteAnyDatabase(guid, oid, info) != 0 : Refuse(ERROR_INVALID_PARAMETER);
}

BOOL WINAPI CeOidGetInfoEx(PCEGUID guid, CEOID oid, CEOIDINFO* info) {
    if (failing::Fails(failing::kDatabases, ERROR_NOT_ENOUGH_MEMORY)) return 0;
    const std::lock_guard lock(Store::Get().mutex());
    if (!guid || !info) return Refuse(ERROR_INVALID_PARAMETER);
    return Describe(guid, oid, *info, [](CEDBASEINFO& database, DWORD records) {
        database.wNumRecords = static_cast<WORD>(std::min<DWORD>(records, 0xFFFF));
    });
}

BOOL WINAPI CeOidGetInfoEx2(PCEGUID guid, CEOID oid, CEOIDINFOEX* info) {
    if (failing::Fails(failing::kDatabases, ERROR_NOT_ENOUGH_MEMORY)) return 0;
    const std::lock_guard lock(Store::Get().mutex());
    switch (guid && info ? info->wVersion : 0) {
        case CEOIDINFOEX_VERSION_CEDB: return DescribeEx2<CEOIDINFOEX_CEDB>(guid, oid, kCedb, info);
        case CEOIDINFOEX_VERSION_EDB: return DescribeEx2<CEOIDINFOEX_EDB>(guid, oid, kEdb, info);
    }
    return Refuse(ERROR_INVALID_PARAMETER);
}

BOOL WINAPI CeDeleteDatabaseEx(PCEGUID guid, CEOID oid) {
    const std::lock_guard lock(Store::Get().mutex());
    if (!guid) return Refuse(ERROR_INVALID_PARAMETER);
    const auto volume = Store::Get().Find(*guid);
    if (!volume || !volume->Info(oid)) return FALSE;
    bool isOpen = false;
    Store::Get().ForEach<OpenDatabase>([&](HANDLE, const OpenDatabase& database) {
        isOpen = isOpen || (&database.volume() == volume.get() && database.oid() == oid);
    });
    if (isOpen) return Refuse(ERROR_SHARING_VIOLATION);
    if (!volume->DeleteDatabase(oid)) return FALSE;
    SendNotice({*guid, oid, DB_CEOID_DATABASE_DELETED, oid, 0}, nullptr);
    return TRUE;
}

HANDLE WINAPI CeFindFirstDatabaseEx(PCEGUID guid, DWORD type) {
    const std::lock_guard lock(Store::Get().mutex());
    if (!guid || (!IsInvalid(*guid) && !CHECK_SYSTEMGUID(guid) && !Store::Get().Find(*guid))) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return INVALID_HANDLE_VALUE;
    }
    std::vector<CEGUID> volumes = {*guid};
    if (IsInvalid(*guid)) volumes = Store::Get().All();
    return Store::Get().Open(std::make_unique<DatabaseSearch>(std::move(volumes), type));
}

CEOID WINAPI CeFindNextDatabaseEx(HANDLE search, PCEGUID guid) {
    if (failing::Fails(failing::kDatabases, ERROR_NOT_ENOUGH_MEMORY)) return 0;
    const std::lock_guard lock(Store::Get().mutex());
    const auto found = Store::Get().ObjectOf<DatabaseSearch>(search);
    return found ? found->Next(guid) : 0;
}

}  // extern "C"
