// The device's registry, kept below one key of the desktop user's, so that the desktop's own keys
// are never touched.
#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>

#include "pocketpc/common/failing_calls.h"
#include "pocketpc/coredll/device.h"

namespace {

constexpr std::size_t kLongestName = 255;
constexpr int kDeepestLevel = 16;
// Bytes in a value that is written. The platform's own figure is "about 4 KB".
constexpr DWORD kMostData = 4096;

// The keys this process has open, with their paths below the hive in lower case.
class OpenKeys {
  public:
    void Add(HKEY key, const std::wstring& path) {
        const std::lock_guard lock(mutex_);
        paths_[key] = path;
    }
    bool Remove(HKEY key) {
        const std::lock_guard lock(mutex_);
        return paths_.erase(key) != 0;
    }
    std::optional<std::wstring> PathOf(HKEY key) const {
        const std::lock_guard lock(mutex_);
        const auto found = paths_.find(key);
        return found == paths_.end() ? std::nullopt : std::optional(found->second);
    }
    bool Contains(HKEY key) const {
        const std::lock_guard lock(mutex_);
        return paths_.contains(key);
    }
    bool HasInside(const std::wstring& path) const {
        const std::lock_guard lock(mutex_);
        for (const auto& [key, open] : paths_) {
            if (open == path || open.starts_with(path + L"\\")) return true;
        }
        return false;
    }

  private:
    mutable std::mutex mutex_;
    std::map<HKEY, std::wstring> paths_;
};

OpenKeys& Opened() {
    static OpenKeys keys;
    return keys;
}

const wchar_t* NameOfRoot(HKEY key) {
    // Roots are 32-bit numbers; as handles they come with or without an extended sign.
    const auto value = reinterpret_cast<LONG_PTR>(key);
    const auto number = static_cast<std::uint32_t>(value);
    if (value != static_cast<LONG_PTR>(number) && value != static_cast<std::int32_t>(number)) {
        return nullptr;
    }
    switch (number) {
        case 0x80000000: return L"HKEY_CLASSES_ROOT";
        case 0x80000001: return L"HKEY_CURRENT_USER";
        case 0x80000002: return L"HKEY_LOCAL_MACHINE";
        case 0x80000003: return L"HKEY_USERS";
    }
    return nullptr;
}

std::optional<std::wstring> PathOf(HKEY key) {
    if (const wchar_t* root = NameOfRoot(key)) return root;
    return Opened().PathOf(key);
}

std::wstring LowerCase(std::wstring text) {
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

// The path of a key below the hive; an error where the device refuses it.
LSTATUS Resolve(HKEY key, LPCWSTR name, std::wstring& path) {
    const std::optional<std::wstring> parent = PathOf(key);
    if (!parent) return ERROR_INVALID_HANDLE;
    path = *parent;
    int level = 0;
    for (const wchar_t c : path) level += c == L'\\';
    std::wstring rest = name ? name : L"";
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(L'\\'), rest.size());
        const std::wstring part = rest.substr(0, end);
        rest.erase(0, end + 1);
        if (part.empty()) continue;  // A leading backslash, or a doubled one.
        if (part.size() > kLongestName || ++level > kDeepestLevel) return ERROR_INVALID_PARAMETER;
        path.append(L"\\").append(part);
    }
    return ERROR_SUCCESS;
}

std::wstring DesktopPath(const std::wstring& path) {
    return L"Software\\PocketPC Devices\\" + ThisDevice().hive + L"\\" + path;
}

// The desktop's key behind a handle of the device, open for the length of a call when it is a root.
class DesktopKey {
  public:
    explicit DesktopKey(HKEY key) {
        if (NameOfRoot(key)) {
            RegCreateKeyExW(HKEY_CURRENT_USER, DesktopPath(NameOfRoot(key)).c_str(), 0, nullptr, 0,
                            KEY_ALL_ACCESS, nullptr, &root_, nullptr);
            key_ = root_;
        } else if (Opened().Contains(key)) {
            key_ = key;
        }
    }
    ~DesktopKey() {
        if (root_) RegCloseKey(root_);
    }
    DesktopKey(const DesktopKey&) = delete;
    DesktopKey& operator=(const DesktopKey&) = delete;

    template <typename Function, typename... Arguments>
    LSTATUS Call(Function function, Arguments... arguments) const {
        return key_ ? function(key_, arguments...) : ERROR_INVALID_HANDLE;
    }

  private:
    HKEY key_ = nullptr;
    HKEY root_ = nullptr;
};

// Documented is that a call that fails returns an error; which, when memory or space are short, is
// a guess.
bool Fails() { return failing::Fails(failing::kRegistry); }
constexpr LSTATUS kFailure = ERROR_NOT_ENOUGH_MEMORY;

bool IsNameTooLong(LPCWSTR name) { return name && wcslen(name) > kLongestName; }

}  // namespace

extern "C" {

// The access asked for is ignored: who opens a key may do everything.
LSTATUS WINAPI Pocket_RegOpenKeyExW(HKEY key, LPCWSTR name, DWORD, REGSAM, PHKEY result) {
    if (Fails()) return kFailure;
    if (!result) return ERROR_INVALID_PARAMETER;
    std::wstring path;
    LSTATUS status = Resolve(key, name, path);
    if (status == ERROR_SUCCESS) {
        status =
            RegOpenKeyExW(HKEY_CURRENT_USER, DesktopPath(path).c_str(), 0, KEY_ALL_ACCESS, result);
    }
    if (status == ERROR_SUCCESS) Opened().Add(*result, LowerCase(path));
    return status;
}

LSTATUS WINAPI Pocket_RegCreateKeyExW(HKEY key, LPCWSTR name, DWORD, LPWSTR, DWORD, REGSAM,
                                      LPSECURITY_ATTRIBUTES, PHKEY result, LPDWORD disposition) {
    if (const DWORD error = failing::StoringError(failing::kRegistry, kFailure)) return error;
    if (!result) return ERROR_INVALID_PARAMETER;
    std::wstring path;
    LSTATUS status = Resolve(key, name, path);
    if (status == ERROR_SUCCESS) {
        status = RegCreateKeyExW(HKEY_CURRENT_USER, DesktopPath(path).c_str(), 0, nullptr, 0,
                                 KEY_ALL_ACCESS, nullptr, result, disposition);
    }
    if (status == ERROR_SUCCESS) Opened().Add(*result, LowerCase(path));
    return status;
}

LSTATUS WINAPI Pocket_RegCloseKey(HKEY key) {
    if (NameOfRoot(key)) return ERROR_SUCCESS;
    return Opened().Remove(key) ? RegCloseKey(key) : ERROR_INVALID_HANDLE;
}

// Deletes the key with all below it, but not while any of it is open.
LSTATUS WINAPI Pocket_RegDeleteKeyW(HKEY key, LPCWSTR name) {
    if (Fails()) return kFailure;
    if (!name || !name[wcsspn(name, L"\\")]) return ERROR_INVALID_PARAMETER;
    std::wstring path;
    const LSTATUS status = Resolve(key, name, path);
    if (status != ERROR_SUCCESS) return status;
    if (Opened().HasInside(LowerCase(path))) return ERROR_ACCESS_DENIED;
    return RegDeleteTreeW(HKEY_CURRENT_USER, DesktopPath(path).c_str());
}

LSTATUS WINAPI Pocket_RegQueryValueExW(HKEY key, LPCWSTR name, LPDWORD reserved, LPDWORD type,
                                       LPBYTE data, LPDWORD size) {
    if (Fails()) return kFailure;
    return DesktopKey(key).Call(RegQueryValueExW, name, reserved, type, data, size);
}

LSTATUS WINAPI Pocket_RegSetValueExW(HKEY key, LPCWSTR name, DWORD reserved, DWORD type,
                                     const BYTE* data, DWORD size) {
    if (const DWORD error = failing::StoringError(failing::kRegistry, kFailure)) return error;
    if (IsNameTooLong(name) || size > kMostData) return ERROR_INVALID_PARAMETER;
    return DesktopKey(key).Call(RegSetValueExW, name, reserved, type, data, size);
}

LSTATUS WINAPI Pocket_RegDeleteValueW(HKEY key, LPCWSTR name) {
    if (Fails()) return kFailure;
    return DesktopKey(key).Call(RegDeleteValueW, name);
}

LSTATUS WINAPI Pocket_RegEnumKeyExW(HKEY key, DWORD index, LPWSTR name, LPDWORD length,
                                    LPDWORD reserved, LPWSTR className, LPDWORD classLength,
                                    PFILETIME lastWrite) {
    if (Fails()) return kFailure;
    return DesktopKey(key).Call(RegEnumKeyExW, index, name, length, reserved, className,
                                classLength, lastWrite);
}

LSTATUS WINAPI Pocket_RegEnumValueW(HKEY key, DWORD index, LPWSTR name, LPDWORD length,
                                    LPDWORD reserved, LPDWORD type, LPBYTE data, LPDWORD size) {
    if (Fails()) return kFailure;
    return DesktopKey(key).Call(RegEnumValueW, index, name, length, reserved, type, data, size);
}

LSTATUS WINAPI Pocket_RegQueryInfoKeyW(HKEY key, LPWSTR className, LPDWORD classLength,
                                       LPDWORD reserved, LPDWORD subKeys, LPDWORD longestSubKey,
                                       LPDWORD longestClass, LPDWORD values, LPDWORD longestName,
                                       LPDWORD longestData, LPDWORD security, PFILETIME lastWrite) {
    if (Fails()) return kFailure;
    return DesktopKey(key).Call(RegQueryInfoKeyW, className, classLength, reserved, subKeys,
                                longestSubKey, longestClass, values, longestName, longestData,
                                security, lastWrite);
}

LSTATUS WINAPI Pocket_RegFlushKey(HKEY key) {
    return Fails() ? kFailure : DesktopKey(key).Call(RegFlushKey);
}

}  // extern "C"
