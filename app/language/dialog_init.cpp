#include "app/language/dialog_init.h"

#include <cstddef>
#include <utility>

#include "base/byte_reader.h"

namespace {

// The messages that add a text, in their present form and in the one of 16-bit Windows, which
// resource compilers still write.
DialogInitRecord::Target TargetOf(std::uint32_t message) {
    switch (message) {
        case 0x0403:
        case 0x0143: return DialogInitRecord::Target::kComboBox;
        case 0x0401:
        case 0x0180: return DialogInitRecord::Target::kListBox;
    }
    return DialogInitRecord::Target::kNone;
}

// Up to its terminator.
std::wstring TakeText(ByteReader& reader, std::size_t size) {
    const std::wstring text = reader.TakeText(size);
    return text.substr(0, text.find(L'\0'));
}

}  // namespace

std::vector<DialogInitRecord> ParseDialogInit(std::span<const std::uint8_t> bytes) {
    std::vector<DialogInitRecord> records;
    ByteReader reader(bytes);
    for (;;) {
        DialogInitRecord record;
        record.controlId = static_cast<std::uint16_t>(reader.TakeNumber(2));
        if (!record.controlId) break;
        record.target = TargetOf(reader.TakeNumber(2));
        std::wstring text = TakeText(reader, reader.TakeNumber());
        if (reader.failed()) break;
        if (record.target != DialogInitRecord::Target::kNone) record.text = std::move(text);
        records.push_back(std::move(record));
    }
    return records;
}
