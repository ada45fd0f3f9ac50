#include "appearance/skins/skin_source.h"

#include <windows.h>

#include "base/owned_handle.h"
#include "base/read_file.h"

namespace {

constexpr std::size_t kLongestPath = 260;

}  // namespace

bool SkinSource::Open(const std::wstring& path) {
    Close();
    if (path.empty() || path.size() > kLongestPath) return false;
    archive_ = Archive::Open(path);
    if (archive_) return true;
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_DIRECTORY))
        return false;
    folder_ = path;
    if (folder_.back() != L'\\') folder_ += L'\\';
    return true;
}

void SkinSource::Close() {
    archive_.reset();
    folder_.clear();
}

std::wstring SkinSource::MemberPath(const char* name) const {
    std::wstring path = folder_;
    for (; *name; ++name) path += static_cast<wchar_t>(*name);
    return path;
}

std::optional<std::uint32_t> SkinSource::GetMemberSize(const char* name) const {
    if (archive_) return archive_->MemberSize(name);
    if (folder_.empty()) return {};
    const OwnedFile file(CreateFileW(MemberPath(name).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                     nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) return {};
    DWORD high = 0;
    const DWORD low = GetFileSize(file.get(), &high);
    if (high || low > kLargestMember) return {};  // Failure is 0xFFFFFFFF.
    return low;
}

std::optional<std::vector<std::uint8_t>> SkinSource::ReadMember(const char* name) const {
    if (archive_) return archive_->ReadMember(name);
    if (folder_.empty()) return {};
    return ReadWholeFile(MemberPath(name), kLargestMember);
}
