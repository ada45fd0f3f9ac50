#include "settings/tab_layout.h"

#include <gtest/gtest.h>

namespace {

TEST(TabLayout, OrderOfAnyText) {
    const std::pair<std::wstring, std::wstring> cases[] = {
        {L"", L"123456"},
        {L"654321", L"654321"},
        {L"3", L"312456"},
        {L"754321", L"154326"},  // No tab 7: the first place stays, and so does its tab.
        {L"112233", L"123456"},
        {L"2,1", L"213456"},  // What stands for no tab still takes a place.
        {L"x\xFFFF\x0661 6", L"123465"},
        {L"6543210987", L"654321"},
        {std::wstring(5000, L'4'), L"412356"},
    };
    for (const auto& [stored, order] : cases) {
        EXPECT_EQ(TabLayout::Parse(0xFFFFFFFF, stored).Sequence(), order)
            << testing::PrintToString(stored.substr(0, 20));
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
