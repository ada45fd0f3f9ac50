#include "appearance/skins/bitmap_file.h"

namespace {

constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kInfoHeaderSize = 40;  // Later headers are longer and begin alike.
constexpr std::int32_t kLongestSide = 32767;

using Bytes = std::span<const std::uint8_t>;

std::uint32_t Number(Bytes bytes, std::size_t offset, int size) {
    std::uint32_t value = 0;
    for (int i = size - 1; i >= 0; --i) value = value << 8 | bytes[offset + i];
    return value;
}

// The size of the header with the colours behind it, which 24-bit bitmaps may list for screens of
// few colours; no value when the header is none of a 24-bit bitmap.
std::optional<std::uint64_t> InfoSize(Bytes info) {
    if (info.size() < kInfoHeaderSize) return {};
    const std::uint64_t size = Number(info, 0, 4);
    const std::uint32_t planes = Number(info, 12, 2);
    const std::uint32_t bits = Number(info, 14, 2);
    const std::uint32_t compression = Number(info, 16, 4);
    const std::uint64_t colors = Number(info, 32, 4);
    if (size < kInfoHeaderSize || planes != 1 || bits != 24 || compression != 0) return {};
    return size + 4 * colors;
}

// `pixels` is where they begin, counted from the info header.
std::optional<BitmapView> Parse(Bytes info, std::uint64_t pixels) {
    const auto width = static_cast<std::int32_t>(Number(info, 4, 4));
    const auto storedHeight = static_cast<std::int32_t>(Number(info, 8, 4));
    if (width < 1 || width > kLongestSide) return {};
    if (storedHeight == 0 || storedHeight > kLongestSide || storedHeight < -kLongestSide) return {};

    BitmapView view;
    view.width = width;
    view.topDown = storedHeight < 0;
    view.height = view.topDown ? -storedHeight : storedHeight;
    view.stride = (3 * static_cast<std::size_t>(width) + 3) / 4 * 4;
    const std::uint64_t size = std::uint64_t{view.stride} * view.height;
    if (pixels > info.size() || info.size() - pixels < size) return {};
    view.rows = info.subspan(static_cast<std::size_t>(pixels), static_cast<std::size_t>(size));
    return view;
}

}  // namespace

std::optional<BitmapView> ParseBitmapFile(Bytes file) {
    if (file.size() < kFileHeaderSize || file[0] != 'B' || file[1] != 'M') return {};
    const Bytes info = file.subspan(kFileHeaderSize);
    const std::optional<std::uint64_t> infoSize = InfoSize(info);
    const std::uint64_t pixels = Number(file, 10, 4);
    if (!infoSize || pixels < kFileHeaderSize + kInfoHeaderSize) return {};
    return Parse(info, pixels - kFileHeaderSize);
}

std::optional<BitmapView> ParseBitmapResource(Bytes resource) {
    const std::optional<std::uint64_t> infoSize = InfoSize(resource);
    if (!infoSize) return {};
    return Parse(resource, *infoSize);
}
