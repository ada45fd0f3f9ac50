#include "appearance/categories/bitmap_header.h"

#include <cstddef>

namespace {

constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kCoreHeaderSize = 12;
constexpr std::size_t kInfoHeaderSize = 40;
constexpr std::size_t kLongestHeader = 124;
constexpr std::uint32_t kPlainPixels = 0;
constexpr std::uint32_t kMaskedPixels = 3;
constexpr std::int64_t kLargestSide = 0x7FFF;

// Little-endian numbers at places that the caller knows to exist.
class Fields {
  public:
    explicit Fields(std::span<const std::uint8_t> file) : file_(file) {}
    std::uint32_t Word(std::size_t at) const {
        return file_[at] | static_cast<std::uint32_t>(file_[at + 1]) << 8;
    }
    std::uint32_t Dword(std::size_t at) const { return Word(at) | Word(at + 2) << 16; }
    std::int64_t Signed(std::size_t at) const { return static_cast<std::int32_t>(Dword(at)); }

  private:
    std::span<const std::uint8_t> file_;
};

struct Layout {
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::uint32_t planes = 0;
    std::uint32_t bits = 0;  // of a pixel
    std::uint32_t compression = kPlainPixels;
    std::uint32_t colors = 0;     // in the table; 0 stands for all that the pixels can name
    std::uint64_t colorSize = 0;  // bytes of each
};

Layout ReadLayout(const Fields& fields, std::size_t headerSize) {
    if (headerSize == kCoreHeaderSize) {
        return {
            fields.Word(18), fields.Word(20), fields.Word(22), fields.Word(24), kPlainPixels, 0, 3};
    }
    return {fields.Signed(18),
            fields.Signed(22),
            fields.Word(26),
            fields.Word(28),
            fields.Dword(30),
            fields.Dword(46),
            4};
}

bool IsKnownFormat(const Layout& layout) {
    switch (layout.bits) {
        case 1:
        case 4:
        case 8:
        case 24: return layout.compression == kPlainPixels;
        case 16:
        case 32: return layout.compression == kPlainPixels || layout.compression == kMaskedPixels;
    }
    return false;
}

}  // namespace

std::optional<BitmapSize> ReadBitmapSize(std::span<const std::uint8_t> file) {
    if (file.size() < kFileHeaderSize + kCoreHeaderSize || file[0] != 'B' || file[1] != 'M')
        return std::nullopt;
    const Fields fields(file);
    const std::size_t headerSize = fields.Dword(14);
    const bool known = headerSize == kCoreHeaderSize ||
                       (headerSize >= kInfoHeaderSize && headerSize <= kLongestHeader);
    if (!known || file.size() < kFileHeaderSize + headerSize) return std::nullopt;

    const Layout layout = ReadLayout(fields, headerSize);
    // Rows stand from the top down where the height is negative.
    const std::int64_t height = layout.height < 0 ? -layout.height : layout.height;
    if (layout.width < 1 || layout.width > kLargestSide || height < 1 || height > kLargestSide ||
        layout.planes != 1 || !IsKnownFormat(layout)) {
        return std::nullopt;
    }

    const std::uint32_t allColors = layout.bits <= 8 ? 1u << layout.bits : 0;
    if (layout.bits <= 8 && layout.colors > allColors) return std::nullopt;
    const std::uint64_t colors = layout.colors ? layout.colors : allColors;
    const bool masks = layout.compression == kMaskedPixels && headerSize == kInfoHeaderSize;
    const std::uint64_t pixels = fields.Dword(10);
    const std::uint64_t row =
        (static_cast<std::uint64_t>(layout.width) * layout.bits + 31) / 32 * 4;
    const std::uint64_t before =
        kFileHeaderSize + headerSize + (masks ? 12 : 0) + colors * layout.colorSize;
    if (pixels < before || pixels + row * static_cast<std::uint64_t>(height) > file.size())
        return std::nullopt;
    return BitmapSize{static_cast<int>(layout.width), static_cast<int>(height)};
}
