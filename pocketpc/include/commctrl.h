// The desktop's common controls and what the Pocket PC's know besides.
#pragma once

#include <windows.h>

#include_next <commctrl.h>

#include "prsht.h"

#undef LVS_NOCOLUMNHEADER
#define LVS_NOCOLUMNHEADER 0x4000
