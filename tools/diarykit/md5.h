#pragma once

#include <span>

#include "appearance/categories/icon_catalogue.h"

// The MD5 of bytes, for systems whose own is not at hand (RFC 1321).
IconDigest Md5Of(std::span<const std::uint8_t> bytes);
