// What the screen shows of a window.
#pragma once

#include <windows.h>

#include <algorithm>
#include <vector>

#include "base/owned_handle.h"
#include "tests/windows.h"

namespace ui {

class Picture {
  public:
    explicit Picture(HWND window) : area_(RectOf(window)), pixels_(width() * height()) {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof info.bmiHeader, width(), -height(), 1, 32, BI_RGB};
        const WindowDc screen;
        const OwnedDc memory(CreateCompatibleDC(screen.get()));
        void* bits = nullptr;
        const OwnedBitmap bitmap(
            CreateDIBSection(screen.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        const SelectedObject selected(memory.get(), bitmap.get());
        BitBlt(memory.get(), 0, 0, width(), height(), screen.get(), area_.left, area_.top, SRCCOPY);
        GdiFlush();
        const auto* const quads = static_cast<const RGBQUAD*>(bits);
        for (std::size_t i = 0; i < pixels_.size(); ++i) {
            pixels_[i] = RGB(quads[i].rgbRed, quads[i].rgbGreen, quads[i].rgbBlue);
        }
    }
    // Once nothing is left to be painted.
    static Picture Settled(HWND window) {
        constexpr DWORD kFlushing = 80;  // milliseconds until what is painted is on the screen
        for (;;) {
            Until([window] { return !GetUpdateRect(window, nullptr, FALSE); });
            const Picture before(window);
            Sleep(kFlushing);
            Picture now(window);
            if (now == before) return now;
        }
    }

    int width() const { return area_.right - area_.left; }
    int height() const { return area_.bottom - area_.top; }
    COLORREF At(int x, int y) const { return pixels_[y * width() + x]; }
    // How many pixels of some rows have a colour.
    int Count(COLORREF color, int top, int bottom) const {
        return static_cast<int>(
            std::count(pixels_.begin() + top * width(), pixels_.begin() + bottom * width(), color));
    }
    int Count(COLORREF color) const { return Count(color, 0, height()); }
    // The uppermost row with a colour; -1 when none has it.
    int RowOf(COLORREF color) const {
        const auto found = std::find(pixels_.begin(), pixels_.end(), color);
        return found == pixels_.end() ? -1 : static_cast<int>(found - pixels_.begin()) / width();
    }
    // The most pixels of a colour that stand side by side.
    int LongestLine(COLORREF color) const {
        int longest = 0;
        for (int i = 0, length = 0; i < width() * height(); ++i) {
            length = pixels_[i] == color ? (i % width() ? length + 1 : 1) : 0;
            longest = std::max(longest, length);
        }
        return longest;
    }
    std::vector<COLORREF> Part(int left, int top, int across, int down) const {
        std::vector<COLORREF> part;
        for (int i = 0; i < across * down; ++i)
            part.push_back(At(left + i % across, top + i / across));
        return part;
    }
    bool operator==(const Picture& other) const { return pixels_ == other.pixels_; }

  private:
    RECT area_;
    std::vector<COLORREF> pixels_;
};

}  // namespace ui
