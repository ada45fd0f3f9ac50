#pragma once

#include <string_view>

// The names of what users have: folders, filters, layouts, categories. They know letters beyond
// ASCII, as _wcsicmp does not.

// Whether a name stands before another one in the user's alphabet, without regard to case, kana
// type and width.
bool StandsBefore(std::wstring_view left, std::wstring_view right);

// Whether two names differ by the case of their letters at most, so that a key of the registry has
// one value for both.
bool IsSameName(std::wstring_view left, std::wstring_view right);
