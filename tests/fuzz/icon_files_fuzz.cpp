// Any bytes are a catalogue or none: what is found is what a walk over groups and digests finds.
// Any bytes are a bitmap whose pixels lie within them, or none.
#include <cstring>

#include "appearance/categories/icon_catalogue.h"
#include "appearance/categories/icon_picture.h"
#include "appearance/categories/icon_size.h"
#include "tests/fuzz/fuzz.h"

namespace {

std::uint32_t Number(const std::uint8_t* data) {
    return data[0] | data[1] << 8 | data[2] << 16 | static_cast<std::uint32_t>(data[3]) << 24;
}

// The group of a digest in a catalogue that is known to be well formed.
std::optional<std::size_t> Walk(const std::uint8_t* data, const IconCatalogue& catalogue,
                                const IconDigest& digest) {
    std::size_t place = 4;
    for (const std::wstring& title : catalogue.titles()) {
        place += 2 * (title.size() + 1);
        place += place % 4;
    }
    for (std::size_t group = 0; group < catalogue.titles().size(); ++group) {
        const std::uint32_t count = Number(data + place);
        place += 4;
        for (std::uint32_t i = 0; i < count; ++i, place += 16) {
            if (!std::memcmp(data + place, digest.data(), 16)) return group;
        }
    }
    return std::nullopt;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    IconCatalogue catalogue;
    if (catalogue.Read({data, size})) {
        REQUIRE(catalogue.titles().size() <= size / 4);
        for (std::size_t at = 0; at + 16 <= size; ++at) {
            IconDigest digest;
            std::memcpy(digest.data(), data + at, 16);
            REQUIRE(catalogue.FindGroup(digest) == Walk(data, catalogue, digest));
        }
    } else {
        REQUIRE(catalogue.titles().empty());
    }
    if (const auto bitmap = ReadBitmapSize({data, size})) {
        REQUIRE(bitmap->width > 0 && bitmap->height > 0);
        // One bit a pixel at least, in rows of whole double words.
        const std::size_t row = (static_cast<std::size_t>(bitmap->width) + 31) / 32 * 4;
        REQUIRE(row * static_cast<std::size_t>(bitmap->height) < size);
        if (const auto picture = ReadIconPicture({data, size})) {
            REQUIRE(picture->width == bitmap->width && picture->height == bitmap->height);
            REQUIRE(picture->pixels + row * bitmap->height <= picture->bytes.size());
        }
    }
    return 0;
}
