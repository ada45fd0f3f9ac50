#include "appearance/skins/bitmap_file.h"

#include "base/bitmap_header.h"

namespace {

// The colour table means nothing here: it is for screens of few colours, and may be longer than
// what is before the pixels.
constexpr std::uint32_t kFirstPixels = kBitmapFileHeaderSize + 40;

bool IsOfSkins(const BitmapHeader& header) {
    return header.size >= 40 && header.bits == 24 && !header.masked;
}

// `pixels` is where they begin in the bytes.
std::optional<BitmapView> View(const BitmapHeader& header, std::span<const std::uint8_t> bytes,
                               std::uint64_t pixels) {
    const std::uint64_t size = header.PixelBytes();
    if (pixels > bytes.size() || bytes.size() - pixels < size) return {};
    BitmapView view;
    view.width = header.width;
    view.height = header.height;
    view.topDown = header.topDown;
    view.stride = header.stride;
    view.rows = bytes.subspan(static_cast<std::size_t>(pixels), static_cast<std::size_t>(size));
    return view;
}

}  // namespace

std::optional<BitmapView> ParseBitmapFile(std::span<const std::uint8_t> file) {
    const std::optional<BitmapFileHeader> header = ParseBitmapFileHeader(file);
    if (!header || !IsOfSkins(header->info) || header->pixels < kFirstPixels) return {};
    return View(header->info, file, header->pixels);
}

std::optional<BitmapView> ParseBitmapResource(std::span<const std::uint8_t> resource) {
    const std::optional<BitmapHeader> header = ParseBitmapHeader(resource);
    if (!header || !IsOfSkins(*header)) return {};
    return View(*header, resource, header->infoSize);
}
