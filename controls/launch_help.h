#pragma once

// Starts the device's help viewer at an anchor of the help file; without an anchor, at its
// contents. Returns whether it started; nobody waits for it.
bool LaunchHelp(const wchar_t* anchor);
