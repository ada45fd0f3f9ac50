#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// All bytes of a file. None for one that is missing, larger than `largest` bytes or than the memory
// there is, or cannot be read to its end.
std::optional<std::vector<std::uint8_t>> ReadWholeFile(const std::wstring& path,
                                                       std::uint32_t largest = 0x7FFFFFFF);
