#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/bitmap_header.h"

// A bitmap's description, with the colours or masks that it lists, and its pixels, in one piece of
// memory: the header is one of 40 bytes, whichever the file had.
struct IconPicture {
    std::vector<std::uint8_t> bytes;
    std::uint32_t pixels = 0;  // where they begin
    std::int16_t width = 0;    // pixels
    std::int16_t height = 0;
};

// The picture of a bitmap file, which is copied. `header` is what ReadIconHeader read of it. None
// where masks overlap or have gaps.
std::optional<IconPicture> ReadIconPicture(std::span<const std::uint8_t> file,
                                           const BitmapFileHeader& header);
