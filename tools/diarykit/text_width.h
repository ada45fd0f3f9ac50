#pragma once

#include <span>
#include <string_view>

// The dialogs' font as the device has it, at one density.
class DialogFont {
  public:
    // Those of the device's screens: 96 and 192 dots per inch.
    static std::span<const DialogFont> All();

    int dpi() const { return dpi_; }
    // A dialog's units in pixels.
    int PixelsAcross(int units) const { return units * unitWidth_ / 4; }
    int PixelsDown(int units) const { return units * lineHeight_ / 8; }

    // Letters that the font lacks count as "n", those of scripts without an alphabet as squares.
    int WidthOf(std::wstring_view text) const;
    // The height of a text whose words are put into lines of a width. A word that is wider makes a
    // line that is too wide, and with that an endless height.
    int HeightOf(std::wstring_view text, int width) const;

    struct Letters;
    DialogFont(int dpi, int lineHeight, std::span<const Letters> letters);

  private:
    int WidthOf(wchar_t c) const;

    int dpi_, lineHeight_, unitWidth_ = 0;
    std::span<const Letters> letters_;
};
