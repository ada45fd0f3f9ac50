// Windows, messages and files, short for tests.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "base/owned_handle.h"

inline constexpr int kBar = 26;

inline RECT RectOf(HWND hwnd) {
    RECT rect = {};
    GetWindowRect(hwnd, &rect);
    return rect;
}

inline RECT WorkArea() {
    return {0, kBar, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN) - kBar};
}

inline void Pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

// Waits until a condition holds, for at most ten seconds, while this thread's messages are handled.
inline bool Until(const std::function<bool()>& condition) {
    const DWORD start = GetTickCount();
    for (;; Sleep(5)) {
        Pump();
        if (condition()) return true;
        if (GetTickCount() - start > 10'000) return false;
    }
}

// A top window of a class of its own, which is not shown.
inline HWND MakeWindow(const wchar_t* className, WNDPROC procedure) {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = className;
    RegisterClassW(&windowClass);
    return CreateWindowExW(0, className, L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr,
                           windowClass.hInstance, nullptr);
}

inline bool WriteBytes(const std::wstring& path, const void* data, std::size_t size) {
    const OwnedFile file(
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    return WriteFile(file.get(), data, static_cast<DWORD>(size), &written, nullptr) &&
           written == size;
}
