#include "app/single_instance.h"

std::optional<HRESULT> EndsBecauseOfOtherInstance(const wchar_t* className) {
    constexpr int kRounds = 25;
    constexpr DWORD kRoundMilliseconds = 100;
    if (!className || !*className) return E_FAIL;
    for (int round = 0; round < kRounds; ++round) {
        const HANDLE mutex = CreateMutexW(nullptr, FALSE, className);
        const DWORD error = GetLastError();
        if (!mutex) return error == ERROR_INVALID_HANDLE ? E_INVALIDARG : E_FAIL;
        // The first instance never closes the handle: the system does, when the process ends.
        if (error != ERROR_ALREADY_EXISTS) return std::nullopt;
        CloseHandle(mutex);
        const HWND other = FindWindowW(className, nullptr);
        if (!other) {
            Sleep(kRoundMilliseconds);
        } else {
            // The low bit asks the shell to bring the whole application forward, with what it has
            // open.
            const auto application = reinterpret_cast<HWND>(reinterpret_cast<ULONG_PTR>(other) | 1);
            if (SetForegroundWindow(application)) return S_OK;
        }
    }
    // The other instance holds the mutex but cannot be reached; a second window is better than
    // none.
    return std::nullopt;
}
