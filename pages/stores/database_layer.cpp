#include "pages/stores/database_layer.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "base/names.h"
#include "settings/device.h"

namespace {

constexpr wchar_t kPimVolume[] = L"pim.vol";

template <typename Function>
void LookUp(HMODULE library, const wchar_t* name, Function& function) {
    function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

// The order to open a database with; null for the system's choice.
SORTORDERSPECEX* ChooseOrder(CEDBASEINFOEX& info, const DatabaseSort& sort) {
    const int count = std::min<int>(info.wNumSortOrder, std::size(info.rgSortSpecs));
    if (sort.position >= 0)
        return sort.position < count ? &info.rgSortSpecs[sort.position] : nullptr;
    for (int i = count - 1; sort.property && i >= 0; --i) {
        SORTORDERSPECEX& order = info.rgSortSpecs[i];
        const auto end = order.rgPropID + std::min<std::size_t>(order.wNumProps, CEDB_MAXSORTPROP);
        if (std::find(order.rgPropID, end, sort.property) != end) return &order;
    }
    return nullptr;
}

}  // namespace

DatabaseLayer::DatabaseLayer() {
    const HMODULE library = GetModuleHandleW(L"coredll.dll");
    LookUp(library, L"CeOpenDatabaseEx2", newer_.openDatabase);
    LookUp(library, L"CeReadRecordPropsEx", newer_.readRecord);
    LookUp(library, L"CeSeekDatabaseEx", newer_.seek);
    LookUp(library, L"CeOidGetInfoEx2", newer_.getInfo);
    LookUp(library, L"CeOpenDatabaseInSession", newer_.openInSession);
    LookUp(library, L"CeOpenStream", newer_.openStream);
    LookUp(library, L"CeStreamRead", newer_.readStream);
    LookUp(library, L"CeStreamWrite", newer_.writeStream);
    LookUp(library, L"CeStreamSaveChanges", newer_.saveStream);
    LookUp(library, L"CeStreamSeek", newer_.seekStream);
    LookUp(library, L"CeStreamSetSize", newer_.resizeStream);
}

const CEGUID& DatabaseLayer::PimVolume() {
    if (pimVolumeSought_) return pimVolume_;
    pimVolumeSought_ = true;
    CEGUID volume;
    // The newer volumes have an invalid identifier of their own.
    if (IsNewerPocketPc()) {
        CREATE_INVALIDEDBGUID(&volume);
    } else {
        CREATE_INVALIDGUID(&volume);
    }
    wchar_t name[MAX_PATH];
    while (CeEnumDBVolumes(&volume, name, MAX_PATH)) {
        if (!IsSameName(name, kPimVolume)) continue;
        pimVolume_ = volume;
        break;
    }
    return pimVolume_;
}

DatabaseHandle DatabaseLayer::Open(const DatabaseRequest& request, CEOID* oid) {
    CEOID found = request.oid;
    DatabaseHandle database;
    if (IsNewerPocketPc()) {
        database = OpenOnNewer(request, found);
    } else {
        CEGUID volume = request.volume ? *request.volume : CEGUID{};
        database = DatabaseHandle(
            CeOpenDatabaseEx(&volume, &found, const_cast<LPWSTR>(request.name.c_str()),
                             request.sort.property, request.flags, request.notify));
    }
    if (oid && database) *oid = found;
    return database;
}

DatabaseHandle DatabaseLayer::OpenOnNewer(const DatabaseRequest& request, CEOID& oid) {
    if (!newer_.openDatabase) return DatabaseHandle();
    CEGUID volume = request.volume ? *request.volume : PimVolume();
    const auto open = [&](SORTORDERSPECEX* order) {
        return DatabaseHandle(newer_.openDatabase(&volume, &oid,
                                                  const_cast<LPWSTR>(request.name.c_str()), order,
                                                  request.flags, request.notify));
    };
    DatabaseHandle database = open(nullptr);
    if (!database || CHECK_SYSTEMGUID(&volume)) return database;
    // Only an open database's identifier leads to its sort orders.
    database = DatabaseHandle();
    CEOIDINFOEX info = {};
    info.wVersion = CEOIDINFOEX_VERSION;
    if (!newer_.getInfo || !newer_.getInfo(&volume, oid, &info)) return DatabaseHandle();
    return open(ChooseOrder(info.infDatabase, request.sort));
}

CEOID DatabaseLayer::Seek(HANDLE database, DWORD type, DWORD value) const {
    if (!IsNewerPocketPc()) return CeSeekDatabase(database, type, value, nullptr);
    return newer_.seek ? newer_.seek(database, type, value, 0, nullptr) : 0;
}

CEOID DatabaseLayer::ReadRecord(HANDLE database, WORD* count, CEPROPID* properties, BYTE** buffer,
                                DWORD* size) const {
    if (!IsNewerPocketPc()) {
        return CeReadRecordProps(database, CEDB_ALLOWREALLOC, count, properties, buffer, size);
    }
    return newer_.readRecord ? newer_.readRecord(database, CEDB_ALLOWREALLOC, count, properties,
                                                 buffer, size, nullptr)
                             : 0;
}

DatabaseLayer& GetDatabaseLayer() {
    static DatabaseLayer layer;
    return layer;
}
