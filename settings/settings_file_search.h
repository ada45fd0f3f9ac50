#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// How a settings file is to be read. A binary value of no bytes has no count in the file, so that
// what follows it, a key, a value or a key's end, looks like one.
struct SettingsFileReading {
    // The values to be taken for such: the places where their counts would be, in the file's order.
    std::vector<std::size_t> empty;
    // Whether the file so read ends as it must.
    bool whole = false;
    // What was tried after the first value that may be empty: places, each with a depth of keys.
    std::size_t states = 0;
};

// Beyond so many states a byte of the file the search gives up.
inline constexpr std::size_t kStatesPerByte = 4;

// A file that a writer can have written is to be read as that. Any other is read as it stands where
// that reaches the file's end, and else in whatever way does. Where none does, nothing is taken for
// empty. Takes no stack for nested keys, and memory in proportion to the file's size.
SettingsFileReading FindSettingsFileReading(std::span<const std::uint8_t> bytes);
