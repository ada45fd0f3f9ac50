#include "pocketpc/devicectl/keys.h"

#include <cstring>
#include <iterator>

#include "pocketpc/devicectl/properties.h"

namespace {

constexpr DWORD kLongestName = 256;
constexpr DWORD kMostData = 4096;

HKEY RootOf(const std::wstring& path, std::wstring& rest) {
    const std::size_t slash = path.find(L'\\');
    const std::wstring root = path.substr(0, slash);
    rest = slash == std::wstring::npos ? L"" : path.substr(slash + 1);
    if (root == L"HKCU") return HKEY_CURRENT_USER;
    if (root == L"HKLM") return HKEY_LOCAL_MACHINE;
    return nullptr;
}

std::wstring DataText(DWORD type, const std::vector<BYTE>& data) {
    wchar_t text[16];
    if (type == REG_SZ) {
        const void* const units = data.data();
        return L"string " + std::wstring(static_cast<const wchar_t*>(units));
    }
    if (type == REG_DWORD) {
        DWORD number = 0;
        std::memcpy(&number, data.data(), sizeof number);
        return L"dword " + std::to_wstring(number);
    }
    std::wstring digits;
    // Two bytes behind the data are the terminator of texts.
    for (std::size_t i = 0; i + 2 < data.size(); ++i) {
        swprintf(text, std::size(text), L"%02x", data[i]);
        digits += text;
    }
    return (type == REG_BINARY ? L"binary " : L"type " + std::to_wstring(type) + L" ") + digits;
}

}  // namespace

DeviceKey::DeviceKey(const std::wstring& path, bool create) {
    std::wstring rest;
    const HKEY root = RootOf(path, rest);
    if (!root) return;
    const LSTATUS status =
        create ? RegCreateKeyExW(root, rest.c_str(), 0, nullptr, 0, 0, nullptr, &key_, nullptr)
               : RegOpenKeyExW(root, rest.c_str(), 0, 0, &key_);
    if (status != ERROR_SUCCESS) key_ = nullptr;
}

DeviceKey::~DeviceKey() {
    if (key_) RegCloseKey(key_);
}

bool DeviceKey::Has(const std::wstring& name) const {
    return RegQueryValueExW(key_, name.c_str(), nullptr, nullptr, nullptr, nullptr) ==
           ERROR_SUCCESS;
}

bool DeviceKey::Set(const std::wstring& name, const std::wstring& type, const std::wstring& data) {
    const void* bytes = data.c_str();
    DWORD size = static_cast<DWORD>((data.size() + 1) * sizeof(wchar_t));
    DWORD code = REG_SZ;
    DWORD number = 0;
    std::vector<BYTE> binary;
    if (type == L"dword") {
        wchar_t* end = nullptr;
        number = wcstoul(data.c_str(), &end, 0);
        if (data.empty() || *end) return false;
        bytes = &number, size = sizeof number, code = REG_DWORD;
    } else if (type == L"binary") {
        const auto parsed = ParseBytes(data);
        if (!parsed) return false;
        binary = *parsed;
        bytes = binary.data(), size = static_cast<DWORD>(binary.size()), code = REG_BINARY;
    } else if (type != L"string") {
        return false;
    }
    return RegSetValueExW(key_, name.c_str(), 0, code, static_cast<const BYTE*>(bytes), size) ==
           ERROR_SUCCESS;
}

bool DeviceKey::Unset(const std::wstring& name) {
    return RegDeleteValueW(key_, name.c_str()) == ERROR_SUCCESS;
}

std::vector<std::wstring> DeviceKey::List() const {
    std::vector<std::wstring> lines;
    wchar_t name[kLongestName];
    for (DWORD i = 0;; ++i) {
        DWORD length = kLongestName;
        if (RegEnumKeyExW(key_, i, name, &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS) {
            break;
        }
        lines.push_back(L"key " + std::wstring(name));
    }
    for (DWORD i = 0;; ++i) {
        DWORD length = kLongestName, size = kMostData, type = 0;
        std::vector<BYTE> data(kMostData + sizeof(wchar_t));
        if (RegEnumValueW(key_, i, name, &length, nullptr, &type, data.data(), &size) !=
            ERROR_SUCCESS) {
            break;
        }
        data.resize(size + sizeof(wchar_t));
        lines.push_back(L"value " + std::wstring(name) + L" " + DataText(type, data));
    }
    return lines;
}

bool DeleteDeviceKey(const std::wstring& path) {
    std::wstring rest;
    const HKEY root = RootOf(path, rest);
    return root && RegDeleteKeyW(root, rest.c_str()) == ERROR_SUCCESS;
}
