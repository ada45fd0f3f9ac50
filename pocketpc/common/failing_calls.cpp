#include "pocketpc/common/failing_calls.h"

#include <limits>
#include <string>

#include "pocketpc/common/text.h"

namespace failing {

namespace {

std::wstring MemoryName(DWORD process) { return L"PocketPC.Calls." + std::to_wstring(process); }

Calls* Map(HANDLE memory) {
    return memory ? static_cast<Calls*>(
                        MapViewOfFile(memory, FILE_MAP_READ | FILE_MAP_WRITE, 0, 0, sizeof(Calls)))
                  : nullptr;
}

void SetLimits(Calls& calls, const std::wstring& word) {
    for (int kind = 0; kind < kKindCount; ++kind) {
        const std::wstring name = std::wstring(kKindNames[kind]) + L":";
        if (!word.starts_with(name)) continue;
        calls.first[kind] = calls.last[kind] = _wtol(word.c_str() + name.size());
        if (word.ends_with(L'-')) calls.last[kind] = std::numeric_limits<LONG>::max();
    }
}

// The libraries of one process share the memory; the first of them to be asked makes it.
Calls* Begin() {
    wchar_t wanted[128];
    const DWORD length = GetEnvironmentVariableW(L"POCKETPC_FAIL", wanted, 128);
    if (!length || length >= 128) return nullptr;
    const HANDLE memory =
        CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(Calls),
                           MemoryName(GetCurrentProcessId()).c_str());
    const bool isNew = GetLastError() != ERROR_ALREADY_EXISTS;
    Calls* const calls = Map(memory);
    if (!calls || !isNew) return calls;
    for (const std::wstring& word : SplitWords(wanted)) SetLimits(*calls, word);
    return calls;
}

Calls* ThisProcess() {
    static Calls* const calls = Begin();
    return calls;
}

}  // namespace

Calls* CallsOf(DWORD process) {
    const HANDLE memory =
        OpenFileMappingW(FILE_MAP_READ | FILE_MAP_WRITE, FALSE, MemoryName(process).c_str());
    Calls* const calls = Map(memory);
    if (memory) CloseHandle(memory);
    return calls;
}

bool Fails(Kind kind, DWORD error) {
    Calls* const calls = ThisProcess();
    if (!calls) return false;
    const LONG call = InterlockedIncrement(&calls->made[kind]);
    const bool fails = call >= calls->first[kind] && call <= calls->last[kind];
    if (fails && error) SetLastError(error);
    return fails;
}

DWORD StoringError(Kind kind, DWORD otherError) {
    // Both are counted, whichever fails.
    const bool fails = Fails(kind), isFull = Fails(kSpace);
    return isFull ? ERROR_DISK_FULL : fails ? otherError : ERROR_SUCCESS;
}

}  // namespace failing
