#include "appearance/drawing/category_color.h"

namespace {

constexpr std::uint32_t kColorBits = 0xFFFFFF;

}  // namespace

void CategoryColor::SetColor(std::uint32_t color) {
    if (color == kNoColor) {
        SetNone();
        return;
    }
    rgb_ = color & kColorBits;
    flags_ &= kIntensityBits;
}

void CategoryColor::SetIntensity(int percent) {
    flags_ = static_cast<std::uint8_t>((flags_ & kNoneFlag) | (percent & kIntensityBits));
}

void CategoryColor::Unpack(std::uint32_t value) {
    flags_ = static_cast<std::uint8_t>(value >> 24);
    rgb_ = value & kColorBits;
}

std::uint32_t BlendCategoryColor(const CategoryColor& color, std::uint32_t background) {
    if (color.IsNone()) return background;
    std::uint32_t blended = 0;
    for (int shift = 0; shift <= 16; shift += 8) {
        const int from = static_cast<int>(background >> shift & 0xFF);
        const int to = static_cast<int>(color.GetColor() >> shift & 0xFF);
        // Rounds toward zero. An intensity above 100, which only others write, wraps in its
        // channel.
        const int channel = from + (to - from) * color.GetIntensity() / 100;
        blended |= static_cast<std::uint32_t>(channel & 0xFF) << shift;
    }
    return blended;
}
