#include "appearance/categories/file_name_escape.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

TEST(FileNameEscape, KeepsEveryName) {
    EXPECT_EQ(EscapeFileName(L"Work/Home"), L"Work%CHome");
    EXPECT_EQ(EscapeFileName(L"%\\/:*?\"<>|"), L"%A%B%C%D%E%F%G%H%I%J");
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"a%Bb", L"a\\b"}, {L"a%K%", L"a%K%"}, {L"%%A", L"%%"},
        {L"%a%@", L"%a%@"}, {L"%AB", L"%B"},    {L"%J", L"|"}};
    for (const auto& [escaped, name] : cases) {
        EXPECT_EQ(UnescapeFileName(escaped), name);
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
