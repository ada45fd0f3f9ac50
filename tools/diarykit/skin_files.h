#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "appearance/skins/archive.h"

// A skin's files, in a folder or in a zip archive, as the program reads them there.
class SkinFiles {
  public:
    // Throws a UseError for a path where there is neither.
    explicit SkinFiles(const std::string& path);

    bool IsThere(const std::string& name) const;
    // None for one that the program would not read, either.
    std::optional<std::vector<std::uint8_t>> Read(const std::string& name) const;

  private:
    std::string folder_;
    std::vector<std::uint8_t> bytes_;  // of the archive
    std::unique_ptr<Archive> archive_;
};
