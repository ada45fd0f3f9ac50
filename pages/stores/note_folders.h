#pragma once

#include <string>
#include <vector>

// The names of the device's note folders, sorted as the user would; none where the device has
// no notes.
std::vector<std::wstring> NoteFolders();
