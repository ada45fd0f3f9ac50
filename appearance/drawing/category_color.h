#pragma once

#include <cstdint>

// Stands for "no colour" wherever a colour may be absent.
inline constexpr std::uint32_t kNoColor = 0xFFFFFFFF;

// The colour of one category as the diary keeps it: red, green and blue, and a byte of flags.
// Colours are 0x00BBGGRR.
class CategoryColor {
  public:
    bool IsNone() const { return (flags_ & kNoneFlag) != 0; }
    // kNoColor when there is none. The colour under a "no colour" is kept.
    std::uint32_t GetColor() const { return IsNone() ? kNoColor : rgb_; }
    void SetColor(std::uint32_t color);
    void SetNone() { flags_ |= kNoneFlag; }
    // Percent.
    int GetIntensity() const { return flags_ & kIntensityBits; }
    void SetIntensity(int percent);

    // As the registry holds it: the flags in the highest byte.
    std::uint32_t Pack() const { return rgb_ | std::uint32_t{flags_} << 24; }
    void Unpack(std::uint32_t value);

  private:
    static constexpr std::uint8_t kNoneFlag = 0x80;
    static constexpr std::uint8_t kIntensityBits = 0x7F;

    std::uint32_t rgb_ = 0;
    std::uint8_t flags_ = kNoneFlag | 100;
};

// A category's colour as it shows on a background: nearer to it the lower the intensity.
std::uint32_t BlendCategoryColor(const CategoryColor& color, std::uint32_t background);
