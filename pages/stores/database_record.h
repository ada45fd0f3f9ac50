#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "pages/stores/database_layer.h"

constexpr CEPROPID PropertyId(WORD number, WORD type) {
    return static_cast<CEPROPID>(number) << 16 | type;
}

// Some properties of the record that a database is at.
class DatabaseRecord {
  public:
    // Reads them; one that the record lacks or has of another type is nothing. False when there is
    // no record to be read.
    bool Read(HANDLE database, std::initializer_list<CEPROPID> properties);

    // By the position in the list; a number of any of the types with up to 32 bits.
    std::optional<std::uint32_t> Number(std::size_t index) const;
    // The record's own identifier: 16 bytes, or 4 where the device has a number, the least one
    // first. Empty when it is missing.
    std::vector<std::uint8_t> Identifier(std::size_t index) const;
    // Empty when it is missing.
    std::wstring Text(std::size_t index) const;

  private:
    struct Value {
        std::optional<std::uint32_t> number;
        std::vector<std::uint8_t> identifier;
        std::wstring text;
    };
    std::vector<Value> values_;
};

// Calls `action(oid, record)` for each record of a database, in its order.
template <typename Action>
void ForEachRecord(HANDLE database, std::initializer_list<CEPROPID> properties, Action action) {
    const DatabaseLayer& layer = GetDatabaseLayer();
    DatabaseRecord record;
    for (CEOID oid = layer.Seek(database, CEDB_SEEK_BEGINNING, 0); oid;
         oid = layer.Seek(database, CEDB_SEEK_CURRENT, 1)) {
        if (record.Read(database, properties)) action(oid, record);
    }
}
