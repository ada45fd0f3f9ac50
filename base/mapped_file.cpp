#include "base/mapped_file.h"

MappedFile::MappedFile(const std::wstring& path)
    // The device maps only files that were opened for it.
    : file_(CreateFileForMappingW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {
    if (file_ == INVALID_HANDLE_VALUE) return;
    const DWORD size = GetFileSize(file_, nullptr);
    if (size == INVALID_FILE_SIZE || !size) return;
    mapping_ = CreateFileMappingW(file_, nullptr, PAGE_READONLY, 0, 0, nullptr);
    if (!mapping_) return;
    view_ = static_cast<const std::uint8_t*>(MapViewOfFile(mapping_, FILE_MAP_READ, 0, 0, 0));
    if (view_) size_ = size;
}

MappedFile::~MappedFile() {
    if (view_) UnmapViewOfFile(const_cast<std::uint8_t*>(view_));
    if (mapping_) CloseHandle(mapping_);
    if (file_ != INVALID_HANDLE_VALUE) CloseHandle(file_);
}
