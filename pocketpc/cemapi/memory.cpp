// Buffers, and the sets of rows that are made of them. What is freed is overwritten, so that who
// still reads it notices.
#include "pocketpc/cemapi/memory.h"

#include <cstring>
#include <map>
#include <mutex>
#include <vector>

#include "pocketpc/cemapi/trials.h"

namespace {

constexpr BYTE kFreed = 0xDD;

struct Buffer {
    std::vector<std::vector<BYTE>> parts;  // the first is the buffer itself
    bool rowSet = false;
};

std::mutex mutex;

// Never destroyed, as buffers may be freed while libraries unload.
std::map<void*, Buffer>& Buffers() {
    static auto* const buffers = new std::map<void*, Buffer>;
    return *buffers;
}

void* AddPart(Buffer& buffer, ULONG size) {
    buffer.parts.emplace_back(size ? size : 1);
    return buffer.parts.back().data();
}

}  // namespace

HRESULT WINAPI MAPIAllocateBuffer(ULONG size, LPVOID* buffer) {
    if (!buffer) return MAPI_E_INVALID_PARAMETER;
    const std::lock_guard lock(mutex);
    Buffer made;
    *buffer = AddPart(made, size);
    Buffers()[*buffer] = std::move(made);
    trials::Count(trials::kBuffers, 1);
    return S_OK;
}

HRESULT WINAPI MAPIAllocateMore(ULONG size, LPVOID whole, LPVOID* buffer) {
    const std::lock_guard lock(mutex);
    const auto found = Buffers().find(whole);
    if (!buffer || found == Buffers().end()) return MAPI_E_INVALID_PARAMETER;
    *buffer = AddPart(found->second, size);
    return S_OK;
}

ULONG WINAPI MAPIFreeBuffer(LPVOID buffer) {
    if (!buffer) return S_OK;
    const std::lock_guard lock(mutex);
    const auto found = Buffers().find(buffer);
    if (found == Buffers().end()) {
        trials::Count(trials::kWrongFrees, 1);
        return static_cast<ULONG>(MAPI_E_INVALID_PARAMETER);
    }
    for (std::vector<BYTE>& part : found->second.parts) {
        std::memset(part.data(), kFreed, part.size());
    }
    if (found->second.rowSet) trials::Count(trials::kRowSets, -1);
    trials::Count(trials::kBuffers, -1);
    Buffers().erase(found);
    return S_OK;
}

OwnedRowSet MakeRowSet(ULONG rows) {
    void* memory = nullptr;
    const ULONG size = static_cast<ULONG>(sizeof(SRowSet) + rows * sizeof(SRow));
    if (FAILED(MAPIAllocateBuffer(size, &memory))) return nullptr;
    const std::lock_guard lock(mutex);
    Buffers()[memory].rowSet = true;
    trials::Count(trials::kRowSets, 1);
    const auto set = static_cast<SRowSet*>(memory);
    set->cRows = rows;
    return OwnedRowSet(set);
}

void WINAPI FreeProws(LPSRowSet rows) {
    if (!rows) return;
    {
        const std::lock_guard lock(mutex);
        const auto found = Buffers().find(rows);
        if (found == Buffers().end() || !found->second.rowSet) {
            trials::Count(trials::kWrongFrees, 1);
            return;
        }
    }
    for (ULONG i = 0; i < rows->cRows; ++i) MAPIFreeBuffer(rows->aRow[i].lpProps);
    MAPIFreeBuffer(rows);
}
