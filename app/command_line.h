#pragma once

#include <string_view>
#include <vector>

// A sheet to open at one of its pages, both counted from 0.
struct OpenRequest {
    int entry;
    int page;

    bool operator==(const OpenRequest&) const = default;
};

// The sheets that the command line asks for with its options -P<entry>:<page>, in their order.
// Anything else is skipped.
std::vector<OpenRequest> ParseCommandLine(std::wstring_view commandLine);
