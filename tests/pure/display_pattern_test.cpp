#include "settings/display_pattern.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(DisplayPattern, ParsesAndPrintsTheNormalForm) {
    struct {
        std::wstring text, before;
        std::int32_t mode;
        std::wstring after, printed;
    } const cases[] = {
        {L"p3nqrsc", L"p", 3, L"nqrsc", L"p3nqrsc"},
        {L"c1n", L"c", 1, L"n", L"c1n"},
        {L"0abc", L"", 0, L"abc", L"0abc"},
        {L"abc9", L"abc", 9, L"", L"abc9"},
        {L"5", L"", 5, L"", L"5"},
        // Without a digit the mode stays.
        {L"", L"", 7, L"", L"7"},
        {L"abc", L"", 7, L"abc", L"7abc"},
        // Of two digits the last one counts, with the letters between them.
        {L"a1b2c", L"b", 2, L"c", L"b2c"},
        {L"a12c", L"", 2, L"c", L"2c"},
        {L"123", L"", 3, L"", L"3"},
        // Only 0 to 9 are digits; anything else is a letter.
        {L"-1 \x0661\xFF13/:", L"-", 1, L" \x0661\xFF13/:", L"-1 \x0661\xFF13/:"},
    };
    for (const auto& c : cases) {
        DisplayPattern pattern{L"old", 7, L"old"};
        pattern.Parse(c.text);
        EXPECT_EQ(pattern, (DisplayPattern{c.before, c.mode, c.after})) << c.printed.c_str();
        EXPECT_EQ(pattern.Format(), c.printed);
    }
}

}  // namespace
