#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// A section of a settings file with its pairs in the file's order.
struct SettingsIniSection {
    struct Pair {
        std::wstring key;
        std::wstring value;

        bool operator==(const Pair&) const = default;
    };

    std::wstring name;
    std::vector<Pair> pairs;

    // The value of the first pair with exactly this key; null without one.
    const std::wstring* Find(std::wstring_view key) const;
    // TRUE or FALSE, in any case; nothing for another text and without the key.
    std::optional<bool> FindBoolean(std::wstring_view key) const;

    bool operator==(const SettingsIniSection&) const = default;
};

struct SettingsIni {
    SettingsIniSection top;  // what stands before the first section; without a name
    std::vector<SettingsIniSection> sections;

    // The first section with exactly this name; null without one.
    const SettingsIniSection* FindSection(std::wstring_view name) const;

    bool operator==(const SettingsIni&) const = default;
};

// Two of the system's code pages: the device's own and UTF-8.
inline constexpr unsigned kDeviceCodePage = 0;
inline constexpr unsigned kUtf8CodePage = 65001;

// The system's conversion from a code page. What it cannot convert is empty.
using DecodeText = std::wstring (*)(unsigned codePage, std::string_view bytes);

// The longest line, in bytes; what is longer goes on as a line of its own. The longest value in
// UTF-8, in characters; a longer one is empty.
inline constexpr std::size_t kLongestIniLine = 1024;
inline constexpr std::size_t kLongestUtf8Value = 512;

// Parses the bytes of a file that was read as text, with single line feeds. Takes any bytes; a line
// ends at its first NUL.
SettingsIni ParseSettingsIni(std::span<const std::uint8_t> bytes, DecodeText decode);
