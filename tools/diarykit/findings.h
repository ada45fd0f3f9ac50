#pragma once

#include <cstddef>
#include <string>

// What is wrong, and where.
struct Finding {
    std::string file;
    std::size_t line;  // 0: of no line
    std::string text;
};
