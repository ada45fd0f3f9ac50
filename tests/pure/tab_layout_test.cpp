#include "settings/tab_layout.h"

#include <gtest/gtest.h>

namespace {

TEST(TabLayout, OrderOfAnyText) {
    struct Case {
        std::wstring stored, order;
    };
    for (const Case& c : {
             Case{L"", L"123456"},
             Case{L"654321", L"654321"},
             Case{L"3", L"312456"},
             Case{L"754321", L"154326"},  // No tab 7: the first place stays, and so does its tab.
             Case{L"112233", L"123456"},
             Case{L"2,1", L"213456"},  // What stands for no tab still takes a place.
             Case{L"x\xFFFF\x0661 6", L"123465"},
             Case{L"6543210987", L"654321"},
             Case{std::wstring(5000, L'4'), L"412356"},
         }) {
        EXPECT_EQ(TabLayout::Parse(0xFFFFFFFF, c.stored).Sequence(), c.order)
            << testing::PrintToString(c.stored.substr(0, 20));
    }
}

TEST(TabLayout, ShownTabsAndTheirHeight) {
    EXPECT_EQ(TabLayout::Parse(0, L"").shown, 0xFFFFFFE0u)
        << "the calendar, where nothing is shown";
    EXPECT_EQ(TabLayout::Parse(0xFFFFFFC0, L"").shown, 0xFFFFFFE0u);
    EXPECT_EQ(TabLayout::Parse(0x01, L"").shown, 0xFFFFFFC1u);
    EXPECT_EQ(SmallestHeight(0xFFFFFFFF, false), 120);
    EXPECT_EQ(SmallestHeight(0xFFFFFFCF, false), 80);
    EXPECT_EQ(SmallestHeight(0xFFFFFFC3, false), 60);
    EXPECT_EQ(SmallestHeight(0xFFFFFFFF, true), 60);
}

}  // namespace
