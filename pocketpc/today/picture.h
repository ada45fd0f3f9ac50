#pragma once

#include <windows.h>

// The owner's picture behind the Today screen, if there is one.
class TodayPicture {
  public:
    TodayPicture() { Load(); }
    ~TodayPicture();
    TodayPicture(const TodayPicture&) = delete;
    TodayPicture& operator=(const TodayPicture&) = delete;

    // Loads the picture that the owner has chosen now.
    void Load();
    // Paints it from `top` on over a width; below it the background shows.
    void Paint(HDC dc, int top, int width) const;

  private:
    HBITMAP bitmap_ = nullptr;
};
