#pragma once

#include <windows.h>

// The window class of the input panel's keyboard. Each program has one for itself here, as it has
// the bars; it types into the control that has the program's focus, and never takes that.
inline constexpr wchar_t kKeyboardClass[] = L"PocketPC.Keyboard";

// Shows it above all other windows where it belongs on the screen as it is now, or hides it while
// the panel is down.
void PlaceKeyboard();
