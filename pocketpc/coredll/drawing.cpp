// What is made for drawing: the desktop's, made to fail where that is asked for. Documented is that
// each returns null, or -1; the error is a guess.
#include <windows.h>

#include <commctrl.h>

#include "pocketpc/common/failing_calls.h"

namespace {

bool CannotBeMade() { return failing::Fails(failing::kDrawing, ERROR_NOT_ENOUGH_MEMORY); }

}  // namespace

// A function of the desktop's, and its parameters once with their types and once without.
#define MADE_FOR_DRAWING(Type, Name, Parameters, Arguments) \
    extern "C" Type WINAPI Pocket_##Name Parameters {       \
        return CannotBeMade() ? Type{} : Name Arguments;    \
    }
#define ADDED_TO_A_LIST(Name, Parameters, Arguments) \
    extern "C" int WINAPI Pocket_##Name Parameters { return CannotBeMade() ? -1 : Name Arguments; }

MADE_FOR_DRAWING(HBITMAP, CreateBitmap,
                 (int width, int height, UINT planes, UINT depth, const void* bits),
                 (width, height, planes, depth, bits))
MADE_FOR_DRAWING(HBITMAP, CreateCompatibleBitmap, (HDC dc, int width, int height),
                 (dc, width, height))
MADE_FOR_DRAWING(HDC, CreateCompatibleDC, (HDC dc), (dc))
MADE_FOR_DRAWING(HBITMAP, CreateDIBSection,
                 (HDC dc, const BITMAPINFO* info, UINT use, void** bits, HANDLE file, DWORD offset),
                 (dc, info, use, bits, file, offset))
MADE_FOR_DRAWING(HFONT, CreateFontIndirectW, (const LOGFONTW* font), (font))
MADE_FOR_DRAWING(HPEN, CreatePen, (int style, int width, COLORREF color), (style, width, color))
MADE_FOR_DRAWING(HBRUSH, CreateSolidBrush, (COLORREF color), (color))
MADE_FOR_DRAWING(HICON, CreateIconIndirect, (PICONINFO info), (info))
MADE_FOR_DRAWING(HANDLE, LoadImageW,
                 (HINSTANCE module, LPCWSTR name, UINT type, int width, int height, UINT flags),
                 (module, name, type, width, height, flags))
ADDED_TO_A_LIST(ImageList_Add, (HIMAGELIST list, HBITMAP image, HBITMAP mask), (list, image, mask))
ADDED_TO_A_LIST(ImageList_AddMasked, (HIMAGELIST list, HBITMAP image, COLORREF mask),
                (list, image, mask))
ADDED_TO_A_LIST(ImageList_ReplaceIcon, (HIMAGELIST list, int index, HICON icon),
                (list, index, icon))

// A list without a colour depth has the screen's on the device; the desktop gives it sixteen
// colours.
extern "C" HIMAGELIST WINAPI Pocket_ImageList_Create(int width, int height, UINT flags, int count,
                                                     int growth) {
    constexpr UINT kColorDepth = 0xFE;
    if (CannotBeMade()) return nullptr;
    if (!(flags & kColorDepth)) flags |= ILC_COLOR32;
    return ImageList_Create(width, height, flags, count, growth);
}
