#include "settings/settings_file.h"

#include "settings/settings_file_search.h"
#include "settings/settings_records.h"

namespace {

class Reader {
  public:
    Reader(std::span<const std::uint8_t> bytes, std::span<const std::size_t> empty,
           SettingsSink& sink)
        : records_(bytes), empty_(empty), sink_(sink) {}

    bool Read() {
        std::uint32_t root = 0;
        std::wstring path;
        SettingsRecord key;
        return records_.TakeStart(root, path) && sink_.OpenRoot(root, path) &&
               records_.TakeHead(key) && key.tag == SettingsTag::kKey &&
               sink_.EnterKey(TextOf(key.name)) && Records() && records_.TakeEnd();
    }

  private:
    // Up to the end of the outermost key.
    bool Records() {
        SettingsRecord record;
        for (std::size_t depth = 1; depth > 0;) {
            if (!records_.TakeHead(record)) return false;
            switch (record.tag) {
                case SettingsTag::kKey:
                    if (!sink_.EnterKey(TextOf(record.name))) return false;
                    ++depth;
                    break;
                case SettingsTag::kValue:
                    if (!Data(record) || !Put(record)) return false;
                    break;
                case SettingsTag::kKeyEnd:
                case SettingsTag::kEnd:
                    sink_.LeaveKey();
                    --depth;
                    break;
                default: break;  // Skipped.
            }
        }
        return true;
    }

    bool Data(SettingsRecord& record) {
        if (empty_.empty() || empty_.front() != records_.position()) {
            return records_.TakeData(record);
        }
        empty_ = empty_.subspan(1);
        records_.TakeNoData(record);
        return true;
    }

    bool Put(const SettingsRecord& record) {
        const std::wstring name = TextOf(record.name);
        switch (record.type) {
            case SettingsType::kText: return sink_.PutText(name, TextOf(record.data));
            case SettingsType::kNumber:
                return sink_.PutNumber(name, ByteReader(record.data).TakeNumber());
            case SettingsType::kBinary: return sink_.PutBinary(name, record.data);
        }
        return false;
    }

    SettingsRecords records_;
    std::span<const std::size_t> empty_;  // those that are still to come
    SettingsSink& sink_;
};

}  // namespace

bool ReadSettingsFile(std::span<const std::uint8_t> bytes, SettingsSink& sink) {
    const SettingsFileReading reading = FindSettingsFileReading(bytes);
    return Reader(bytes, reading.empty, sink).Read();
}

void SettingsFileWriter::Begin(std::uint32_t root, std::wstring_view path) {
    Put(SettingsTag::kStart);
    PutNumber(root);
    PutText(path);
}

void SettingsFileWriter::BeginKey(std::wstring_view name) {
    Put(SettingsTag::kKey);
    PutText(name);
}

void SettingsFileWriter::Text(std::wstring_view name, std::wstring_view text) {
    BeginValue(name, SettingsType::kText);
    PutText(text);
}

void SettingsFileWriter::Number(std::wstring_view name, std::uint32_t number) {
    BeginValue(name, SettingsType::kNumber);
    PutNumber(number);
}

void SettingsFileWriter::Binary(std::wstring_view name, std::span<const std::uint8_t> value) {
    BeginValue(name, SettingsType::kBinary);
    if (value.empty()) return;
    PutNumber(static_cast<std::uint32_t>(value.size()));
    bytes.insert(bytes.end(), value.begin(), value.end());
}

void SettingsFileWriter::BeginValue(std::wstring_view name, SettingsType type) {
    Put(SettingsTag::kValue);
    PutText(name);
    PutNumber(static_cast<std::uint32_t>(type));
}

void SettingsFileWriter::PutNumber(std::uint32_t number) {
    const auto byte = [number](int i) { return static_cast<std::uint8_t>(number >> 8 * i); };
    bytes.insert(bytes.end(), {byte(0), byte(1), byte(2), byte(3)});
}

void SettingsFileWriter::PutText(std::wstring_view text) {
    PutNumber(static_cast<std::uint32_t>(text.size() * 2));
    const std::size_t begin = bytes.size();
    bytes.resize(begin + text.size() * 2);
    std::uint8_t* byte = bytes.data() + begin;
    for (const wchar_t c : text) {
        *byte++ = static_cast<std::uint8_t>(c);
        *byte++ = static_cast<std::uint8_t>(c >> 8);
    }
}
