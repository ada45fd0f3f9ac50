#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

// An uncompressed 24-bit bitmap within bytes that its user keeps; nothing is copied. All of its
// rows lie within those bytes.
struct BitmapView {
    int width = 0;   // pixels, at least 1
    int height = 0;  // rows, at least 1
    std::span<const std::uint8_t> rows;
    std::size_t stride = 0;  // bytes from row to row
    bool topDown = false;    // whether the first row stored is the uppermost

    // The pixel's three bytes: blue, green, red.
    const std::uint8_t* Pixel(int x, int y) const {
        const int row = topDown ? y : height - 1 - y;
        return rows.data() + stride * static_cast<std::size_t>(row) +
               3 * static_cast<std::size_t>(x);
    }
};

// The bitmap in the bytes of a bitmap file. None for anything but 24 uncompressed bits a pixel, for
// sides longer than 32767, and for a file that is too short for its dimensions. Files whose height
// is negative, which are stored from the top down, are read as well.
std::optional<BitmapView> ParseBitmapFile(std::span<const std::uint8_t> file);

// The same for a bitmap resource, which is a bitmap file without its file header.
std::optional<BitmapView> ParseBitmapResource(std::span<const std::uint8_t> resource);
