#include "pages/stores/read_settings_ini.h"

#include <windows.h>

#include <cstdio>
#include <memory>

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::wstring Decode(unsigned codePage, std::string_view bytes) {
    // No code page makes more characters than there are bytes.
    std::wstring text(bytes.size(), L'\0');
    const int length = static_cast<int>(bytes.size());
    text.resize(length ? MultiByteToWideChar(codePage, 0, bytes.data(), length, text.data(), length)
                       : 0);
    return text;
}

}  // namespace

SettingsIni ReadSettingsIni(const std::wstring& path) {
    std::vector<std::uint8_t> bytes;
    const std::unique_ptr<std::FILE, CloseFile> file(_wfopen(path.c_str(), L"rt"));
    std::uint8_t part[4096];
    while (file) {
        const std::size_t size = std::fread(part, 1, sizeof part, file.get());
        if (size == 0) break;
        bytes.insert(bytes.end(), part, part + size);
    }
    return ParseSettingsIni(bytes, Decode);
}
