#include "appearance/skins/skin_strip.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::uint8_t kOpaque = 128;  // From here on a pixel belongs to an icon.

// A bitmap of rows from the top down, 32 bits a pixel, and where they are.
struct Canvas {
    OwnedBitmap bitmap;
    std::uint8_t* pixels = nullptr;
};

Canvas CreateCanvas(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    Canvas canvas;
    canvas.bitmap.Reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    canvas.pixels = static_cast<std::uint8_t*>(pixels);
    return canvas;
}

}  // namespace

SkinStrip::SkinStrip(const BitmapView& view, std::vector<std::uint8_t> file)
    : file_(std::move(file)), view_(view), pieces_(FindStripPieces(view)) {}

std::optional<SkinStrip> SkinStrip::FromFile(std::vector<std::uint8_t> file) {
    const std::optional<BitmapView> view = ParseBitmapFile(file);
    if (!view) return {};
    return SkinStrip(*view, std::move(file));  // Moving keeps the bytes where they are.
}

std::optional<SkinStrip> SkinStrip::FromResource(HMODULE library, unsigned id) {
    const HRSRC resource = FindResourceW(library, MAKEINTRESOURCEW(id), RT_BITMAP);
    if (!resource) return {};
    const auto* const bytes =
        static_cast<const std::uint8_t*>(LockResource(LoadResource(library, resource)));
    if (!bytes) return {};
    const std::optional<BitmapView> view =
        ParseBitmapResource({bytes, SizeofResource(library, resource)});
    if (!view) return {};
    return SkinStrip(*view, {});
}

SIZE SkinStrip::PieceSize(int piece) const {
    if (piece < 0 || piece >= Count()) return {};
    return {view_.width / 2, pieces_[piece].bottom - pieces_[piece].top};
}

void SkinStrip::Draw(HDC dc, int piece, int x, int y) const {
    DrawStretched(dc, piece, x, y, PieceSize(piece).cy);
}

void SkinStrip::DrawStretched(HDC dc, int piece, int x, int y, int height) const {
    const SIZE size = PieceSize(piece);
    const int width = size.cx, pieceHeight = size.cy;
    if (width <= 0 || pieceHeight <= 0 || height <= 0) return;
    const Canvas canvas = CreateCanvas(width, height);
    const OwnedDc memory(CreateCompatibleDC(dc));
    if (!canvas.bitmap || !memory) return;
    const SelectedObject selected(memory.get(), canvas.bitmap.get());
    BitBlt(memory.get(), 0, 0, width, height, dc, x, y, SRCCOPY);
    GetPixel(memory.get(), 0, 0);  // Asking for a pixel makes the system finish copying.

    const int above = std::min(pieceHeight, height) / 2;
    const int below = std::min(pieceHeight, height) - above;
    std::uint8_t* pixel = canvas.pixels;
    for (int row = 0; row < height; ++row) {
        const int pieceRow = row < above             ? row
                             : row >= height - below ? pieceHeight - (height - row)
                                                     : pieceHeight / 2;
        const int stripRow = pieces_[piece].top + pieceRow;
        for (int column = 0; column < width; ++column, pixel += 4) {
            const std::uint8_t* const color = view_.Pixel(column, stripRow);
            const int opacity = view_.Pixel(width + column, stripRow)[1];
            for (int i = 0; i < 3; ++i) {
                const int mixed = color[i] * opacity + pixel[i] * (255 - opacity);
                pixel[i] = static_cast<std::uint8_t>((mixed + 127) / 255);
            }
        }
    }
    BitBlt(dc, x, y, width, height, memory.get(), 0, 0, SRCCOPY);
}

OwnedIcon SkinStrip::CreateIcon(int piece) const {
    const SIZE size = PieceSize(piece);
    const int width = size.cx;
    const int side = std::min(size.cx, size.cy);
    if (side <= 0) return {};
    const Canvas canvas = CreateCanvas(side, side);
    if (!canvas.bitmap) return {};
    // In the mask a set bit lets through what is behind; a row takes whole words.
    const int maskStride = (side + 15) / 16 * 2;
    std::vector<std::uint8_t> mask(static_cast<std::size_t>(maskStride) * side);
    std::uint8_t* pixel = canvas.pixels;
    for (int row = 0; row < side; ++row) {
        const int stripRow = pieces_[piece].top + row;
        for (int column = 0; column < side; ++column, pixel += 4) {
            if (view_.Pixel(width + column, stripRow)[1] >= kOpaque) {
                std::copy_n(view_.Pixel(column, stripRow), 3, pixel);
            } else {
                mask[maskStride * row + column / 8] |= 0x80 >> column % 8;
            }
        }
    }
    const OwnedBitmap maskBitmap(CreateBitmap(side, side, 1, 1, mask.data()));
    ICONINFO info = {};
    info.fIcon = TRUE;
    info.hbmMask = maskBitmap.get();
    info.hbmColor = canvas.bitmap.get();
    return OwnedIcon(maskBitmap ? CreateIconIndirect(&info) : nullptr);
}
