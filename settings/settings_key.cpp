#include "settings/settings_key.h"

#include <vector>

namespace {

// Room for the longest name the registry keeps (255 characters) and its terminator.
constexpr DWORD kNameLength = 260;

bool IsReadableText(const wchar_t* text) { return text && !IsBadReadPtr(text, sizeof(wchar_t)); }

}  // namespace

CSettingsKey::CSettingsKey(HKEY root, const wchar_t* path, bool create, bool flushOnClose)
    : flushOnClose_(flushOnClose) {
    if (create) {
        if (RegCreateKeyExW(root, path, 0, nullptr, 0, 0, nullptr, &handle_, &disposition_) !=
            ERROR_SUCCESS) {
            handle_ = nullptr;
            dirty_ = true;
        }
    } else if (RegOpenKeyExW(root, path, 0, 0, &handle_) != ERROR_SUCCESS) {
        handle_ = nullptr;
    }
}

CSettingsKey::~CSettingsKey() {
    if (flushOnClose_ && dirty_) RegFlushKey(handle_);
    RegCloseKey(handle_);
}

std::uint32_t CSettingsKey::ReadDword(const wchar_t* name, std::uint32_t defaultValue) {
    std::uint32_t value = 0;
    DWORD size = sizeof value;
    if (IsReadableText(name) &&
        RegQueryValueExW(handle_, name, nullptr, nullptr, reinterpret_cast<BYTE*>(&value), &size) ==
            ERROR_SUCCESS) {
        return value;
    }
    if (defaultValue != SETTINGS_NO_DEFAULT) {
        // A default that is filled in is no change of the user's: the key stays clean.
        const bool wasDirty = dirty_;
        WriteDword(name, defaultValue);
        dirty_ = wasDirty;
    }
    return defaultValue;
}

bool CSettingsKey::WriteDword(const wchar_t* name, std::uint32_t value) {
    if (!IsReadableText(name)) return false;
    dirty_ = true;
    return RegSetValueExW(handle_, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value),
                          sizeof value) == ERROR_SUCCESS;
}

std::wstring CSettingsKey::ReadString(const wchar_t* name, const wchar_t* defaultText) {
    if (!IsReadableText(name)) return {};
    DWORD size = 0;
    if (RegQueryValueExW(handle_, name, nullptr, nullptr, nullptr, &size) == ERROR_SUCCESS) {
        std::vector<wchar_t> text(size + 1);
        if (RegQueryValueExW(handle_, name, nullptr, nullptr, reinterpret_cast<BYTE*>(text.data()),
                             &size) == ERROR_SUCCESS) {
            return text.data();
        }
    }
    if (!IsReadableText(defaultText)) return {};
    WriteString(name, defaultText);
    return defaultText;
}

bool CSettingsKey::WriteString(const wchar_t* name, const wchar_t* text) {
    if (!IsReadableText(name) || !IsReadableText(text)) return false;
    dirty_ = true;
    const DWORD size = static_cast<DWORD>((wcslen(text) + 1) * sizeof(wchar_t));
    return RegSetValueExW(handle_, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text), size) ==
           ERROR_SUCCESS;
}

bool CSettingsKey::ReadBinary(const wchar_t* name, void* buffer, DWORD* size) {
    if (!IsReadableText(name) || !size) return false;
    if (buffer && *size && (IsBadReadPtr(buffer, *size) || IsBadWritePtr(buffer, *size)))
        return false;
    return RegQueryValueExW(handle_, name, nullptr, nullptr, static_cast<BYTE*>(buffer), size) ==
           ERROR_SUCCESS;
}

bool CSettingsKey::WriteBinary(const wchar_t* name, const void* data, DWORD size) {
    if (!IsReadableText(name) || !data || IsBadReadPtr(data, size)) return false;
    dirty_ = true;
    return RegSetValueExW(handle_, name, 0, REG_BINARY, static_cast<const BYTE*>(data), size) ==
           ERROR_SUCCESS;
}

bool CSettingsKey::DeleteValue(const wchar_t* name) {
    if (!IsReadableText(name) || RegDeleteValueW(handle_, name) != ERROR_SUCCESS) return false;
    dirty_ = true;
    return true;
}

void CSettingsKey::DeleteValues() {
    // Always the first one: the others move up as it goes.
    std::wstring name;
    while (FirstValueName(name) && DeleteValue(name.c_str())) {
    }
}

bool CSettingsKey::FirstValueName(std::wstring& name) {
    enumerationIndex_ = 0;
    return ValueNameAtIndex(name);
}

bool CSettingsKey::NextValueName(std::wstring& name) {
    ++enumerationIndex_;
    return ValueNameAtIndex(name);
}

bool CSettingsKey::ValueNameAtIndex(std::wstring& name) {
    wchar_t buffer[kNameLength];
    DWORD length = kNameLength;
    if (RegEnumValueW(handle_, enumerationIndex_, buffer, &length, nullptr, nullptr, nullptr,
                      nullptr) != ERROR_SUCCESS) {
        return false;
    }
    name.assign(buffer, length);
    return true;
}

CSettingsKey OpenProductKey(const wchar_t* name) {
    const std::wstring path = std::wstring(kProductKey) + L"\\" + name;
    return CSettingsKey(HKEY_LOCAL_MACHINE, path.c_str(), true, true);
}

OwnedKey OpenKey(HKEY parent, const wchar_t* name) {
    HKEY key = nullptr;
    return OwnedKey(RegOpenKeyExW(parent, name, 0, 0, &key) == ERROR_SUCCESS ? key : nullptr);
}

bool DeleteKeyTree(HKEY parent, const wchar_t* name) {
    if (!name) return false;
    OwnedKey key = OpenKey(parent, name);
    if (!key) return false;
    wchar_t child[kNameLength];
    DWORD length = kNameLength;
    // Always the first one: the others move up as their predecessors go.
    while (RegEnumKeyExW(key.get(), 0, child, &length, nullptr, nullptr, nullptr, nullptr) ==
           ERROR_SUCCESS) {
        if (!DeleteKeyTree(key.get(), child)) return false;
        length = kNameLength;
    }
    key.Reset();  // An open key cannot be deleted.
    return RegDeleteKeyW(parent, name) == ERROR_SUCCESS;
}
