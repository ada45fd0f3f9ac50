#include "app/language/dialog_init.h"

#include <cstddef>
#include <utility>

namespace {

// Reads little-endian numbers; a read past the end gives 0 and marks the reader as failed.
class Reader {
  public:
    explicit Reader(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

    bool failed() const { return failed_; }
    std::span<const std::uint8_t> Take(std::size_t size) {
        if (size > rest_.size()) failed_ = true;
        if (failed_) return {};
        const auto taken = rest_.first(size);
        rest_ = rest_.subspan(size);
        return taken;
    }
    std::uint32_t TakeNumber(std::size_t size) {
        std::uint32_t number = 0;
        unsigned shift = 0;
        for (const std::uint8_t byte : Take(size)) {
            number |= std::uint32_t{byte} << shift;
            shift += 8;
        }
        return number;
    }

  private:
    std::span<const std::uint8_t> rest_;
    bool failed_ = false;
};

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

std::wstring TextOf(std::span<const std::uint8_t> data) {
    std::wstring text;
    for (std::size_t i = 0; i + 2 <= data.size(); i += 2) {
        const unsigned unit = data[i] | data[i + 1] << 8;
        if (!unit) break;
        text += static_cast<wchar_t>(unit);
    }
    return text;
}

}  // namespace

std::vector<DialogInitRecord> ParseDialogInit(std::span<const std::uint8_t> bytes) {
    std::vector<DialogInitRecord> records;
    Reader reader(bytes);
    for (;;) {
        DialogInitRecord record;
        record.controlId = static_cast<std::uint16_t>(reader.TakeNumber(2));
        if (!record.controlId) break;
        record.target = TargetOf(reader.TakeNumber(2));
        const auto data = reader.Take(reader.TakeNumber(4));
        if (reader.failed()) break;
        if (record.target != DialogInitRecord::Target::kNone) record.text = TextOf(data);
        records.push_back(std::move(record));
    }
    return records;
}
