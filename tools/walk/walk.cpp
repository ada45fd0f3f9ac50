// Leaves a picture of every page and dialog on each of some screens.
//
// usage: walk FOLDER SCREEN...   with screens such as 240x320; the pictures are
// FOLDER\SCREEN\NAME.bmp
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "base/owned_handle.h"
#include "tools/walk/walker.h"

namespace {

constexpr DWORD kFlushing = 60;  // milliseconds until what is painted is on the display

bool WriteBitmap(const std::wstring& path, const BITMAPINFOHEADER& header, const void* pixels) {
    std::FILE* const file = _wfopen(path.c_str(), L"wb");
    if (!file) return false;
    BITMAPFILEHEADER start = {};
    start.bfType = 0x4D42;
    start.bfOffBits = sizeof start + sizeof header;
    start.bfSize = start.bfOffBits + header.biSizeImage;
    const bool done = std::fwrite(&start, sizeof start, 1, file) == 1 &&
                      std::fwrite(&header, sizeof header, 1, file) == 1 &&
                      std::fwrite(pixels, header.biSizeImage, 1, file) == 1;
    return std::fclose(file) == 0 && done;
}

bool TakePicture(const std::wstring& path, SIZE size) {
    Sleep(kFlushing);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biSizeImage = static_cast<DWORD>(size.cx * size.cy * 4);
    const WindowDc screen;
    const OwnedDc memory(CreateCompatibleDC(screen.get()));
    void* pixels = nullptr;
    const OwnedBitmap bitmap(
        CreateDIBSection(screen.get(), &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    if (!bitmap) return false;
    const SelectedObject selected(memory.get(), bitmap.get());
    BitBlt(memory.get(), 0, 0, size.cx, size.cy, screen.get(), 0, 0, SRCCOPY);
    GdiFlush();
    return WriteBitmap(path, info.bmiHeader, pixels);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    std::vector<SIZE> screens;
    for (int i = 2; i < count; ++i) {
        SIZE size = {};
        if (swscanf(arguments[i], L"%ldx%ld", &size.cx, &size.cy) != 2) return 2;
        screens.push_back(size);
    }
    if (screens.empty()) return 2;
    const std::wstring folder = arguments[1];
    CreateDirectoryW(folder.c_str(), nullptr);
    bool taken = true;
    Walker walker(screens);
    const bool walked = walker.Walk([&](const View& view) {
        const std::wstring place = folder + L"\\" + std::to_wstring(view.screen.cx) + L"x" +
                                   std::to_wstring(view.screen.cy);
        CreateDirectoryW(place.c_str(), nullptr);
        const std::wstring name(view.name.begin(), view.name.end());
        if (!TakePicture(place + L"\\" + name + L".bmp", view.screen)) taken = false;
    });
    return walked && taken ? 0 : 1;
}
