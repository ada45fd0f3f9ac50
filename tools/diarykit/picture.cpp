#include "tools/diarykit/picture.h"

#include <zlib.h>

#include <span>
#include <string_view>

namespace {

using Bytes = std::vector<std::uint8_t>;

void PutNumber(Bytes& bytes, std::uint32_t number) {
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
    }
}

void PutChunk(Bytes& png, std::string_view type, std::span<const std::uint8_t> data) {
    PutNumber(png, static_cast<std::uint32_t>(data.size()));
    const std::size_t begin = png.size();
    png.insert(png.end(), type.begin(), type.end());
    png.insert(png.end(), data.begin(), data.end());
    PutNumber(png, static_cast<std::uint32_t>(
                       crc32(0, png.data() + begin, static_cast<uInt>(png.size() - begin))));
}

Bytes Png(const Picture& picture) {
    Bytes header, rows;
    PutNumber(header, static_cast<std::uint32_t>(picture.width));
    PutNumber(header, static_cast<std::uint32_t>(picture.height));
    for (const int byte : {8, 6, 0, 0, 0}) header.push_back(static_cast<std::uint8_t>(byte));
    const std::size_t stride = 4 * static_cast<std::size_t>(picture.width);
    for (int y = 0; y < picture.height; ++y) {
        rows.push_back(0);  // no filter
        const auto row = picture.pixels.begin() + static_cast<std::ptrdiff_t>(stride * y);
        rows.insert(rows.end(), row, row + static_cast<std::ptrdiff_t>(stride));
    }
    uLongf size = compressBound(static_cast<uLong>(rows.size()));
    Bytes packed(size);
    compress2(packed.data(), &size, rows.data(), static_cast<uLong>(rows.size()), 9);
    packed.resize(size);
    Bytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    PutChunk(png, "IHDR", header);
    PutChunk(png, "IDAT", packed);
    PutChunk(png, "IEND", {});
    return png;
}

std::string Base64(const Bytes& bytes) {
    constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        std::uint32_t three = 0;
        for (std::size_t j = i; j < i + 3; ++j)
            three = three << 8 | (j < bytes.size() ? bytes[j] : 0u);
        for (std::size_t j = 0; j < 4; ++j) {
            text += i + j <= bytes.size() ? kDigits[three >> (18 - 6 * j) & 0x3F] : '=';
        }
    }
    return text;
}

}  // namespace

std::string PictureUri(const Picture& picture) {
    return "data:image/png;base64," + Base64(Png(picture));
}
