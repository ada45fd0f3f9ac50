#include "appearance/categories/icon_header.h"

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

std::optional<BitmapFileHeader> ReadIconHeader(std::span<const std::uint8_t> file) {
    std::optional<BitmapFileHeader> header = ParseBitmapFileHeader(file);
    if (!header || header->info.size > kLongestHeader || !IsKnownFormat(header->info) ||
        header->pixels < kBitmapFileHeaderSize + header->info.infoSize ||
        header->pixels + header->info.PixelBytes() > file.size()) {
        return {};
    }
    return header;
}
