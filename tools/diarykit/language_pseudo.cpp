#include "tools/diarykit/language_pseudo.h"

#include <algorithm>

#include "app/language/language_file.h"
#include "tools/diarykit/language_lines.h"

namespace {

constexpr std::wstring_view kPlain = L"ACDEGILNOSTUYZacdegilnostuyz";
constexpr std::wstring_view kAccented =
    L"\u00C4\u010C\u010E\u00C9\u011E\u00CE\u0139\u0147\u00D6\u0160\u0164\u00DB\u00DD\u017D"
    L"\u00E4\u010D\u010F\u00E9\u011F\u00EE\u013A\u0148\u00F6\u0161\u0165\u00FB\u00FD\u017E";
// What is appended: of an average width, and broken where a line may end.
constexpr std::wstring_view kPadding = L" \u00E9\u00F6\u00FB\u00E4\u00FD\u00E9";

bool IsLetterOrDigit(wchar_t c) {
    return (c >= L'0' && c <= L'9') || (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z');
}

// The length of what stays as it is at a position: "%s", "%1", "%%" and "&x" as a whole.
std::size_t LengthKept(std::wstring_view rest) {
    const wchar_t next = rest.size() > 1 ? rest[1] : L'\0';
    if (rest[0] == L'%' && (IsLetterOrDigit(next) || next == L'%')) return 2;
    if (rest[0] == L'&' && next && next != L'%') return 2;
    return 0;
}

}  // namespace

std::wstring PseudoTranslation(std::wstring_view text) {
    if (!NeedsTranslation(text)) return {};
    std::wstring result = L"[";
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t kept = LengthKept(text.substr(i));
        const std::size_t letter = kPlain.find(text[i]);
        if (kept == 0 && letter != std::wstring_view::npos) {
            result += kAccented[letter];
        } else {
            result += text.substr(i, std::max<std::size_t>(kept, 1));
        }
        i += std::max<std::size_t>(kept, 1);
    }
    const std::size_t longer = text.size() + (text.size() * 2 + 4) / 5;
    for (std::size_t i = 0; result.size() + 1 < longer; ++i) {
        const bool last = result.size() + 2 == longer;
        const wchar_t next = kPadding[i % kPadding.size()];
        result += last && next == L' ' ? kPadding.back() : next;
    }
    return result + L']';
}

std::wstring PseudoLanguage(std::wstring_view templateText) {
    std::wstring result;
    for (const LanguageLine& line : LanguageLines(templateText)) {
        const std::wstring& source = line.entry.source;
        if (source.empty()) continue;
        const std::wstring start = EscapeLanguageText(source);
        const std::wstring translation =
            source == kLanguageTemplateMark ? L"" : EscapeLanguageText(PseudoTranslation(source));
        const bool fits = start.size() + 1 + translation.size() <= kLongestLanguageLine;
        result += start + L'|' + (fits ? translation : L"") + L"\r\n";
    }
    return result;
}
