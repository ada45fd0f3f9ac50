#include "settings/title_fields.h"

#include <gtest/gtest.h>

namespace {

std::wstring Letters(const TitleRows& rows) {
    std::wstring text;
    for (const TitleRows::Row& row : rows.rows()) {
        text += row.letter == TitleRows::kSubject ? L'_' : row.letter;
        if (!row.shown) text += L'-';
    }
    return text;
}

TEST(TitleRows, ListFieldsAndGiveThePatternBack) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"p3nqrsc", L"p_nqrsca-"}, {L"n3rqsca", L"n_rqscap-"},    {L"c1n", L"c_np-r-q-s-a-"},
        {L"2", L"_p-n-r-q-s-c-a-"}, {L"xp1yzn", L"p_nr-q-s-c-a-"},  // x, y and z stand for nothing
                                                                    // here.
    };
    for (const auto& [text, listed] : cases) {
        DisplayPattern pattern;
        pattern.Parse(text);
        const TitleRows rows(pattern);
        EXPECT_EQ(Letters(rows), listed);
        EXPECT_EQ(rows.Pattern(pattern.mode).Format(), text);
    }
}

TEST(TitleRows, UnknownLettersStayBehindTheirRow) {
    DisplayPattern pattern;
    pattern.Parse(L"xpw1yzn");
    TitleRows rows(pattern);
    rows.Move(0, 2);
    EXPECT_EQ(rows.Pattern(2).Format(), L"x2yznpw");
    rows.Show(2, false);
    rows.Show(3, true);
    EXPECT_EQ(rows.Pattern(2).Format(), L"x2yznwr");
}

TEST(TitleRows, FieldsComeAndGo) {
    DisplayPattern pattern;
    pattern.Parse(L"np3npz");
    EXPECT_TRUE(ShowsField(pattern, L'p') && !ShowsField(pattern, L'r'));
    ShowField(pattern, L'p', false);
    ShowField(pattern, L'r', true);
    ShowField(pattern, L'n', true);
    EXPECT_EQ(pattern.Format(), L"n3nzr");
}

}  // namespace
