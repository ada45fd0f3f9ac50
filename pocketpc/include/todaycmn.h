// What Today screen plug-ins ask of the Today screen.
#pragma once

#include <windows.h>

#define TODAYM_GETCOLOR (WM_USER + 100)
#define TODAYCOLOR_TEXT 0x10000004
#define TODAYCOLOR_HIGHLIGHT 0x10000022
#define TODAYCOLOR_HIGHLIGHTEDTEXT 0x10000023
