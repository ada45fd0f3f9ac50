#pragma once

#include <windows.h>

// The message box that fits the device's screen; the library's own windows use it as well.
extern "C" int WINAPI Pocket_MessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type);
