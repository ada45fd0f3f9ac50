#pragma once

#include <windows.h>

// The commands that save all settings to a file of the user's choice and load them back. Each asks
// for the file first, and says so when it fails.
void ExportSettings(HWND owner);
// True when the user went through with it: settings may have changed, even if it failed.
bool ImportSettings(HWND owner);
