#include "appearance/skins/archive.h"

#include <unzip.h>

#include <algorithm>
#include <cstring>

namespace {

constexpr int kCaseSensitive = 1;
constexpr int kNameSize = 260;
constexpr unsigned kChunkSize = 10240;
constexpr unsigned kEncryptedFlag = 1;

// The file functions that unzip.h asks for, over bytes.
struct OpenBytes {
    std::span<const std::uint8_t> bytes;
    std::size_t position = 0;
};

OpenBytes& Of(voidpf stream) { return *static_cast<OpenBytes*>(stream); }

voidpf ZCALLBACK OpenTheBytes(voidpf bytes, const void*, int) {
    return new OpenBytes{*static_cast<std::span<const std::uint8_t>*>(bytes)};
}

uLong ZCALLBACK ReadFromBytes(voidpf, voidpf stream, void* buffer, uLong size) {
    OpenBytes& open = Of(stream);
    const std::size_t count = std::min<std::size_t>(size, open.bytes.size() - open.position);
    if (count > 0) std::memcpy(buffer, open.bytes.data() + open.position, count);
    open.position += count;
    return static_cast<uLong>(count);
}

uLong ZCALLBACK WriteToNoBytes(voidpf, voidpf, const void*, uLong) { return 0; }

ZPOS64_T ZCALLBACK PositionInBytes(voidpf, voidpf stream) { return Of(stream).position; }

long ZCALLBACK SeekInBytes(voidpf, voidpf stream, ZPOS64_T offset, int origin) {
    OpenBytes& open = Of(stream);
    const std::size_t from = origin == ZLIB_FILEFUNC_SEEK_SET   ? 0
                             : origin == ZLIB_FILEFUNC_SEEK_CUR ? open.position
                                                                : open.bytes.size();
    if (offset > open.bytes.size() - from) return -1;
    open.position = from + static_cast<std::size_t>(offset);
    return 0;
}

int ZCALLBACK CloseBytes(voidpf, voidpf stream) {
    delete &Of(stream);
    return 0;
}

int ZCALLBACK NoErrorOfBytes(voidpf, voidpf) { return 0; }

}  // namespace

std::unique_ptr<Archive> Archive::OfBytes(std::span<const std::uint8_t> bytes,
                                          std::shared_ptr<const void> owner) {
    zlib_filefunc64_def functions = {};
    functions.zopen64_file = OpenTheBytes;
    functions.zread_file = ReadFromBytes;
    functions.zwrite_file = WriteToNoBytes;
    functions.ztell64_file = PositionInBytes;
    functions.zseek64_file = SeekInBytes;
    functions.zclose_file = CloseBytes;
    functions.zerror_file = NoErrorOfBytes;
    functions.opaque = &bytes;
    const unzFile handle = unzOpen2_64("", &functions);
    return handle ? std::unique_ptr<Archive>(new Archive(handle, std::move(owner))) : nullptr;
}

Archive::~Archive() { unzClose(handle_); }

std::optional<std::uint32_t> Archive::MemberSize(const char* name) {
    if (unzLocateFile(handle_, name, kCaseSensitive) != UNZ_OK) return {};
    unz_file_info64 info = {};
    char storedName[kNameSize] = {};
    if (unzGetCurrentFileInfo64(handle_, &info, storedName, kNameSize, nullptr, 0, nullptr, 0) !=
        UNZ_OK) {
        return {};
    }
    if (info.flag & kEncryptedFlag || info.uncompressed_size > kLargestMember) return {};
    return static_cast<std::uint32_t>(info.uncompressed_size);
}

std::optional<std::vector<std::uint8_t>> Archive::ReadMember(const char* name) {
    const std::optional<std::uint32_t> size = MemberSize(name);  // Makes it the current member.
    if (!size || unzOpenCurrentFile(handle_) != UNZ_OK) return {};
    // The size is only claimed, so the memory grows with what is really there.
    std::vector<std::uint8_t> bytes;
    int read = 0;
    do {
        const std::size_t begin = bytes.size();
        bytes.resize(begin + std::min<std::size_t>(kChunkSize, *size - begin));
        read = unzReadCurrentFile(handle_, bytes.data() + begin,
                                  static_cast<unsigned>(bytes.size() - begin));
        bytes.resize(begin + std::max(read, 0));
    } while (read > 0);
    const bool sumIsRight = unzCloseCurrentFile(handle_) == UNZ_OK;
    if (read < 0 || bytes.size() != *size || !sumIsRight) return {};
    return bytes;
}
