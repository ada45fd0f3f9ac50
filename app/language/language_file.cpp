#include "app/language/language_file.h"

#include <utility>

namespace {

constexpr wchar_t kSeparator = L'|';

std::wstring CharactersOf(std::span<const std::uint8_t> bytes, bool utf16) {
    std::wstring text;
    const std::size_t width = utf16 ? 2 : 1;
    text.reserve(bytes.size() / width);
    for (std::size_t i = 0; i + width <= bytes.size(); i += width) {
        const unsigned unit = utf16 ? bytes[i] | bytes[i + 1] << 8 : bytes[i];
        if (!unit) break;
        text += static_cast<wchar_t>(unit);
    }
    return text;
}

struct Field {
    std::wstring text;
    wchar_t delimiter = 0;  // 0: the end of the line's room or of the text
};

bool IsLineBreak(wchar_t c) { return c == L'\r' || c == L'\n'; }

// Takes a field and the delimiter behind it from the front of a line.
Field TakeField(std::wstring_view& line) {
    Field field;
    std::size_t i = 0;
    while (i < line.size() && !field.delimiter) {
        const wchar_t c = line[i++];
        if (c == kSeparator || IsLineBreak(c)) {
            field.delimiter = c;
        } else if (c != L'\\') {
            field.text += c;
        } else if (i < line.size()) {
            const wchar_t escaped = line[i++];
            field.text += escaped == L'n' ? L'\n' : escaped == L'r' ? L'\r' : escaped;
        }
    }
    line.remove_prefix(i);
    return field;
}

}  // namespace

LanguageText TextOfLanguageFile(std::span<const std::uint8_t> bytes) {
    const bool utf16 = bytes.size() >= 2 && bytes[0] == 0xFF && bytes[1] == 0xFE;
    return {CharactersOf(utf16 ? bytes.subspan(2) : bytes, utf16), utf16};
}

LanguageEntry TakeLanguageEntry(std::wstring_view& rest) {
    const std::wstring_view room = rest.substr(0, kLongestLanguageLine);
    std::wstring_view line = room;
    Field source = TakeField(line);
    Field translation;
    if (!source.text.empty() && source.delimiter == kSeparator) translation = TakeField(line);
    if (!line.empty() && IsLineBreak(line.front())) line.remove_prefix(1);
    rest.remove_prefix(room.size() - line.size());
    return {std::move(source.text), std::move(translation.text)};
}

std::vector<LanguageEntry> ParseLanguageFile(std::span<const std::uint8_t> bytes) {
    const LanguageText text = TextOfLanguageFile(bytes);
    std::vector<LanguageEntry> entries;
    for (std::wstring_view rest = text.characters; !rest.empty();) {
        LanguageEntry entry = TakeLanguageEntry(rest);
        if (!text.utf16 || !entry.source.empty()) entries.push_back(std::move(entry));
    }
    return entries;
}

std::wstring EscapeLanguageText(std::wstring_view text) {
    std::wstring escaped;
    for (const wchar_t c : text) {
        switch (c) {
            case L'\n': escaped += L"\\n"; break;
            case L'\r': escaped += L"\\r"; break;
            case L'\\': escaped += L"\\\\"; break;
            case kSeparator: escaped += L"\\|"; break;
            default: escaped += c;
        }
    }
    return escaped;
}

std::wstring LanguageTemplateText(std::span<const std::wstring> texts) {
    std::wstring result = std::wstring(kLanguageTemplateMark) + L"\r\n";
    for (const std::wstring& text : texts) {
        result += EscapeLanguageText(text);
        result += L"|\r\n";
    }
    return result;
}
