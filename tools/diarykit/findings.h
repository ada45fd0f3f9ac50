#pragma once

#include <cstddef>
#include <string>
#include <vector>

// What is wrong, and where.
struct Finding {
    std::string file;
    std::size_t line;  // 0: of no line
    std::string text;
};

// Prints each as "file:line: text", or all as JSON, and gives the exit code that follows.
int PrintFindings(const std::vector<Finding>& findings, bool asJson);
