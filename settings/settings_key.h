#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "base/owned_handle.h"
#include "settings/catalogue.h"

// The default of a number that has none: a missing value then reads as this, and nothing is
// written.
inline constexpr std::uint32_t SETTINGS_NO_DEFAULT = 0xDEF0;

// The key, under HKEY_LOCAL_MACHINE, that this program and the plug-in share.
inline constexpr const wchar_t kProductKey[] = L"\\Software\\Lum Software House\\Lum Diary";

// The most bytes that a value of the registry holds.
inline constexpr std::size_t kLargestValue = 4096;

// Whether a text, with its terminator, can be stored.
inline bool FitsValue(const std::wstring& text) {
    return (text.size() + 1) * sizeof(wchar_t) <= kLargestValue;
}

// One registry key, opened for the length of one load or save. Reads never fail: a value that
// cannot be read yields its default, and a missing one is created with it, so that the plug-in,
// which reads the same values in another process, goes by the same defaults. One that is there but
// could not be read is left alone, also by a later write of the default that stood in for it: the
// user did not choose that. Failed writes return false.
class CSettingsKey {
  public:
    // Opens `path` below `root`; with `create` a missing key is made. With `flushOnClose` the key
    // is flushed when it closes after a write.
    CSettingsKey(HKEY root, const wchar_t* path, bool create, bool flushOnClose);
    virtual ~CSettingsKey();
    CSettingsKey(const CSettingsKey&) = delete;
    CSettingsKey& operator=(const CSettingsKey&) = delete;

    bool IsOpen() const { return handle_ != nullptr; }
    // Whether something that is there, or may be, could not be read.
    bool HasUnread() const { return hasUnread_; }
    // The same since the last time this was asked.
    bool TakeUnread() { return std::exchange(hasUnread_, false); }

    // The value's four bytes, whatever its type; `defaultValue` (which is then written, unless it
    // is SETTINGS_NO_DEFAULT) when it is missing or longer.
    std::uint32_t ReadDword(const wchar_t* name, std::uint32_t defaultValue);
    bool WriteDword(const wchar_t* name, std::uint32_t value);

    // The text up to its first terminator; when it is missing, `defaultText`, which is then
    // written. Without a default (null) a missing text is empty and nothing is written.
    std::wstring ReadString(const wchar_t* name, const wchar_t* defaultText = nullptr);
    bool WriteString(const wchar_t* name, const wchar_t* text);

    // The same by a setting's name and default.
    std::uint32_t Read(const NumberSetting& setting) {
        return ReadDword(setting.name, setting.defaultValue);
    }
    std::wstring Read(const TextSetting& setting) {
        return ReadString(setting.name, setting.defaultText);
    }
    bool Write(const NumberSetting& setting, std::uint32_t value) {
        return WriteDword(setting.name, value);
    }
    bool Write(const TextSetting& setting, const std::wstring& text) {
        return WriteString(setting.name, text.c_str());
    }

    // Fills at most *size bytes and sets *size to the value's size. A null buffer asks for the
    // size.
    bool ReadBinary(const wchar_t* name, void* buffer, DWORD* size);
    bool WriteBinary(const wchar_t* name, const void* data, DWORD size);

    // False as well when there is no such value.
    bool DeleteValue(const wchar_t* name);

    // Deletes all of the key's values but those of these names; none when they cannot all be seen.
    void DeleteValuesBut(std::span<const std::wstring> kept);

    // Walk the names of the key's values; false at the end.
    bool FirstValueName(std::wstring& name);
    bool NextValueName(std::wstring& name);
    std::vector<std::wstring> ValueNames();

  private:
    bool ValueNameAtIndex(std::wstring& name);
    // The registry's calls by this key's handle; a key that did not open has its own failure.
    LSTATUS Query(const wchar_t* name, void* data, DWORD* size);
    bool Set(const wchar_t* name, DWORD type, const void* data, DWORD size);
    // After a failed read: writes the default if the value is missing, else notes that it stands
    // in.
    void PutDefault(const wchar_t* name, bool isMissing, DWORD type, const void* data, DWORD size);
    void ForgetStandIn(const wchar_t* name) const;
    std::wstring IdOf(const wchar_t* name) const;

    HKEY root_;
    std::wstring path_;
    HKEY handle_ = nullptr;
    LSTATUS openStatus_;
    bool hasUnread_ = false;
    DWORD disposition_ = 0;
    DWORD enumerationIndex_ = 0;
    bool flushOnClose_;
    bool dirty_ = false;
};

// The product's own key: created when missing, flushed after a write.
inline CSettingsKey OpenProductKey() {
    return CSettingsKey(HKEY_LOCAL_MACHINE, kProductKey, true, true);
}

// A key below it, which is made likewise when missing.
CSettingsKey OpenProductKey(const wchar_t* name);

// Any key that is there; null when it cannot be opened.
OwnedKey OpenKey(HKEY parent, const wchar_t* name);

// Deletes a key with everything below it. False when it is missing or a part cannot be deleted.
bool DeleteKeyTree(HKEY parent, const wchar_t* name);
