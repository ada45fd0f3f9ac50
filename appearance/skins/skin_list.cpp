#include "appearance/skins/skin_list.h"

namespace {

bool IsZip(std::wstring extension) {
    for (wchar_t& c : extension) {
        if (c >= L'A' && c <= L'Z') c += L'a' - L'A';
    }
    return extension == L"zip";
}

}  // namespace

std::optional<std::wstring> OfferedSkinName(const std::wstring& entry, bool isFolder) {
    const std::size_t dot = entry.find(L'.');
    if (dot == 0) return {};
    if (isFolder) return entry;
    if (dot == std::wstring::npos || !IsZip(entry.substr(dot + 1))) return {};
    return entry.substr(0, dot);
}
