#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// A title pattern: letters for the fields shown before the subject, one digit for the way the
// subject is shown, letters for the fields behind it ("p3nqrsc").
struct DisplayPattern {
    std::wstring before;
    std::int32_t mode = 0;
    std::wstring after;

    // Takes any text. A pattern without a digit keeps the mode and has only letters behind; of
    // several digits the last one counts, with the letters since the one before it.
    void Parse(std::wstring_view pattern);
    std::wstring Format() const;

    bool operator==(const DisplayPattern&) const = default;
};
