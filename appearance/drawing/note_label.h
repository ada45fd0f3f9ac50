#pragma once

#include <cstdint>
#include <string>

// What stands beside a note in the list: its size in bytes, or for a recording its length in
// milliseconds, with the user's decimal separator. Behind the separator stands the remainder as it
// is counted, not a fraction, cut to the width of the column.
std::wstring NoteSizeLabel(std::uint32_t bytes, const std::wstring& decimalSeparator);
std::wstring RecordingLabel(std::uint32_t milliseconds, const std::wstring& decimalSeparator);
