#include "base/fill_in.h"

#include <gtest/gtest.h>

namespace {

TEST(FillIn, ReplacesWhatIsThereAndLeavesWrongTextsAlone) {
    const std::pair<std::wstring, std::wstring> cases[] = {
        {L"From %d to %s.", L"From 7 to %d%n."},
        {L"%d%s", L"7%d%n"},
        {L"100 % %%d %d%%%s%", L"100 % %d 7%%d%n%"},
    };
    for (const auto& [text, filled] : cases) {
        EXPECT_EQ(FillIn(text, {7, L"%d%n"}), filled) << std::string(text.begin(), text.end());
    }
    // A translation with other placeholders shows as it is.
    for (const wchar_t* const other : {L"%s to %d", L"%s to %s", L"only %d", L"%d to %s and %s",
                                       L"%d %n %s", L"%5d to %ls", L""}) {
        EXPECT_EQ(FillIn(other, {7, L"%d%n"}), other);
    }
}

}  // namespace
