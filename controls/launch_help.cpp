#include "controls/launch_help.h"

#include <windows.h>

#include <string>

bool LaunchHelp(const wchar_t* anchor) {
    std::wstring arguments = L"LumDiary.htm#";
    arguments += anchor && *anchor ? anchor : L"Main_Contents";
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(L"PegHelp.exe", arguments.data(), nullptr, nullptr, FALSE, 0, nullptr,
                        nullptr, nullptr, &process)) {
        return false;
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return true;
}
