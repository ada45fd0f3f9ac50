#include <windows.h>

#include <unzip.h>

#include "appearance/skins/archive.h"

namespace {

// The file functions that unzip.h asks for. Archives end where a positive LONG does, so that a
// file's position fits the device's file calls.
voidpf ZCALLBACK OpenFileByAnsiName(voidpf, const void* name, int) {
    const auto* const ansi = static_cast<const char*>(name);
    const int length = MultiByteToWideChar(CP_ACP, 0, ansi, -1, nullptr, 0);
    if (length <= 0) return nullptr;
    std::wstring path(length, L'\0');
    MultiByteToWideChar(CP_ACP, 0, ansi, -1, path.data(), length);
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    return file == INVALID_HANDLE_VALUE ? nullptr : file;
}

uLong ZCALLBACK ReadFromFile(voidpf, voidpf file, void* buffer, uLong size) {
    DWORD read = 0;
    return ReadFile(file, buffer, size, &read, nullptr) ? read : 0;
}

uLong ZCALLBACK RefuseToWrite(voidpf, voidpf, const void*, uLong) { return 0; }

ZPOS64_T ZCALLBACK PositionInFile(voidpf, voidpf file) {
    const DWORD position = SetFilePointer(file, 0, nullptr, FILE_CURRENT);
    return position == INVALID_SET_FILE_POINTER ? ~ZPOS64_T{0} : position;
}

long ZCALLBACK SeekInFile(voidpf, voidpf file, ZPOS64_T offset, int origin) {
    constexpr ZPOS64_T kLastPosition = 0x7FFFFFFF;
    if (offset > kLastPosition) return -1;
    const DWORD method = origin == ZLIB_FILEFUNC_SEEK_SET   ? FILE_BEGIN
                         : origin == ZLIB_FILEFUNC_SEEK_CUR ? FILE_CURRENT
                                                            : FILE_END;
    const DWORD position = SetFilePointer(file, static_cast<LONG>(offset), nullptr, method);
    return position == INVALID_SET_FILE_POINTER ? -1 : 0;
}

int ZCALLBACK CloseFile(voidpf, voidpf file) { return CloseHandle(file) ? 0 : -1; }

int ZCALLBACK NoErrorOfFile(voidpf, voidpf) { return 0; }

std::string AnsiPath(const std::wstring& path) {
    const int length =
        WideCharToMultiByte(CP_ACP, 0, path.c_str(), -1, nullptr, 0, nullptr, nullptr);
    if (length <= 0) return {};
    std::string ansi(length, '\0');
    WideCharToMultiByte(CP_ACP, 0, path.c_str(), -1, ansi.data(), length, nullptr, nullptr);
    return ansi;
}

}  // namespace

std::unique_ptr<Archive> Archive::Open(const std::wstring& path) {
    zlib_filefunc64_def functions = {};
    functions.zopen64_file = OpenFileByAnsiName;
    functions.zread_file = ReadFromFile;
    functions.zwrite_file = RefuseToWrite;
    functions.ztell64_file = PositionInFile;
    functions.zseek64_file = SeekInFile;
    functions.zclose_file = CloseFile;
    functions.zerror_file = NoErrorOfFile;
    const unzFile handle = unzOpen2_64(AnsiPath(path).c_str(), &functions);
    return handle ? std::unique_ptr<Archive>(new Archive(handle)) : nullptr;
}
