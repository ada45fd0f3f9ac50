#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "base/byte_reader.h"
#include "settings/settings_file.h"

// A record inside the outermost key of a settings file, as it stands there.
struct SettingsRecord {
    SettingsTag tag = {};                // other numbers than those of the tags come, too
    std::span<const std::uint8_t> name;  // of a key or a value
    SettingsType type = {};              // of a value
    std::span<const std::uint8_t> data;  // of a value
};

// Takes records off a file that may be cut anywhere. What answers with a bool says false where the
// file ends too early or holds what no settings file does.
class SettingsRecords {
  public:
    explicit SettingsRecords(std::span<const std::uint8_t> bytes, std::size_t position = 0)
        : reader_(bytes) {
        reader_.Take(position);
    }

    std::size_t position() const { return reader_.position(); }
    bool TakeStart(std::uint32_t& root, std::wstring& path);
    bool TakeEnd() { return Take(SettingsTag::kEnd); }
    // What begins a record; a value's data must be taken next.
    bool TakeHead(SettingsRecord& record);
    bool TakeData(SettingsRecord& record);
    // Of a binary value without bytes, whose count the file lacks.
    void TakeNoData(SettingsRecord& record) { record.data = reader_.Take(0); }
    // Whether a key, a value or a key's end is next.
    bool IsBeforeRecord() const;

  private:
    bool Take(SettingsTag expected);
    bool Number(std::uint32_t& number);
    bool CountedBytes(std::span<const std::uint8_t>& bytes);

    ByteReader reader_;
};

std::wstring TextOf(std::span<const std::uint8_t> bytes);
