#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

// No member of an archive, and no file of a skin, is read when it is larger than this.
inline constexpr std::uint32_t kLargestMember = 16 * 1024 * 1024;

// A zip archive that is open for reading.
class Archive {
  public:
    // Opens a file whose name passes through the ANSI code page: where that lacks one of its
    // characters, the file is not found. Null when it is no archive.
    static std::unique_ptr<Archive> Open(const std::wstring& path);
    // The same of an archive's bytes. The archive keeps what they belong to, or else its user does.
    static std::unique_ptr<Archive> OfBytes(std::span<const std::uint8_t> bytes,
                                            std::shared_ptr<const void> owner = nullptr);
    ~Archive();
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;

    // The size in bytes that the archive claims of a member, which is named exactly, case included.
    // None when there is no such member, or it is larger than kLargestMember or encrypted.
    std::optional<std::uint32_t> MemberSize(const char* name);
    // A whole member; none unless it is intact.
    std::optional<std::vector<std::uint8_t>> ReadMember(const char* name);

  private:
    Archive(void* handle, std::shared_ptr<const void> owner)
        : owner_(std::move(owner)), handle_(handle) {}

    std::shared_ptr<const void> owner_;
    void* handle_;  // of unzip.h
};
