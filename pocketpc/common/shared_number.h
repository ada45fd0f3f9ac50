// What every process of the device must know of the shell.
#pragma once

#include <windows.h>

namespace shell {

// Numbers in the registry of the desktop's user, beside the devices' own: properties of the
// desktop's window, which are quicker, are not for everybody to set on Windows. 0 is what was never
// set.
DWORD SharedNumber(const wchar_t* name);
void SetSharedNumber(const wchar_t* name, DWORD number);

}  // namespace shell
