#include "app/command_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(CommandLine, ListsTheSheetsToOpen) {
    const std::pair<std::wstring, std::vector<OpenRequest>> cases[] = {
        {L"", {}},
        {L"-P1:3", {{1, 3}}},
        {L"-p0:0", {{0, 0}}},
        {L"-P 1:3", {{1, 3}}},
        {L"-P\t 1:\r9", {{1, 9}}},
        {L"-P1:3 -p7:0", {{1, 3}, {7, 0}}},
        {L"-P+1:-3", {{1, -3}}},
        {L"-P-1:2", {{-1, 2}}},
        {L"-P007:010", {{7, 10}}},
        {L"-P1:2x", {{1, 2}}},
        {L"open -P1:2 please", {{1, 2}}},
        {L"--P1:2", {{1, 2}}},
        {L"-P1:2147483647", {{1, 2147483647}}},
        // What is wrong does not hide what follows it.
        {L"-P1: -P2:4", {{2, 4}}},
        {L"-P-P3:5", {{3, 5}}},
    };
    for (const auto& [text, requests] : cases) {
        EXPECT_EQ(ParseCommandLine(text), requests) << testing::PrintToString(text);
    }
    for (const wchar_t* const none :
         {L"P1:3", L"/P1:3", L"- P1:3", L"-Q1:3", L"-", L"-P", L"-P:", L"-P1", L"-P1:", L"-P1: ",
          L"-P:2", L"-P1 :2", L"-P1;2", L"-P1:x", L"-P+-1:2", L"-P- 1:2", L"-P\x0661:2",
          L"-P1:2147483648", L"-P99999999999999999999999999:1"}) {
        EXPECT_TRUE(ParseCommandLine(none).empty()) << testing::PrintToString(none);
    }
}

}  // namespace
