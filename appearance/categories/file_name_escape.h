#pragma once

#include <string>
#include <string_view>

// File names of things with any name: each of the ten characters % \ / : * ? " < > | becomes "%"
// and a letter A to J.
std::wstring EscapeFileName(std::wstring_view name);

// The name again. A "%" without such a letter stands for itself.
std::wstring UnescapeFileName(std::wstring_view fileName);
