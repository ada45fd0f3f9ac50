// Bitmap calls that only the device has.
#include <windows.h>

#include <cstdint>
#include <vector>

#include "pocketpc/common/failing_calls.h"
#include "pocketpc/coredll/bitmap_file.h"

namespace {

constexpr LONGLONG kLargestFile = 64 << 20;

// All bytes of a file; none when it cannot be read.
std::vector<std::uint8_t> ReadWhole(LPCWSTR path) {
    const HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    std::vector<std::uint8_t> bytes;
    LARGE_INTEGER size = {};
    DWORD read = 0;
    if (GetFileSizeEx(file, &size) && size.QuadPart <= kLargestFile) {
        bytes.resize(static_cast<std::size_t>(size.QuadPart));
        if (!ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr))
            read = 0;
        bytes.resize(read);
    }
    CloseHandle(file);
    return bytes;
}

HBITMAP MakeBitmap(const BitmapFile& source) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = source.width();
    info.bmiHeader.biHeight = source.height();
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!bitmap) return nullptr;
    const std::size_t row = (static_cast<std::size_t>(source.width()) * 3 + 3) / 4 * 4;
    for (int y = 0; y < source.height(); ++y) {
        auto* pixel = static_cast<std::uint8_t*>(bits) + row * (source.height() - 1 - y);
        for (int x = 0; x < source.width(); ++x) {
            const std::uint32_t color = source.Color(x, y);
            *pixel++ = static_cast<std::uint8_t>(color);
            *pixel++ = static_cast<std::uint8_t>(color >> 8);
            *pixel++ = static_cast<std::uint8_t>(color >> 16);
        }
    }
    return bitmap;
}

}  // namespace

// The device loads uncompressed bitmaps, and from files nothing else. The desktop's own loader gets
// some of them wrong: rows from the top down, short headers, channels of few bits.
extern "C" HBITMAP WINAPI Pocket_SHLoadDIBitmap(LPCWSTR path) {
    if (!path || !*path) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    if (failing::Fails(failing::kDrawing, ERROR_NOT_ENOUGH_MEMORY)) return nullptr;
    const std::vector<std::uint8_t> bytes = ReadWhole(path);
    if (bytes.empty()) return nullptr;
    const auto file = BitmapFile::Parse(bytes);
    if (!file) {
        SetLastError(ERROR_INVALID_DATA);
        return nullptr;
    }
    return MakeBitmap(*file);
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
