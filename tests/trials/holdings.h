// What the program stores: the values of its keys, and its files.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

inline constexpr wchar_t kExportFile[] = L"\\My Documents\\Lum Diary.dias";

// By their paths: a value's type and bytes, or a file's bytes.
struct Holdings {
    std::map<std::wstring, std::string> values, files;

    static Holdings Read();
    // Makes the device hold these and nothing else.
    void Restore() const;
    bool operator==(const Holdings&) const = default;
};

// Where the device has neither what it had before nor what it was to have then; an icon may be any
// whole one of the icon set.
std::vector<std::string> Damage(const Holdings& before, const Holdings& then, const Holdings& now);
