#pragma once

#include <cstdint>
#include <optional>
#include <span>

// The largest icon, in pixels at 96 dots per inch.
inline constexpr int kLargestIcon = 30;

struct BitmapSize {
    int width = 0;
    int height = 0;
    bool operator==(const BitmapSize&) const = default;
};

// The size in pixels of a bitmap file that the device can load: uncompressed, with all of its
// colour table and pixels within the file. No value for any other file, so that nothing malformed
// is given to the system.
std::optional<BitmapSize> ReadBitmapSize(std::span<const std::uint8_t> file);
