#pragma once

#include <cstdint>

// The version code of the PhatNotes program that is installed: 0x405, 0x407, or 0 for none.
std::uint32_t PhatNotesVersion();

// Whether PhatPad, or its viewer, is installed and its libraries can be loaded. They are unloaded
// again at once.
bool IsPhatPadPresent();
