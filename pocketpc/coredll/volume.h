#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "pocketpc/coredll/sql.h"
#include "pocketpc/include/windbase.h"

// What a database's records can be read in the order of: up to some properties, each with its
// flags.
struct SortOrder {
    DWORD keyFlags = 0;  // CEDB_SORT_UNIQUE
    std::vector<SORTORDERSPEC> keys;
};

struct DatabaseInfo {
    std::wstring name;
    DWORD type = 0;
    DWORD flags = 0;
    std::vector<SortOrder> orders;
    FILETIME modified = {};
    DWORD records = 0;
    DWORD size = 0;  // bytes of all values
};

// Values by property, as the bytes they have in memory; a text without its terminator. Without a
// value a property is to be removed.
using Values = std::map<CEPROPID, std::optional<std::string>>;

// The two kinds of volumes and what each can hold.
struct VolumeKind {
    int format;  // as noted in the file
    std::size_t longestName, mostOrders, mostKeys;
    // Bytes. What counts towards them besides the values themselves is not known.
    std::size_t largestProperty, largestRecord;
};
inline constexpr VolumeKind kCedb = {1, 31, 4, 3, CEDB_MAXPROPDATASIZE, CEDB_MAXRECORDSIZE};
inline constexpr VolumeKind kEdb = {2, 127, 32, 16, 8 * 1024, 8 * 1024};

// One file with databases: a SQLite database of ours. Object identifiers are numbers that the file
// hands out once. Whatever fails returns false, 0 or nothing and sets the last error.
class Volume {
  public:
    // Opens `path` as CreateFile would with `disposition`. What is no volume of this kind is
    // refused with ERROR_ACCESS_DENIED.
    static std::shared_ptr<Volume> Open(const std::wstring& path, DWORD disposition,
                                        const VolumeKind& kind);

    const VolumeKind& kind() const { return *kind_; }
    const std::wstring& path() const { return path_; }
    // Changes whenever this process or another one has changed the file.
    std::pair<long long, long long> Version() const;

    std::vector<CEOID> Databases() const;
    CEOID FindDatabase(const std::wstring& name) const;
    std::optional<DatabaseInfo> Info(CEOID database) const;
    // With database 0 makes a new one. Returns its identifier.
    CEOID WriteInfo(CEOID database, const DatabaseInfo& info);
    bool DeleteDatabase(CEOID database);

    // The database that a record belongs to.
    std::optional<CEOID> ParentOf(CEOID record) const;
    std::vector<CEOID> Records(CEOID database) const;
    // One property of all the records that have it.
    std::map<CEOID, std::string> Column(CEOID database, CEPROPID property) const;
    Values Record(CEOID record) const;
    // With record 0 makes a new one. Returns its identifier.
    CEOID WriteRecord(CEOID database, CEOID record, const Values& values);
    bool DeleteRecord(CEOID database, CEOID record);

  private:
    struct Close {
        void operator()(sqlite3* connection) const;
    };
    bool Connect(bool create);
    bool MakeTables();
    bool IsVolume() const;
    CEOID NewIdentifier();
    bool Touch(CEOID database);
    Statement Prepare(const char* sql) const { return {connection_.get(), sql}; }

    const VolumeKind* kind_ = nullptr;
    std::wstring path_;
    bool recordIdentifiersAreNumbers_ = false;
    std::unique_ptr<sqlite3, Close> connection_;
    long long changes_ = 0;
};
