#pragma once

#include <string>
#include <string_view>

// What is wrong with a script: the line and why. An empty text means that all went well.
struct FurnishError {
    int line = 0;
    std::wstring text;
};

// Carries a furnishing script out: adds what the device lacks and leaves the rest as it is.
FurnishError Furnish(std::wstring_view script);
