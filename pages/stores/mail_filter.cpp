#include "pages/stores/mail_filter.h"

#include <algorithm>
#include <utility>

#include "base/byte_reader.h"

namespace {

constexpr std::uint8_t kSecondStore = 'F';
constexpr std::uint8_t kMessagingStore = 'M';

template <typename Entries>
auto Find(Entries& entries, const MailFolderRef& folder) {
    return std::find_if(entries.begin(), entries.end(),
                        [&](const MailFilter::Entry& entry) { return entry.folder == folder; });
}

std::size_t StoredLength(const std::wstring& name) {
    return name.size() <= kLongestMailFolderName ? name.size() : 0;
}

}  // namespace

bool MailFilter::Contains(const MailFolderRef& folder) const {
    return Find(entries, folder) != entries.end();
}

bool MailFilter::HasSameFolders(const MailFilter& other) const {
    return entries.size() == other.entries.size() &&
           std::ranges::all_of(entries,
                               [&](const Entry& entry) { return other.Contains(entry.folder); });
}

void MailFilter::Add(const MailFolderRef& folder, const std::wstring& folderName) {
    const auto found = Find(entries, folder);
    if (found == entries.end()) {
        entries.push_back({folder, folderName});
    } else {
        found->name = folderName;
    }
}

void MailFilter::Remove(const MailFolderRef& folder) {
    const auto found = Find(entries, folder);
    if (found != entries.end()) entries.erase(found);
}

std::optional<std::vector<std::uint8_t>> MailFilterBytes(
    const std::vector<MailFilter::Entry>& entries) {
    std::vector<std::uint8_t> bytes;
    for (const auto& [folder, name] : entries) {
        if (!folder.CanBeStored()) return std::nullopt;
        bytes.push_back(folder.inSecondStore ? kSecondStore : kMessagingStore);
        bytes.push_back(static_cast<std::uint8_t>(folder.identifier.size()));
        bytes.insert(bytes.end(), folder.identifier.begin(), folder.identifier.end());
        const std::size_t length = StoredLength(name);
        bytes.push_back(static_cast<std::uint8_t>(length));
        for (std::size_t i = 0; i < length; ++i) {
            const auto unit = static_cast<std::uint16_t>(name[i]);
            bytes.push_back(static_cast<std::uint8_t>(unit));
            bytes.push_back(static_cast<std::uint8_t>(unit >> 8));
        }
    }
    return bytes;
}

std::optional<std::vector<MailFilter::Entry>> ParseMailFilter(std::span<const std::uint8_t> bytes) {
    MailFilter filter;
    ByteReader reader(bytes);
    while (reader.left() > 0) {
        const std::uint32_t kind = reader.TakeNumber(1);
        const auto identifier = reader.Take(reader.TakeNumber(1));
        MailFilter::Entry entry;
        entry.name = reader.TakeText(2 * reader.TakeNumber(1));
        if ((kind != kSecondStore && kind != kMessagingStore) || reader.failed() ||
            entry.name.empty()) {
            return std::nullopt;
        }
        entry.folder.identifier.assign(identifier.begin(), identifier.end());
        entry.folder.inSecondStore = kind == kSecondStore;
        if (!filter.Contains(entry.folder)) filter.entries.push_back(std::move(entry));
    }
    return std::move(filter.entries);
}
