// Changes what the device holds from a process of its own.
#pragma once

#include <windows.h>

#include <string>

// Runs devicectl and waits until it has ended well.
inline bool Control(std::wstring arguments) {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    wcscpy(wcsrchr(path, L'\\') + 1, L"devicectl.exe");
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(path, arguments.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        nullptr, &process)) {
        return false;
    }
    WaitForSingleObject(process.hProcess, 20'000);
    DWORD code = 1;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code == 0;
}
