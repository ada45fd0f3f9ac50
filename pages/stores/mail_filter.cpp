#include "pages/stores/mail_filter.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::uint8_t kSecondStore = 'F';
constexpr std::uint8_t kMessagingStore = 'M';
constexpr std::size_t kLengths = 3;  // the kind and the two lengths of a record

template <typename Entries>
auto Find(Entries& entries, const MailFolderRef& folder) {
    return std::find_if(entries.begin(), entries.end(),
                        [&](const MailFilter::Entry& entry) { return entry.folder == folder; });
}

std::size_t StoredLength(const std::wstring& name) {
    return name.size() <= kLongestMailFolderName ? name.size() : 0;
}

// Takes parts of the bytes from their beginning; nothing once one runs past their end.
class Reader {
  public:
    explicit Reader(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

    bool AtEnd() const { return rest_.empty(); }
    std::optional<std::span<const std::uint8_t>> Take(std::size_t size) {
        if (size > rest_.size()) return std::nullopt;
        const auto part = rest_.first(size);
        rest_ = rest_.subspan(size);
        return part;
    }
    // As many units as the byte before them says, each of `unitSize` bytes.
    std::optional<std::span<const std::uint8_t>> TakeCounted(std::size_t unitSize) {
        const auto count = Take(1);
        return count ? Take(unitSize * count->front()) : std::nullopt;
    }

  private:
    std::span<const std::uint8_t> rest_;
};

}  // namespace

bool MailFilter::Contains(const MailFolderRef& folder) const {
    return Find(entries, folder) != entries.end();
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
    std::size_t size = 0;
    for (const MailFilter::Entry& entry : entries) {
        if (entry.folder.identifier.size() > kLongestMailIdentifier) return std::nullopt;
        size += kLengths + entry.folder.identifier.size() + 2 * StoredLength(entry.name);
    }
    std::vector<std::uint8_t> bytes;
    bytes.reserve(size);
    for (const auto& [folder, name] : entries) {
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
    Reader reader(bytes);
    while (!reader.AtEnd()) {
        const std::uint8_t kind = reader.Take(1)->front();
        const auto identifier = reader.TakeCounted(1);
        const auto units = reader.TakeCounted(2);
        if ((kind != kSecondStore && kind != kMessagingStore) || !identifier || !units ||
            units->empty()) {
            return std::nullopt;
        }
        MailFilter::Entry entry;
        entry.folder.identifier.assign(identifier->begin(), identifier->end());
        entry.folder.inSecondStore = kind == kSecondStore;
        for (std::size_t i = 0; i < units->size(); i += 2) {
            entry.name += static_cast<wchar_t>((*units)[i] | (*units)[i + 1] << 8);
        }
        if (!filter.Contains(entry.folder)) filter.entries.push_back(std::move(entry));
    }
    return std::move(filter.entries);
}
