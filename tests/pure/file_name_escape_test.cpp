#include "appearance/categories/file_name_escape.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

TEST(FileNameEscape, KeepsEveryName) {
    EXPECT_EQ(EscapeFileName(L"Work/Home"), L"Work%CHome");
    EXPECT_EQ(EscapeFileName(L"%\\/:*?\"<>|"), L"%A%B%C%D%E%F%G%H%I%J");
    struct Case {
        const wchar_t *escaped, *name;
    };
    for (const Case& c : {Case{L"a%Bb", L"a\\b"}, Case{L"a%K%", L"a%K%"}, Case{L"%%A", L"%%"},
                          Case{L"%a%@", L"%a%@"}, Case{L"%AB", L"%B"}, Case{L"%J", L"|"}}) {
        EXPECT_EQ(UnescapeFileName(c.escaped), c.name);
    }
    std::mt19937 random(1);
    const std::wstring letters = L"%\\/:*?\"<>|AJK a";
    for (int i = 0; i < 5000; ++i) {
        std::wstring name;
        while (random() % 8) name += letters[random() % letters.size()];
        const std::wstring escaped = EscapeFileName(name);
        EXPECT_EQ(escaped.find_first_of(L"\\/:*?\"<>|"), std::wstring::npos);
        EXPECT_EQ(UnescapeFileName(escaped), name);
    }
}

}  // namespace
