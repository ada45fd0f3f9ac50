#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "base/bitmap_header.h"

// The largest icon, in pixels at 96 dots per inch.
inline constexpr int kLargestIcon = 30;

// The header of a bitmap file that the device can load: uncompressed, with all of its colour table
// and pixels within the file. No value for any other file, so that nothing malformed is given to
// the system.
std::optional<BitmapFileHeader> ReadIconHeader(std::span<const std::uint8_t> file);
