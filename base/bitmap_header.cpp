#include "base/bitmap_header.h"

#include "base/byte_reader.h"

namespace {

constexpr std::uint32_t kCoreHeaderSize = 12;
constexpr std::uint32_t kInfoHeaderSize = 40;  // Later headers are longer and begin alike.
constexpr std::uint32_t kPlainPixels = 0;
constexpr std::uint32_t kMaskedPixels = 3;
constexpr std::int64_t kLongestSide = 0x7FFF;
constexpr std::uint32_t kMaskBytes = 12;

}  // namespace

std::optional<BitmapHeader> ParseBitmapHeader(std::span<const std::uint8_t> info) {
    ByteReader reader(info);
    BitmapHeader header;
    header.size = reader.TakeNumber();
    const bool core = header.size == kCoreHeaderSize;
    if (!core && header.size < kInfoHeaderSize) return {};
    const auto takeSide = [&reader, core]() -> std::int64_t {
        if (core) return reader.TakeNumber(2);
        return reader.TakeSigned();
    };
    const std::int64_t width = takeSide();
    const std::int64_t height = takeSide();
    const std::uint32_t planes = reader.TakeNumber(2);
    header.bits = reader.TakeNumber(2);
    std::uint32_t compression = kPlainPixels;
    std::uint32_t listed = 0;  // colours in the table; 0 stands for all that the pixels can name
    if (!core) {
        compression = reader.TakeNumber();
        reader.Take(12);
        listed = reader.TakeNumber();
        reader.TakeNumber();
    }
    header.topDown = height < 0;
    header.masked = compression == kMaskedPixels;
    const std::int64_t rows = height < 0 ? -height : height;
    if (reader.failed() || planes != 1 || (compression != kPlainPixels && !header.masked) ||
        width < 1 || width > kLongestSide || rows < 1 || rows > kLongestSide || header.bits == 0 ||
        header.bits > 32) {
        return {};
    }
    header.width = static_cast<int>(width);
    header.height = static_cast<int>(rows);

    const std::uint32_t nameable = header.bits <= 8 ? 1u << header.bits : 0;
    if (header.bits <= 8 && listed > nameable) return {};
    const std::uint64_t colors = listed ? listed : nameable;
    const bool masksFollow = header.masked && header.size == kInfoHeaderSize;
    header.infoSize = header.size + (masksFollow ? kMaskBytes : 0) + colors * (core ? 3 : 4);
    header.stride = (static_cast<std::size_t>(width) * header.bits + 31) / 32 * 4;
    return header;
}

std::optional<BitmapFileHeader> ParseBitmapFileHeader(std::span<const std::uint8_t> file) {
    if (file.size() < kBitmapFileHeaderSize || file[0] != 'B' || file[1] != 'M') return {};
    const auto info = ParseBitmapHeader(file.subspan(kBitmapFileHeaderSize));
    if (!info) return {};
    return BitmapFileHeader{*info, ByteReader(file.subspan(10)).TakeNumber()};
}
