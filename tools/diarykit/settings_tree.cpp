#include "tools/diarykit/settings_tree.h"

#include <algorithm>
#include <cstdio>

#include "settings/settings_file_facts.h"
#include "tools/diarykit/files.h"
#include "tools/diarykit/text.h"

namespace {

constexpr struct {
    std::uint32_t number;
    const wchar_t* name;
} kRoots[] = {
    {0x80000000, L"HKEY_CLASSES_ROOT"},
    {0x80000001, L"HKEY_CURRENT_USER"},
    {kLocalMachine, L"HKEY_LOCAL_MACHINE"},
    {0x80000003, L"HKEY_USERS"},
};

std::wstring Joined(std::wstring_view path, std::wstring_view name) {
    return path.empty() ? std::wstring(name) : std::wstring(path) + L'\\' + std::wstring(name);
}

class TreeSink : public SettingsSink {
  public:
    explicit TreeSink(StoredSettings& settings) : settings_(settings) {}

    bool OpenRoot(std::uint32_t root, const std::wstring& path) override {
        settings_.root = root;
        settings_.path = TidyPath(path);
        settings_.Key({});
        return true;
    }
    bool EnterKey(const std::wstring& name) override {
        const std::wstring path = TidyPath(paths_.empty() ? name : paths_.back() + L'\\' + name);
        const std::size_t depth = DepthOf(settings_.path) + DepthOf(path);
        // The outermost key has no name, and others may have none.
        if (paths_.size() > kDeepestKey || depth > kDeepestKey) return false;
        paths_.push_back(path);
        settings_.Key(path);
        return true;
    }
    void LeaveKey() override { paths_.pop_back(); }
    bool PutText(const std::wstring& name, const std::wstring& text) override {
        return Store({name, SettingsType::kText, text, 0, {}});
    }
    bool PutNumber(const std::wstring& name, std::uint32_t number) override {
        return Store({name, SettingsType::kNumber, {}, number, {}});
    }
    bool PutBinary(const std::wstring& name, std::span<const std::uint8_t> bytes) override {
        return Store({name, SettingsType::kBinary, {}, 0, {bytes.begin(), bytes.end()}});
    }

  private:
    bool Store(StoredValue value) {
        Put(settings_.Key(paths_.back()), std::move(value));
        return true;
    }

    StoredSettings& settings_;
    std::vector<std::wstring> paths_;  // of the keys that are open
};

void WriteValue(SettingsFileWriter& writer, const StoredValue& value) {
    switch (value.type) {
        case SettingsType::kText: return writer.Text(value.name, value.text);
        case SettingsType::kNumber: return writer.Number(value.name, value.number);
        case SettingsType::kBinary: return writer.Binary(value.name, value.bytes);
    }
}

}  // namespace

std::size_t DepthOf(std::wstring_view path) {
    std::size_t depth = 0;
    while (!TakeKeyName(path).empty()) ++depth;
    return depth;
}

StoredKey& StoredSettings::Key(std::wstring_view wanted) {
    const auto find = [this](std::wstring_view key) {
        return std::find_if(keys.begin(), keys.end(),
                            [key](const auto& k) { return IsSameAsciiName(k.path, key); });
    };
    if (keys.empty()) keys.emplace_back();
    std::wstring path;
    while (true) {
        const std::wstring_view name = TakeKeyName(wanted);
        if (name.empty()) return *find(path);
        path = Joined(path, name);
        if (find(path) == keys.end()) keys.push_back({path, {}});
    }
}

void Put(StoredKey& key, StoredValue value) {
    const auto same = std::find_if(key.values.begin(), key.values.end(), [&](const auto& other) {
        return IsSameAsciiName(other.name, value.name);
    });
    if (same == key.values.end()) {
        key.values.push_back(std::move(value));
    } else {
        *same = std::move(value);
    }
}

StoredSettings ReadSettings(std::span<const std::uint8_t> bytes) {
    StoredSettings settings;
    TreeSink sink(settings);
    settings.whole = ReadSettingsFile(bytes, sink);
    return settings;
}

StoredSettings ReadSettings(const std::string& path) { return ReadSettings(ReadInput(path)); }

std::vector<std::uint8_t> WriteSettings(const StoredSettings& settings) {
    SettingsFileWriter writer;
    writer.Begin(settings.root, L'\\' + settings.path);
    writer.BeginKey({});
    std::vector<std::wstring_view> open;  // names of the keys below the outermost
    for (const StoredKey& key : settings.keys) {
        std::wstring_view path = key.path, rest = key.path;
        std::size_t common = 0;
        for (; common < open.size(); ++common, path = rest) {
            if (TakeKeyName(rest) != open[common]) break;
        }
        for (; open.size() > common; open.pop_back()) writer.EndKey();
        for (auto name = TakeKeyName(path); !name.empty(); name = TakeKeyName(path)) {
            writer.BeginKey(name);
            open.push_back(name);
        }
        for (const StoredValue& value : key.values) WriteValue(writer, value);
    }
    for (std::size_t depth = open.size() + 1; depth > 0; --depth) writer.EndKey();
    writer.End();
    return writer.bytes;
}

std::wstring TidyPath(std::wstring_view path) {
    std::wstring tidy;
    for (auto name = TakeKeyName(path); !name.empty(); name = TakeKeyName(path)) {
        tidy = Joined(tidy, name);
    }
    return tidy;
}

std::wstring FullPath(const StoredSettings& settings, const StoredKey& key) {
    std::wstring root = RootName(settings.root);
    if (root.empty()) root = L"root key " + std::to_wstring(settings.root);
    return TidyPath(root + L'\\' + settings.path + L'\\' + key.path);
}

std::wstring RootName(std::uint32_t root) {
    for (const auto& known : kRoots) {
        if (known.number == root) return known.name;
    }
    return {};
}

std::uint32_t RootOfName(std::wstring_view name) {
    for (const auto& known : kRoots) {
        if (IsSameAsciiName(known.name, name)) return known.number;
    }
    return 0;
}

std::string Describe(const StoredValue& value) {
    switch (value.type) {
        case SettingsType::kText: return Quoted(value.text);
        case SettingsType::kNumber: return std::to_string(value.number);
        case SettingsType::kBinary: break;
    }
    std::string text = std::to_string(value.bytes.size()) + " bytes";
    for (const std::uint8_t byte : value.bytes) {
        char digits[4];
        std::snprintf(digits, sizeof digits, " %02X", byte);
        text += digits;
    }
    return text;
}

const char* TypeName(SettingsType type) {
    switch (type) {
        case SettingsType::kText: return "text";
        case SettingsType::kNumber: return "number";
        case SettingsType::kBinary: break;
    }
    return "bytes";
}
