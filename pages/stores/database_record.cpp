#include "pages/stores/database_record.h"

namespace {

constexpr DWORD kRecordIdentifierSize = 16;

std::optional<std::uint32_t> NumberOf(const CEPROPVAL& value) {
    switch (TypeFromPropID(value.propid)) {
        case CEVT_I2: return static_cast<std::uint32_t>(value.val.iVal);
        case CEVT_UI2: return value.val.uiVal;
        case CEVT_I4:
        case CEVT_UI4: return value.val.ulVal;
    }
    return std::nullopt;
}

// A record's own identifier is documented to be a blob of 16 bytes. Where a device has a number
// instead, what is in the blob's place does not lead into the block that was read.
std::vector<std::uint8_t> IdentifierOf(const CEPROPVAL& value, const BYTE* block, DWORD size) {
    const CEBLOB& blob = value.val.blob;
    const auto start = reinterpret_cast<std::uintptr_t>(block);
    const auto place = reinterpret_cast<std::uintptr_t>(blob.lpb);
    if (blob.dwCount == kRecordIdentifierSize && size >= blob.dwCount && place >= start &&
        place - start <= size - blob.dwCount) {
        return {blob.lpb, blob.lpb + blob.dwCount};
    }
    std::vector<std::uint8_t> number;
    for (int shift = 0; shift < 32; shift += 8) {
        number.push_back(static_cast<std::uint8_t>(value.val.ulVal >> shift));
    }
    return number;
}

}  // namespace

bool DatabaseRecord::Read(HANDLE database, std::initializer_list<CEPROPID> properties) {
    values_.assign(properties.size(), {});
    std::vector<CEPROPID> wanted(properties);
    WORD count = static_cast<WORD>(wanted.size());
    BYTE* buffer = nullptr;
    DWORD size = 0;
    const CEOID oid =
        GetDatabaseLayer().ReadRecord(database, &count, wanted.data(), &buffer, &size);
    // A record that has none of the properties is one all the same.
    const bool read = oid || GetLastError() == ERROR_NO_DATA;
    const void* const block = buffer;
    const auto values = static_cast<const CEPROPVAL*>(block);
    for (std::size_t i = 0; oid && i < values_.size() && i < count; ++i) {
        if (values[i].propid != wanted[i] || values[i].wFlags & CEDB_PROPNOTFOUND) continue;
        values_[i].number = NumberOf(values[i]);
        if (TypeFromPropID(wanted[i]) == CEVT_RECID) {
            values_[i].identifier = IdentifierOf(values[i], buffer, size);
        }
        if (TypeFromPropID(wanted[i]) == CEVT_LPWSTR && values[i].val.lpwstr) {
            values_[i].text = values[i].val.lpwstr;
        }
    }
    // Even a failed read may have allocated.
    LocalFree(buffer);
    return read;
}

std::optional<std::uint32_t> DatabaseRecord::Number(std::size_t index) const {
    return values_.at(index).number;
}

std::vector<std::uint8_t> DatabaseRecord::Identifier(std::size_t index) const {
    return values_.at(index).identifier;
}

std::wstring DatabaseRecord::Text(std::size_t index) const { return values_.at(index).text; }
