#pragma once

#include <cstdint>
#include <span>
#include <string_view>

// What a settings file would do, before it does.
struct SettingsFileFacts {
    bool whole = false;          // it can be read to its end
    bool writesOutside = false;  // up to there, it makes keys or values outside the product key
};
SettingsFileFacts LookThroughSettingsFile(std::span<const std::uint8_t> bytes);

// The number by which settings files and the registry know HKEY_LOCAL_MACHINE.
inline constexpr std::uint32_t kLocalMachine = 0x80000002;

// Where a key stands beside the product key.
enum class KeyPlace {
    kInside,   // it is that key or one below it
    kAbove,    // it leads to it
    kOutside,  // anywhere else
};
KeyPlace PlaceOfKey(std::uint32_t root, std::wstring_view path);

// Takes the first name off a path, and the backslashes around it; empty at the path's end.
std::wstring_view TakeKeyName(std::wstring_view& path);

// Whether names of the program's own, which are ASCII, are the same to the registry.
bool IsSameAsciiName(std::wstring_view left, std::wstring_view right);
