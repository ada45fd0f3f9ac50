#include "app/command_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(CommandLine, ListsTheSheetsToOpen) {
    struct Case {
        std::wstring text;
        std::vector<OpenRequest> requests;
    };
    for (const Case& c : {
             Case{L"", {}},
             Case{L"-P1:3", {{1, 3}}},
             Case{L"-p0:0", {{0, 0}}},
             Case{L"-P 1:3", {{1, 3}}},
             Case{L"-P\t 1:\t3", {{1, 3}}},
             Case{L"-P1:3 -p7:0", {{1, 3}, {7, 0}}},
             Case{L"-P+1:-3", {{1, -3}}},
             Case{L"-P-1:2", {{-1, 2}}},
             Case{L"-P007:010", {{7, 10}}},
             Case{L"-P1:2x", {{1, 2}}},
             Case{L"open -P1:2 please", {{1, 2}}},
             Case{L"--P1:2", {{1, 2}}},
             Case{L"-P1:2147483647", {{1, 2147483647}}},
             // No such option.
             Case{L"P1:3", {}},
             Case{L"/P1:3", {}},
             Case{L"- P1:3", {}},
             Case{L"-Q1:3", {}},
             Case{L"-", {}},
             Case{L"-P", {}},
             Case{L"-P:", {}},
             Case{L"-P1", {}},
             Case{L"-P1:", {}},
             Case{L"-P1: ", {}},
             Case{L"-P:2", {}},
             Case{L"-P1 :2", {}},
             Case{L"-P1;2", {}},
             Case{L"-P1:x", {}},
             Case{L"-P+-1:2", {}},
             Case{L"-P- 1:2", {}},
             Case{L"-P\x0661:2", {}},
             Case{L"-P1:2147483648", {}},
             Case{L"-P99999999999999999999999999:1", {}},
             // What is wrong does not hide what follows it.
             Case{L"-P1: -P2:4", {{2, 4}}},
             Case{L"-P-P3:5", {{3, 5}}},
         }) {
        EXPECT_EQ(ParseCommandLine(c.text), c.requests) << testing::PrintToString(c.text);
    }
}

}  // namespace
