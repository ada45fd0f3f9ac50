#pragma once

#include <string>
#include <string_view>
#include <vector>

// The names of hidden folders as they are stored: in lower case, joined by "|". An empty text is no
// name; otherwise there is a name, maybe an empty one, on both sides of every bar.
std::vector<std::wstring> SplitHiddenNames(std::wstring_view stored);
std::wstring JoinHiddenNames(const std::vector<std::wstring>& names);
