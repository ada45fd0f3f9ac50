// What diarykit makes of any bytes: settings come back from .reg files as they were, a translation
// that is up to date stays as it is, and nothing upsets the readers of libraries and layouts.
#include <algorithm>

#include "base/fill_in.h"
#include "tests/fuzz/fuzz.h"
#include "tools/diarykit/language_check.h"
#include "tools/diarykit/language_lines.h"
#include "tools/diarykit/language_pseudo.h"
#include "tools/diarykit/language_update.h"
#include "tools/diarykit/layout_check.h"
#include "tools/diarykit/reg_file.h"
#include "tools/diarykit/settings_check.h"
#include "tools/diarykit/text.h"
#include "tools/diarykit/text_places.h"

namespace {

using Bytes = std::span<const std::uint8_t>;

// Whatever the order in which keys are told.
StoredSettings Sorted(StoredSettings settings) {
    std::sort(settings.keys.begin(), settings.keys.end(),
              [](const StoredKey& a, const StoredKey& b) { return a.path < b.path; });
    return settings;
}

void CarryToReg(Bytes file) {
    const StoredSettings settings = ReadSettings(file);
    REQUIRE(CheckSettings("x", file).empty() || !settings.keys.empty() || !settings.whole);
    if (!settings.whole) return;
    constexpr wchar_t kUnder[] = L"HKEY_CURRENT_USER\\X";
    const auto text = FormatReg(settings, kUnder);
    if (!text) return;
    std::vector<RegFault> faults;
    REQUIRE(Sorted(ParseReg(*text, kUnder, faults)) == Sorted(settings));
    REQUIRE(faults.empty());
}

void CarryFromReg(Bytes file) {
    std::vector<RegFault> faults;
    const std::wstring text = L"REGEDIT4\n" + TextOfFile(file);
    const StoredSettings settings = ParseReg(text, {}, faults);
    const auto lines = std::count(text.begin(), text.end(), L'\n') +
                       std::count(text.begin(), text.end(), L'\r') + 1;
    for (const RegFault& fault : faults) REQUIRE(fault.line <= static_cast<std::size_t>(lines));
    if (!faults.empty()) return;
    REQUIRE(Sorted(ReadSettings(WriteSettings(settings))) == Sorted(settings));
}

void Translate(Bytes bytes) {
    const std::wstring text = TextOf(bytes);
    const std::size_t middle = text.size() / 2;
    const std::wstring older = text.substr(0, middle), newer = text.substr(middle);
    const std::wstring updated = UpdateLanguage(older, newer).text;
    const LanguageUpdate again = UpdateLanguage(updated, newer);
    // Lines that became too long by their escapes, or were so, are not the same anew.
    if (text.size() < kLongestLanguageLine / 4) REQUIRE(again.text == updated);
    CheckLanguage("x", bytes, newer, {}, true);
    for (const LanguageLine& line : LanguageLines(newer)) {
        const std::wstring pseudo = PseudoTranslation(line.entry.source);
        REQUIRE(pseudo.empty() || PlaceholdersOf(pseudo) == PlaceholdersOf(line.entry.source));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const Bytes rest(data + 1, size - 1);
    std::vector<std::string> shown;
    switch (data[0] % 5) {
        case 0: CarryToReg(rest); break;
        case 1: CarryFromReg(rest); break;
        case 2: Translate(rest); break;
        case 3: PlacesOfTexts(rest); break;
        default: CheckLayouts("x", TextOfFile(rest), shown); break;
    }
    return 0;
}
