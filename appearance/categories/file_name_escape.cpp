#include "appearance/categories/file_name_escape.h"

namespace {

// A character's letter is A plus its place here.
constexpr std::wstring_view kEscaped = L"%\\/:*?\"<>|";

}  // namespace

std::wstring EscapeFileName(std::wstring_view name) {
    std::wstring escaped;
    for (const wchar_t c : name) {
        const std::size_t place = kEscaped.find(c);
        if (place == std::wstring_view::npos) {
            escaped += c;
        } else {
            escaped += L'%';
            escaped += static_cast<wchar_t>(L'A' + place);
        }
    }
    return escaped;
}

std::wstring UnescapeFileName(std::wstring_view fileName) {
    std::wstring name;
    for (std::size_t i = 0; i < fileName.size(); ++i) {
        const wchar_t letter = i + 1 < fileName.size() ? fileName[i + 1] : L'\0';
        if (fileName[i] == L'%' && letter >= L'A' && letter <= L'J') {
            name += kEscaped[static_cast<std::size_t>(letter - L'A')];
            ++i;
        } else {
            name += fileName[i];
        }
    }
    return name;
}
