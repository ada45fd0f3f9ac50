#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "pocketpc/coredll/store.h"
#include "pocketpc/coredll/volume.h"

// Whether records can be sorted by a property: by numbers, texts and times.
bool CanSort(CEPROPID property);

// Negative, zero or positive. The flags are those of a sort order; DESCENDING is not looked at.
int CompareValues(CEPROPID property, DWORD flags, const std::string& left,
                  const std::string& right);

// What a handle of an open database stands for: a position among its records in some order.
class OpenDatabase : public StoreObject {
  public:
    OpenDatabase(std::shared_ptr<Volume> volume, CEOID oid, std::optional<SortOrder> order,
                 DWORD flags, const CENOTIFYREQUEST* request);

    Volume& volume() const { return *volume_; }
    CEOID oid() const { return oid_; }
    bool MovesOnReading() const { return (flags_ & CEDB_AUTOINCREMENT) != 0; }
    const std::optional<CENOTIFYREQUEST>& request() const { return request_; }

    // The record at the position. 0 past the end (ERROR_NO_MORE_ITEMS), or when it has been
    // deleted since it was sought (ERROR_KEY_DELETED).
    CEOID Current();
    void MoveOn();

    // As CeSeekDatabaseEx. 0 when there is no such record; the position is then past the end.
    CEOID Seek(DWORD type, DWORD_PTR value, WORD count, DWORD* index);

  private:
    struct Entry {
        CEOID oid;
        std::vector<std::optional<std::string>> keys;
    };
    using Keys = std::vector<std::string>;

    // Takes in what has changed since; the position stays with its record.
    void Refresh();
    void Load();
    bool ComesBefore(const Entry& left, const Entry& right) const;
    int Compare(const Entry& entry, const Keys& keys) const;
    bool SeekValue(DWORD type, const Keys& keys, std::size_t& index) const;
    bool ReadKeys(const CEPROPVAL* values, WORD count, Keys& keys) const;

    std::shared_ptr<Volume> volume_;
    CEOID oid_;
    std::optional<SortOrder> order_;
    DWORD flags_;
    std::optional<CENOTIFYREQUEST> request_;

    std::vector<Entry> entries_;
    std::optional<std::pair<long long, long long>> version_;
    std::size_t index_ = 0;  // the number of entries: past the end
    bool sought_ = false;    // not reached by reading on
    bool deleted_ = false;   // what was sought is gone; the index is that of what followed
};

// A value's bytes as the volume keeps them; nothing when the type is unknown or the pointer bad.
std::optional<std::string> BytesOf(const CEPROPVAL& value);
