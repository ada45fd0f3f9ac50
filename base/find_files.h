#pragma once

#include <windows.h>

#include <functional>
#include <string>

// Calls `action` for each file and folder that matches a pattern such as "\\Folder\\*.bmp", until
// it answers false. The entries of a folder begin with "." and "..".
void ForEachFile(const std::wstring& pattern,
                 const std::function<bool(WIN32_FIND_DATAW& found)>& action);

inline bool IsFolder(const WIN32_FIND_DATAW& found) {
    return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}
