#include "appearance/categories/icon_catalogue.h"

#include <algorithm>
#include <utility>

#include "base/byte_reader.h"

namespace {

constexpr std::size_t kShortestTitle = 4;  // the terminator and its padding
constexpr std::size_t kDigestSize = std::tuple_size_v<IconDigest>;

// A count of things of at least `size` bytes each: no more than the rest of the file can hold.
std::size_t TakeCount(ByteReader& reader, std::size_t size) {
    const std::uint32_t count = reader.TakeNumber();
    if (count <= reader.left() / size) return count;
    reader.Fail();
    return 0;
}

std::wstring TakeTitle(ByteReader& reader) {
    std::wstring title;
    while (const std::uint32_t unit = reader.TakeNumber(2)) title += static_cast<wchar_t>(unit);
    if (reader.position() % 4 != 0) reader.Take(2);
    return title;
}

IconDigest TakeDigest(ByteReader& reader) {
    IconDigest digest = {};
    const std::span<const std::uint8_t> bytes = reader.Take(digest.size());
    std::copy(bytes.begin(), bytes.end(), digest.begin());
    return digest;
}

}  // namespace

bool IconCatalogue::Read(std::span<const std::uint8_t> file) {
    titles_.clear();
    groups_.clear();
    ByteReader reader(file);
    std::vector<std::wstring> titles(TakeCount(reader, kShortestTitle));
    for (std::wstring& title : titles) title = TakeTitle(reader);
    for (std::size_t group = 0; group < titles.size() && !reader.failed(); ++group) {
        const std::size_t count = TakeCount(reader, kDigestSize);
        groups_.reserve(groups_.size() + count);
        for (std::size_t i = 0; i < count; ++i) groups_.try_emplace(TakeDigest(reader), group);
    }
    if (reader.failed()) {
        groups_.clear();
        return false;
    }
    titles_ = std::move(titles);
    return true;
}

std::size_t IconCatalogue::CountOf(std::size_t group) const {
    return std::count_if(groups_.begin(), groups_.end(),
                         [group](const auto& icon) { return icon.second == group; });
}

std::optional<std::size_t> IconCatalogue::FindGroup(const IconDigest& digest) const {
    const auto found = groups_.find(digest);
    if (found == groups_.end()) return std::nullopt;
    return found->second;
}
