#pragma once

#include <windows.h>

// Lets a tab control with TCS_BOTTOM paint its tabs flat, as the Pocket PC's do.
void FlattenTabs(HWND tabs);
