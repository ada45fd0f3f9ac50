// The desktop's property sheets and what the Pocket PC's know besides.
#pragma once

#include <windows.h>

#include_next <prsht.h>

#ifndef PSH_MAXIMIZE
// Shares its bit with a wizard style of the desktop.
#define PSH_MAXIMIZE 0x00002000
#endif
#define PSCB_GETVERSION 3
#define PSCB_GETTITLE 4
#define PSCB_GETLINKTEXT 5
