#pragma once

#include <string>

// The full path of a file in the installation folder; without a name, the folder itself. The folder
// is the one the set-up noted in the registry, and where it noted none, the program's own.
std::wstring GetInstallPath(const wchar_t* fileName = nullptr);
