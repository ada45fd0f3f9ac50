#include "settings/settings_file.h"

#include "base/byte_reader.h"

namespace {

class Reader {
  public:
    Reader(std::span<const std::uint8_t> bytes, SettingsSink& sink) : reader_(bytes), sink_(sink) {}

    bool Read() {
        std::uint32_t root = 0;
        std::wstring path;
        return Expect(SettingsTag::kStart) && Number(root) && Text(path) &&
               sink_.OpenRoot(root, path) && Expect(SettingsTag::kKey) && Keys() &&
               Expect(SettingsTag::kEnd);
    }

  private:
    // Up to the end of the outermost key, whose tag has been read.
    bool Keys() {
        if (!EnterKey()) return false;
        std::size_t depth = 1;
        while (depth > 0) {
            std::uint32_t tag = 0;
            if (!Number(tag)) return false;
            switch (static_cast<SettingsTag>(tag)) {
                case SettingsTag::kKey:
                    if (!EnterKey()) return false;
                    ++depth;
                    break;
                case SettingsTag::kValue:
                    if (!Value()) return false;
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

    bool EnterKey() {
        std::wstring name;
        return Text(name) && sink_.EnterKey(name);
    }

    bool Value() {
        std::wstring name;
        std::uint32_t type = 0;
        if (!Text(name) || !Number(type)) return false;
        switch (static_cast<SettingsType>(type)) {
            case SettingsType::kText: {
                std::wstring text;
                return Text(text) && sink_.PutText(name, text);
            }
            case SettingsType::kNumber: {
                std::uint32_t number = 0;
                return Number(number) && sink_.PutNumber(name, number);
            }
            case SettingsType::kBinary: {
                std::span<const std::uint8_t> bytes;
                return CountedBytes(bytes) && sink_.PutBinary(name, bytes);
            }
        }
        return false;
    }

    bool Expect(SettingsTag expected) {
        std::uint32_t tag = 0;
        return Number(tag) && tag == static_cast<std::uint32_t>(expected);
    }

    bool Number(std::uint32_t& number) {
        number = reader_.TakeNumber();
        return !reader_.failed();
    }

    bool CountedBytes(std::span<const std::uint8_t>& bytes) {
        bytes = reader_.Take(reader_.TakeNumber());
        return !reader_.failed();
    }

    bool Text(std::wstring& text) {
        text = reader_.TakeText(reader_.TakeNumber());
        return !reader_.failed();
    }

    ByteReader reader_;
    SettingsSink& sink_;
};

}  // namespace

bool ReadSettingsFile(std::span<const std::uint8_t> bytes, SettingsSink& sink) {
    return Reader(bytes, sink).Read();
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
    for (int shift = 0; shift < 32; shift += 8) {
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
    }
}

void SettingsFileWriter::PutText(std::wstring_view text) {
    PutNumber(static_cast<std::uint32_t>(text.size() * 2));
    for (const wchar_t c : text) {
        bytes.push_back(static_cast<std::uint8_t>(c));
        bytes.push_back(static_cast<std::uint8_t>(c >> 8));
    }
}
