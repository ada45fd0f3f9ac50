#include "tools/diarykit/files.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

std::filesystem::path PathOf(const std::string& utf8) {
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string NameOf(const std::filesystem::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

UseError Unreadable(const std::string& path) {
    std::error_code error;
    const bool isThere = std::filesystem::exists(PathOf(path), error);
    return UseError(path + (isThere ? ": cannot be read" : ": is not there"));
}

}  // namespace

bool IsFile(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(PathOf(path), error);
}

bool IsFolder(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_directory(PathOf(path), error);
}

std::string InFolder(const std::string& folder, const std::string& name) {
    return NameOf(PathOf(folder) / PathOf(name));
}

std::vector<std::string> BitmapsIn(const std::string& folder) {
    std::vector<std::string> paths;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(PathOf(folder), error)) {
        std::string extension = NameOf(entry.path().extension());
        std::transform(extension.begin(), extension.end(), extension.begin(),
                       [](char c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c; });
        const bool isHidden = NameOf(entry.path().filename()).starts_with('.');
        if (extension == ".bmp" && !isHidden && entry.is_regular_file(error)) {
            paths.push_back(NameOf(entry.path()));
        }
    }
    if (error) throw Unreadable(folder);
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::string BesideFile(const std::string& path, const std::string& name) {
    return NameOf(PathOf(path).replace_filename(PathOf(name)));
}

std::vector<std::uint8_t> ReadInput(const std::string& path) {
    std::ifstream file(PathOf(path), std::ios::binary);
    // A folder opens, too, on some systems.
    if (!IsFile(path) || !file) throw Unreadable(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteOutput(const std::string& path, std::span<const std::uint8_t> bytes) {
    if (path.empty()) {
        std::fwrite(bytes.data(), 1, bytes.size(), stdout);
        return;
    }
    std::ofstream file(PathOf(path), std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) throw UseError(path + ": cannot be written");
}

std::vector<std::uint8_t> Utf16File(std::wstring_view text) {
    std::vector<std::uint8_t> bytes = {0xFF, 0xFE};
    for (const wchar_t unit : text) {
        bytes.push_back(static_cast<std::uint8_t>(unit));
        bytes.push_back(static_cast<std::uint8_t>(unit >> 8));
    }
    return bytes;
}
