#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

// One record of a dialog-initialisation resource (type 240): an item of a list.
struct DialogInitRecord {
    enum class Target { kNone, kComboBox, kListBox };

    std::uint16_t controlId = 0;
    Target target = Target::kNone;  // kNone: the record adds no text
    std::wstring text;

    bool operator==(const DialogInitRecord&) const = default;
};

// Reads records of control id (16 bits, 0 ends the list), message (16 bits), data size (32 bits)
// and data, UTF-16 text up to its terminator. A record that is cut off ends the list.
std::vector<DialogInitRecord> ParseDialogInit(std::span<const std::uint8_t> bytes);
