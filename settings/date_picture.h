#pragma once

#include <string>

// What of a date picture is left out or shortened.
struct DatePictureFlags {
    bool keepYear = false;
    bool shortYear = false;
    bool shortMonth = false;
    bool shortDay = false;
};

// A date picture of the platform's letters with the year left out and names shortened. Text in
// single quotes is not part of the date: it is never searched for letters, and leaves only together
// with the year beside it. A picture without a year keeps all its parts.
std::wstring BuildDatePicture(std::wstring picture, DatePictureFlags flags);
