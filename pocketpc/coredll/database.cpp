#include "pocketpc/coredll/database.h"

#include <algorithm>
#include <cstring>

#include "pocketpc/common/failing_calls.h"
#include "pocketpc/coredll/notices.h"

namespace {

template <typename Number>
Number As(const std::string& bytes) {
    Number number = {};
    std::memcpy(&number, bytes.data(), std::min(sizeof number, bytes.size()));
    return number;
}

template <typename Number>
int CompareAs(const std::string& left, const std::string& right) {
    const Number a = As<Number>(left), b = As<Number>(right);
    return a < b ? -1 : a > b ? 1 : 0;
}

// A string's bytes are aligned for units.
const wchar_t* Units(const std::string& bytes) {
    const void* const units = bytes.data();
    return static_cast<const wchar_t*>(units);
}

int CompareTexts(DWORD flags, const std::string& left, const std::string& right) {
    DWORD compare = 0;
    if (flags & CEDB_SORT_CASEINSENSITIVE) compare |= NORM_IGNORECASE;
    if (flags & CEDB_SORT_IGNORENONSPACE) compare |= NORM_IGNORENONSPACE;
    if (flags & CEDB_SORT_IGNORESYMBOLS) compare |= NORM_IGNORESYMBOLS;
    if (flags & CEDB_SORT_IGNOREKANATYPE) compare |= NORM_IGNOREKANATYPE;
    if (flags & CEDB_SORT_IGNOREWIDTH) compare |= NORM_IGNOREWIDTH;
    return CompareStringW(LOCALE_USER_DEFAULT, compare, Units(left),
                          static_cast<int>(left.size() / sizeof(wchar_t)), Units(right),
                          static_cast<int>(right.size() / sizeof(wchar_t))) -
           CSTR_EQUAL;
}

bool IsSameOrder(const SortOrder& order, const SORTORDERSPECEX_EDB& sort) {
    return order.keys.size() == sort.wNumProps &&
           std::equal(order.keys.begin(), order.keys.end(), sort.rgPropID,
                      [](const SORTORDERSPEC& key, CEPROPID id) { return key.propid == id; });
}

// The caller's sort order in the larger layout; nothing when it has neither.
std::optional<SORTORDERSPECEX_EDB> Widen(const SORTORDERSPECEX* sort) {
    SORTORDERSPECEX_EDB wide = {};
    if (sort->wVersion == CEDB_SORTORDERSPECEX_VERSION_EDB) {
        std::memcpy(&wide, sort, sizeof wide);
        if (wide.wNumProps <= std::size(wide.rgPropID)) return wide;
    } else if (sort->wVersion == CEDB_SORTORDERSPECEX_VERSION_CEDB &&
               sort->wNumProps <= std::size(sort->rgPropID)) {
        wide.wNumProps = sort->wNumProps;
        std::copy_n(sort->rgPropID, sort->wNumProps, wide.rgPropID);
        return wide;
    }
    return std::nullopt;
}

HANDLE Refuse(DWORD error) {
    SetLastError(error);
    return INVALID_HANDLE_VALUE;
}

// The volume and the identifier of a database by name or identifier. An invalid volume means all,
// and only the name then counts.
std::shared_ptr<Volume> FindDatabase(const CEGUID& guid, CEOID& oid, const wchar_t* name) {
    Store& store = Store::Get();
    std::vector<CEGUID> volumes = {guid};
    if (IsInvalid(guid)) {
        volumes = store.All();
        oid = 0;
    }
    if (!oid && (!name || !*name)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    for (const CEGUID& each : volumes) {
        auto volume = store.Find(each);
        if (!volume) continue;
        const CEOID found = oid ? (volume->Info(oid) ? oid : 0) : volume->FindDatabase(name);
        if (!found) continue;
        oid = found;
        return volume;
    }
    if (volumes.size() > 1) SetLastError(ERROR_FILE_NOT_FOUND);
    return nullptr;
}

template <typename IsWanted>
HANDLE Open(PCEGUID guid, PCEOID oid, LPCWSTR name, DWORD flags, const CENOTIFYREQUEST* request,
            bool sorted, IsWanted isWanted) {
    if (failing::Fails(failing::kDatabases, ERROR_NOT_ENOUGH_MEMORY)) return INVALID_HANDLE_VALUE;
    const std::lock_guard lock(Store::Get().mutex());
    if (!guid || !oid || (flags & ~CEDB_AUTOINCREMENT) ||
        (request && (request->dwSize != sizeof *request || !IsWindow(request->hwnd)))) {
        return Refuse(ERROR_INVALID_PARAMETER);
    }
    CEOID database = *oid;
    auto volume = FindDatabase(*guid, database, name);
    if (!volume) return INVALID_HANDLE_VALUE;
    const auto info = volume->Info(database);
    if (!info) return INVALID_HANDLE_VALUE;
    std::optional<SortOrder> order;
    if (sorted) {
        const auto found = std::find_if(info->orders.begin(), info->orders.end(), isWanted);
        if (found == info->orders.end()) return Refuse(ERROR_INVALID_PARAMETER);
        order = *found;
    }
    if (request) ListenForNotices();
    *oid = database;
    return Store::Get().Open(std::make_unique<OpenDatabase>(std::move(volume), database,
                                                            std::move(order), flags, request));
}

}  // namespace

bool CanSort(CEPROPID property) {
    switch (TypeFromPropID(property)) {
        case CEVT_I2:
        case CEVT_UI2:
        case CEVT_I4:
        case CEVT_UI4:
        case CEVT_R8:
        case CEVT_BOOL:
        case CEVT_LPWSTR:
        case CEVT_FILETIME: return true;
    }
    return false;
}

int CompareValues(CEPROPID property, DWORD flags, const std::string& left,
                  const std::string& right) {
    switch (TypeFromPropID(property)) {
        case CEVT_I2: return CompareAs<short>(left, right);
        case CEVT_UI2: return CompareAs<USHORT>(left, right);
        case CEVT_I4: return CompareAs<long>(left, right);
        case CEVT_R8: return CompareAs<double>(left, right);
        case CEVT_LPWSTR: return CompareTexts(flags, left, right);
        case CEVT_FILETIME: return CompareAs<unsigned long long>(left, right);
    }
    return CompareAs<ULONG>(left, right);
}

OpenDatabase::OpenDatabase(std::shared_ptr<Volume> volume, CEOID oid,
                           std::optional<SortOrder> order, DWORD flags,
                           const CENOTIFYREQUEST* request)
    : volume_(std::move(volume)), oid_(oid), order_(std::move(order)), flags_(flags) {
    if (request) request_ = *request;
    Refresh();
}

bool OpenDatabase::ComesBefore(const Entry& left, const Entry& right) const {
    for (std::size_t i = 0; i < left.keys.size(); ++i) {
        const SORTORDERSPEC& key = order_->keys[i];
        if (left.keys[i].has_value() != right.keys[i].has_value()) {
            // Records without the property come last, whichever the direction, unless asked first.
            return right.keys[i].has_value() == ((key.dwFlags & CEDB_SORT_UNKNOWNFIRST) != 0);
        }
        if (!left.keys[i]) continue;
        const int order = CompareValues(key.propid, key.dwFlags, *left.keys[i], *right.keys[i]);
        if (order) return (order < 0) != ((key.dwFlags & CEDB_SORT_DESCENDING) != 0);
    }
    return false;
}

void OpenDatabase::Load() {
    entries_.clear();
    std::vector<std::map<CEOID, std::string>> columns;
    if (order_) {
        for (const SORTORDERSPEC& key : order_->keys) {
            columns.push_back(volume_->Column(oid_, key.propid));
        }
    }
    for (const CEOID record : volume_->Records(oid_)) {
        Entry entry = {record, {}};
        for (const auto& column : columns) {
            const auto value = column.find(record);
            entry.keys.push_back(value == column.end() ? std::nullopt
                                                       : std::optional(value->second));
        }
        entries_.push_back(std::move(entry));
    }
    std::stable_sort(
        entries_.begin(), entries_.end(),
        [this](const Entry& left, const Entry& right) { return ComesBefore(left, right); });
}

void OpenDatabase::Refresh() {
    const auto version = volume_->Version();
    if (version_ == version) return;
    std::vector<CEOID> following;
    for (std::size_t i = index_; i < entries_.size(); ++i) following.push_back(entries_[i].oid);
    const bool first = !version_;
    Load();
    version_ = version;
    if (first) return;
    for (std::size_t i = 0; i < following.size(); ++i) {
        const auto same = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
            return entry.oid == following[i];
        });
        if (same == entries_.end()) continue;
        index_ = same - entries_.begin();
        deleted_ = deleted_ || (i > 0 && sought_);
        return;
    }
    deleted_ = deleted_ || (!following.empty() && sought_);
    index_ = entries_.size();
}

CEOID OpenDatabase::Current() {
    Refresh();
    if (deleted_) {
        SetLastError(ERROR_KEY_DELETED);
        return 0;
    }
    if (index_ < entries_.size()) return entries_[index_].oid;
    SetLastError(ERROR_NO_MORE_ITEMS);
    return 0;
}

void OpenDatabase::MoveOn() {
    if (index_ < entries_.size()) ++index_;
    sought_ = false;
}

int OpenDatabase::Compare(const Entry& entry, const Keys& keys) const {
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const SORTORDERSPEC& key = order_->keys[i];
        const int order = CompareValues(key.propid, key.dwFlags, *entry.keys[i], keys[i]);
        if (order) return order;
    }
    return 0;
}

bool OpenDatabase::ReadKeys(const CEPROPVAL* values, WORD count, Keys& keys) const {
    if (!values || !order_ || !count || count > order_->keys.size()) return false;
    for (WORD i = 0; i < count; ++i) {
        const auto bytes = BytesOf(values[i]);
        if (!bytes || values[i].propid != order_->keys[i].propid) return false;
        keys.push_back(*bytes);
    }
    return true;
}

// Finds the entry that the seek means; of several equal ones the first in the order, but the last
// for the greatest of the smaller ones.
bool OpenDatabase::SeekValue(DWORD type, const Keys& keys, std::size_t& index) const {
    // The older volumes have no seek for "greater or equal": there this one does it.
    const bool orEqual = type == CEDB_SEEK_VALUEGREATEROREQUAL ||
                         type == CEDB_SEEK_VALUESMALLEROREQUAL ||
                         (type == CEDB_SEEK_VALUEGREATER && volume_->kind().format == kCedb.format);
    const bool smaller = type == CEDB_SEEK_VALUESMALLER || type == CEDB_SEEK_VALUESMALLEROREQUAL;
    std::optional<std::size_t> best;
    const bool next = type == CEDB_SEEK_VALUENEXTEQUAL;
    const std::size_t begin = next ? index_ + 1 : 0;
    const std::size_t end = next ? std::min(begin + 1, entries_.size()) : entries_.size();
    for (std::size_t i = begin; i < end; ++i) {
        const Entry& entry = entries_[i];
        const auto isMissing = [](const auto& key) { return !key; };
        if (std::any_of(entry.keys.begin(), entry.keys.begin() + keys.size(), isMissing)) continue;
        const int order = Compare(entry, keys);
        if (type == CEDB_SEEK_VALUEFIRSTEQUAL || next) {
            if (order != 0) continue;
            best = i;
            break;
        }
        if (order == 0 ? !orEqual : (order < 0) != smaller) continue;
        Keys bestKeys;
        if (best) {
            for (std::size_t k = 0; k < keys.size(); ++k) {
                bestKeys.push_back(*entries_[*best].keys[k]);
            }
        }
        const int nearer = best ? Compare(entry, bestKeys) : 0;
        if (!best || (smaller ? nearer >= 0 : nearer < 0)) best = i;
    }
    if (best) index = *best;
    return best.has_value();
}

CEOID OpenDatabase::Seek(DWORD type, DWORD_PTR value, WORD count, DWORD* index) {
    Refresh();
    const long long size = static_cast<long long>(entries_.size());
    const auto steps = static_cast<long long>(static_cast<LONG>(value));
    std::size_t target = entries_.size();
    bool found = false;
    switch (type) {
        case CEDB_SEEK_CEOID: {
            const auto entry = std::find_if(
                entries_.begin(), entries_.end(),
                [&](const Entry& candidate) { return candidate.oid == static_cast<CEOID>(value); });
            target = entry - entries_.begin();
            found = entry != entries_.end();
            break;
        }
        case CEDB_SEEK_BEGINNING:
        case CEDB_SEEK_CURRENT:
        case CEDB_SEEK_END: {
            // From the end, 0 is the last record.
            const long long goal = type == CEDB_SEEK_END ? size - 1 - static_cast<DWORD>(value)
                                   : type == CEDB_SEEK_BEGINNING
                                       ? static_cast<long long>(static_cast<DWORD>(value))
                                       : static_cast<long long>(index_) + steps;
            found = goal >= 0 && goal < size;
            if (found) target = static_cast<std::size_t>(goal);
            break;
        }
        case CEDB_SEEK_VALUEGREATEROREQUAL:
        case CEDB_SEEK_VALUESMALLEROREQUAL:
            if (volume_->kind().format == kCedb.format) {
                SetLastError(ERROR_INVALID_PARAMETER);
                return 0;
            }
            [[fallthrough]];
        case CEDB_SEEK_VALUESMALLER:
        case CEDB_SEEK_VALUEFIRSTEQUAL:
        case CEDB_SEEK_VALUEGREATER:
        case CEDB_SEEK_VALUENEXTEQUAL: {
            Keys keys;
            if (!ReadKeys(reinterpret_cast<const CEPROPVAL*>(value), count, keys)) {
                SetLastError(ERROR_INVALID_PARAMETER);
                return 0;
            }
            found = SeekValue(type, keys, target);
            break;
        }
        default: SetLastError(ERROR_INVALID_PARAMETER); return 0;
    }
    sought_ = true;
    deleted_ = false;
    index_ = found ? target : entries_.size();
    if (index) *index = static_cast<DWORD>(index_);
    if (found) return entries_[index_].oid;
    SetLastError(ERROR_SEEK);
    return 0;
}

extern "C" {

HANDLE WINAPI CeOpenDatabaseEx(PCEGUID guid, PCEOID oid, LPWSTR name, CEPROPID sort, DWORD flags,
                               CENOTIFYREQUEST* request) {
    return Open(guid, oid, name, flags, request, sort != 0, [&](const SortOrder& order) {
        return order.keys.size() == 1 && order.keys.front().propid == sort;
    });
}

HANDLE WINAPI CeOpenDatabaseEx2(PCEGUID guid, PCEOID oid, LPWSTR name, SORTORDERSPECEX* sort,
                                DWORD flags, CENOTIFYREQUEST* request) {
    std::optional<SORTORDERSPECEX_EDB> wide;
    if (sort && !(wide = Widen(sort))) return Refuse(ERROR_INVALID_PARAMETER);
    return Open(guid, oid, name, flags, request, sort != nullptr,
                [&](const SortOrder& order) { return IsSameOrder(order, *wide); });
}

// There is no way to begin a session here. That volumes of the older kind are refused follows from
// their documentation; with which error is a guess.
HANDLE WINAPI CeOpenDatabaseInSession(HANDLE session, PCEGUID guid, PCEOID oid, LPWSTR name,
                                      SORTORDERSPECEX* sort, DWORD flags,
                                      CENOTIFYREQUEST* request) {
    if (session) return Refuse(ERROR_INVALID_HANDLE);
    if (guid && !IsInvalid(*guid)) {
        const std::lock_guard lock(Store::Get().mutex());
        const auto volume = Store::Get().Find(*guid);
        if (!volume) return INVALID_HANDLE_VALUE;
        if (volume->kind().format != kEdb.format) return Refuse(ERROR_INVALID_PARAMETER);
    }
    return CeOpenDatabaseEx2(guid, oid, name, sort, flags, request);
}

CEOID WINAPI CeSeekDatabaseEx(HANDLE handle, DWORD type, DWORD_PTR value, WORD count,
                              LPDWORD index) {
    if (failing::Fails(failing::kDatabases, ERROR_NOT_ENOUGH_MEMORY)) return 0;
    const std::lock_guard lock(Store::Get().mutex());
    const auto database = Store::Get().ObjectOf<OpenDatabase>(handle);
    return database ? database->Seek(type, value, count, index) : 0;
}

CEOID WINAPI CeSeekDatabase(HANDLE handle, DWORD type, DWORD_PTR value, LPDWORD index) {
    return CeSeekDatabaseEx(handle, type, value, 1, index);
}

}  // extern "C"
