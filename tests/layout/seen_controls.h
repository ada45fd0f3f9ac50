// What stands on a dialog of this process, as the rules want to know it.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tests/layout/layout_rules.h"

namespace layout {

Page Look(HWND dialog, int dpi);

// Every text that the dialog shows: its controls', its lists', and the window's above it with its
// tabs and menu bar. Names of the owner, the device and of faces are not among them.
std::vector<std::wstring> ShownTexts(HWND window, HWND dialog);

}  // namespace layout
