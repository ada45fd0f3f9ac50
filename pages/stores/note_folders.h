#pragma once

#include <string>
#include <vector>

// The names of the device's note folders, sorted without regard to case; none where the device has
// no notes.
std::vector<std::wstring> NoteFolders();
