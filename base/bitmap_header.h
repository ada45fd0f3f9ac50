#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

// What the header of a device-independent bitmap says of an uncompressed picture. What of it is
// accepted is its users' choice.
struct BitmapHeader {
    int width = 0;               // pixels, 1 to 32767
    int height = 0;              // rows, 1 to 32767
    bool topDown = false;        // whether the first row stored is the uppermost
    std::uint32_t bits = 0;      // of a pixel
    bool masked = false;         // masks say where in a pixel its colours are
    std::uint32_t size = 0;      // bytes of the header itself: 12, or 40 and more
    std::uint64_t infoSize = 0;  // bytes of the header with its masks and its colour table
    std::size_t stride = 0;      // bytes from row to row

    std::uint64_t PixelBytes() const { return std::uint64_t{stride} * height; }
};

// The header at the beginning of these bytes, as bitmap resources have it. None when it is cut off
// or none of those that the system knows, for more than one plane, another compression, sides out
// of their range, and a table of more colours than the pixels can name.
std::optional<BitmapHeader> ParseBitmapHeader(std::span<const std::uint8_t> info);

// The same for a bitmap file, which says besides where its pixels begin.
struct BitmapFileHeader {
    BitmapHeader info;
    std::uint32_t pixels = 0;  // bytes from the file's beginning
};
std::optional<BitmapFileHeader> ParseBitmapFileHeader(std::span<const std::uint8_t> file);

// Bytes of the header with which every bitmap file begins.
inline constexpr std::size_t kBitmapFileHeaderSize = 14;
