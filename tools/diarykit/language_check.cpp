#include "tools/diarykit/language_check.h"

#include <algorithm>
#include <climits>
#include <map>
#include <optional>
#include <set>

#include "base/fill_in.h"
#include "tools/diarykit/language_lines.h"
#include "tools/diarykit/text.h"

namespace {

class Checker {
  public:
    Checker(const std::string& file, const TextPlaces& places, bool withContext)
        : file_(file), places_(places), withContext_(withContext) {}

    LanguageCheck Run(const LanguageText& text, std::wstring_view templateText) {
        for (const LanguageLine& line : LanguageLines(templateText)) {
            const std::wstring& source = line.entry.source;
            if (source.empty() || source == kLanguageTemplateMark) continue;
            known_.insert(source);
            if (NeedsTranslation(source)) ++result_.known;
        }
        for (const LanguageLine& line : LanguageLines(text.characters)) {
            if (line.entry.source == kGoneTextsMark) break;
            CheckLine(line);
        }
        for (const std::wstring& source : known_) {
            if (NeedsTranslation(source) && !seen_.contains(source)) {
                Add(0, Quoted(source) + " is missing", source);
            }
        }
        return std::move(result_);
    }

  private:
    void Add(std::size_t line, std::string text, const std::wstring& source) {
        const auto known = places_.find(source);
        if (withContext_ && known != places_.end()) {
            for (const TextPlace& place : known->second) {
                text += (&place == &known->second.front() ? " [" : ", ") + Describe(place);
            }
            text += ']';
        }
        result_.findings.push_back({file_, line, std::move(text)});
    }

    void CheckLine(const LanguageLine& line) {
        const auto& [source, translation] = line.entry;
        if (line.continued) {
            // What continues a line is no text of its own.
            const bool tooLong = line.length > kLongestLanguageLine;
            if (!tooLong || line.number == lastTooLong_) {
                if (!tooLong) {
                    Add(line.number, "more than one bar; a bar in a text is written \\|", source);
                }
                return;
            }
            lastTooLong_ = line.number;
            return Add(line.number,
                       "longer than " + std::to_string(kLongestLanguageLine) + " characters",
                       source);
        }
        if (source.empty() || source == kLanguageTemplateMark) return;
        if (const auto [first, isNew] = seen_.try_emplace(source, line.number); !isNew) {
            return Add(line.number,
                       Quoted(source) + " stands in line " + std::to_string(first->second) +
                           " already, which counts",
                       source);
        }
        if (!known_.contains(source)) {
            Add(line.number, "the program has no text " + Quoted(source), source);
        } else if (translation.empty()) {
            if (NeedsTranslation(source)) {
                Add(line.number, Quoted(source) + " has no translation", source);
            }
        } else {
            CheckTranslation(line);
        }
    }

    void CheckTranslation(const LanguageLine& line) {
        const auto& [source, translation] = line.entry;
        const auto breaks = [](const std::wstring& text) {
            return std::count(text.begin(), text.end(), L'\n');
        };
        if (PlaceholdersOf(source) != PlaceholdersOf(translation) ||
            breaks(source) != breaks(translation)) {
            Add(line.number,
                Quoted(source) + " and its translation differ in what begins with % or in \\n",
                source);
        }
        const auto known = places_.find(source);
        if (known == places_.end()) return;
        for (const TextPlace& place : known->second) {
            const Excess excess = ExcessOf(translation, place);
            if (excess.pixels == 0) continue;
            const std::string by =
                excess.pixels < INT_MAX / 2
                    ? std::to_string(excess.pixels) + (excess.pixels == 1 ? " pixel" : " pixels")
                    : "a word";
            Add(line.number,
                Quoted(translation) + " does not fit its " + Describe(place) + ", by " + by +
                    " at " + std::to_string(excess.dpi) + " dpi",
                withContext_ ? L"" : source);
            return;
        }
    }

    const std::string& file_;
    const TextPlaces& places_;
    bool withContext_;
    std::set<std::wstring> known_;
    std::map<std::wstring, std::size_t> seen_;  // with their lines
    std::size_t lastTooLong_ = 0;
    LanguageCheck result_;
};

}  // namespace

LanguageCheck CheckLanguage(const std::string& file, std::span<const std::uint8_t> bytes,
                            std::wstring_view templateText, const TextPlaces& places,
                            bool withContext) {
    const LanguageText text = TextOfLanguageFile(bytes);
    LanguageCheck check = Checker(file, places, withContext).Run(text, templateText);
    if (!text.utf16) {
        check.findings = {{file, 0, "not UTF-16 with a byte-order mark"}};
        return check;
    }
    if (2 + 2 * text.characters.size() + 1 < bytes.size()) {
        check.findings.push_back({file, 0, "a NUL ends it early; what follows is not read"});
    }
    return check;
}
