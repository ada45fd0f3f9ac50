#include "appearance/categories/icon_picture.h"

#include <bit>

#include "base/byte_reader.h"

namespace {

constexpr std::size_t kHeaderSize = 40, kMasksSize = 12;
constexpr std::uint32_t kMasked = 3;  // in place of a compression

void Append(std::vector<std::uint8_t>& bytes, std::uint32_t number, int size = 4) {
    for (int i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(number >> 8 * i));
}

bool AreMasks(std::span<const std::uint8_t> masks) {
    ByteReader reader(masks);
    std::uint32_t taken = 0;
    while (reader.left() > 0) {
        const std::uint32_t mask = reader.TakeNumber();
        if (mask == 0 || mask & taken) return false;
        if (std::countr_one(mask >> std::countr_zero(mask)) != std::popcount(mask)) return false;
        taken |= mask;
    }
    return true;
}

}  // namespace

std::optional<IconPicture> ReadIconPicture(std::span<const std::uint8_t> file,
                                           const BitmapFileHeader& header) {
    const BitmapHeader& info = header.info;
    const auto all = file.subspan(kBitmapFileHeaderSize);
    const auto masks = info.masked ? all.subspan(kHeaderSize, kMasksSize) : all.first(0);
    if (!AreMasks(masks)) return {};
    // More bits name no colour of the table; where there is one, it is a hint.
    const bool named = info.bits <= 8;
    const std::size_t colorSize = info.size < kHeaderSize ? 3 : 4;
    const auto table = all.subspan(info.size, static_cast<std::size_t>(info.infoSize) - info.size);
    const auto colors = named ? table.size() / colorSize : 0;

    IconPicture picture;
    picture.width = static_cast<std::int16_t>(info.width);
    picture.height = static_cast<std::int16_t>(info.height);
    std::vector<std::uint8_t>& bytes = picture.bytes;
    bytes.reserve(kHeaderSize + masks.size() + 4 * colors + info.PixelBytes());
    Append(bytes, kHeaderSize);
    Append(bytes, info.width);
    Append(bytes, info.topDown ? -info.height : info.height);
    Append(bytes, 1, 2);
    Append(bytes, info.bits, 2);
    Append(bytes, info.masked ? kMasked : 0);
    bytes.resize(32);  // The size, and the resolution, need not be told.
    Append(bytes, static_cast<std::uint32_t>(colors));
    bytes.resize(kHeaderSize);
    bytes.insert(bytes.end(), masks.begin(), masks.end());
    for (std::size_t i = 0; i < colors; ++i) {
        Append(bytes, ByteReader(table.subspan(i * colorSize)).TakeNumber(3));
    }
    picture.pixels = static_cast<std::uint32_t>(bytes.size());
    const auto pixels = file.subspan(header.pixels, static_cast<std::size_t>(info.PixelBytes()));
    bytes.insert(bytes.end(), pixels.begin(), pixels.end());
    return picture;
}
