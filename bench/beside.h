// Files beside the benchmarks.
#pragma once

#include <windows.h>

#include <string>

inline std::wstring Beside(const wchar_t* name) {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::wstring path = program;
    return path.substr(0, path.rfind(L'\\') + 1) + name;
}
