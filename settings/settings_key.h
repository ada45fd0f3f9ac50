#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/owned_handle.h"
#include "settings/catalogue.h"

// The default of a number that has none: a missing value then reads as this, and nothing is
// written.
inline constexpr std::uint32_t SETTINGS_NO_DEFAULT = 0xDEF0;

// The most bytes that a value of the registry holds.
inline constexpr std::size_t kLargestValue = 4096;

// Whether a text, with its terminator, can be stored.
inline bool FitsValue(const std::wstring& text) {
    return (text.size() + 1) * sizeof(wchar_t) <= kLargestValue;
}

// One registry key, opened for the length of one load or save. Reads never fail: a value that
// cannot be read yields its default, and a missing one is created with it, so that the plug-in,
// which reads the same values in another process, goes by the same defaults. Failed writes return
// false.
class CSettingsKey {
  public:
    // Opens `path` below `root`; with `create` a missing key is made. With `flushOnClose` the key
    // is flushed when it closes after a write.
    CSettingsKey(HKEY root, const wchar_t* path, bool create, bool flushOnClose);
    virtual ~CSettingsKey();
    CSettingsKey(const CSettingsKey&) = delete;
    CSettingsKey& operator=(const CSettingsKey&) = delete;

    bool IsOpen() const { return handle_ != nullptr; }

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

    // Deletes all of the key's values.
    void DeleteValues();

    // Walk the names of the key's values; false at the end.
    bool FirstValueName(std::wstring& name);
    bool NextValueName(std::wstring& name);

  private:
    bool ValueNameAtIndex(std::wstring& name);

    HKEY handle_ = nullptr;
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
