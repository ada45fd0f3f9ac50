#include "appearance/categories/icon_catalogue.h"

#include <algorithm>
#include <utility>

namespace {

// Takes little-endian values from the front of a file. Once something is missing, nothing follows.
class Reader {
  public:
    explicit Reader(std::span<const std::uint8_t> file) : file_(file) {}

    bool failed() const { return failed_; }

    // A count of things of at least `size` bytes each: no more than the rest of the file can hold.
    std::size_t Count(std::size_t size) {
        const std::span<const std::uint8_t> bytes = Take(4);
        if (failed_) return 0;
        const std::uint32_t count =
            bytes[0] | bytes[1] << 8 | bytes[2] << 16 | static_cast<std::uint32_t>(bytes[3]) << 24;
        if (count > (file_.size() - position_) / size) {
            failed_ = true;
            return 0;
        }
        return count;
    }

    std::wstring Title() {
        std::wstring title;
        while (const wchar_t unit = Unit()) title += unit;
        if (position_ % 4 != 0) Take(2);
        return title;
    }

    IconDigest Digest() {
        IconDigest digest = {};
        const std::span<const std::uint8_t> bytes = Take(digest.size());
        std::copy(bytes.begin(), bytes.end(), digest.begin());
        return digest;
    }

  private:
    wchar_t Unit() {
        const std::span<const std::uint8_t> bytes = Take(2);
        return failed_ ? L'\0' : static_cast<wchar_t>(bytes[0] | bytes[1] << 8);
    }

    std::span<const std::uint8_t> Take(std::size_t size) {
        if (failed_ || size > file_.size() - position_) {
            failed_ = true;
            return {};
        }
        position_ += size;
        return file_.subspan(position_ - size, size);
    }

    std::span<const std::uint8_t> file_;
    std::size_t position_ = 0;
    bool failed_ = false;
};

constexpr std::size_t kShortestTitle = 4;  // the terminator and its padding
constexpr std::size_t kDigestSize = std::tuple_size_v<IconDigest>;

}  // namespace

bool IconCatalogue::Read(std::span<const std::uint8_t> file) {
    titles_.clear();
    groups_.clear();
    Reader reader(file);
    std::vector<std::wstring> titles(reader.Count(kShortestTitle));
    for (std::wstring& title : titles) title = reader.Title();
    for (std::size_t group = 0; group < titles.size() && !reader.failed(); ++group) {
        const std::size_t count = reader.Count(kDigestSize);
        groups_.reserve(groups_.size() + count);
        for (std::size_t i = 0; i < count; ++i) groups_.try_emplace(reader.Digest(), group);
    }
    if (reader.failed()) {
        groups_.clear();
        return false;
    }
    titles_ = std::move(titles);
    return true;
}

std::optional<std::size_t> IconCatalogue::FindGroup(const IconDigest& digest) const {
    const auto found = groups_.find(digest);
    if (found == groups_.end()) return std::nullopt;
    return found->second;
}
