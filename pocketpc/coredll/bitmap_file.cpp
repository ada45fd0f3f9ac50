#include "pocketpc/coredll/bitmap_file.h"

#include <bit>

namespace {

constexpr std::size_t kFileHeader = 14, kCoreHeader = 12, kInfoHeader = 40, kLongestHeader = 124;
constexpr std::size_t kMasks = kFileHeader + kInfoHeader;  // behind the first header or in a longer
constexpr std::size_t kMasksSize = 12;
constexpr std::uint32_t kPlain = 0, kBitFields = 3;
constexpr std::int64_t kLargestSide = 0x7FFF;

// A channel of fewer bits repeats them, so that the brightest value stays the brightest.
std::uint32_t ToByte(std::uint32_t value, int bits) {
    if (bits >= 8) return value >> (bits - 8);
    std::uint32_t byte = 0;
    for (int shift = 8 - bits; shift > -bits; shift -= bits) {
        byte |= shift >= 0 ? value << shift : value >> -shift;
    }
    return byte;
}

}  // namespace

std::uint32_t BitmapFile::Number(std::size_t at, int bytes) const {
    std::uint32_t number = 0;
    for (int i = bytes; i-- > 0;) number = number << 8 | file_[at + i];
    return number;
}

std::optional<BitmapFile> BitmapFile::Parse(std::span<const std::uint8_t> file) {
    if (file.size() < kFileHeader + kCoreHeader || file[0] != 'B' || file[1] != 'M') return {};
    BitmapFile bitmap;
    bitmap.file_ = file;
    const std::size_t headerSize = bitmap.Number(kFileHeader, 4);
    const bool known =
        headerSize == kCoreHeader || (headerSize >= kInfoHeader && headerSize <= kLongestHeader);
    if (!known || file.size() < kFileHeader + headerSize) return {};
    if (!bitmap.ReadHeader(headerSize) || !bitmap.ReadMasks() ||
        !bitmap.ReadPixelsPlace(headerSize)) {
        return {};
    }
    return bitmap;
}

bool BitmapFile::ReadHeader(std::size_t headerSize) {
    const bool core = headerSize == kCoreHeader;
    const std::int64_t width =
        core ? Number(18, 2) : std::int64_t{static_cast<std::int32_t>(Number(18, 4))};
    const std::int64_t height =
        core ? Number(20, 2) : std::int64_t{static_cast<std::int32_t>(Number(22, 4))};
    topDown_ = height < 0;
    const std::int64_t rows = topDown_ ? -height : height;
    if (width < 1 || width > kLargestSide || rows < 1 || rows > kLargestSide) return false;
    width_ = static_cast<int>(width);
    height_ = static_cast<int>(rows);

    const std::uint32_t planes = Number(core ? 22 : 26, 2);
    bits_ = static_cast<int>(Number(core ? 24 : 28, 2));
    const std::uint32_t compression = core ? kPlain : Number(30, 4);
    masked_ = compression == kBitFields;
    tableSize_ = core ? 0 : Number(46, 4);
    if (planes != 1 || (compression != kPlain && !masked_)) return false;
    switch (bits_) {
        case 1:
        case 4:
        case 8:
            if (tableSize_ == 0) tableSize_ = 1u << bits_;
            return !masked_ && tableSize_ <= 1u << bits_;
        case 24: return !masked_;
        case 16:
        case 32: return true;
    }
    return false;
}

std::optional<BitmapFile::Channel> BitmapFile::ChannelOf(std::uint32_t mask) {
    if (mask == 0) return {};
    const int shift = std::countr_zero(mask);
    const int bits = std::popcount(mask);
    if (std::countr_one(mask >> shift) != bits) return {};
    return Channel{shift, bits};
}

bool BitmapFile::ReadMasks() {
    channels_ = {Channel{16, 8}, Channel{8, 8}, Channel{0, 8}};
    if (bits_ == 16) channels_ = {Channel{10, 5}, Channel{5, 5}, Channel{0, 5}};
    if (!masked_) return true;
    if (file_.size() < kMasks + kMasksSize) return false;
    std::uint32_t taken = 0;
    for (std::size_t i = 0; i < channels_.size(); ++i) {
        const std::uint32_t mask = Number(kMasks + 4 * i, 4);
        const auto channel = ChannelOf(mask);
        if (!channel || channel->shift + channel->bits > bits_ || taken & mask) return false;
        channels_[i] = *channel;
        taken |= mask;
    }
    return true;
}

bool BitmapFile::ReadPixelsPlace(std::size_t headerSize) {
    const int colorSize = headerSize == kCoreHeader ? 3 : 4;
    const bool masksBehind = masked_ && headerSize < kInfoHeader + kMasksSize;
    const std::size_t table = masksBehind ? kMasks + kMasksSize : kFileHeader + headerSize;
    pixels_ = Number(10, 4);
    row_ = (static_cast<std::size_t>(width_) * bits_ + 31) / 32 * 4;
    if (pixels_ < table + std::uint64_t{tableSize_} * colorSize ||
        pixels_ + std::uint64_t{row_} * height_ > file_.size()) {
        return false;
    }
    if (bits_ > 8) return true;  // A table is a hint then.
    for (std::uint32_t i = 0; i < tableSize_; ++i)
        table_.push_back(Number(table + i * colorSize, 3));
    return true;
}

std::uint32_t BitmapFile::Color(int x, int y) const {
    const std::size_t start = pixels_ + row_ * (topDown_ ? y : height_ - 1 - y);
    if (bits_ <= 8) {
        const int at = x * bits_;  // The leftmost pixel is in the highest bits of its byte.
        const std::uint32_t index =
            file_[start + at / 8] >> (8 - bits_ - at % 8) & ((1u << bits_) - 1);
        return index < table_.size() ? table_[index] : 0;
    }
    const std::uint32_t pixel =
        Number(start + static_cast<std::size_t>(x) * (bits_ / 8), bits_ / 8);
    std::uint32_t color = 0;
    for (const Channel& channel : channels_) {
        const std::uint64_t all = (std::uint64_t{1} << channel.bits) - 1;
        color = color << 8 |
                ToByte(static_cast<std::uint32_t>(pixel >> channel.shift & all), channel.bits);
    }
    return color;
}
