// Owners of what the messaging library hands out.
#pragma once

#include <windows.h>

#include <cemapi.h>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/owned_handle.h"

struct MapiRelease {
    void operator()(IUnknown* object) const { object->Release(); }
    void operator()(SRowSet* rows) const { FreeProws(rows); }
    void operator()(SPropValue* values) const { MAPIFreeBuffer(values); }
};

// A reference to an object; a set of rows; an array of values.
template <typename Interface>
using MapiPointer = OwnedHandle<Interface*, MapiRelease>;
using MapiRows = OwnedHandle<SRowSet*, MapiRelease>;
using MapiValues = OwnedHandle<SPropValue*, MapiRelease>;

// Some values of a row or an object. One that is missing, or of another type, is nothing.
class MapiRecord {
  public:
    MapiRecord(const SPropValue* values, ULONG count) : values_(values), count_(count) {}

    std::optional<std::vector<std::uint8_t>> Bytes(ULONG index) const {
        const SPropValue* value = Find(index, PT_BINARY);
        if (!value || (value->Value.bin.cb && !value->Value.bin.lpb)) return std::nullopt;
        return std::vector<std::uint8_t>(value->Value.bin.lpb,
                                         value->Value.bin.lpb + value->Value.bin.cb);
    }
    std::optional<std::wstring> Text(ULONG index) const {
        const SPropValue* value = Find(index, PT_UNICODE);
        if (!value || !value->Value.lpszW) return std::nullopt;
        return value->Value.lpszW;
    }
    bool Flag(ULONG index) const {
        const SPropValue* value = Find(index, PT_BOOLEAN);
        return value && value->Value.b;
    }
    // The property that the value is of; 0 when there is none.
    ULONG Tag(ULONG index) const { return index < count_ ? values_[index].ulPropTag : 0; }

  private:
    const SPropValue* Find(ULONG index, ULONG type) const {
        const bool found = values_ && PROP_TYPE(Tag(index)) == type;
        return found ? &values_[index] : nullptr;
    }

    const SPropValue* values_;
    ULONG count_;
};
