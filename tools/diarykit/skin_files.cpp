#include "tools/diarykit/skin_files.h"

#include "tools/diarykit/files.h"

SkinFiles::SkinFiles(const std::string& path) {
    if (IsFolder(path)) {
        folder_ = path;
        return;
    }
    bytes_ = ReadInput(path);
    archive_ = Archive::OfBytes(bytes_);
    if (!archive_) throw UseError(path + ": neither a folder nor a zip archive");
}

bool SkinFiles::IsThere(const std::string& name) const {
    return archive_ ? archive_->MemberSize(name.c_str()).has_value()
                    : IsFile(InFolder(folder_, name));
}

std::optional<std::vector<std::uint8_t>> SkinFiles::Read(const std::string& name) const {
    if (archive_) return archive_->ReadMember(name.c_str());
    if (!IsThere(name)) return {};
    std::vector<std::uint8_t> bytes = ReadInput(InFolder(folder_, name));
    if (bytes.size() > kLargestMember) return {};
    return bytes;
}
