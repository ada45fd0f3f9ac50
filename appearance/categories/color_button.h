#pragma once

#include <windows.h>

#include <array>

#include "appearance/categories/colors_list_window.h"
#include "appearance/drawing/category_color.h"
#include "base/owned_handle.h"

// The notification, posted as WM_COMMAND, that the user has chosen a colour.
inline constexpr int kColorButtonChosen = 0x400;

// A push button that shows a colour and, when pressed, a grid to choose another from. It takes the
// place of a dialog's button, and works by what the dialog hands on to it.
class ColorButton {
  public:
    ColorButton() = default;
    ColorButton(const ColorButton&) = delete;
    ColorButton& operator=(const ColorButton&) = delete;

    // Makes the dialog's button `id` this one, as large as its picture. False when there is none.
    bool Create(HWND dialog, int id);

    HWND hwnd() const { return hwnd_; }
    // kNoColor for none; choosing nothing does not change it.
    COLORREF GetColor() const { return color_; }
    void SetColor(COLORREF color);
    void Enable(bool enabled) const;

    // To be called for WM_COMMAND and WM_DRAWITEM; true when the message was the button's own.
    bool OnCommand(int id, int code);
    bool OnDrawItem(const DRAWITEMSTRUCT& item) const;

  private:
    void Choose();
    void Repaint() const;

    HWND hwnd_ = nullptr;
    int id_ = 0;
    COLORREF color_ = kNoColor;
    bool pressed_ = false;
    int defaultId_ = 0;  // the dialog's default button while another has the focus; 0 for none
    std::array<OwnedBitmap, 4> faces_;
    CColorsListWindow list_;
};
