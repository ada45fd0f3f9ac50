#include "settings/hidden_names.h"

#include <gtest/gtest.h>

namespace {

TEST(HiddenNames, SplitAndJoin) {
    using Names = std::vector<std::wstring>;
    EXPECT_EQ(SplitHiddenNames(L""), Names{});
    EXPECT_EQ(SplitHiddenNames(L"a||b"), (Names{L"a", L"", L"b"}));
    EXPECT_EQ(SplitHiddenNames(L"|"), (Names{L"", L""}));
    for (const wchar_t* const stored : {L"", L"a", L"a||b", L"|a|"}) {
        EXPECT_EQ(JoinHiddenNames(SplitHiddenNames(stored)), stored);
    }
}

}  // namespace
