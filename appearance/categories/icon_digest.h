#pragma once

#include <windows.h>

#include <wincrypt.h>

#include <cstdint>
#include <optional>
#include <span>

#include "appearance/categories/icon_catalogue.h"

// Computes icons' digests with the system's cryptography, which is opened once for many.
class IconDigester {
  public:
    IconDigester();
    ~IconDigester();
    IconDigester(const IconDigester&) = delete;
    IconDigester& operator=(const IconDigester&) = delete;

    // No value when the system cannot.
    std::optional<IconDigest> Digest(std::span<const std::uint8_t> bytes) const;

  private:
    HCRYPTPROV provider_ = 0;
};
