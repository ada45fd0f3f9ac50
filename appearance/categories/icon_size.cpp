#include "appearance/categories/icon_size.h"

#include "base/bitmap_header.h"

namespace {

constexpr std::uint32_t kLongestHeader = 124;

bool IsKnownFormat(const BitmapHeader& header) {
    switch (header.bits) {
        case 1:
        case 4:
        case 8:
        case 24: return !header.masked;
        case 16:
        case 32: return true;
    }
    return false;
}

}  // namespace

std::optional<BitmapSize> ReadBitmapSize(std::span<const std::uint8_t> file) {
    const std::optional<BitmapFileHeader> header = ParseBitmapFileHeader(file);
    if (!header || header->info.size > kLongestHeader || !IsKnownFormat(header->info) ||
        header->pixels < kBitmapFileHeaderSize + header->info.infoSize ||
        header->pixels + header->info.PixelBytes() > file.size()) {
        return std::nullopt;
    }
    return BitmapSize{header->info.width, header->info.height};
}
