#include "tools/diarykit/language_update.h"

#include <map>
#include <set>

#include "tools/diarykit/language_check.h"
#include "tools/diarykit/language_lines.h"

namespace {

std::wstring LineOf(const std::wstring& source, const std::wstring& translation) {
    return EscapeLanguageText(source) + L'|' + EscapeLanguageText(translation) + L"\r\n";
}

bool IsMark(const std::wstring& source) {
    return source == kLanguageTemplateMark || source == kGoneTextsMark;
}

}  // namespace

LanguageUpdate UpdateLanguage(std::wstring_view oldText, std::wstring_view templateText) {
    std::map<std::wstring, std::wstring> translations;
    std::vector<std::wstring> order;
    for (const LanguageLine& line : LanguageLines(oldText)) {
        const auto& [source, translation] = line.entry;
        if (line.continued || source.empty() || IsMark(source)) continue;
        if (translations.emplace(source, translation).second) order.push_back(source);
    }
    LanguageUpdate update;
    std::set<std::wstring> known;
    for (const LanguageLine& line : LanguageLines(templateText)) {
        const std::wstring& source = line.entry.source;
        if (source.empty() || IsMark(source) || !known.insert(source).second) continue;
        const auto old = translations.find(source);
        if (old == translations.end() && NeedsTranslation(source)) ++update.added;
        update.text += LineOf(source, old == translations.end() ? L"" : old->second);
    }
    std::wstring gone;
    for (const std::wstring& source : order) {
        if (known.contains(source) || translations[source].empty()) continue;
        gone += LineOf(source, translations[source]);
        ++update.gone;
    }
    if (!gone.empty()) update.text += LineOf(std::wstring(kGoneTextsMark), L"") + gone;
    return update;
}
