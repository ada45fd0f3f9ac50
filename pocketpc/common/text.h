#pragma once

#include <string>
#include <string_view>
#include <vector>

// Words between blanks. A part in quotation marks keeps its blanks; two marks within are one.
// Never empty: a blank line has one empty word.
std::vector<std::wstring> SplitWords(std::wstring_view line);

std::string Utf8Of(std::wstring_view text);
std::wstring TextOfUtf8(std::string_view bytes);

// The last error in words.
std::wstring SystemProblem();
