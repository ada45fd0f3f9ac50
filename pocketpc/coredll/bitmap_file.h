#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// An uncompressed bitmap file in memory, which must outlive this.
class BitmapFile {
  public:
    // Nothing when the file is malformed, cut short or of a kind that the device does not load.
    static std::optional<BitmapFile> Parse(std::span<const std::uint8_t> file);

    int width() const { return width_; }
    int height() const { return height_; }
    // 0xRRGGBB of a pixel, counted from the top left.
    std::uint32_t Color(int x, int y) const;

  private:
    // Where a channel lies in a pixel.
    struct Channel {
        int shift = 0;
        int bits = 0;
    };

    bool ReadHeader(std::size_t headerSize);
    bool ReadMasks();
    bool ReadPixelsPlace(std::size_t headerSize);
    static std::optional<Channel> ChannelOf(std::uint32_t mask);
    std::uint32_t Number(std::size_t at, int bytes) const;

    std::span<const std::uint8_t> file_;
    int width_ = 0, height_ = 0, bits_ = 0;
    bool topDown_ = false, masked_ = false;
    std::uint32_t tableSize_ = 0;  // colours in the table
    std::size_t row_ = 0, pixels_ = 0;
    std::array<Channel, 3> channels_;  // red, green, blue
    std::vector<std::uint32_t> table_;
};
