#include "settings/settings_key.h"

#include <algorithm>
#include <map>
#include <span>

#include "base/names.h"

namespace {

// Room for the longest name the registry keeps (255 characters) and its terminator.
constexpr DWORD kNameLength = 260;

bool IsReadableText(const wchar_t* text) { return text && !IsBadReadPtr(text, sizeof(wchar_t)); }

// What stands in for values that could not be read: its bytes, by the value's path.
std::map<std::wstring, std::vector<BYTE>>& StandIns() {
    static std::map<std::wstring, std::vector<BYTE>> standIns;
    return standIns;
}

}  // namespace

CSettingsKey::CSettingsKey(HKEY root, const wchar_t* path, bool create, bool flushOnClose)
    : root_(root), path_(path), flushOnClose_(flushOnClose) {
    if (create) {
        openStatus_ =
            RegCreateKeyExW(root, path, 0, nullptr, 0, 0, nullptr, &handle_, &disposition_);
        if (openStatus_ != ERROR_SUCCESS) {
            handle_ = nullptr;
            dirty_ = true;
        }
    } else {
        openStatus_ = RegOpenKeyExW(root, path, 0, 0, &handle_);
        if (openStatus_ != ERROR_SUCCESS) handle_ = nullptr;
    }
    hasUnread_ = openStatus_ != ERROR_SUCCESS && openStatus_ != ERROR_FILE_NOT_FOUND;
}

CSettingsKey::~CSettingsKey() {
    if (flushOnClose_ && dirty_) RegFlushKey(handle_);
    RegCloseKey(handle_);
}

LSTATUS CSettingsKey::Query(const wchar_t* name, void* data, DWORD* size) {
    if (!handle_) {
        hasUnread_ = hasUnread_ || openStatus_ != ERROR_FILE_NOT_FOUND;
        return openStatus_;
    }
    const LSTATUS status =
        RegQueryValueExW(handle_, name, nullptr, nullptr, static_cast<BYTE*>(data), size);
    if (status == ERROR_SUCCESS) {
        ForgetStandIn(name);
    } else if (status != ERROR_FILE_NOT_FOUND && status != ERROR_MORE_DATA) {
        hasUnread_ = true;
    }
    return status;
}

bool CSettingsKey::Set(const wchar_t* name, DWORD type, const void* data, DWORD size) {
    const auto* const bytes = static_cast<const BYTE*>(data);
    if (!StandIns().empty()) {
        const auto standIn = StandIns().find(IdOf(name));
        if (standIn != StandIns().end() &&
            std::ranges::equal(standIn->second, std::span(bytes, size)))
            return false;
    }
    dirty_ = true;
    if (RegSetValueExW(handle_, name, 0, type, bytes, size) != ERROR_SUCCESS) return false;
    ForgetStandIn(name);
    return true;
}

void CSettingsKey::PutDefault(const wchar_t* name, bool isMissing, DWORD type, const void* data,
                              DWORD size) {
    const auto* const bytes = static_cast<const BYTE*>(data);
    if (!isMissing) {
        StandIns()[IdOf(name)] = {bytes, bytes + size};
        return;
    }
    // A default that is filled in is no change of the user's: the key stays clean.
    const bool wasDirty = dirty_;
    ForgetStandIn(name);
    Set(name, type, data, size);
    dirty_ = wasDirty;
}

void CSettingsKey::ForgetStandIn(const wchar_t* name) const {
    if (!StandIns().empty()) StandIns().erase(IdOf(name));
}

std::wstring CSettingsKey::IdOf(const wchar_t* name) const {
    return std::to_wstring(reinterpret_cast<ULONG_PTR>(root_)) + path_ + L'\\' + name;
}

std::uint32_t CSettingsKey::ReadDword(const wchar_t* name, std::uint32_t defaultValue) {
    if (!IsReadableText(name)) return defaultValue;
    std::uint32_t value = 0;
    DWORD size = sizeof value;
    const LSTATUS status = Query(name, &value, &size);
    if (status == ERROR_SUCCESS) return value;
    if (defaultValue != SETTINGS_NO_DEFAULT) {
        // What is too long for a number counts as missing.
        const bool isMissing = status == ERROR_FILE_NOT_FOUND || status == ERROR_MORE_DATA;
        PutDefault(name, isMissing, REG_DWORD, &defaultValue, sizeof defaultValue);
    }
    return defaultValue;
}

bool CSettingsKey::WriteDword(const wchar_t* name, std::uint32_t value) {
    return IsReadableText(name) && Set(name, REG_DWORD, &value, sizeof value);
}

std::wstring CSettingsKey::ReadString(const wchar_t* name, const wchar_t* defaultText) {
    if (!IsReadableText(name)) return {};
    // Most texts are short, so that one question is enough. A stored one need not be terminated.
    wchar_t few[128] = {};
    DWORD size = sizeof few - sizeof(wchar_t);
    LSTATUS status = Query(name, few, &size);
    if (status == ERROR_SUCCESS) return few;
    if (status == ERROR_MORE_DATA) {
        std::vector<wchar_t> text(size + 1);
        status = Query(name, text.data(), &size);
        if (status == ERROR_SUCCESS) return text.data();
    }
    if (!IsReadableText(defaultText)) return {};
    const DWORD length = static_cast<DWORD>((wcslen(defaultText) + 1) * sizeof(wchar_t));
    PutDefault(name, status == ERROR_FILE_NOT_FOUND, REG_SZ, defaultText, length);
    return defaultText;
}

bool CSettingsKey::WriteString(const wchar_t* name, const wchar_t* text) {
    if (!IsReadableText(name) || !IsReadableText(text)) return false;
    return Set(name, REG_SZ, text, static_cast<DWORD>((wcslen(text) + 1) * sizeof(wchar_t)));
}

bool CSettingsKey::ReadBinary(const wchar_t* name, void* buffer, DWORD* size) {
    if (!IsReadableText(name) || !size) return false;
    if (buffer && *size && (IsBadReadPtr(buffer, *size) || IsBadWritePtr(buffer, *size)))
        return false;
    return Query(name, buffer, size) == ERROR_SUCCESS;
}

bool CSettingsKey::WriteBinary(const wchar_t* name, const void* data, DWORD size) {
    if (!IsReadableText(name) || !data || IsBadReadPtr(data, size)) return false;
    return Set(name, REG_BINARY, data, size);
}

bool CSettingsKey::DeleteValue(const wchar_t* name) {
    if (!IsReadableText(name) || RegDeleteValueW(handle_, name) != ERROR_SUCCESS) return false;
    dirty_ = true;
    return true;
}

void CSettingsKey::DeleteValuesBut(std::span<const std::wstring> kept) {
    for (const std::wstring& name : ValueNames()) {
        const auto isName = [&](const std::wstring& other) { return IsSameName(other, name); };
        if (std::ranges::none_of(kept, isName)) DeleteValue(name.c_str());
    }
}

std::vector<std::wstring> CSettingsKey::ValueNames() {
    std::vector<std::wstring> names;
    std::wstring name;
    for (bool more = FirstValueName(name); more; more = NextValueName(name)) names.push_back(name);
    return names;
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
    const LSTATUS status = RegEnumValueW(handle_, enumerationIndex_, buffer, &length, nullptr,
                                         nullptr, nullptr, nullptr);
    if (status != ERROR_SUCCESS) {
        hasUnread_ = hasUnread_ || (handle_ && status != ERROR_NO_MORE_ITEMS);
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
