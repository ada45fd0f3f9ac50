#pragma once

#include <functional>
#include <string>
#include <vector>

#include "pages/stores/mapi.h"

// A mail account of the messaging system, which has a store of its own.
struct MapiAccount {
    std::vector<std::uint8_t> identifier;
    // What the owner knows the account's service by; empty when nothing has a name.
    std::wstring name;
    bool nameIsKnown = true;  // false when the name there may be could not be read
};

// A session of the messaging system, for as long as it lives.
class MapiSession {
  public:
    MapiSession();
    ~MapiSession();
    MapiSession(const MapiSession&) = delete;
    MapiSession& operator=(const MapiSession&) = delete;

    // False when the session could not log on; there are no accounts then.
    explicit operator bool() const { return static_cast<bool>(session_); }

    // Calls `action` for each account whose service is set up, until it says no. False when the
    // accounts could not be read to their end or the action said no.
    bool ForEachAccount(const std::function<bool(const MapiAccount&)>& action) const;

    // No object when it fails.
    MapiPointer<IMsgStore> OpenStore(const MapiAccount& account) const;

  private:
    bool initialized_;
    MapiPointer<IMAPISession> session_;
};

// Reads a table row by row with these columns, until `action` says no. False when the table could
// not be read to its end or the action said no.
bool ForEachRow(IMAPITable& table, const std::vector<ULONG>& columns,
                const std::function<bool(const MapiRecord&)>& action);

// An identifier as the messaging library takes it.
inline LPENTRYID EntryOf(const std::vector<std::uint8_t>& identifier) {
    return reinterpret_cast<LPENTRYID>(const_cast<std::uint8_t*>(identifier.data()));
}

// The tags of properties in the form in which the messaging library takes them.
class MapiTags {
  public:
    explicit MapiTags(const std::vector<ULONG>& tags) : words_(tags) {
        words_.insert(words_.begin(), static_cast<ULONG>(tags.size()));
    }
    LPSPropTagArray get() { return reinterpret_cast<LPSPropTagArray>(words_.data()); }

  private:
    std::vector<ULONG> words_;
};

// The identifier of the folder that has all those a store shows; empty when the store has none.
std::vector<std::uint8_t> SubtreeIdentifier(IMsgStore& store);

// The five special folders of a store, in the order in which they are asked for.
inline constexpr ULONG kSpecialFolderTags[] = {PR_IPM_WASTEBASKET_ENTRYID, PR_CE_IPM_DRAFTS_ENTRYID,
                                               PR_CE_IPM_INBOX_ENTRYID, PR_IPM_OUTBOX_ENTRYID,
                                               PR_IPM_SENTMAIL_ENTRYID};
inline constexpr std::size_t kSpecialFolderCount = std::size(kSpecialFolderTags);

// Calls `action` with the place in the list above and the identifier of each that the store has.
// False when they could not be read.
bool ForEachSpecialFolder(
    IMsgStore& store,
    const std::function<void(std::size_t, const std::vector<std::uint8_t>&)>& action);
