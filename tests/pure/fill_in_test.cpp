#include "base/fill_in.h"

#include <gtest/gtest.h>

namespace {

TEST(FillIn, ReplacesWhatIsThereAndLeavesWrongTextsAlone) {
    struct Case {
        std::wstring text;
        std::wstring filled;
    };
    for (const Case& c : {
             Case{L"From %d to %s.", L"From 7 to %d%n."},
             Case{L"%d%s", L"7%d%n"},
             Case{L"100 % %%d %d%%%s%", L"100 % %d 7%%d%n%"},
             // A translation with other placeholders shows as it is.
             Case{L"%s to %d", L"%s to %d"},
             Case{L"%s to %s", L"%s to %s"},
             Case{L"only %d", L"only %d"},
             Case{L"%d to %s and %s", L"%d to %s and %s"},
             Case{L"%d %n %s", L"%d %n %s"},
             Case{L"%5d to %ls", L"%5d to %ls"},
             Case{L"", L""},
         }) {
        EXPECT_EQ(FillIn(c.text, {7, L"%d%n"}), c.filled)
            << std::string(c.text.begin(), c.text.end());
    }
}

}  // namespace
