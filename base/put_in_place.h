#pragma once

#include <string>

// The name under which a file is made that shall take the place of `path` when it is whole.
inline std::wstring FreshName(const std::wstring& path) { return path + L".new"; }

// Gives the file of that name its place, in one step; the one that was there is gone then. When it
// fails, that one stays and the fresh one is gone.
bool PutInPlace(const std::wstring& path);
