#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "settings/settings_file.h"

// What a settings file leaves in the registry, whatever the order and repetitions it is told in.
struct StoredValue {
    std::wstring name;
    SettingsType type;
    std::wstring text;                // of a kText
    std::uint32_t number = 0;         // of a kNumber
    std::vector<std::uint8_t> bytes;  // of a kBinary

    bool operator==(const StoredValue&) const = default;
};

struct StoredKey {
    std::wstring path;  // below the outermost key, which is the first, with an empty one
    std::vector<StoredValue> values;

    bool operator==(const StoredKey&) const = default;
};

struct StoredSettings {
    std::uint32_t root = 0;
    std::wstring path;            // of the outermost key; names joined by single backslashes
    std::vector<StoredKey> keys;  // each behind those that it is below
    bool whole = false;           // the file was read to its end

    // Adds a key with those that it is below, unless it is there. The outermost comes first.
    StoredKey& Key(std::wstring_view path);

    bool operator==(const StoredSettings&) const = default;
};

// Deeper than this no registry nests its keys.
inline constexpr std::size_t kDeepestKey = 64;
std::size_t DepthOf(std::wstring_view path);

// Of a file that cannot be read to its end, what comes before. Keys that are nested deeper than
// that end it, too.
StoredSettings ReadSettings(std::span<const std::uint8_t> bytes);
// The same of a file; throws a UseError when there is none.
StoredSettings ReadSettings(const std::string& path);

std::vector<std::uint8_t> WriteSettings(const StoredSettings& settings);

// Stores a value in a key, in the place of one of the same name.
void Put(StoredKey& key, StoredValue value);

// Names joined by single backslashes, without any before or behind.
std::wstring TidyPath(std::wstring_view path);

// A key's full path, for people: "HKEY_LOCAL_MACHINE\Software\...".
std::wstring FullPath(const StoredSettings& settings, const StoredKey& key);
// The name of a root key, and the number of a name; empty and 0 for what is none.
std::wstring RootName(std::uint32_t root);
std::uint32_t RootOfName(std::wstring_view name);

// A value without its name, for people and in one line.
std::string Describe(const StoredValue& value);
const char* TypeName(SettingsType type);
