#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>

// Ends the run when something that must hold does not; libFuzzer then keeps the input.
#define REQUIRE(condition)                                                               \
    do {                                                                                 \
        if (!(condition)) {                                                              \
            std::fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition); \
            std::abort();                                                                \
        }                                                                                \
    } while (false)

// The bytes as text: a character each, but the two bytes behind a 0xFF are one. This way inputs
// stay readable and reach every UTF-16 unit.
inline std::wstring TextOf(std::span<const std::uint8_t> bytes) {
    std::wstring text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        unsigned unit = bytes[i];
        if (unit == 0xFF && i + 2 < bytes.size()) {
            unit = bytes[i + 1] | bytes[i + 2] << 8;
            i += 2;
        }
        text += static_cast<wchar_t>(unit);
    }
    return text;
}
