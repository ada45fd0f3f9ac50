#include <windows.h>

#include <commctrl.h>

// A list without a colour depth has the screen's on the device; the desktop gives it sixteen
// colours.
extern "C" HIMAGELIST WINAPI Pocket_ImageList_Create(int width, int height, UINT flags, int count,
                                                     int growth) {
    constexpr UINT kColorDepth = 0xFE;
    if (!(flags & kColorDepth)) flags |= ILC_COLOR32;
    return ImageList_Create(width, height, flags, count, growth);
}
