#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// Texts of the program are UTF-16 units, one in each wchar_t however wide that is; everything that
// is said or named on the command line is UTF-8. What is no character becomes U+FFFD.
std::string ToUtf8(std::wstring_view units);
std::wstring FromUtf8(std::string_view text);

// In one line: what would break it is escaped.
std::string Plain(std::wstring_view units);
// Likewise, in quotes.
std::string Quoted(std::wstring_view units);

// The characters of a file that is UTF-16 behind a byte-order mark, or else UTF-8.
std::wstring TextOfFile(std::span<const std::uint8_t> bytes);
