#include "tools/diarykit/language_lines.h"

#include <algorithm>

#include "tools/diarykit/files.h"

namespace {

bool IsLineBreak(wchar_t c) { return c == L'\r' || c == L'\n'; }

}  // namespace

std::vector<LanguageLine> LanguageLines(std::wstring_view text) {
    std::vector<LanguageLine> lines;
    std::size_t number = 1, length = 0;
    bool continued = false;
    for (std::wstring_view rest = text; !rest.empty();) {
        std::wstring_view taken = rest;
        LanguageEntry entry = TakeLanguageEntry(rest);
        taken.remove_suffix(rest.size());
        const std::size_t breaks = std::count_if(taken.begin(), taken.end(), IsLineBreak);
        length += taken.size() - breaks;
        lines.push_back({number, continued, length, std::move(entry)});
        // An entry takes one break, or the two characters of a single one, or two empty lines'.
        continued = breaks == 0;
        if (!continued) {
            const bool single = breaks == 2 && taken.ends_with(L"\r\n");
            number += single ? 1 : breaks;
            length = 0;
        }
    }
    return lines;
}

bool NeedsTranslation(std::wstring_view text) {
    constexpr wchar_t kFirstOtherLetter = 0xC0;
    return std::any_of(text.begin(), text.end(), [](wchar_t c) {
        return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || c >= kFirstOtherLetter;
    });
}

LanguageText ReadLanguageText(const std::string& path) {
    LanguageText text = TextOfLanguageFile(ReadInput(path));
    if (!text.utf16) throw UseError(path + ": not UTF-16 with a byte-order mark");
    return text;
}
