#pragma once

#include <windows.h>

#include <string>

// The program's module and its resource library, for the life of the process. All texts, dialogs,
// menus and icons come from the library; without it they are absent.
void InitModule(HINSTANCE instance);
bool LoadResourceLibrary(const std::wstring& path);
void ShutDownModule();

HINSTANCE ModuleInstance();
// Null when the library could not be loaded.
HMODULE ResourceLibrary();
