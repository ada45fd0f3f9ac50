#include "pocketpc/today/picture.h"

TodayPicture::~TodayPicture() { DeleteObject(bitmap_); }

void TodayPicture::Load() {
    DeleteObject(bitmap_);
    bitmap_ = nullptr;
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Today", 0, 0, &key) !=
        ERROR_SUCCESS) {
        return;
    }
    wchar_t path[MAX_PATH] = {};
    DWORD size = sizeof path - sizeof(wchar_t), type = 0;
    if (RegQueryValueExW(key, L"Wallpaper", nullptr, &type, reinterpret_cast<BYTE*>(path), &size) ==
            ERROR_SUCCESS &&
        type == REG_SZ) {
        bitmap_ = SHLoadDIBitmap(path);
    }
    RegCloseKey(key);
}

void TodayPicture::Paint(HDC dc, int top, int width) const {
    BITMAP info = {};
    if (!bitmap_ || !GetObjectW(bitmap_, sizeof info, &info)) return;
    const HDC memory = CreateCompatibleDC(dc);
    const HGDIOBJ old = SelectObject(memory, bitmap_);
    SetStretchBltMode(dc, HALFTONE);
    StretchBlt(dc, 0, top, width, info.bmHeight * width / info.bmWidth, memory, 0, 0, info.bmWidth,
               info.bmHeight, SRCCOPY);
    SelectObject(memory, old);
    DeleteDC(memory);
}
