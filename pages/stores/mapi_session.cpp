#include "pages/stores/mapi_session.h"

#include <iterator>
#include <optional>

#include "base/owned_handle.h"
#include "settings/device.h"

namespace {

// The property with the name of a store's transport service, which newer systems keep elsewhere.
constexpr ULONG kOlderTransportName = PROP_TAG(PT_TSTRING, 0x8302);

ULONG TransportNameTag() { return IsNewerPocketPc() ? PR_CE_TRANSPORT_NAME : kOlderTransportName; }

LSTATUS OpenServiceKey(const std::wstring& service, OwnedKey& key) {
    HKEY opened = nullptr;
    const std::wstring path = L"SOFTWARE\\Microsoft\\Inbox\\Svc\\" + service;
    const LSTATUS status = RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, 0, &opened);
    if (status == ERROR_SUCCESS) key.Reset(opened);
    return status;
}

// What the service is called where the owner sees it: the service's own name when it has no other.
std::wstring FriendlyName(const std::wstring& service, bool& isKnown) {
    OwnedKey key;
    if (service.empty()) return service;
    LSTATUS status = OpenServiceKey(service, key);
    constexpr DWORD kRoom = 256;  // bytes, with the terminator
    wchar_t name[kRoom / sizeof(wchar_t) + 1] = {};
    DWORD size = kRoom, type = REG_NONE;
    if (key) {
        status = RegQueryValueExW(key.get(), L"FriendlyName", nullptr, &type,
                                  reinterpret_cast<BYTE*>(name), &size);
    }
    isKnown =
        status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND || status == ERROR_MORE_DATA;
    return status == ERROR_SUCCESS && type == REG_SZ && *name ? name : service;
}

// The account of a row; nothing for one that has no identifier or whose service is not set up.
std::optional<MapiAccount> AccountOf(const MapiRecord& row) {
    const auto identifier = row.Bytes(0);
    if (row.Tag(0) != PR_ENTRYID || !identifier) return std::nullopt;
    const auto transport = row.Text(2);
    const std::wstring service = transport ? *transport : row.Text(1).value_or(L"");
    OwnedKey key;
    if (transport && !transport->empty() && OpenServiceKey(*transport, key)) return std::nullopt;
    MapiAccount account = {*identifier};
    account.name = FriendlyName(service, account.nameIsKnown);
    return account;
}

}  // namespace

MapiSession::MapiSession() : initialized_(SUCCEEDED(MAPIInitialize(nullptr))) {
    LPMAPISESSION session = nullptr;
    if (initialized_ && SUCCEEDED(MAPILogonEx(0, nullptr, nullptr, 0, &session))) {
        session_.Reset(session);
    }
}

MapiSession::~MapiSession() {
    if (session_) session_.get()->Logoff(0, 0, 0);
    session_.Reset();
    if (initialized_) MAPIUninitialize();
}

bool MapiSession::ForEachAccount(const std::function<bool(const MapiAccount&)>& action) const {
    LPMAPITABLE table = nullptr;
    if (!session_ || FAILED(session_.get()->GetMsgStoresTable(MAPI_UNICODE, &table))) return false;
    const MapiPointer<IMAPITable> owner(table);
    return ForEachRow(*table, {PR_ENTRYID, PR_DISPLAY_NAME_W, TransportNameTag()},
                      [&](const MapiRecord& row) {
                          const auto account = AccountOf(row);
                          return !account || action(*account);
                      });
}

MapiPointer<IMsgStore> MapiSession::OpenStore(const MapiAccount& account) const {
    LPMDB store = nullptr;
    const auto size = static_cast<ULONG>(account.identifier.size());
    if (!session_ || FAILED(session_.get()->OpenMsgStore(0, size, EntryOf(account.identifier),
                                                         nullptr, 0, &store))) {
        return {};
    }
    return MapiPointer<IMsgStore>(store);
}

bool ForEachRow(IMAPITable& table, const std::vector<ULONG>& columns,
                const std::function<bool(const MapiRecord&)>& action) {
    MapiTags tags(columns);
    if (FAILED(table.SetColumns(tags.get(), 0))) return false;
    for (;;) {
        LPSRowSet rows = nullptr;
        if (FAILED(table.QueryRows(1, 0, &rows))) return false;
        const MapiRows owner(rows);
        if (!rows || rows->cRows == 0) return true;
        if (!action(MapiRecord(rows->aRow[0].lpProps, rows->aRow[0].cValues))) return false;
    }
}

std::vector<std::uint8_t> SubtreeIdentifier(IMsgStore& store) {
    MapiTags tags({PR_IPM_SUBTREE_ENTRYID});
    ULONG count = 0;
    LPSPropValue values = nullptr;
    if (FAILED(store.GetProps(tags.get(), MAPI_UNICODE, &count, &values))) return {};
    const MapiValues owner(values);
    return MapiRecord(values, count).Bytes(0).value_or(std::vector<std::uint8_t>());
}

bool ForEachSpecialFolder(
    IMsgStore& store,
    const std::function<void(std::size_t, const std::vector<std::uint8_t>&)>& action) {
    MapiTags tags({std::begin(kSpecialFolderTags), std::end(kSpecialFolderTags)});
    ULONG count = 0;
    LPSPropValue values = nullptr;
    if (FAILED(store.GetProps(tags.get(), MAPI_UNICODE, &count, &values))) return false;
    const MapiValues owner(values);
    const MapiRecord record(values, count);
    for (ULONG i = 0; i < kSpecialFolderCount; ++i) {
        if (const auto identifier = record.Bytes(i)) action(i, *identifier);
    }
    return true;
}
