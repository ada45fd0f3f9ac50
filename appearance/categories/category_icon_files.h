#pragma once

#include <string>

// The folder of the category icons, with a backslash at its end: that of the program whose icons
// the diary shares, or the diary's own. Empty when that program has noted none.
std::wstring FindCategoryIconFolder();

// A category's icon file in that folder.
std::wstring CategoryIconPath(const std::wstring& folder, const std::wstring& category);

// Copies a bitmap file to be the category's icon; creates the folder, and replaces a read-only
// file. False when that fails.
bool AssignCategoryIcon(const std::wstring& folder, const std::wstring& category,
                        const std::wstring& source);
// Deletes the category's icon file, if there is one, also a read-only one.
void DeleteCategoryIcon(const std::wstring& folder, const std::wstring& category);
