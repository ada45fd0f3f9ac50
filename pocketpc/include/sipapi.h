// The input panel.
#pragma once

#include <windows.h>

#define SIPF_OFF 0x00000000
#define SIPF_ON 0x00000001
#define SIPF_DOCKED 0x00000002
#define SIPF_LOCKED 0x00000004

typedef struct tagSIPINFO {
    DWORD cbSize;
    DWORD fdwFlags;
    RECT rcVisibleDesktop;  // below the navigation bar and above the panel
    RECT rcSipRect;
    DWORD dwImDataSize;
    void* pvImData;
} SIPINFO;

EXTERN_C BOOL WINAPI SipGetInfo(SIPINFO* info);
// SIPF_ON or SIPF_OFF.
EXTERN_C BOOL WINAPI SipShowIM(DWORD flag);
