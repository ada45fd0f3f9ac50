// The registry as plain data.
#pragma once

#include <windows.h>

#include <map>
#include <string>

#include "settings/settings_key.h"

// By their paths below HKEY_LOCAL_MACHINE: each value's type and bytes.
using RegistryValues = std::map<std::wstring, std::string>;

// Adds the values of a key and of all below it.
inline void ReadValues(const std::wstring& path, RegistryValues& values) {
    const OwnedKey key = OpenKey(HKEY_LOCAL_MACHINE, path.c_str());
    wchar_t name[256];
    BYTE data[4096];
    for (DWORD i = 0;; ++i) {
        DWORD length = 256, size = sizeof data, type = 0;
        if (RegEnumValueW(key.get(), i, name, &length, nullptr, &type, data, &size)) break;
        values[path + L"\\" + name] =
            static_cast<char>(type) + std::string(reinterpret_cast<char*>(data), size);
    }
    for (DWORD i = 0, length = 256;
         !RegEnumKeyExW(key.get(), i, name, &length, nullptr, nullptr, nullptr, nullptr);
         ++i, length = 256) {
        ReadValues(path + L"\\" + name, values);
    }
}
