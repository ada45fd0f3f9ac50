#pragma once

#include <string>
#include <vector>

// The commands' exit codes.
inline constexpr int kFine = 0;
inline constexpr int kFound = 1;
inline constexpr int kWrongUse = 2;

// Runs the command that the arguments, in UTF-8 and without the program's name, ask for, and gives
// its exit code.
int RunKit(const std::vector<std::string>& arguments);
