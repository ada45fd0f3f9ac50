// Any bytes are a settings file, and no key or value holds more than its line.
#include "pages/stores/settings_ini.h"
#include "tests/fuzz/fuzz.h"

namespace {

std::wstring Decode(unsigned, std::string_view bytes) { return {bytes.begin(), bytes.end()}; }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const SettingsIni file = ParseSettingsIni({data, size}, Decode);
    std::size_t total = 0;
    const auto check = [&](const SettingsIniSection& section) {
        for (const SettingsIniSection::Pair& pair : section.pairs) {
            REQUIRE(!pair.key.empty() && pair.key.find(L'=') == std::wstring::npos);
            REQUIRE(pair.key.find(L'\n') == std::wstring::npos);
            REQUIRE(pair.key.size() + pair.value.size() < kLongestIniLine);
            total += pair.key.size() + pair.value.size() + 1;
        }
        const auto& pairs = section.pairs;
        REQUIRE(pairs.empty() || section.Find(pairs[0].key) == &pairs[0].value);
        total += section.name.size();
    };
    check(file.top);
    for (const SettingsIniSection& section : file.sections) check(section);
    REQUIRE(total <= size);
    return 0;
}
