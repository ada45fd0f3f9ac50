#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

// A file's bytes in memory, read only, for as long as the object lives.
class MappedFile {
  public:
    explicit MappedFile(const std::wstring& path);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    // Nothing for a file that is missing, empty or cannot be read.
    std::span<const std::uint8_t> bytes() const { return {view_, size_}; }

  private:
    HANDLE file_;
    HANDLE mapping_ = nullptr;
    const std::uint8_t* view_ = nullptr;
    std::size_t size_ = 0;
};
