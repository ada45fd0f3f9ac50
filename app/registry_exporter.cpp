#include "app/registry_exporter.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "base/names.h"
#include "base/owned_handle.h"
#include "base/read_file.h"
#include "settings/settings_file.h"
#include "settings/settings_key.h"

namespace {

// Room for the longest name the registry keeps (255 characters) and its terminator.
constexpr DWORD kNameLength = 256;
// What is collected before it goes to the file.
constexpr std::size_t kBufferSize = 64 * 1024;
// Written in place of a number that cannot be read as one; the file's readers know it.
constexpr std::uint32_t kUnreadableNumber = 0xDEF0;

OwnedKey CreateKey(HKEY parent, const wchar_t* name) {
    HKEY key = nullptr;
    const LSTATUS status = RegCreateKeyExW(parent, name, 0, nullptr, 0, 0, nullptr, &key, nullptr);
    return OwnedKey(status == ERROR_SUCCESS ? key : nullptr);
}

class Export {
  public:
    Export(HANDLE file, const std::vector<std::wstring>& excluded)
        : file_(file), excluded_(excluded) {}

    bool Run(HKEY root, const wchar_t* path, HKEY key) {
        writer_.Begin(static_cast<std::uint32_t>(reinterpret_cast<ULONG_PTR>(root)), path);
        if (!WriteKey(key, L"")) return false;
        writer_.End();
        return Flush();
    }

  private:
    bool Flush() {
        DWORD written = 0;
        const auto size = static_cast<DWORD>(writer_.bytes.size());
        const bool done =
            WriteFile(file_, writer_.bytes.data(), size, &written, nullptr) && written == size;
        writer_.bytes.clear();
        return done;
    }

    // The registry's limit of nesting bounds the recursion.
    bool WriteKey(HKEY key, const wchar_t* name) {
        writer_.BeginKey(name);
        if (!WriteValues(key)) return false;
        wchar_t child[kNameLength];
        for (DWORD index = 0;; ++index) {
            DWORD length = kNameLength;
            const LSTATUS status =
                RegEnumKeyExW(key, index, child, &length, nullptr, nullptr, nullptr, nullptr);
            if (status == ERROR_NO_MORE_ITEMS) break;
            if (status != ERROR_SUCCESS) return false;
            const OwnedKey childKey = OpenKey(key, child);
            if (!childKey || !WriteKey(childKey.get(), child)) return false;
        }
        writer_.EndKey();
        return writer_.bytes.size() < kBufferSize || Flush();
    }

    bool WriteValues(HKEY key) {
        wchar_t name[kNameLength];
        for (DWORD index = 0;;) {
            DWORD length = kNameLength, type = 0, size = static_cast<DWORD>(data_.size());
            const LSTATUS status =
                RegEnumValueW(key, index, name, &length, nullptr, &type, data_.data(), &size);
            if (status == ERROR_MORE_DATA && size > data_.size()) {
                data_.resize(size);
                continue;
            }
            if (status != ERROR_SUCCESS) return status == ERROR_NO_MORE_ITEMS;
            if (!WriteValue({name, length}, type, size)) return false;
            if (writer_.bytes.size() >= kBufferSize && !Flush()) return false;
            ++index;
        }
    }

    bool WriteValue(const std::wstring& name, DWORD type, DWORD size) {
        if (IsExcluded(name)) return true;
        switch (static_cast<SettingsType>(type)) {
            case SettingsType::kText: writer_.Text(name, TextOf(size)); return true;
            case SettingsType::kNumber: writer_.Number(name, NumberOf(size)); return true;
            case SettingsType::kBinary: writer_.Binary(name, {data_.data(), size}); return true;
        }
        return false;
    }

    bool IsExcluded(const std::wstring& name) const {
        return std::ranges::any_of(
            excluded_, [&](const std::wstring& excluded) { return IsSameName(excluded, name); });
    }

    // Up to the first terminator, if there is one.
    std::wstring TextOf(DWORD size) const {
        const void* const data = data_.data();
        const auto* const text = static_cast<const wchar_t*>(data);
        return {text, wcsnlen(text, size / sizeof(wchar_t))};
    }

    std::uint32_t NumberOf(DWORD size) const {
        std::uint32_t number = 0;
        if (size > sizeof number) return kUnreadableNumber;
        memcpy(&number, data_.data(), size);
        return number;
    }

    HANDLE file_;
    const std::vector<std::wstring>& excluded_;
    SettingsFileWriter writer_;
    std::vector<BYTE> data_ = std::vector<BYTE>(4096);  // of the current value; grows as needed
};

class RegistrySink : public SettingsSink {
  public:
    bool OpenRoot(std::uint32_t root, const std::wstring& path) override {
        // A root's handle is its number with the sign extended.
        const auto handle = static_cast<LONG_PTR>(static_cast<std::int32_t>(root));
        return Enter(reinterpret_cast<HKEY>(handle), path);
    }
    bool EnterKey(const std::wstring& name) override {
        if (name.empty()) {
            path_.push_back(path_.back());
            return true;
        }
        return Enter(keys_[path_.back()].get(), name);
    }
    void LeaveKey() override {
        const std::size_t left = path_.back();
        path_.pop_back();
        if (path_.back() != left) keys_.pop_back();
    }
    bool PutText(const std::wstring& name, const std::wstring& text) override {
        const auto size = static_cast<DWORD>((wcslen(text.c_str()) + 1) * sizeof(wchar_t));
        return Put(name, REG_SZ, text.c_str(), size);
    }
    bool PutNumber(const std::wstring& name, std::uint32_t number) override {
        return Put(name, REG_DWORD, &number, sizeof number);
    }
    bool PutBinary(const std::wstring& name, std::span<const std::uint8_t> bytes) override {
        return Put(name, REG_BINARY, bytes.data(), static_cast<DWORD>(bytes.size()));
    }

  private:
    bool Enter(HKEY parent, const std::wstring& name) {
        OwnedKey key = CreateKey(parent, name.c_str());
        if (!key) return false;
        path_.push_back(keys_.size());
        keys_.push_back(std::move(key));
        return true;
    }
    bool Put(const std::wstring& name, DWORD type, const void* data, DWORD size) const {
        return RegSetValueExW(keys_[path_.back()].get(), name.c_str(), 0, type,
                              static_cast<const BYTE*>(data), size) == ERROR_SUCCESS;
    }

    std::vector<OwnedKey> keys_;     // open now, each below the one before
    std::vector<std::size_t> path_;  // of each level that was entered: its key among them
};

}  // namespace

void RegistryExporter::Exclude(const wchar_t* valueName) { excluded_.push_back(valueName); }

bool RegistryExporter::Export(const wchar_t* path, HKEY root, const wchar_t* keyPath) const {
    const OwnedKey key = OpenKey(root, keyPath);
    if (!key) return false;
    bool done = false;
    {
        const OwnedFile file(CreateFileW(path, GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                         CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!file) return false;
        done = ::Export(file.get(), excluded_).Run(root, keyPath, key.get());
    }
    if (!done) DeleteFileW(path);
    return done;
}

bool RegistryExporter::Import(const wchar_t* path) const {
    const std::optional<std::vector<std::uint8_t>> bytes = ReadWholeFile(path);
    RegistrySink sink;
    return bytes && ReadSettingsFile(*bytes, sink);
}
