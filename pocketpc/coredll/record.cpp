// Reading, writing and deleting records.
#include <algorithm>
#include <cstring>

#include "pocketpc/common/failing_calls.h"
#include "pocketpc/coredll/database.h"
#include "pocketpc/coredll/notices.h"

namespace {

CEOID Refuse(DWORD error) {
    SetLastError(error);
    return 0;
}

// The bytes of a value of a simple type within the union; 0 for texts, blobs and unknown types.
std::size_t SizeOfType(CEPROPID property) {
    switch (TypeFromPropID(property)) {
        case CEVT_I2:
        case CEVT_UI2: return sizeof(short);
        case CEVT_I4:
        case CEVT_UI4: return sizeof(long);
        case CEVT_BOOL: return sizeof(BOOL);
        case CEVT_R8: return sizeof(double);
        case CEVT_FILETIME: return sizeof(FILETIME);
    }
    return 0;
}

// The same of a value with these bytes: a record's own identifier is a blob, or a number where the
// device has it so.
std::size_t SizeWithin(CEPROPID property, const std::string& bytes) {
    const bool isNumber = TypeFromPropID(property) == CEVT_RECID && bytes.size() == sizeof(CEOID);
    return isNumber ? sizeof(CEOID) : SizeOfType(property);
}

// A type that only the newer volumes know.
bool IsNewerType(CEPROPID property) {
    return TypeFromPropID(property) >= CEVT_STREAM && TypeFromPropID(property) <= CEVT_AUTO_I8;
}

// Writes values into the block that a read gives back: first the array, then what it points to.
class Block {
  public:
    Block(const Values& values, const std::vector<CEPROPID>& ids) : values_(values), ids_(ids) {}

    DWORD Size() const {
        std::size_t size = ids_.size() * sizeof(CEPROPVAL);
        for (const CEPROPID id : ids_) {
            if (const std::string* bytes = Find(id)) size += Room(id, *bytes);
        }
        return static_cast<DWORD>(size);
    }

    // Returns how many of the properties were there.
    int Write(BYTE* buffer) const {
        void* const block = buffer;
        const auto array = static_cast<CEPROPVAL*>(block);
        BYTE* rest = buffer + ids_.size() * sizeof(CEPROPVAL);
        int present = 0;
        for (std::size_t i = 0; i < ids_.size(); ++i) {
            array[i] = {};
            array[i].propid = ids_[i];
            const std::string* bytes = Find(ids_[i]);
            if (!bytes) {
                array[i].wFlags = CEDB_PROPNOTFOUND;
                continue;
            }
            ++present;
            if (const std::size_t size = SizeWithin(ids_[i], *bytes)) {
                std::memcpy(&array[i].val, bytes->data(), std::min(bytes->size(), size));
                continue;
            }
            void* const value = rest;
            const std::size_t room = Room(ids_[i], *bytes);
            std::memset(value, 0, room);
            std::memcpy(value, bytes->data(), bytes->size());
            if (TypeFromPropID(ids_[i]) == CEVT_LPWSTR) {
                array[i].val.lpwstr = static_cast<LPWSTR>(value);
            } else {
                array[i].val.blob = {static_cast<DWORD>(bytes->size()), rest};
            }
            rest += room;
        }
        return present;
    }

  private:
    const std::string* Find(CEPROPID id) const {
        const auto found = values_.find(id);
        return found == values_.end() ? nullptr : &*found->second;
    }
    // With a text's terminator, and so that the next one is aligned.
    static std::size_t Room(CEPROPID id, const std::string& bytes) {
        if (SizeWithin(id, bytes)) return 0;
        const std::size_t end = TypeFromPropID(id) == CEVT_LPWSTR ? sizeof(wchar_t) : 0;
        return (bytes.size() + end + 7) / 8 * 8;
    }

    const Values& values_;
    const std::vector<CEPROPID>& ids_;
};

// Makes the caller's block at least `needed` bytes large.
bool Grow(LPBYTE* buffer, DWORD size, DWORD needed, HANDLE heap) {
    if (*buffer && size >= needed) return true;
    if (failing::Fails(failing::kMemory, ERROR_NOT_ENOUGH_MEMORY)) return false;
    void* grown = nullptr;
    if (heap) {
        grown = *buffer ? HeapReAlloc(heap, 0, *buffer, needed) : HeapAlloc(heap, 0, needed);
    } else {
        grown = *buffer ? LocalReAlloc(*buffer, needed, LMEM_MOVEABLE) : LocalAlloc(LPTR, needed);
    }
    if (!grown) return Refuse(ERROR_NOT_ENOUGH_MEMORY);
    *buffer = static_cast<BYTE*>(grown);
    return true;
}

// Whether the record would keep the rules of the database's sort orders.
bool KeepsRules(const OpenDatabase& database, CEOID record, const Values& changes) {
    const auto info = database.volume().Info(database.oid());
    if (!info) return false;
    Values values;
    if (record) values = database.volume().Record(record);
    for (const auto& [id, value] : changes) values[id] = value;
    for (const SortOrder& order : info->orders) {
        bool complete = true;
        for (const SORTORDERSPEC& key : order.keys) {
            const bool present = values.contains(key.propid) && values[key.propid];
            if (!present && (key.dwFlags & CEDB_SORT_NONNULL)) {
                return Refuse(ERROR_INVALID_PARAMETER);
            }
            complete = complete && present;
        }
        if (!complete || !(order.keyFlags & CEDB_SORT_UNIQUE)) continue;
        std::vector<CEOID> same = database.volume().Records(database.oid());
        std::erase(same, record);
        for (const SORTORDERSPEC& key : order.keys) {
            const auto column = database.volume().Column(database.oid(), key.propid);
            std::erase_if(same, [&](CEOID other) {
                const auto value = column.find(other);
                return value == column.end() ||
                       CompareValues(key.propid, key.dwFlags, value->second, *values[key.propid]) !=
                           0;
            });
        }
        if (!same.empty()) return Refuse(ERROR_ALREADY_EXISTS);
    }
    return true;
}

}  // namespace

std::optional<std::string> BytesOf(const CEPROPVAL& value) {
    if (const std::size_t size = SizeOfType(value.propid)) {
        return std::string(reinterpret_cast<const char*>(&value.val), size);
    }
    // The system itself gives a record's own identifier its value.
    if (TypeFromPropID(value.propid) == CEVT_RECID) return std::string();
    const void* data = nullptr;
    std::size_t size = 0;
    if (TypeFromPropID(value.propid) == CEVT_LPWSTR) {
        data = value.val.lpwstr;
        size = data ? wcslen(value.val.lpwstr) * sizeof(wchar_t) : 0;
    } else if (TypeFromPropID(value.propid) == CEVT_BLOB) {
        data = value.val.blob.lpb;
        size = value.val.blob.dwCount;
        if (!data && !size) return std::string();
    }
    if (!data || size > CEDB_MAXPROPDATASIZE) return std::nullopt;
    return std::string(static_cast<const char*>(data), size);
}

extern "C" {

CEOID WINAPI CeReadRecordPropsEx(HANDLE handle, DWORD flags, LPWORD count, CEPROPID* ids,
                                 LPBYTE* buffer, LPDWORD size, HANDLE heap) {
    if (failing::Fails(failing::kDatabases, ERROR_NOT_ENOUGH_MEMORY)) return 0;
    const std::lock_guard lock(Store::Get().mutex());
    const auto database = Store::Get().ObjectOf<OpenDatabase>(handle);
    if (!database) return 0;
    if (!count || !buffer || !size || (flags & ~CEDB_ALLOWREALLOC) || (ids && !*count)) {
        return Refuse(ERROR_INVALID_PARAMETER);
    }
    const CEOID record = database->Current();
    if (!record) return 0;
    const Values values = database->volume().Record(record);
    std::vector<CEPROPID> wanted;
    if (ids) {
        wanted.assign(ids, ids + *count);
    } else {
        for (const auto& [id, value] : values) wanted.push_back(id);
    }
    const Block block(values, wanted);
    const DWORD needed = block.Size();
    if (flags & CEDB_ALLOWREALLOC) {
        if (!Grow(buffer, *size, needed, heap)) return 0;
    } else if (!*buffer || *size < needed) {
        *size = needed;
        return Refuse(ERROR_INSUFFICIENT_BUFFER);
    }
    *size = needed;
    *count = static_cast<WORD>(wanted.size());
    const int present = block.Write(*buffer);
    if (database->MovesOnReading()) database->MoveOn();
    return present ? record : Refuse(ERROR_NO_DATA);
}

CEOID WINAPI CeReadRecordProps(HANDLE handle, DWORD flags, LPWORD count, CEPROPID* ids,
                               LPBYTE* buffer, LPDWORD size) {
    return CeReadRecordPropsEx(handle, flags, count, ids, buffer, size, nullptr);
}

CEOID WINAPI CeWriteRecordProps(HANDLE handle, CEOID record, WORD count, CEPROPVAL* values) {
    if (const DWORD error = failing::StoringError(failing::kDatabases, ERROR_NOT_ENOUGH_MEMORY))
        return Refuse(error);
    const std::lock_guard lock(Store::Get().mutex());
    const auto database = Store::Get().ObjectOf<OpenDatabase>(handle);
    if (!database) return 0;
    Volume& volume = database->volume();
    if (!count || !values || (record && volume.ParentOf(record) != database->oid())) {
        return Refuse(ERROR_INVALID_PARAMETER);
    }
    Values changes, whole;
    if (record) whole = volume.Record(record);
    for (WORD i = 0; i < count; ++i) {
        const CEPROPVAL& value = values[i];
        if (value.wFlags & CEDB_PROPDELETE) {
            changes[value.propid] = whole[value.propid] = std::nullopt;
            continue;
        }
        const auto bytes = BytesOf(value);
        if (!bytes || bytes->size() > volume.kind().largestProperty ||
            (IsNewerType(value.propid) && volume.kind().format != kEdb.format)) {
            return Refuse(ERROR_INVALID_PARAMETER);
        }
        changes[value.propid] = whole[value.propid] = bytes;
    }
    std::size_t total = 0;
    for (const auto& [id, value] : whole) total += value ? value->size() : 0;
    if (total > volume.kind().largestRecord) return Refuse(ERROR_INVALID_PARAMETER);
    if (!KeepsRules(*database, record, changes)) return 0;
    const CEOID written = volume.WriteRecord(database->oid(), record, changes);
    if (written) {
        const UINT code = record ? DB_CEOID_CHANGED : DB_CEOID_CREATED;
        SendNotice(
            {Store::Get().IdentifierOf(volume), database->oid(), code, written, database->oid()},
            handle);
    }
    return written;
}

BOOL WINAPI CeDeleteRecord(HANDLE handle, CEOID record) {
    if (failing::Fails(failing::kDatabases, ERROR_NOT_ENOUGH_MEMORY)) return FALSE;
    const std::lock_guard lock(Store::Get().mutex());
    const auto database = Store::Get().ObjectOf<OpenDatabase>(handle);
    if (!database) return FALSE;
    Volume& volume = database->volume();
    if (volume.ParentOf(record) != database->oid()) return Refuse(ERROR_INVALID_PARAMETER) != 0;
    if (!volume.DeleteRecord(database->oid(), record)) return FALSE;
    SendNotice({Store::Get().IdentifierOf(volume), database->oid(), DB_CEOID_RECORD_DELETED, record,
                database->oid()},
               handle);
    return TRUE;
}

}  // extern "C"
