#include "pocketpc/devicectl/databases.h"

#include <algorithm>
#include <iterator>

namespace {

bool IsObjectStore(const std::wstring& name) { return name == L"store"; }

template <typename BaseInfo, typename SetOrder>
void FillInfo(BaseInfo& info, const std::wstring& name, const std::vector<SortText>& orders,
              SetOrder setOrder) {
    info.dwFlags = CEDB_VALIDNAME | CEDB_VALIDSORTSPEC;
    wcscpy(info.szDbaseName, name.c_str());
    info.wNumSortOrder = static_cast<WORD>(orders.size());
    for (std::size_t i = 0; i < orders.size(); ++i) setOrder(info.rgSortSpecs[i], orders[i]);
}

// Room in the description for the name and the orders.
template <typename BaseInfo>
bool Fits(const BaseInfo& info, const std::wstring& name, const std::vector<SortText>& orders,
          std::size_t mostKeys) {
    return name.size() < std::size(info.szDbaseName) &&
           orders.size() <= std::size(info.rgSortSpecs) &&
           std::all_of(orders.begin(), orders.end(),
                       [&](const SortText& order) { return order.keys.size() <= mostKeys; });
}

template <typename OidInfoEx>
bool Describe(MountedVolume& volume, CEOID oid, WORD version, DatabaseText& text) {
    OidInfoEx info = {};
    info.wVersion = version;
    if (!CeOidGetInfoEx2(volume.guid(), oid, reinterpret_cast<CEOIDINFOEX*>(&info))) return false;
    text = {oid, info.infDatabase.szDbaseName, info.infDatabase.dwNumRecords, {}};
    for (int i = 0; i < info.infDatabase.wNumSortOrder; ++i) {
        const auto& order = info.infDatabase.rgSortSpecs[i];
        std::vector<SORTORDERSPEC> keys;
        for (int k = 0; k < order.wNumProps; ++k) {
            keys.push_back({order.rgPropID[k], order.rgdwFlags[k]});
        }
        text.orders.push_back(SortOrderText(keys));
    }
    return true;
}

}  // namespace

bool IsNewerDevice() {
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    return GetVersionExW(&version) && version.dwMajorVersion >= 5;
}

MountedVolume::MountedVolume(const std::wstring& name) {
    if (IsObjectStore(name)) {
        ready_ = true;
        return;
    }
    std::wstring path = name;
    edb_ = IsNewerDevice() && CeMountDBVol(&guid_, path.data(), OPEN_EXISTING | EDB_MOUNT_FLAG);
    ready_ = mounted_ = edb_ || CeMountDBVol(&guid_, path.data(), OPEN_EXISTING);
}

MountedVolume::~MountedVolume() {
    if (mounted_) CeUnmountDBVol(&guid_);
}

OpenedDatabase::OpenedDatabase(MountedVolume& volume, const std::wstring& name)
    : handle_(CeOpenDatabaseEx(volume.guid(), &oid_, const_cast<LPWSTR>(name.c_str()), 0,
                               CEDB_AUTOINCREMENT, nullptr)) {}

OpenedDatabase::~OpenedDatabase() {
    if (*this) CloseHandle(handle_);
}

bool MakeVolume(const std::wstring& name, bool edb) {
    if (IsObjectStore(name)) return true;
    CEGUID guid;
    std::wstring path = name;
    if (!CeMountDBVol(&guid, path.data(), CREATE_NEW | (edb ? EDB_MOUNT_FLAG : 0))) {
        return GetLastError() == ERROR_ALREADY_EXISTS;
    }
    return CeUnmountDBVol(&guid);
}

std::optional<SortText> ParseSort(const std::wstring& text) {
    SortText order;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(L'+', begin), text.size());
        std::wstring key = text.substr(begin, end - begin);
        begin = end + 1;
        DWORD flags = 0;
        while (!key.empty() && (key.back() == L'-' || key.back() == L'~')) {
            flags |= key.back() == L'-' ? CEDB_SORT_DESCENDING : CEDB_SORT_CASEINSENSITIVE;
            key.pop_back();
        }
        const auto property = ParseProperty(key);
        if (!property) return std::nullopt;
        order.keys.push_back({*property, flags});
    }
    return order;
}

std::wstring SortOrderText(const std::vector<SORTORDERSPEC>& keys) {
    std::wstring text;
    for (const SORTORDERSPEC& key : keys) {
        if (!text.empty()) text += L'+';
        text += PropertyText(key.propid);
        if (key.dwFlags & CEDB_SORT_DESCENDING) text += L'-';
        if (key.dwFlags & CEDB_SORT_CASEINSENSITIVE) text += L'~';
    }
    return text;
}

CEOID MakeDatabase(MountedVolume& volume, const std::wstring& name,
                   const std::vector<SortText>& orders) {
    CEDBASEINFOEX_EDB edb = {};
    CEDBASEINFO cedb = {};
    if (volume.IsEdb() ? !Fits(edb, name, orders, 16) : !Fits(cedb, name, orders, 1)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    if (!volume.IsEdb()) {
        FillInfo(cedb, name, orders,
                 [](SORTORDERSPEC& to, const SortText& from) { to = from.keys.front(); });
        return CeCreateDatabaseEx(volume.guid(), &cedb);
    }
    edb.wVersion = CEDBASEINFOEX_VERSION_EDB;
    FillInfo(edb, name, orders, [](SORTORDERSPECEX_EDB& to, const SortText& from) {
        to.wVersion = CEDB_SORTORDERSPECEX_VERSION_EDB;
        for (const SORTORDERSPEC& key : from.keys) {
            to.rgPropID[to.wNumProps] = key.propid;
            to.rgdwFlags[to.wNumProps++] = key.dwFlags;
        }
    });
    return CeCreateDatabaseEx2(volume.guid(), reinterpret_cast<CEDBASEINFOEX*>(&edb));
}

std::vector<DatabaseText> ListDatabases(MountedVolume& volume) {
    std::vector<DatabaseText> list;
    const HANDLE search = CeFindFirstDatabaseEx(volume.guid(), 0);
    if (search == INVALID_HANDLE_VALUE) return list;
    while (const CEOID oid = CeFindNextDatabaseEx(search, nullptr)) {
        DatabaseText text;
        if (volume.IsEdb()
                ? Describe<CEOIDINFOEX_EDB>(volume, oid, CEOIDINFOEX_VERSION_EDB, text)
                : Describe<CEOIDINFOEX_CEDB>(volume, oid, CEOIDINFOEX_VERSION_CEDB, text)) {
            list.push_back(std::move(text));
        }
    }
    CloseHandle(search);
    return list;
}

std::vector<RecordText> ListRecords(const OpenedDatabase& database) {
    std::vector<RecordText> list;
    BYTE* buffer = nullptr;
    for (;;) {
        DWORD size = buffer ? static_cast<DWORD>(LocalSize(buffer)) : 0;
        WORD count = 0;
        SetLastError(ERROR_SUCCESS);
        const CEOID oid = CeReadRecordProps(database.handle(), CEDB_ALLOWREALLOC, &count, nullptr,
                                            &buffer, &size);
        if (!oid && GetLastError() != ERROR_NO_DATA) break;
        RecordText record = {oid, {}};
        const void* const block = buffer;
        const auto values = static_cast<const CEPROPVAL*>(block);
        for (WORD i = 0; i < count; ++i) record.values.push_back(ValueText(values[i]));
        list.push_back(std::move(record));
    }
    LocalFree(buffer);
    return list;
}
