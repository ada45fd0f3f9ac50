#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

// Longer identifiers and names cannot be stored.
inline constexpr std::size_t kLongestMailIdentifier = 255;  // bytes
inline constexpr std::size_t kLongestMailFolderName = 255;  // UTF-16 units

// Names one mail folder: by its identifier in the device's messaging store or in that of Mail2, the
// second mail program.
struct MailFolderRef {
    std::vector<std::uint8_t> identifier;
    bool inSecondStore = false;

    bool CanBeStored() const { return identifier.size() <= kLongestMailIdentifier; }
    auto operator<=>(const MailFolderRef&) const = default;
};

// A named set of mail folders, in the order in which they were added.
struct MailFilter {
    struct Entry {
        MailFolderRef folder;
        std::wstring name;  // what the folder is called where the filter is shown

        bool operator==(const Entry&) const = default;
    };

    std::wstring name;
    std::vector<Entry> entries;  // no two with the same folder

    bool Contains(const MailFolderRef& folder) const;
    // Whatever their order and what the folders are called.
    bool HasSameFolders(const MailFilter& other) const;
    // Only renames a folder that is already there.
    void Add(const MailFolderRef& folder, const std::wstring& folderName);
    void Remove(const MailFolderRef& folder);

    bool operator==(const MailFilter&) const = default;
};

// The folders as they are stored, or nothing when one's identifier is too long. A name that is too
// long is stored as none, which cannot be read back.
std::optional<std::vector<std::uint8_t>> MailFilterBytes(const std::vector<MailFilter::Entry>&);

// Reads them again; nothing when any record is damaged or without a name. Of two records of one
// folder the first counts.
std::optional<std::vector<MailFilter::Entry>> ParseMailFilter(std::span<const std::uint8_t> bytes);
