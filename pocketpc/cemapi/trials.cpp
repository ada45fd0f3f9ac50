#include "pocketpc/cemapi/trials.h"

#include <limits>

#include "pocketpc/common/failing_calls.h"

namespace trials {

namespace {

constexpr wchar_t kKey[] = L"Software\\Stand-in\\Messaging";
constexpr const wchar_t* kCounterNames[] = {L"Objects", L"RowSets", L"Buffers", L"WrongFrees"};
constexpr ULONG kNoLimit = std::numeric_limits<ULONG>::max();

struct State {
    bool reporting = false;
    LONG sessions = 0;
    ULONG calls = 0;
    ULONG failCall = 0;
    HRESULT failWith = E_FAIL;
    ULONG tableRows = kNoLimit;
    ULONG rowColumns = kNoLimit;
    bool noSubtree = false;
    bool nullEntry = false;
    LONG counters[kCounterCount] = {};
};
State state;

ULONG ReadNumber(HKEY key, const wchar_t* name, ULONG otherwise) {
    DWORD value = 0, size = sizeof value;
    const LSTATUS status =
        RegQueryValueExW(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(&value), &size);
    return status == ERROR_SUCCESS ? value : otherwise;
}

void Report() {
    HKEY key = nullptr;
    if (!state.reporting || RegOpenKeyExW(HKEY_LOCAL_MACHINE, kKey, 0, 0, &key) != ERROR_SUCCESS) {
        return;
    }
    const auto write = [key](const wchar_t* name, DWORD value) {
        RegSetValueExW(key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value),
                       sizeof value);
    };
    write(L"Calls", state.calls);
    for (int i = 0; i < kCounterCount; ++i) {
        write(kCounterNames[i], static_cast<DWORD>(state.counters[i]));
    }
    RegCloseKey(key);
}

}  // namespace

void Begin() {
    if (state.sessions++) return;
    HKEY key = nullptr;
    state.calls = 0;
    state.reporting = RegOpenKeyExW(HKEY_LOCAL_MACHINE, kKey, 0, 0, &key) == ERROR_SUCCESS;
    state.failCall = state.reporting ? ReadNumber(key, L"FailCall", 0) : 0;
    state.failWith =
        state.reporting ? static_cast<HRESULT>(ReadNumber(key, L"FailWith", E_FAIL)) : E_FAIL;
    state.tableRows = state.reporting ? ReadNumber(key, L"TableRows", kNoLimit) : kNoLimit;
    state.rowColumns = state.reporting ? ReadNumber(key, L"RowColumns", kNoLimit) : kNoLimit;
    state.noSubtree = state.reporting && ReadNumber(key, L"NoSubtree", 0);
    state.nullEntry = state.reporting && ReadNumber(key, L"NullEntry", 0);
    if (key) RegCloseKey(key);
}

void End() {
    if (--state.sessions == 0) Report();
}

HRESULT NextCall() {
    const bool fails = failing::Fails(failing::kMessaging);
    return ++state.calls == state.failCall || fails ? state.failWith : S_OK;
}

ULONG TableRows() { return state.tableRows; }

ULONG RowColumns() { return state.rowColumns; }

bool NoSubtree() { return state.noSubtree; }

bool NullEntry() { return state.nullEntry; }

void Count(Counter counter, LONG change) {
    InterlockedExchangeAdd(&state.counters[counter], change);
    if (state.sessions <= 0) Report();
}

}  // namespace trials
