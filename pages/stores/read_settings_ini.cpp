#include "pages/stores/read_settings_ini.h"

#include <windows.h>

#include "base/read_file.h"

namespace {

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
    const auto bytes = ReadWholeFile(path);
    return bytes ? ParseSettingsIni(*bytes, Decode) : SettingsIni();
}
