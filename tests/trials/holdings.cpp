#include "tests/trials/holdings.h"

#include <algorithm>

#include "base/find_files.h"
#include "base/read_file.h"
#include "settings/settings_key.h"
#include "tests/registry.h"
#include "tests/ui/device.h"

namespace {

using ui::kInstallFolder;

// Without the leading backslash, as paths are put together here.
constexpr const wchar_t* kKeys[] = {L"Software\\Lum Software House",
                                    L"Software\\Microsoft\\Today\\Items"};

std::string BytesOf(const std::wstring& path) {
    const auto bytes = ReadWholeFile(path);
    return bytes ? std::string(bytes->begin(), bytes->end()) : "unreadable";
}

void ReadFiles(const std::wstring& folder, const wchar_t* pattern,
               std::map<std::wstring, std::string>& files) {
    ForEachFile(folder + pattern, [&](const WIN32_FIND_DATAW& found) {
        if (!IsFolder(found)) files[folder + found.cFileName] = BytesOf(folder + found.cFileName);
        return true;
    });
}

std::pair<std::wstring, std::wstring> Split(const std::wstring& path) {
    const std::size_t end = path.rfind(L'\\');
    return {path.substr(0, end), path.substr(end + 1)};
}

bool IsIcon(const std::string& bytes) {
    static const auto icons = [] {
        std::map<std::wstring, std::string> files;
        ReadFiles(std::wstring(kInstallFolder) + L"IconSet\\", L"*.bmp", files);
        return files;
    }();
    return std::ranges::any_of(icons, [&](const auto& icon) { return icon.second == bytes; });
}

std::string Narrow(const std::wstring& text) { return {text.begin(), text.end()}; }

void Compare(const std::map<std::wstring, std::string>& before,
             const std::map<std::wstring, std::string>& then,
             const std::map<std::wstring, std::string>& now, std::vector<std::string>& damage) {
    const auto is = [](const std::map<std::wstring, std::string>& all, const std::wstring& path,
                       const std::string* bytes) {
        const auto found = all.find(path);
        return found == all.end() ? !bytes : bytes && *bytes == found->second;
    };
    for (const auto& [path, bytes] : now) {
        if (is(before, path, &bytes) || is(then, path, &bytes)) continue;
        // A first read creates the default, and another way may lead to another one.
        const bool isNew = !before.contains(path) && !then.contains(path);
        if (isNew && path.find(L".") == std::wstring::npos) continue;
        if (path.ends_with(L".bmp") && IsIcon(bytes)) continue;
        // The keys choose a colour beside the one there was, as far as that could be read.
        if (path.find(L"\\Colors\\") != std::wstring::npos) continue;
        std::string hex;
        for (const unsigned char c : bytes.substr(0, 24)) {
            hex += "0123456789ABCDEF"[c >> 4];
            hex += "0123456789ABCDEF"[c & 15];
        }
        damage.push_back(Narrow(path) + " is " + hex);
    }
    for (const auto& [path, bytes] : before) {
        if (!now.contains(path) && then.contains(path)) damage.push_back(Narrow(path) + " is gone");
    }
}

}  // namespace

Holdings Holdings::Read() {
    Holdings stored;
    for (const wchar_t* const key : kKeys) ReadValues(key, stored.values);
    ReadFiles(std::wstring(kInstallFolder) + L"Icons\\", L"*", stored.files);
    ReadFiles(kInstallFolder, L"LumDiary_en.txt*", stored.files);
    ReadFiles(L"\\My Documents\\", L"*", stored.files);
    return stored;
}

void Holdings::Restore() const {
    const Holdings now = Read();
    for (const auto& [path, bytes] : now.values) {
        const auto [key, name] = Split(path);
        if (!values.contains(path))
            RegDeleteValueW(OpenKey(HKEY_LOCAL_MACHINE, key.c_str()).get(), name.c_str());
    }
    for (const auto& [path, bytes] : values) {
        const auto found = now.values.find(path);
        if (found != now.values.end() && found->second == bytes) continue;
        const auto [key, name] = Split(path);
        const CSettingsKey make(HKEY_LOCAL_MACHINE, key.c_str(), true, false);
        RegSetValueExW(OpenKey(HKEY_LOCAL_MACHINE, key.c_str()).get(), name.c_str(), 0,
                       static_cast<DWORD>(bytes[0]),
                       reinterpret_cast<const BYTE*>(bytes.data() + 1),
                       static_cast<DWORD>(bytes.size() - 1));
    }
    for (const auto& [path, bytes] : now.files) {
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        if (!files.contains(path)) DeleteFileW(path.c_str());
    }
    for (const auto& [path, bytes] : files) {
        const auto found = now.files.find(path);
        if (found != now.files.end() && found->second == bytes) continue;
        WriteBytes(path, bytes.data(), bytes.size());
    }
}

std::vector<std::string> Damage(const Holdings& before, const Holdings& then, const Holdings& now) {
    std::vector<std::string> damage;
    Compare(before.values, then.values, now.values, damage);
    Compare(before.files, then.files, now.files, damage);
    return damage;
}
