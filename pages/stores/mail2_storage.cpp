#include "pages/stores/mail2_storage.h"

#include "pages/stores/database_record.h"
#include "settings/device.h"

namespace {

constexpr wchar_t kDefaultKey[] = L"{00000000-0000-0000-0000-000000000000}";
constexpr CEPROPID kValue = PropertyId(0, CEVT_UI4);
constexpr CEPROPID kType = PropertyId(1, CEVT_UI4);
constexpr CEPROPID kName = PropertyId(2, CEVT_LPWSTR);
// The bodies' records are found by the number in their property 0.
constexpr CEPROPID kBodiesSort = PropertyId(0, CEVT_UI4);
static_assert(kBodiesSort == 19);

std::wstring KeyOf(const std::wstring& path) {
    const std::size_t slash = path.rfind(L'\\');
    if (slash == std::wstring::npos) return kDefaultKey;
    const std::size_t dot = path.find(L'.', slash);
    if (dot == std::wstring::npos) return kDefaultKey;
    std::wstring key = path.substr(slash + 1, dot - slash - 1);
    CharUpperBuffW(key.data(), static_cast<DWORD>(key.size()));
    return key;
}

std::int32_t NumberOr(const std::optional<std::uint32_t>& number) {
    return static_cast<std::int32_t>(number.value_or(static_cast<std::uint32_t>(-1)));
}

std::vector<Mail2Folder> ReadFolders(HANDLE database) {
    std::vector<Mail2Folder> folders;
    ForEachRecord(database, {kValue, kType, kName}, [&](CEOID oid, const DatabaseRecord& record) {
        folders.push_back(
            {oid, NumberOr(record.Number(0)), NumberOr(record.Number(1)), record.Text(2)});
    });
    return folders;
}

}  // namespace

MountedMail2Volume::MountedMail2Volume(const std::wstring& path) {
    const DWORD flags = OPEN_EXISTING | (IsNewerPocketPc() ? EDB_MOUNT_FLAG : 0);
    mounted_ = CeMountDBVol(&guid_, const_cast<LPWSTR>(path.c_str()), flags) != FALSE;
}

MountedMail2Volume::~MountedMail2Volume() {
    if (mounted_) CeUnmountDBVol(&guid_);
}

Mail2Storage::Mail2Storage(const std::wstring& storage, const std::wstring& name,
                           const std::wstring& path)
    : storage_(storage), name_(name), key_(KeyOf(path)), volume_(path) {}

std::unique_ptr<Mail2Storage> Mail2Storage::Open(const std::wstring& storage,
                                                 const std::wstring& name,
                                                 const std::wstring& path) {
    std::unique_ptr<Mail2Storage> opened(new Mail2Storage(storage, name, path));
    return opened->volume_ && opened->OpenDatabases() ? std::move(opened) : nullptr;
}

DatabaseHandle Mail2Storage::OpenDatabase(const wchar_t* name, CEPROPID sort) const {
    DatabaseRequest request;
    request.volume = &volume_.guid();
    request.name = name;
    request.sort.property = sort;
    return GetDatabaseLayer().Open(request);
}

bool Mail2Storage::OpenDatabases() {
    foldersDatabase_ = OpenDatabase(L"Folders");
    messages_ = OpenDatabase(L"Messages");
    bodies_ = OpenDatabase(L"Bodies", kBodiesSort);
    if (!foldersDatabase_ || !messages_ || !bodies_) return false;
    folders_ = ReadFolders(foldersDatabase_.get());
    if (const DatabaseHandle info = OpenDatabase(L"Info")) {
        const std::vector<Mail2Folder> records = ReadFolders(info.get());
        if (!records.empty()) info_ = records.front();
    }
    return !folders_.empty();
}

std::vector<std::uint8_t> Mail2Storage::FolderIdentifier(const Mail2Folder& folder) const {
    std::vector<std::uint8_t> identifier;
    for (int shift = 0; shift < 32; shift += 8) {
        identifier.push_back(static_cast<std::uint8_t>(folder.oid >> shift));
    }
    for (const wchar_t c : key_) {
        identifier.push_back(static_cast<std::uint8_t>(c));
        identifier.push_back(static_cast<std::uint8_t>(c >> 8));
    }
    return identifier;
}
