#include "settings/settings_records.h"

bool SettingsRecords::TakeStart(std::uint32_t& root, std::wstring& path) {
    std::span<const std::uint8_t> bytes;
    if (!Take(SettingsTag::kStart) || !Number(root) || !CountedBytes(bytes)) return false;
    path = TextOf(bytes);
    return true;
}

bool SettingsRecords::TakeHead(SettingsRecord& record) {
    std::uint32_t tag = 0, type = 0;
    if (!Number(tag)) return false;
    record = {static_cast<SettingsTag>(tag)};
    switch (record.tag) {
        case SettingsTag::kKey: return CountedBytes(record.name);
        case SettingsTag::kValue:
            if (!CountedBytes(record.name) || !Number(type)) return false;
            record.type = static_cast<SettingsType>(type);
            return true;
        default: return true;
    }
}

bool SettingsRecords::TakeData(SettingsRecord& record) {
    switch (record.type) {
        case SettingsType::kText:
        case SettingsType::kBinary: return CountedBytes(record.data);
        case SettingsType::kNumber:
            record.data = reader_.Take(sizeof(std::uint32_t));
            return !reader_.failed();
    }
    return false;
}

bool SettingsRecords::IsBeforeRecord() const {
    ByteReader ahead = reader_;
    switch (static_cast<SettingsTag>(ahead.TakeNumber())) {
        case SettingsTag::kKey:
        case SettingsTag::kKeyEnd:
        case SettingsTag::kValue: return true;
        default: return false;
    }
}

bool SettingsRecords::Take(SettingsTag expected) {
    std::uint32_t tag = 0;
    return Number(tag) && tag == static_cast<std::uint32_t>(expected);
}

bool SettingsRecords::Number(std::uint32_t& number) {
    number = reader_.TakeNumber();
    return !reader_.failed();
}

bool SettingsRecords::CountedBytes(std::span<const std::uint8_t>& bytes) {
    bytes = reader_.Take(reader_.TakeNumber());
    return !reader_.failed();
}

std::wstring TextOf(std::span<const std::uint8_t> bytes) {
    return ByteReader(bytes).TakeText(bytes.size());
}
