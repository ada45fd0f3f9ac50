#include "app/language/language_index.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

TEST(LanguageIndex, FindsWhatASearchFromTheFrontFinds) {
    const LanguageIndex index({
        {L"Cancel", L"Abbrechen"},
        {L"Cancel", L"Verwerfen"},
        {L"Calendar", L""},
        {L"Calendar", L"Kalender"},  // hidden by the pair before it
        {L"", L"nothing"},
        {L"Name", L"Name"},
        {L"Two\nlines", L"Zwei\nZeilen"},
    });
    const auto found = [&index](const wchar_t* source) {
        const std::wstring* translation = index.Find(source);
        return translation ? *translation : L"(none)";
    };
    EXPECT_EQ(found(L"Cancel"), L"Abbrechen");
    EXPECT_EQ(found(L"Calendar"), L"(none)");
    EXPECT_EQ(found(L"Two\nlines"), L"Zwei\nZeilen");
    for (const wchar_t* source : {L"", L"Name", L"cancel", L"Cance", L"Cancel ", L"Abbrechen"}) {
        EXPECT_EQ(found(source), L"(none)") << source;
    }
    EXPECT_EQ(LanguageIndex().Find(L"Cancel"), nullptr);
}

TEST(LanguageIndex, KeepsItsTextsWhenMoved) {
    LanguageIndex first({{L"a", L"b"}, {L"c", L"d"}});
    LanguageIndex second;
    second = std::move(first);
    first = LanguageIndex(std::vector<LanguageEntry>{{L"a", L"x"}});
    ASSERT_NE(second.Find(L"a"), nullptr);
    EXPECT_EQ(*second.Find(L"a"), L"b");
    EXPECT_EQ(*first.Find(L"a"), L"x");
}

}  // namespace
