// The desktop's common controls and what the Pocket PC's know besides.
#pragma once

#include <windows.h>

#include_next <commctrl.h>

#include "prsht.h"

#undef COMCTL32_VERSION
#define COMCTL32_VERSION 524

#undef LVS_NOCOLUMNHEADER
#define LVS_NOCOLUMNHEADER 0x4000

// Asks, when a tap may become tap-and-hold, whether something follows; 1 says no and stops the
// animation.
#define NM_RECOGNIZEGESTURE ((UINT)-50)
typedef struct tagNMRGINFO {
    NMHDR hdr;
    POINT ptAction;
    DWORD dwItemSpec;
} NMRGINFO, *PNMRGINFO;
