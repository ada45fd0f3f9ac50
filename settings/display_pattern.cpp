#include "settings/display_pattern.h"

#include <utility>

void DisplayPattern::Parse(std::wstring_view pattern) {
    before.clear();
    after.clear();
    if (pattern.empty()) return;
    std::wstring letters;
    for (const wchar_t c : pattern) {
        if (c >= L'0' && c <= L'9') {
            mode = c - L'0';
            before = std::exchange(letters, {});
        } else {
            letters += c;
        }
    }
    after = std::move(letters);
}

std::wstring DisplayPattern::Format() const { return before + std::to_wstring(mode) + after; }
