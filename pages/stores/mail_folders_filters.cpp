#include "pages/stores/mail_folders_filters.h"

#include <algorithm>

#include "base/names.h"
#include "settings/catalogue.h"
#include "settings/settings_key.h"

namespace {

std::optional<std::vector<std::uint8_t>> ReadBytes(CSettingsKey& key, const std::wstring& name) {
    DWORD size = 0;
    if (!key.ReadBinary(name.c_str(), nullptr, &size)) return std::nullopt;
    std::vector<std::uint8_t> bytes(size);
    if (size && !key.ReadBinary(name.c_str(), bytes.data(), &size)) return std::nullopt;
    bytes.resize(size);
    return bytes;
}

// The filter that a folder of the second mail program belongs to by its type; -1 for none.
int BuiltInOf(std::int32_t folderType) {
    switch (folderType) {
        case 1: return 2;  // inbox
        case 2: return 3;  // outbox
        case 3: return 4;  // sent items
        case 4: return 0;  // deleted items
        case 5: return 1;  // drafts
    }
    return -1;
}

}  // namespace

bool CMailFoldersFilters::Load(bool force) {
    if (loaded_ && !force) return true;
    filters_.clear();
    const std::wstring path = std::wstring(kProductKey) + L"\\" + settings::keys::MailFilters;
    CSettingsKey key(HKEY_LOCAL_MACHINE, path.c_str(), false, false);
    hasUnread_ = key.HasUnread();
    if (!key.IsOpen()) return false;
    std::wstring name;
    for (bool more = key.FirstValueName(name); more; more = key.NextValueName(name)) {
        const auto bytes = ReadBytes(key, name);
        auto entries = bytes ? ParseMailFilter(*bytes) : std::nullopt;
        if (entries) filters_.push_back({name, std::move(*entries)});
    }
    hasUnread_ = key.HasUnread();
    loaded_ = true;
    return true;
}

// The old ones go last, so that no filter is ever in neither form, and only if all are known.
void CMailFoldersFilters::Save() const {
    CSettingsKey key = OpenProductKey(settings::keys::MailFilters);
    std::vector<std::wstring> kept;
    for (const MailFilter& filter : filters_) {
        const auto bytes = MailFilterBytes(filter.entries);
        if (!bytes) continue;
        // A filter without folders has no bytes, but still a place for them.
        const std::uint8_t none = 0;
        key.WriteBinary(filter.name.c_str(), bytes->empty() ? &none : bytes->data(),
                        static_cast<DWORD>(bytes->size()));
        kept.push_back(filter.name);
    }
    if (!hasUnread_) key.DeleteValuesBut(kept);
}

std::wstring CMailFoldersFilters::ActiveName() {
    return OpenProductKey().Read(settings::EmailFilter);
}

void CMailFoldersFilters::SetActive(int index) const {
    CSettingsKey key = OpenProductKey();
    if (index < 0) {
        key.DeleteValue(settings::EmailFilter.name);
    } else {
        key.Write(settings::EmailFilter, filters_.at(index).name);
    }
}

std::vector<int> CMailFoldersFilters::SortedIndices() const {
    std::vector<int> sorted;
    for (std::size_t i = 0; i < filters_.size(); ++i) {
        if (!filters_[i].entries.empty()) sorted.push_back(static_cast<int>(i));
    }
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        for (std::size_t j = i + 1; j < sorted.size(); ++j) {
            if (StandsBefore(filters_[sorted[j]].name, filters_[sorted[i]].name)) {
                std::swap(sorted[i], sorted[j]);
            }
        }
    }
    return sorted;
}

int CMailFoldersFilters::FindByName(const std::wstring& name) const {
    const auto found =
        std::find_if(filters_.begin(), filters_.end(),
                     [&](const MailFilter& filter) { return IsSameName(filter.name, name); });
    return found == filters_.end() ? -1 : static_cast<int>(found - filters_.begin());
}

CMailFoldersFilters::BuiltIns CMailFoldersFilters::FindBuiltIns(const BuiltInNames& names) {
    for (const std::wstring& name : names) {
        if (FindByName(name) < 0) filters_.push_back({name, {}});
    }
    BuiltIns found;
    for (std::size_t i = 0; i < names.size(); ++i) found[i] = FindByName(names[i]);
    return found;
}

// An account without a name is called as the filter, as a record without a name could not be read.
void CMailFoldersFilters::AddTo(int index, const MailFolderRef& folder,
                                const std::wstring& account) {
    if (!folder.CanBeStored()) return;
    MailFilter& filter = filters_.at(index);
    const std::wstring& name = account.empty() ? filter.name : account;
    filter.Add(folder, name.substr(0, kLongestMailFolderName));
}

bool CMailFoldersFilters::AddMAPIFolders(const MapiSession& session, const BuiltIns& builtIns) {
    return session.ForEachAccount([&](const MapiAccount& account) {
        if (!account.nameIsKnown) return false;  // Those that are there keep their names.
        const MapiPointer<IMsgStore> store = session.OpenStore(account);
        return store && ForEachSpecialFolder(
                            *store.get(), [&](std::size_t i, const std::vector<std::uint8_t>& id) {
                                AddTo(builtIns.at(i), {id, false}, account.name);
                            });
    });
}

void CMailFoldersFilters::AddMail2Folders(const Mail2& mail2, const BuiltIns& builtIns) {
    for (const auto& account : mail2.accounts()) {
        for (const Mail2Folder& folder : account->folders()) {
            const int place = BuiltInOf(folder.type);
            if (place < 0) continue;
            AddTo(builtIns.at(place), {account->FolderIdentifier(folder), true}, account->name());
        }
    }
}

CMailFoldersFilters& GetMailFoldersFilters() {
    static CMailFoldersFilters filters;
    return filters;
}
