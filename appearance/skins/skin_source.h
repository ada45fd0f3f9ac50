#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "appearance/skins/archive.h"

// The files of a skin, which are in a folder or in a zip archive.
class SkinSource {
  public:
    // A folder, or else a file that is an archive. False, and nothing is open, for an empty path,
    // one longer than 260 characters, and whatever is neither.
    bool Open(const std::wstring& path);
    bool IsOpen() const { return !folder_.empty() || archive_; }
    void Close();

    // Names are ASCII, and in an archive exact in their case. None for a member that is missing,
    // larger than kLargestMember or, in an archive, encrypted.
    std::optional<std::uint32_t> GetMemberSize(const char* name) const;
    std::optional<std::vector<std::uint8_t>> ReadMember(const char* name) const;

  private:
    std::wstring MemberPath(const char* name) const;

    std::wstring folder_;  // with a backslash at its end; empty while an archive or nothing is open
    std::unique_ptr<Archive> archive_;
};
