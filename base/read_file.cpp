#include "base/read_file.h"

#include <windows.h>

#include <new>

#include "base/owned_handle.h"

std::optional<std::vector<std::uint8_t>> ReadWholeFile(const std::wstring& path,
                                                       std::uint32_t largest) {
    const OwnedFile file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) return {};
    DWORD high = 0;
    const DWORD size = GetFileSize(file.get(), &high);
    if (high || size > largest) return {};  // Failure is 0xFFFFFFFF.
    std::vector<std::uint8_t> bytes;
    try {
        bytes.resize(size);
    } catch (const std::bad_alloc&) {
        return {};
    }
    DWORD read = 0;
    if (!ReadFile(file.get(), bytes.data(), size, &read, nullptr) || read != size) return {};
    return bytes;
}
