#include <windows.h>

#include "appearance/skins/archive.h"
#include "base/mapped_file.h"

namespace {

// A path as the ANSI code page has it; empty where that is impossible.
std::wstring ThroughAnsi(const std::wstring& path) {
    const int length =
        WideCharToMultiByte(CP_ACP, 0, path.c_str(), -1, nullptr, 0, nullptr, nullptr);
    std::string ansi(length, '\0');
    WideCharToMultiByte(CP_ACP, 0, path.c_str(), -1, ansi.data(), length, nullptr, nullptr);
    std::wstring wide(MultiByteToWideChar(CP_ACP, 0, ansi.c_str(), -1, nullptr, 0), L'\0');
    MultiByteToWideChar(CP_ACP, 0, ansi.c_str(), -1, wide.data(), static_cast<int>(wide.size()));
    return wide.c_str();
}

}  // namespace

// The unzip layer reads headers in pieces of few bytes, each of which would be a call of the
// system.
std::unique_ptr<Archive> Archive::Open(const std::wstring& path) {
    const auto file = std::make_shared<const MappedFile>(ThroughAnsi(path));
    return OfBytes(file->bytes(), file);
}
