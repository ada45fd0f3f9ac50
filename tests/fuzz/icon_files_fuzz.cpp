// Any bytes are a catalogue or none, whose icons all have a group of it.
// Any bytes are a bitmap whose pixels lie within them, or none.
#include <cstring>

#include "appearance/categories/icon_catalogue.h"
#include "appearance/categories/icon_header.h"
#include "appearance/categories/icon_picture.h"
#include "tests/fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    IconCatalogue catalogue;
    if (catalogue.Read({data, size})) {
        REQUIRE(catalogue.titles().size() <= size / 4);
        for (std::size_t at = 0; at + 16 <= size; ++at) {
            IconDigest digest;
            std::memcpy(digest.data(), data + at, 16);
            const auto group = catalogue.FindGroup(digest);
            REQUIRE(!group || catalogue.CountOf(*group) > 0);
            REQUIRE(!group || *group < catalogue.titles().size());
        }
    } else {
        REQUIRE(catalogue.titles().empty());
    }
    if (const auto header = ReadIconHeader({data, size})) {
        const BitmapHeader& bitmap = header->info;
        REQUIRE(bitmap.width > 0 && bitmap.height > 0);
        // One bit a pixel at least, in rows of whole double words.
        const std::size_t row = (static_cast<std::size_t>(bitmap.width) + 31) / 32 * 4;
        REQUIRE(row * static_cast<std::size_t>(bitmap.height) < size);
        if (const auto picture = ReadIconPicture({data, size}, *header)) {
            REQUIRE(picture->width == bitmap.width && picture->height == bitmap.height);
            REQUIRE(picture->pixels + row * bitmap.height <= picture->bytes.size());
        }
    }
    return 0;
}
