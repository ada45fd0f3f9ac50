// Any text is a title pattern; what is printed parses to the same pattern.
#include "settings/display_pattern.h"

#include "tests/fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::int32_t kMode = 7;
    const std::wstring text = TextOf({data, size});
    DisplayPattern pattern{L"before", kMode, L"after"};
    pattern.Parse(text);
    const std::wstring_view digits = L"0123456789";
    REQUIRE(pattern.before.find_first_of(digits) == std::wstring::npos);
    REQUIRE(pattern.after.find_first_of(digits) == std::wstring::npos);
    REQUIRE(pattern.mode >= 0 && pattern.mode <= 9);
    if (text.find_first_of(digits) == std::wstring::npos) {
        REQUIRE(pattern == (DisplayPattern{L"", kMode, text}));
    } else {
        // The text ends in the normal form of itself.
        REQUIRE(text.ends_with(pattern.Format()));
    }

    DisplayPattern again;
    again.Parse(pattern.Format());
    REQUIRE(again == pattern);
    return 0;
}
