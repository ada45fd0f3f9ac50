#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

// The MD5 of a bitmap file.
using IconDigest = std::array<std::uint8_t, 16>;

// Which group each known icon belongs to. Read from "icons.dat": a count of groups; their titles,
// each ended by a zero and padded to four bytes; for each group a count and so many digests.
class IconCatalogue {
  public:
    // A file that is cut or contradicts itself leaves the catalogue empty, and returns false. Bytes
    // after the last group mean nothing.
    bool Read(std::span<const std::uint8_t> file);

    const std::vector<std::wstring>& titles() const { return titles_; }
    // How many icons belong to a group.
    std::size_t CountOf(std::size_t group) const;
    // The first group that lists the icon.
    std::optional<std::size_t> FindGroup(const IconDigest& digest) const;

  private:
    struct DigestHash {
        // A digest's bytes are as good as random.
        std::size_t operator()(const IconDigest& digest) const {
            std::size_t hash;
            std::memcpy(&hash, digest.data(), sizeof hash);
            return hash;
        }
    };

    std::vector<std::wstring> titles_;
    std::unordered_map<IconDigest, std::size_t, DigestHash> groups_;
};
