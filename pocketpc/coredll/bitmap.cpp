// Bitmap calls that only the device has.
#include <windows.h>

// The device loads uncompressed bitmaps, and from files nothing else.
extern "C" HBITMAP WINAPI Pocket_SHLoadDIBitmap(LPCWSTR path) {
    if (!path || !*path) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    return static_cast<HBITMAP>(
        LoadImageW(nullptr, path, IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
}

extern "C" BOOL WINAPI Pocket_TransparentImage(HDC target, LONG x, LONG y, LONG width, LONG height,
                                               HANDLE source, LONG sourceX, LONG sourceY,
                                               LONG sourceWidth, LONG sourceHeight,
                                               COLORREF transparent) {
    if (GetObjectType(source) != OBJ_BITMAP) {
        return TransparentBlt(target, x, y, width, height, static_cast<HDC>(source), sourceX,
                              sourceY, sourceWidth, sourceHeight, transparent);
    }
    const HDC memory = CreateCompatibleDC(target);
    if (!memory) return FALSE;
    const HGDIOBJ previous = SelectObject(memory, source);
    const BOOL done = previous && TransparentBlt(target, x, y, width, height, memory, sourceX,
                                                 sourceY, sourceWidth, sourceHeight, transparent);
    SelectObject(memory, previous);
    DeleteDC(memory);
    return done;
}
